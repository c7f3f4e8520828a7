#pragma once
// The program's help viewer: shows the manual "Cartomar.hlp" (a hypertext
// file beside the executable) with its own contents, back and close buttons.
#include "screens/platform/Form.h"

class QPushButton;
class QTextBrowser;

class frmHelpViewer : public Form {
    Q_OBJECT
public:
    frmHelpViewer();
    void ShowFile(const QString& path);

    QTextBrowser* txtHelp = nullptr;
    QPushButton* cmdContents = nullptr;
    QPushButton* cmdBack = nullptr;
    QPushButton* cmdClose = nullptr;

protected:
    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};

// Opens the viewer on a help file (or brings it forward on it).
void ShowHelpFile(const QString& path);
