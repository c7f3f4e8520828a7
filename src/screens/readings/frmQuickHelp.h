#pragma once
// The quick help of the reading screen: a fixed picture of a reading with its
// parts named, and a short text.
#include "screens/widgets/HelpPanel.h"

class frmQuickHelp : public HelpPanelForm {
    Q_OBJECT
public:
    frmQuickHelp();
};
