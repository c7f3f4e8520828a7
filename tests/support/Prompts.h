#pragma once
// The prompts of the message boxes asked since the script was last cleared,
// in order.
#include <QStringList>

#include "screens/platform/MsgBox.h"

inline QStringList Prompts() {
    QStringList prompts;
    for (const auto& asked : MsgBoxScript::History()) prompts << asked.prompt;
    return prompts;
}
