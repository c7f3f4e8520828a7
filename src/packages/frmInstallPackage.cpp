#include "packages/frmInstallPackage.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSet>
#include <vector>

#include "packages/PackageSummary.h"
#include "packages/mdlPackages.h"
#include "platform/BinaryFile.h"
#include "platform/Errors.h"
#include "platform/FileLists.h"
#include "platform/FileSys.h"
#include "platform/MsgBox.h"
#include "platform/Twips.h"
#include "shell/frmMainScreen.h"
#include "shell/mdlFORM.h"
#include "spreads/frmDeckChooser.h"
#include "store/RecordFile.h"
#include "store/Startup.h"
#include "store/frmDesignExists.h"
#include "store/mdlSubRoutines.h"
#include "store/mdlVariables.h"

namespace {

// A file a package's record names is one the package brought into Temp/,
// which holds plain file names only. A name that would reach elsewhere
// ("../x", "/etc/x") names no file the package brought: it is missing.
QString UnpackedFileName(const QString& recorded) {
    if (recorded.isEmpty() || MemberFileName(recorded) != recorded) RaiseError(errFileNotFound);
    return recorded;
}

QRect At(int left, int top, int width, int height) {
    return QRect(TwipsToPixels(left), TwipsToPixels(top), TwipsToPixels(width), TwipsToPixels(height));
}

QPushButton* MakeButton(QWidget* parent, const QString& caption, const char* name, const QRect& where) {
    auto* b = new QPushButton(caption, parent);
    b->setObjectName(QLatin1String(name));
    b->setGeometry(where);
    return b;
}

const QString AttachmentPrefix = QStringLiteral("ATT - ");
constexpr int DeckIdStep = 5;
constexpr int SpreadIdStep = 15;

QString TempFile(const char* name) { return TempDir + QLatin1String(name); }

// A record file the package does not hold counts as one without records.
qint64 LengthOrZero(const QString& path) { return FileExists(path) ? FileLen(path) : 0; }

bool IsOverwrite(int choice) { return choice == DesignExistsOverwrite || choice == DesignExistsOverwriteAll; }
bool IsSkip(int choice) { return choice == DesignExistsSkip || choice == DesignExistsSkipAll; }
bool AnswersForAll(int choice) { return choice == DesignExistsOverwriteAll || choice == DesignExistsSkipAll; }

}  // namespace

// ---- Id lists --------------------------------------------------------------

void GrownIdList::Reset() {
    Ids.Redim(1, 1);
    Capacity = 0;
    Count = 0;
}

void GrownIdList::Add(Integer id, int step) {
    ++Count;
    if (Count > Capacity) {
        Capacity += step;
        Ids.RedimPreserve(Capacity);
    }
    Ids(Count) = id;
}

int IndexOfId(const BoundedArray<Integer>& ids, Integer id) {
    for (int k = ids.LBound(); k <= ids.UBound(); ++k) {
        if (ids(k) == id) return k;
        if (k + 1 > ids.UBound() || ids(k + 1) == 0) return -1;
    }
    return -1;
}

bool NameIsInArray(const BoundedArray<QString>& names, const QString& name) {
    const QString wanted = TrimField(name);
    for (const QString& entry : names)
        if (TrimField(entry) == wanted) return true;
    return false;
}

void AssignNewIds(const GrownIdList& packageIds, GrownIdList& newIds, const GrownIdList& installedIds) {
    newIds.Capacity = packageIds.Capacity;
    newIds.Count = packageIds.Count;
    newIds.Ids.Redim(1, std::max(1, packageIds.Capacity));
    // A package list that is exactly full has no 0 behind its last entry:
    // the look past it raises the subscript error before anything is written.
    int i = 1;
    for (int candidate = 1; packageIds.Ids(i) != 0; ++candidate) {
        if (IndexOfId(installedIds.Ids, static_cast<Integer>(candidate)) != -1) continue;
        newIds.Ids(i) = static_cast<Integer>(candidate);
        ++i;
    }
}

