#pragma once
// "Install Package": picks a package file in a folder, shows what it holds,
// deletes it, or installs it. Installing unpacks it into Temp/ and hands it
// to PackageInstallation, whose questions this screen answers with the save
// dialogue, frmDesignExists and frmDeckChooser; it then shows what came of
// it: the summary, the refusal of a damaged package, or the error that
// stopped the installation with nothing written.
#include "core/packages/PackageInstallation.h"
#include "screens/platform/CommonDialog.h"
#include "screens/platform/Form.h"

class DirListBox;
class DriveListBox;
class FileListBox;
class QLabel;
class QPushButton;

class frmInstallPackage : public Form, public InstallationQuestions {
    Q_OBJECT
public:
    frmInstallPackage();

    DriveListBox* drvSelection;
    DirListBox* dirSelection;
    FileListBox* filSelection;
    QPushButton* cmdInstall;
    QPushButton* cmdInfo;
    QPushButton* cmdDelete;
    QPushButton* cmdCancel;
    QLabel* lblStatus;
    CommonDialog CommonDialog1;

    bool HasAttachment = false;
    bool AttachmentSaved = false;
    QString AttachmentFile;  // the attachment's name, then where it was saved
    bool PackageExtracted = false;
    bool ExtractFailed = false;

    int DecksInstalled = 0;
    int SpreadsInstalled = 0;

    void drvSelection_Change();
    void dirSelection_Change();
    void filSelection_Click();
    void cmdInstall_Click();
    void cmdInfo_Click();
    void cmdDelete_Click();
    void cmdCancel_Click();

    void ExtractFiles();
    // Installs the package unpacked in Temp/; false when it was refused, so
    // that no summary follows.
    bool Install();

    QString AttachmentTarget(const QString& proposed) override;
    DesignExistsReply DesignExists(int design, const QString& title,
                                   const std::function<bool(const QString&)>& nameInUse) override;
    void ChooseDecks(const std::vector<DeckRecord>& decks) override;

    // The folder shown, so that a caller can point the screen at one.
    void ShowFolder(const QString& folder);
    // Shows a package file's folder with that package chosen.
    void SelectPackage(const QString& packageFile);

protected:
    void Form_Load() override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    void UpdateButtons();
    void ShowPackageSummary();
};

// "Package Info": the spreads, decks and attachment of the package unpacked
// in Temp/.
class QListWidget;
class QLineEdit;
class frmPackageInfo : public Form {
    Q_OBJECT
public:
    frmPackageInfo();
    QListWidget* lstSpreads;
    QListWidget* lstDecks;
    QLineEdit* txtAttachment;
    QPushButton* cmdInstall;
    QPushButton* cmdCancel;
    void cmdInstall_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};
