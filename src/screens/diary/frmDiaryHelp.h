#pragma once
// The quick help of the diary screen: a fixed picture of a diary entry with
// its parts named, the cards list included, and a short text.
#include "screens/widgets/HelpPanel.h"

class frmDiaryHelp : public HelpPanelForm {
    Q_OBJECT
public:
    frmDiaryHelp();
};