void CompactAllowedDecks(SpreadRecord& spread, int countAtStart) {
    // The 1-based list of the record; a place left of the first raises the
    // subscript error, as the list of the record does.
    auto entry = [&spread](int k) -> Integer& {
        if (k < 1 || k > 10) RaiseError(errSubscriptOutOfRange);
        return spread.AllowedDeckId[static_cast<std::size_t>(k - 1)];
    };
    int shifted = 0;   // places shifted so far; never reset within the run
    for (int j = 1; j <= countAtStart; ++j) {
        if (entry(j) != -1) continue;
        // The pass starts back where the gap would stand had the list moved
        // twice the places already shifted, and moves by the new total.
        const int from = std::max(1, j - 2 * shifted);
        ++shifted;
        --spread.AllowedDeckCount;
        for (int k = from; k <= countAtStart; ++k)
            if (entry(k) != -1) entry(k - shifted) = entry(k);
    }
}

// ---- The screen ------------------------------------------------------------

frmInstallPackage::frmInstallPackage() {
    setObjectName(QStringLiteral("frmInstallPackage"));
    setCaption(QStringLiteral("Install Package"));
    resize(TwipsToPixels(7560), TwipsToPixels(5160));

    drvSelection = new DriveListBox(this);
    drvSelection->setObjectName(QStringLiteral("drvSelection"));
    drvSelection->setGeometry(At(240, 240, 3360, 360));
    dirSelection = new DirListBox(this);
    dirSelection->setObjectName(QStringLiteral("dirSelection"));
    dirSelection->setGeometry(At(240, 720, 3360, 3480));
    filSelection = new FileListBox(this);
    filSelection->setObjectName(QStringLiteral("filSelection"));
    filSelection->setPattern(QStringLiteral("*.pck"));
    filSelection->setGeometry(At(3720, 240, 3600, 3960));
    lblStatus = new QLabel(this);
    lblStatus->setObjectName(QStringLiteral("lblStatus"));
    lblStatus->setGeometry(At(240, 4320, 7080, 270));
    cmdInstall = MakeButton(this, QStringLiteral("&Install"), "cmdInstall", At(240, 4620, 1680, 400));
    cmdInfo = MakeButton(this, QStringLiteral("In&fo"), "cmdInfo", At(2040, 4620, 1680, 400));
    cmdDelete = MakeButton(this, QStringLiteral("&Delete"), "cmdDelete", At(3840, 4620, 1680, 400));
    cmdCancel = MakeButton(this, QStringLiteral("&Close"), "cmdCancel", At(5640, 4620, 1680, 400));

    connect(drvSelection, &DriveListBox::Change, this, Handler([this] { drvSelection_Change(); }));
    connect(dirSelection, &DirListBox::Change, this, Handler([this] { dirSelection_Change(); }));
    connect(filSelection, &FileListBox::Click, this, Handler([this] { filSelection_Click(); }));
    connect(cmdInstall, &QPushButton::clicked, this, Handler([this] { cmdInstall_Click(); }));
    connect(cmdInfo, &QPushButton::clicked, this, Handler([this] { cmdInfo_Click(); }));
    connect(cmdDelete, &QPushButton::clicked, this, Handler([this] { cmdDelete_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
    setWayOut([this] { cmdCancel_Click(); });
}

void frmInstallPackage::Form_Load() {
    CentreInFrame(*this);
    lblStatus->clear();
    ShowFolder(PackagesDir);
}

void frmInstallPackage::ShowFolder(const QString& folder) {
    drvSelection->setDrive(folder);
    dirSelection->setPath(folder);
    filSelection->setPath(dirSelection->Path());
    PackageExtracted = false;
    UpdateButtons();
}

void frmInstallPackage::SelectPackage(const QString& packageFile) {
    ShowFolder(FolderOf(packageFile));
    const QString name = FileNameOf(packageFile);
    for (int i = 0; i < filSelection->ListCount(); ++i)
        if (filSelection->List(i) == name) filSelection->setListIndex(i);
    UpdateButtons();
}

void frmInstallPackage::UpdateButtons() {
    const bool selected = !filSelection->FileName().isEmpty();
    cmdDelete->setEnabled(selected);
    cmdInstall->setEnabled(selected);
    cmdInfo->setEnabled(selected);
}

void frmInstallPackage::drvSelection_Change() {
    try {
        dirSelection->setPath(drvSelection->Drive());
        filSelection->setPath(dirSelection->Path());
    } catch (const RuntimeError&) {
        MsgBox(QStringLiteral("This device is currently unavailable!"), vbCritical);
        drvSelection->setDrive(dirSelection->Path());
    }
    if (filSelection->FileName().isEmpty()) cmdInstall->setEnabled(false);
    PackageExtracted = false;
}

void frmInstallPackage::dirSelection_Change() {
    filSelection->setPath(dirSelection->Path());
    PackageExtracted = false;
    UpdateButtons();
}

void frmInstallPackage::filSelection_Click() {
    PackageExtracted = false;
    UpdateButtons();
}

void frmInstallPackage::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
    } else if (focusWidget() == filSelection && key == Qt::Key_Delete) {
        handled = true;
        cmdDelete_Click();
    } else if (focusWidget() == filSelection && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        handled = true;
        cmdInstall_Click();
    }
}

void frmInstallPackage::cmdCancel_Click() {
    Get<frmMainScreen>().Show();
    Unload();
}

void frmInstallPackage::cmdDelete_Click() {
    const QString name = filSelection->FileName();
    if (name.isEmpty()) return;
    if (MsgBox(QStringLiteral("Are you sure you want to delete package '") + name + QStringLiteral("' ?"),
               vbYesNo | vbQuestion | vbDefaultButton2) != vbYes)
        return;
    SetScreenPointer(MousePointer::Hourglass);
    Kill(AddTrailingBackslash(filSelection->Path()) + name);
    filSelection->Refresh();
    UpdateButtons();
    SetScreenPointer(MousePointer::Default);
}

void frmInstallPackage::cmdInfo_Click() {
    ExtractFiles();
    if (!ExtractFailed) Get<frmPackageInfo>().Show(true);
}

void frmInstallPackage::ExtractFiles() {
    MkDirIgnoringErrors(TempDir);
    ClearTemp();
    const QString path = AddTrailingBackslash(filSelection->Path()) + filSelection->FileName();
    ExtractFailed = !ExtractPackageFile(path, TempDir);
    if (ExtractFailed) return;
    const QStringList attachments = Dir(TempDir + AttachmentPrefix + QStringLiteral("*.*"));
    AttachmentFile = attachments.isEmpty() ? QString() : attachments.first().mid(AttachmentPrefix.size());
    HasAttachment = !TrimField(AttachmentFile).isEmpty();
    PackageExtracted = true;
}

void frmInstallPackage::ResetInstallState() {
    PackageCardCount = 0;
    for (auto* names : {&NewUprightNames, &NewReversedNames, &NewUprightSoundNames, &NewReversedSoundNames,
                        &InstalledDeckNames, &InstalledSpreadNames})
        names->Redim(1, 1);
    for (auto* ids : {&PackageDeckIds, &NewDeckIds, &InstalledDeckIds, &PackageSpreadIds, &NewSpreadIds,
                      &InstalledSpreadIds})
        ids->Reset();
    LastOldDeckId = 0;
    LastNewDeckId = 0;
    TakenFiles.clear();
}

// The files a package unpacked into Temp/ are moved into Cards/ under their
// new names rather than copied: Temp/ is emptied after the installation in
// any case. A file that several records name is copied from where the first
// one took it, so every design still gets its own file.
void frmInstallPackage::TakeUnpackedFile(const QString& recorded, const QString& newName) {
    const QString oldName = UnpackedFileName(recorded);
    const auto taken = TakenFiles.constFind(oldName);
    if (taken != TakenFiles.cend()) {
        FileCopyUnsynced(CardsDir + taken.value(), CardsDir + newName);
    } else {
        FileMoveUnsynced(TempDir + oldName, CardsDir + newName);
        TakenFiles.insert(oldName, newName);
    }
}

void frmInstallPackage::cmdInstall_Click() {
    SetScreenPointer(MousePointer::Hourglass);
    DesignExistsChoice = 0;
    DecksInstalled = 0;
    SpreadsInstalled = 0;
    AttachmentSaved = false;
    if (!PackageExtracted) ExtractFiles();
    ResetInstallState();
    bool failed = false;
    if (!ExtractFailed) {
        // A failure inside the merge (a file the records name but the package
        // lacks, a list that runs out of places) ends the installation with
        // the error box. Each record is written whole, so the files stay
        // readable; what was installed before the failure stays installed.
        try {
            Install();
        } catch (const RuntimeError& error) {
            failed = true;
            SetScreenPointer(MousePointer::Default);
            ReportError(error);
        }
        if (!failed) ShowPackageSummary();
    }
    lblStatus->clear();
    ClearTemp();
    PackageExtracted = false;
    SetScreenPointer(MousePointer::Default);
    if (!ExtractFailed && !failed) {
        Get<frmMainScreen>().Show();
        Unload();
    }
}

bool frmInstallPackage::SaveAttachment() {
    CommonDialog1.Filter = QStringLiteral(
        "All Files (*.*)|*.*|HTML Files (*.htm)|*.htm|Document Files (*.doc)|*.doc|Text Files (*.txt)|*.txt");
    CommonDialog1.FilterIndex = 1;
    CommonDialog1.FileName = AttachmentsDir + AttachmentFile;
    CommonDialog1.Flags = CommonDialog::cdlOFNOverwritePrompt | CommonDialog::cdlOFNPathMustExist;
    CommonDialog1.DialogTitle = QStringLiteral("Save Attachment As");
    if (!CommonDialog1.ShowSave()) return false;
    const QStringList found = Dir(TempDir + AttachmentPrefix + QStringLiteral("*.*"));
    const QString tempName = found.isEmpty() ? QString() : found.first();
    if (!CommonDialog1.FileName.contains(CommonDialog1.FileTitle)) FatalError();
    // The package's extension is added even when the chosen name has it
    // already: accepting the proposed "notes.txt" saves "notes.txt.txt".
    const int dot = tempName.lastIndexOf(QLatin1Char('.'));
    const QString target = CommonDialog1.FileName + (dot < 0 ? QString() : tempName.mid(dot));
    FileCopy(TempDir + tempName, target);
    AttachmentFile = target;
    return true;
}

bool frmInstallPackage::PassesCompatibilityTest() const {
    bool decksPass = true;
    bool spreadsPass = true;
    if (FileExists(TempFile("Temp.dck")))
        decksPass = LengthOrZero(TempFile("Temp.crd")) % CardRecord::Length == 0 ||
                    LengthOrZero(TempFile("Temp.dck")) % DeckRecord::Length == 0;
    if (FileExists(TempFile("Temp.spr")))
        spreadsPass = LengthOrZero(TempFile("Temp.spr")) % SpreadRecord::Length == 0 ||
                      FileExists(TempFile("Temp.loc"));
    return decksPass && spreadsPass;
}

void frmInstallPackage::Install() {
    if (HasAttachment) {
        AttachmentSaved = SaveAttachment();
        if (!AttachmentSaved) return;
    }
    if (!PassesCompatibilityTest()) {
        SetScreenPointer(MousePointer::Default);
        MsgBox(QStringLiteral("Unable to install: Incompatible Cartomar Package."));
        if (AnyFileMatches(TempDir + QStringLiteral("*.*"))) ClearTemp();
        return;
    }
    DesignExistsChoice = 0;
    PackageCardCount = CountCards(TempFile("Temp.crd"));
    ReserveCardFileNames();

    LoadInstalledDecks();
    for (const DeckRecord& deck : ReadAllRecords<DeckRecord>(TempFile("Temp.dck")))
        PackageDeckIds.Add(deck.DeckId, DeckIdStep);
    AssignNewIds(PackageDeckIds, NewDeckIds, InstalledDeckIds);
    InstalledDeckIds.Reset();
    InstallDecks();
    InstallCards();
    for (auto* names : {&NewUprightNames, &NewReversedNames, &NewUprightSoundNames, &NewReversedSoundNames,
                        &InstalledDeckNames})
        names->Redim(1, 1);

    // A choice "for all" given for a deck holds for the spreads too.
    LoadInstalledSpreads();
    for (const SpreadRecord& spread : ReadAllRecords<SpreadRecord>(TempFile("Temp.spr")))
        PackageSpreadIds.Add(spread.SpreadId, SpreadIdStep);
    AssignNewIds(PackageSpreadIds, NewSpreadIds, InstalledSpreadIds);
    InstallSpreads();
    ResetInstallState();
}

void frmInstallPackage::ReserveCardFileNames() {
    if (PackageCardCount < 1) return;
    for (auto* names : {&NewUprightNames, &NewReversedNames, &NewUprightSoundNames, &NewReversedSoundNames})
        names->Redim(1, PackageCardCount);
    // Only the upright stem is looked at, whatever the extension.
    QSet<QString> taken;
    for (const QString& name : Dir(CardsDir + QStringLiteral("CU*"))) {
        const int dot = name.indexOf(QLatin1Char('.'));
        if (dot > 0) taken.insert(name.left(dot));
    }
    int slot = 1;
    for (int number = 0; slot <= PackageCardCount; ++number) {
        const QString stem = CardUprightName(number);
        if (taken.contains(stem)) continue;
        NewUprightNames(slot) = stem;
        NewUprightSoundNames(slot) = stem + QLatin1Char('M');
        NewReversedNames(slot) = CardReversedName(number);
        NewReversedSoundNames(slot) = NewReversedNames(slot) + QLatin1Char('M');
        ++slot;
    }
}

void frmInstallPackage::LoadInstalledDecks() {
    const std::vector<DeckRecord> decks = ReadAllRecords<DeckRecord>(DecksPath);
    InstalledDeckNames.Redim(1, std::max<int>(1, static_cast<int>(decks.size())));
    int n = 0;
    for (const DeckRecord& deck : decks) {
        InstalledDeckIds.Add(deck.DeckId, DeckIdStep);
        InstalledDeckNames(++n) = deck.DeckName.Value();
    }
}

void frmInstallPackage::LoadInstalledSpreads() {
    const std::vector<SpreadRecord> spreads = ReadAllRecords<SpreadRecord>(SpreadsPath);
    InstalledSpreadNames.Redim(1, std::max<int>(1, static_cast<int>(spreads.size())));
    int n = 0;
    for (const SpreadRecord& spread : spreads) {
        InstalledSpreadIds.Add(spread.SpreadId, SpreadIdStep);
        InstalledSpreadNames(++n) = spread.SpreadName.Value();
    }
}

bool frmInstallPackage::NameIsInDeckInstalledArray(const QString& name) const {
    for (const QString& entry : InstalledDeckNames)
        if (entry == name) return true;
    return false;
}

bool frmInstallPackage::NameIsInSpreadInstalledArray(const QString& name) const {
    for (const QString& entry : InstalledSpreadNames)
        if (entry == name) return true;
    return false;
}

int frmInstallPackage::AskDesignExists(int design, const QString& title) {
    if (AnswersForAll(DesignExistsChoice)) return DesignExistsChoice;
    frmDesignExists& question = Get<frmDesignExists>();
    // The names compared are the box's 30 padded characters against the
    // 50-character names of the list: they never match, and a rename to a
    // name in use is accepted.
    question.NameInUse = [this](int kind, const QString& padded) {
        return kind == DesignSpread ? NameIsInSpreadInstalledArray(padded) : NameIsInDeckInstalledArray(padded);
    };
    question.Ask(design, title);
    return DesignExistsChoice;
}

void frmInstallPackage::InstallDecks() {
    int position = CountDecks() + 1;
    RecordReader<DeckRecord> reader(TempFile("Temp.dck"));
    DeckRecord deck;
    for (int i = 1; reader.Next(deck); ++i) {
        if (NameIsInArray(InstalledDeckNames, deck.DeckName.Value())) {
            const int choice = AskDesignExists(DesignDeck, deck.DeckName.Trimmed());
            if (IsOverwrite(choice)) {
                // The replaced deck's id goes; its cards stay under it.
                deck.DeckId = NewDeckIds.Ids(i);
                PutRecord(DecksPath, FindDeckByName(deck.DeckName.Trimmed()), deck);
                ++DecksInstalled;
                continue;
            }
            if (IsSkip(choice)) {
                NewDeckIds.Ids(i) = -1;
                continue;
            }
            if (choice != DesignExistsRename) continue;
            deck.DeckName = frmDesignExists::NewDesignName;
        }
        deck.DeckId = NewDeckIds.Ids(i);
        PutRecord(DecksPath, position++, deck);
        ++DecksInstalled;
    }
}

Integer frmInstallPackage::MapDeckId(Integer oldId) {
    if (oldId == LastOldDeckId) return LastNewDeckId;
    const int at = IndexOfId(PackageDeckIds.Ids, oldId);
    LastOldDeckId = oldId;
    LastNewDeckId = at == -1 ? Integer(-1) : NewDeckIds.Ids(at);
    return LastNewDeckId;
}

void frmInstallPackage::InstallCards() {
    // The cards go into Cards.crd in one replacement of the file; those
    // taken before a failure are written all the same. The copied files
    // are made durable together, before any record names them.
    RecordEdit<CardRecord> cards(CardsPath);
    try {
        TakeCards(cards);
    } catch (...) {
        SyncFileSystem(CardsDir);
        cards.Commit();
        throw;
    }
    SyncFileSystem(CardsDir);
    cards.Commit();
}

void frmInstallPackage::TakeCards(RecordEdit<CardRecord>& cards) {
    RecordReader<CardRecord> reader(TempFile("Temp.crd"));
    CardRecord card;
    // Every card file is copied under a fresh name, so the files of
    // installed cards, those of an overwritten deck included, stay untouched.
    auto takeFile = [this](FixedText<12>& field, const QString& newName) {
        TakeUnpackedFile(field.Trimmed(), newName);
        field = newName;
    };
    for (int i = 1; reader.Next(card); ++i) {
        card.CardDeckId = MapDeckId(card.CardDeckId);
        if (card.CardDeckId < 1) continue;
        takeFile(card.CardPicture[0], TrimField(NewUprightNames(i)) + card.CardPicture[0].Trimmed().right(4));
        if (card.CardPicture[1].Value() != DefaultPictureName)
            takeFile(card.CardPicture[1], TrimField(NewReversedNames(i)) + card.CardPicture[1].Trimmed().right(4));
        if (!card.CardSound[0].IsBlank() && !TrimField(NewUprightSoundNames(i)).isEmpty())
            takeFile(card.CardSound[0], TrimField(NewUprightNames(i)) + QStringLiteral("M.WAV"));
        if (!card.CardSound[1].IsBlank() && !TrimField(NewReversedSoundNames(i)).isEmpty())
            takeFile(card.CardSound[1], TrimField(NewReversedNames(i)) + QStringLiteral("M.WAV"));
        cards.Append(card);
    }
}

void frmInstallPackage::InstallSpreads() {
    ChooserManageMode = false;
    InstallAllSpreads = true;
    FirstLinkPending = true;
    ChosenDeckCount = -1;
    int position = CountSpreads() + 1;
    RecordReader<SpreadRecord> reader(TempFile("Temp.spr"));
    SpreadRecord spread;
    for (int i = 1; reader.Next(spread); ++i) InstallSpread(spread, i, position);
}

void frmInstallPackage::InstallSpread(SpreadRecord spread, int i, int& position) {
    CurrentSpread = spread;
    const int locationCount = CurrentSpread.LocationCount;
    LoadSpreadLocationsFrom(TempFile("Temp.loc"), CurrentSpread.SpreadId, locationCount);
    if (NameIsInArray(InstalledSpreadNames, CurrentSpread.SpreadName.Value())) {
        const int choice = AskDesignExists(DesignSpread, CurrentSpread.SpreadName.Trimmed());
        if (IsOverwrite(choice)) {
            RemapSpread(i);
            InstallSpreadBackground();
            const int at = FindSpreadByName(CurrentSpread.SpreadName.Trimmed());
            if (!GetRecord(SpreadsPath, at, ScratchSpread)) RaiseError(errInputPastEndOfFile);
            const QString oldBackground = ScratchSpread.BackgroundFile.Value();
            ReplaceSpreadLocations(CurrentSpread.SpreadId, locationCount);
            LinkToExistingDecks();
            PutRecord(SpreadsPath, at, CurrentSpread);
            // The old background goes once no record names it.
            KillDesignFile(oldBackground);
            ++SpreadsInstalled;
            return;
        }
        if (choice != DesignExistsRename) return;
        CurrentSpread.SpreadName = frmDesignExists::NewDesignName;
    }
    RemapSpread(i);
    InstallSpreadBackground();
    ReplaceSpreadLocations(CurrentSpread.SpreadId, locationCount);
    LinkToExistingDecks();
    PutRecord(SpreadsPath, position++, CurrentSpread);
    ++SpreadsInstalled;
}

void frmInstallPackage::RemapSpread(int i) {
    CurrentSpread.SpreadId = NewSpreadIds.Ids(i);
    const int count = CurrentSpread.AllowedDeckCount;
    if (count < 0) return;
    for (int k = 1; k <= count; ++k) {
        if (k > 10) RaiseError(errSubscriptOutOfRange);
        Integer& id = CurrentSpread.AllowedDeckId[static_cast<std::size_t>(k - 1)];
        const int at = IndexOfId(PackageDeckIds.Ids, id);
        id = at == -1 ? Integer(-1) : NewDeckIds.Ids(at);
    }
    CompactAllowedDecks(CurrentSpread, count);
}

void frmInstallPackage::InstallSpreadBackground() {
    if (CurrentSpread.BackgroundFile.Trimmed().isEmpty()) return;
    const QString oldName = CurrentSpread.BackgroundFile.Trimmed();
    const QString newName = NewBackgroundName(oldName);
    TakeUnpackedFile(oldName, newName);   // refuses a name outside Temp/
    SyncFileSystem(CardsDir);
    CurrentSpread.BackgroundFile = newName;
}

void frmInstallPackage::LinkToExistingDecks() {
    if (!FirstLinkPending && InstallAllSpreads) {
        CurrentSpread.AllowedDeckCount = static_cast<Integer>(ChosenDeckCount);
        CurrentSpread.AllowedDeckId = ChosenDeckIds;
        return;
    }
    ChooserManageMode = false;
    Get<frmDeckChooser>().Show(true);
    ChosenDeckCount = CurrentSpread.AllowedDeckCount;
    ChosenDeckIds = CurrentSpread.AllowedDeckId;
    FirstLinkPending = false;
}

void frmInstallPackage::ShowPackageSummary() {
    SetScreenPointer(MousePointer::Default);
    frmPackageSummary& summary = Get<frmPackageSummary>();
    summary.SetAttachment(AttachmentSaved, AttachmentFile);
    summary.txtDecksCount->setText(QString::number(DecksInstalled));
    summary.txtSpreadsCount->setText(QString::number(SpreadsInstalled));
    summary.UpdateInfo();
    summary.Show(true);
    SetScreenPointer(MousePointer::Hourglass);
}

// ---- Package Info ----------------------------------------------------------

frmPackageInfo::frmPackageInfo() {
    setObjectName(QStringLiteral("frmPackageInfo"));
    setCaption(QStringLiteral("Package Info"));
    resize(TwipsToPixels(6720), TwipsToPixels(4680));
    auto* spreadsLabel = new QLabel(QStringLiteral("Spreads:"), this);
    spreadsLabel->setGeometry(At(240, 120, 3000, 270));
    lstSpreads = new QListWidget(this);
    lstSpreads->setObjectName(QStringLiteral("lstSpreads"));
    lstSpreads->setGeometry(At(240, 420, 3000, 2880));
    auto* decksLabel = new QLabel(QStringLiteral("Decks:"), this);
    decksLabel->setGeometry(At(3480, 120, 3000, 270));
    lstDecks = new QListWidget(this);
    lstDecks->setObjectName(QStringLiteral("lstDecks"));
    lstDecks->setGeometry(At(3480, 420, 3000, 2880));
    auto* attachmentLabel = new QLabel(QStringLiteral("Attachment:"), this);
    attachmentLabel->setGeometry(At(240, 3420, 1200, 270));
    txtAttachment = new QLineEdit(this);
    txtAttachment->setObjectName(QStringLiteral("txtAttachment"));
    txtAttachment->setReadOnly(true);
    txtAttachment->setGeometry(At(1440, 3420, 5040, 330));
    cmdInstall = MakeButton(this, QStringLiteral("&Install"), "cmdInstall", At(3480, 3960, 1440, 400));
    cmdCancel = MakeButton(this, QStringLiteral("&Close"), "cmdCancel", At(5040, 3960, 1440, 400));
    connect(cmdInstall, &QPushButton::clicked, this, Handler([this] { cmdInstall_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
}

void frmPackageInfo::Form_Load() {
    CentreInFrame(*this);
    for (const SpreadRecord& spread : ReadAllRecords<SpreadRecord>(TempFile("Temp.spr")))
        lstSpreads->addItem(spread.SpreadName.Value());
    for (const DeckRecord& deck : ReadAllRecords<DeckRecord>(TempFile("Temp.dck")))
        lstDecks->addItem(deck.DeckName.Value());
    txtAttachment->setText(Get<frmInstallPackage>().AttachmentFile);
}

void frmPackageInfo::cmdCancel_Click() { Unload(); }

void frmPackageInfo::cmdInstall_Click() {
    Unload();
    // The package is still unpacked: the installation takes it from Temp/.
    Get<frmInstallPackage>().cmdInstall_Click();
}

void frmPackageInfo::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdCancel_Click();
}
