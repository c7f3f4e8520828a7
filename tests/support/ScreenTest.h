#pragma once
// What every test of the screens reaches for: QtTest, the widgets the
// screens are built of, the scripted boxes and modal screens, and a program
// directory laid out by the fixtures.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtTest>

#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"
#include "core/store/RunState.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "support/Fixtures.h"
#include "support/ModalScript.h"
#include "support/Prompts.h"
