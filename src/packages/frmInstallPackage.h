#pragma once
// "Install Package": picks a package file in a folder, shows what it holds,
// deletes it, or installs it. Installing unpacks it into Temp/ and merges its
// designs into the live files: the attachment first, then the decks, their
// cards, and the spreads. Every design gets a fresh id and every card file a
// fresh name; a design whose name is taken goes through frmDesignExists, and
// each spread is tied to installed decks on frmDeckChooser.
//
// Nothing is rolled back: a record written stays. Each record is written
// whole, so an installation that ends on an error leaves every record file
// readable.
#include <QHash>

#include "platform/Arrays.h"
#include "platform/CommonDialog.h"
#include "platform/Form.h"
#include "store/RecordFile.h"
#include "store/mdlTypes.h"

class DirListBox;
class DriveListBox;
class FileListBox;
class QLabel;
class QPushButton;

// A list of ids read from a record file, grown a fixed number of entries at a
// time. Entries past the last one read are 0, and searches stop at a 0 entry.
struct GrownIdList {
    BoundedArray<Integer> Ids;
    int Capacity = 0;
    int Count = 0;
    void Reset();
    void Add(Integer id, int step);
};

class frmInstallPackage : public Form {
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
    QString AttachmentFile;   // the attachment's name, then where it was saved
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
    void Install();
    void LinkToExistingDecks();
    bool NameIsInDeckInstalledArray(const QString& name) const;
    bool NameIsInSpreadInstalledArray(const QString& name) const;

    // The folder shown, so that a caller can point the screen at one.
    void ShowFolder(const QString& folder);
    // Shows a package file's folder with that package chosen.
    void SelectPackage(const QString& packageFile);

protected:
    void Form_Load() override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    void UpdateButtons();
    void ResetInstallState();
    bool SaveAttachment();
    bool PassesCompatibilityTest() const;
    void ReserveCardFileNames();
    void LoadInstalledDecks();
    void LoadInstalledSpreads();
    void InstallDecks();
    void InstallCards();
    void TakeCards(RecordEdit<CardRecord>& cards);
    void InstallSpreads();
    void InstallSpread(SpreadRecord spread, int i, int& position);
    void RemapSpread(int i);
    void InstallSpreadBackground();
    void TakeUnpackedFile(const QString& recorded, const QString& newName);
    Integer MapDeckId(Integer oldId);
    int AskDesignExists(int design, const QString& title);
    void ShowPackageSummary();

    int PackageCardCount = 0;
    BoundedArray<QString> NewUprightNames, NewReversedNames, NewUprightSoundNames, NewReversedSoundNames;
    GrownIdList PackageDeckIds, NewDeckIds, InstalledDeckIds;
    GrownIdList PackageSpreadIds, NewSpreadIds, InstalledSpreadIds;
    BoundedArray<QString> InstalledDeckNames, InstalledSpreadNames;   // 50 characters, untrimmed
    Integer LastOldDeckId = 0;
    Integer LastNewDeckId = 0;
    // Files of Temp/ already moved into Cards/, by their unpacked name.
    QHash<QString, QString> TakenFiles;
    int ChosenDeckCount = -1;
    std::array<Integer, 10> ChosenDeckIds{};
    bool FirstLinkPending = true;
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

// The index of id among ids, from the first entry; -1 when an entry 0
// follows the one tested or the array ends first.
int IndexOfId(const BoundedArray<Integer>& ids, Integer id);
// Whether a name stands among names, both trimmed, case counting.
bool NameIsInArray(const BoundedArray<QString>& names, const QString& name);
// Gives each package id in turn the smallest positive id not among the
// installed ones, in ascending order, until a package entry is 0.
void AssignNewIds(const GrownIdList& packageIds, GrownIdList& newIds, const GrownIdList& installedIds);
// The compaction of a spread's deck list after its ids were mapped: entries
// -1 go, the others move left by the places shifted so far in the run.
void CompactAllowedDecks(SpreadRecord& spread, int countAtStart);
