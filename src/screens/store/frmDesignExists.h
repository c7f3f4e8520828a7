#pragma once
// The question the package installer puts when a design of the same name is
// already installed: overwrite, skip, rename, or the same for all.
#include <functional>

#include "core/store/RunState.h"
#include "screens/platform/Form.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

class frmDesignExists : public Form {
    Q_OBJECT
public:
    frmDesignExists();

    int Design = DesignDeck;  // the kind of design
    QString Title;            // the design's name
    // The installer's test whether a new name is taken, given the name padded
    // to 30 characters. Without one every name is free.
    std::function<bool(int design, const QString& padded)> NameInUse;

    QWidget* picDoWhat;
    QWidget* picRename;
    QLabel* lblDoWhat;
    QPushButton* cmdOverwrite;
    QPushButton* cmdOverwriteAll;
    QPushButton* cmdSkip;
    QPushButton* cmdSkipAll;
    QPushButton* cmdRename;
    QLineEdit* txtDesignName;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

    // Sets the kind and name, and asks: the screen is shown modally.
    void Ask(int design, const QString& title);

    void cmdOverwrite_Click();
    void cmdOverwriteAll_Click();
    void cmdSkip_Click();
    void cmdSkipAll_Click();
    void cmdRename_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;

private:
    void Choose(int answer);
};
