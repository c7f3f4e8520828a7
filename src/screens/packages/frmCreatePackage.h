#pragma once
// "Create Package": the designer picks decks and spreads, may attach one file
// and protect the designs with one password, and names the package file.
// Creating copies all that belongs to the choice into Temp/ (the record files
// Temp.dck, Temp.crd, Temp.spr, Temp.loc and the files they name), packs
// Temp/ into the package, empties Temp/ and shows the summary. The live
// designs never change: the password goes only into the copies.
#include <vector>

#include "core/records/Records.h"
#include "screens/platform/CommonDialog.h"
#include "screens/platform/Form.h"

class DirListBox;
class DriveListBox;
class FileListBox;
class QCheckBox;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

class frmCreatePackage : public Form {
    Q_OBJECT
public:
    frmCreatePackage();

    QListWidget* lstAvailableDecks;
    QListWidget* lstAvailableSpreads;
    QCheckBox* chkAutoSelect;
    QCheckBox* chkPassword;
    QLineEdit* txtAttachment;
    QPushButton* cmdAttach;
    QPushButton* cmdDeAttach;
    DriveListBox* drvSelection;
    DirListBox* dirSelection;
    FileListBox* filSelection;
    QLineEdit* txtFilename;
    QPushButton* cmdCreate;
    QPushButton* cmdCancel;
    CommonDialog CommonDialog1;

    QString PackageFolder;
    QString PackageFileName;
    QString AttachmentName;
    bool AttachmentStaged = false;
    int DecksPacked = 0;
    int SpreadsPacked = 0;
    QString PackagePassword;
    bool PasswordSet = false;
    bool ProtectedWarningShown = false;
    bool CreateFailed = false;
    bool AbortCreate = false;

    void lstAvailableDecks_Click();
    void lstAvailableSpreads_ItemCheck(int item);
    void chkPassword_Click();
    void cmdAttach_Click();
    void cmdDeAttach_Click();
    void drvSelection_Change();
    void dirSelection_Change();
    void filSelection_Click();
    void txtFilename_Change();
    void cmdCreate_Click();
    void cmdCancel_Click();

    void SuggestFilename();
    bool CanCreate() const;
    void SelectRequiredDecks(const QString& spreadName);
    bool IsValidFilename() const;

protected:
    void Form_Load() override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    void CheckInputs();
    // The chosen designs into Temp/ (PackageStaging), then the attachment.
    void StageDesigns();
    void StageAttachment();
    void WarnProtectedDesign();
    void ShowSummary();
    bool AnyChecked(const QListWidget* list) const;

    std::vector<QString> DeckListNames;
    std::vector<Integer> DeckListIds;
    bool InPasswordClick = false;
};

// The name with ".pck" added, unless ".pck" stands anywhere in it already
// (compared without regard to case).
QString AddPackageExtension(const QString& name);
