#include "core/packages/PackageInstallation.h"

#include <QCoreApplication>
#include <QSet>
#include <algorithm>
#include <map>

#include "core/packages/PackageFile.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"
#include "core/store/DeckLoading.h"
#include "core/store/DeletePasses.h"
#include "core/store/DesignCommit.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"

namespace {

constexpr int DeckIdStep = 5;
constexpr int SpreadIdStep = 15;

QString TempFile(const char* name) { return TheRun.Paths.TempDir + QLatin1String(name); }

// A record file the package does not hold counts as one without records.
qint64 LengthOrZero(const QString& path) { return FileExists(path) ? FileLen(path) : 0; }

bool IsOverwrite(int choice) { return choice == DesignExistsOverwrite || choice == DesignExistsOverwriteAll; }
bool AnswersForAll(int choice) { return choice == DesignExistsOverwriteAll || choice == DesignExistsSkipAll; }

// The format's only version check: the lengths of the record files.
bool PassesCompatibilityTest() {
    bool decksPass = true;
    bool spreadsPass = true;
    if (FileExists(TempFile("Temp.dck")))
        decksPass = LengthOrZero(TempFile("Temp.crd")) % CardRecord::Length == 0 ||
                    LengthOrZero(TempFile("Temp.dck")) % DeckRecord::Length == 0;
    if (FileExists(TempFile("Temp.spr")))
        spreadsPass =
            LengthOrZero(TempFile("Temp.spr")) % SpreadRecord::Length == 0 || FileExists(TempFile("Temp.loc"));
    return decksPass && spreadsPass;
}

// A file a package's record names is one the package brought into Temp/,
// which holds plain file names only. A name that would reach elsewhere
// ("../x", "/etc/x") names no file the package brought.
bool IsUnpackedFile(const QString& name) {
    return !name.isEmpty() && MemberFileName(name) == name && FileExists(TheRun.Paths.TempDir + name);
}

QString Damaged(const QString& why) {
    return QCoreApplication::translate("PackageInstallation", "Unable to install: Damaged Cartomar Package.") + u'\n' +
           why;
}

// The refusal of a record naming a file the package lacks, `sentence` telling
// whose (%1) and which (%2); empty when the field is blank or the file is
// there. An attachment is never taken over, so one the package lacks does no
// harm, as long as its name is a plain file name (`held` false).
template <int N>
QString MissingFile(const char* sentence, const QString& owner, const FixedText<N>& field, bool held = true) {
    const QString name = field.Trimmed();
    if (name.isEmpty() || (held ? IsUnpackedFile(name) : MemberFileName(name) == name)) return {};
    return Damaged(QCoreApplication::translate("PackageInstallation", sentence).arg(owner, name));
}

constexpr const char* CardFile =
    QT_TRANSLATE_NOOP("PackageInstallation", "The card '%1' names the file '%2', which the package does not hold.");
constexpr const char* DeckFile =
    QT_TRANSLATE_NOOP("PackageInstallation", "The deck '%1' names the file '%2', which the package does not hold.");
constexpr const char* SpreadFile =
    QT_TRANSLATE_NOOP("PackageInstallation", "The spread '%1' names the file '%2', which the package does not hold.");
constexpr const char* LocationFile =
    QT_TRANSLATE_NOOP("PackageInstallation", "The location '%1' names the file '%2', which the package does not hold.");

// The ids are given out in record order up to the first 0: the records from
// there on keep none, an id 0 each. A deck's cards are then never reached,
// and such spreads share the one id.
template <class R>
std::vector<Integer> InstalledIds(const std::vector<R>& records, Integer R::*id) {
    std::vector<Integer> ids;
    bool ended = false;
    for (const R& r : records) {
        ended = ended || r.*id == 0;
        ids.push_back(ended ? Integer(0) : r.*id);
    }
    return ids;
}

// A deck holding fewer cards than it claims is installed as it stands: it
// loads as a deck whose cards have gone, as it did where it was packed.
QString DeckProblem(const std::vector<DeckRecord>& decks, const std::vector<CardRecord>& cards) {
    const std::vector<Integer> ids = InstalledIds(decks, &DeckRecord::DeckId);
    for (std::size_t i = 0; i < decks.size(); ++i) {
        const DeckRecord& deck = decks[i];
        const QString name = deck.DeckName.Trimmed();
        if (deck.CardCount < 0 || deck.CardCount > MaxDeckCards)
            return Damaged(QCoreApplication::translate("PackageInstallation",
                                                       "The deck '%1' claims %2 cards, which no deck can hold.")
                               .arg(name)
                               .arg(deck.CardCount));
        if (ids[i] == 0 && deck.CardCount > 0)
            return Damaged(QCoreApplication::translate("PackageInstallation",
                                                       "The deck '%1' would be installed without its cards.")
                               .arg(name));
        for (std::size_t j = 0; j < i; ++j)
            if (ids[i] != 0 && decks[j].DeckId == deck.DeckId)
                return Damaged(QCoreApplication::translate("PackageInstallation",
                                                           "The decks '%1' and '%2' would share their cards.")
                                   .arg(decks[j].DeckName.Trimmed(), name));
        if (QString missing = MissingFile(DeckFile, name, deck.DeckAttachment, false); !missing.isEmpty())
            return missing;
    }
    for (const CardRecord& card : cards)
        if (std::none_of(decks.begin(), decks.end(),
                         [&card](const DeckRecord& d) { return d.DeckId == card.CardDeckId; }))
            return Damaged(QCoreApplication::translate("PackageInstallation",
                                                       "A card of the package belongs to none of its decks."));
    for (const CardRecord& card : cards) {
        const QString title = card.CardTitle.Trimmed();
        if (card.CardType < 0 || card.CardType > 3)
            return Damaged(QCoreApplication::translate("PackageInstallation", "The card '%1' has an unknown card type.")
                               .arg(title));
        // The shared default stands for no reversed picture and is never brought.
        const bool ownReversed = card.CardPicture[1].Value() != DefaultPictureName;
        for (const QString& missing :
             {MissingFile(CardFile, title, card.CardPicture[0]),
              ownReversed ? MissingFile(CardFile, title, card.CardPicture[1]) : QString(),
              MissingFile(CardFile, title, card.CardSound[0]), MissingFile(CardFile, title, card.CardSound[1])})
            if (!missing.isEmpty()) return missing;
    }
    return {};
}

// A spread may come without some of its locations (a package of an earlier
// version left them out when the background could not be copied): the
// installation puts fresh ones in their places.
QString SpreadProblem(const std::vector<SpreadRecord>& spreads, const std::vector<LocationRecord>& locations) {
    const std::vector<Integer> ids = InstalledIds(spreads, &SpreadRecord::SpreadId);
    for (std::size_t i = 0; i < spreads.size(); ++i) {
        const SpreadRecord& spread = spreads[i];
        const QString name = spread.SpreadName.Trimmed();
        if (spread.LocationCount < 0 || spread.LocationCount > MaxSpreadLocations)
            return Damaged(QCoreApplication::translate("PackageInstallation",
                                                       "The spread '%1' claims %2 locations, which no spread can hold.")
                               .arg(name)
                               .arg(spread.LocationCount));
        if (spread.AllowedDeckCount < -1 || spread.AllowedDeckCount > int(spread.AllowedDeckId.size()))
            return Damaged(QCoreApplication::translate("PackageInstallation",
                                                       "The spread '%1' names %2 decks, which no spread can.")
                               .arg(name)
                               .arg(spread.AllowedDeckCount));
        // Two spreads installed under one id take each other's locations.
        for (std::size_t j = 0; j < i; ++j)
            if (ids[j] == ids[i])
                return Damaged(QCoreApplication::translate("PackageInstallation",
                                                           "The spreads '%1' and '%2' would share their locations.")
                                   .arg(spreads[j].SpreadName.Trimmed(), name));
        for (const QString& missing : {MissingFile(SpreadFile, name, spread.BackgroundFile),
                                       MissingFile(SpreadFile, name, spread.SpreadAttachment, false)})
            if (!missing.isEmpty()) return missing;
    }
    for (const LocationRecord& location : locations)
        if (std::none_of(spreads.begin(), spreads.end(),
                         [&location](const SpreadRecord& s) { return s.SpreadId == location.LocationSpreadId; }))
            return Damaged(QCoreApplication::translate("PackageInstallation",
                                                       "A location of the package belongs to none of its spreads."));
    for (const SpreadRecord& spread : spreads) {
        // Its locations are numbered within its count, each number once.
        std::vector<int> seen(static_cast<std::size_t>(spread.LocationCount) + 1, 0);
        for (const LocationRecord& location : locations) {
            if (location.LocationSpreadId != spread.SpreadId) continue;
            const int n = location.LocationNumber;
            if (n < 1 || n > spread.LocationCount || ++seen[static_cast<std::size_t>(n)] > 1)
                return Damaged(
                    QCoreApplication::translate("PackageInstallation",
                                                "The locations of the spread '%1' do not agree with its count of %2.")
                        .arg(spread.SpreadName.Trimmed())
                        .arg(spread.LocationCount));
        }
    }
    for (const LocationRecord& location : locations)
        if (QString missing =
                MissingFile(LocationFile, location.LocationTitle.Trimmed(), location.LocationAttachment, false);
            !missing.isEmpty())
            return missing;
    return {};
}

// A record file as the installation leaves it: the records it changed in
// their places, those it adds behind the others.
template <class R>
void AddRecords(DesignCommit& commit, const QString& path, const std::vector<R>& records,
                const std::set<int>& changed) {
    const int before = CountRecords<R>(path);
    std::map<int, QByteArray> replaced;
    QByteArray added;
    for (int n : changed) {
        const QByteArray bytes = EncodeRecord(records[static_cast<std::size_t>(n - 1)]);
        if (n <= before) replaced[n] = bytes;
        else added += bytes;
    }
    commit.AddRecordFile(
        path, R::Length,
        [&replaced](const char* raw, int n) -> const char* {
            const auto it = replaced.find(n);
            return it == replaced.end() ? raw : it->second.constData();
        },
        added);
}

// Records of a record file as they will be: n past the end adds one.
template <class R>
void Place(std::vector<R>& records, std::set<int>& changed, int n, const R& r) {
    if (n < 1 || n > static_cast<int>(records.size()) + 1)
        RaiseError(errBadFileName, QStringLiteral("Bad record number"));
    if (n == static_cast<int>(records.size()) + 1) records.push_back(r);
    records[static_cast<std::size_t>(n - 1)] = r;
    changed.insert(n);
}

// The index of id among ids, from the first entry; -1 when an entry 0
// follows the one tested or the array ends first.
int IndexOfId(const BoundedArray<Integer>& ids, Integer id) {
    for (int k = ids.LBound(); k <= ids.UBound(); ++k) {
        if (ids(k) == id) return k;
        if (k + 1 > ids.UBound() || ids(k + 1) == 0) return -1;
    }
    return -1;
}

// Whether a name stands among names, both trimmed, case counting.
bool NameIsInArray(const BoundedArray<QString>& names, const QString& name) {
    const QString wanted = TrimField(name);
    for (const QString& entry : names)
        if (TrimField(entry) == wanted) return true;
    return false;
}

// Gives each package id in turn the smallest positive id not among the
// installed ones, in ascending order, until a package entry is 0 or the list
// ends.
void AssignNewIds(const GrownIdList& packageIds, GrownIdList& newIds, const GrownIdList& installedIds) {
    newIds.Capacity = packageIds.Capacity;
    newIds.Count = packageIds.Count;
    newIds.Ids.Redim(1, std::max(1, packageIds.Capacity));
    int i = 1;
    for (int candidate = 1; i <= packageIds.Capacity && packageIds.Ids(i) != 0; ++candidate) {
        if (IndexOfId(installedIds.Ids, static_cast<Integer>(candidate)) != -1) continue;
        newIds.Ids(i) = static_cast<Integer>(candidate);
        ++i;
    }
}

// The first `count` entries of a spread's deck list after its ids were
// mapped: those mapped to -1 go, the others move up in their order.
void CompactAllowedDecks(SpreadRecord& spread, int count) {
    auto& ids = spread.AllowedDeckId;
    const auto end = ids.begin() + std::min<int>(count, static_cast<int>(ids.size()));
    const auto kept = std::remove(ids.begin(), end, Integer(-1));
    spread.AllowedDeckCount = static_cast<Integer>(spread.AllowedDeckCount - (end - kept));
    std::fill(kept, end, Integer(-1));
}

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

QString PackageProblem() {
    const QString decks =
        DeckProblem(ReadAllRecords<DeckRecord>(TempFile("Temp.dck")), ReadAllRecords<CardRecord>(TempFile("Temp.crd")));
    if (!decks.isEmpty()) return decks;
    return SpreadProblem(ReadAllRecords<SpreadRecord>(TempFile("Temp.spr")),
                         ReadAllRecords<LocationRecord>(TempFile("Temp.loc")));
}

// ---- The installation --------------------------------------------------------

PackageInstallation::PackageInstallation(InstallationQuestions& ask, const QString& attachmentFile)
    : AttachmentFile(attachmentFile), ask_(ask) {
    for (GrownIdList* ids :
         {&PackageDeckIds, &NewDeckIds, &InstalledDeckIds, &PackageSpreadIds, &NewSpreadIds, &InstalledSpreadIds})
        ids->Reset();
}

InstallOutcome PackageInstallation::Install() {
    // The records are judged in a package that the format's check lets
    // through, before anything is asked; the check itself comes after the
    // attachment, as it always has.
    if (PassesCompatibilityTest()) {
        Refusal = PackageProblem();
        if (!Refusal.isEmpty()) return InstallOutcome::Refused;
    }
    if (!TrimField(AttachmentFile).isEmpty()) {
        AttachmentSaved = SaveAttachment();
        if (!AttachmentSaved) return InstallOutcome::AttachmentCancelled;
    }
    if (!PassesCompatibilityTest()) return InstallOutcome::Incompatible;

    TheRun.DesignExistsChoice = 0;
    PackageCardCount = CountCards(TempFile("Temp.crd"));
    ReserveCardFileNames();
    LoadInstalledDecks();
    for (const DeckRecord& deck : ReadAllRecords<DeckRecord>(TempFile("Temp.dck")))
        PackageDeckIds.Add(deck.DeckId, DeckIdStep);
    AssignNewIds(PackageDeckIds, NewDeckIds, InstalledDeckIds);
    InstalledDeckIds.Reset();
    InstallDecks();
    InstallCards();
    // A choice "for all" given for a deck holds for the spreads too.
    LoadInstalledSpreads();
    for (const SpreadRecord& spread : ReadAllRecords<SpreadRecord>(TempFile("Temp.spr")))
        PackageSpreadIds.Add(spread.SpreadId, SpreadIdStep);
    AssignNewIds(PackageSpreadIds, NewSpreadIds, InstalledSpreadIds);
    InstallSpreads();
    Commit();
    return InstallOutcome::Installed;
}

bool PackageInstallation::SaveAttachment() {
    const QString chosen = ask_.AttachmentTarget(TheRun.Paths.AttachmentsDir + AttachmentFile);
    if (chosen.isEmpty()) return false;
    const QStringList found = Dir(TheRun.Paths.TempDir + AttachmentPrefix + QStringLiteral("*.*"));
    const QString tempName = found.isEmpty() ? QString() : found.first();
    // The package's extension is added even when the chosen name has it
    // already: accepting the proposed "notes.txt" saves "notes.txt.txt".
    const int dot = tempName.lastIndexOf(QLatin1Char('.'));
    const QString target = chosen + (dot < 0 ? QString() : tempName.mid(dot));
    FileCopy(TheRun.Paths.TempDir + tempName, target);
    AttachmentFile = target;
    return true;
}

void PackageInstallation::ReserveCardFileNames() {
    if (PackageCardCount < 1) return;
    for (auto* names : {&NewUprightNames, &NewReversedNames, &NewUprightSoundNames, &NewReversedSoundNames})
        names->Redim(1, PackageCardCount);
    // A number is free when none of the four names it gives is taken: both
    // pictures and both sounds. A deck save numbers its two sides apart, so
    // a free upright name says nothing of the reversed one.
    const TakenStems taken({TheRun.Paths.CardsDir});
    const QString sound = QStringLiteral("M");
    int slot = 1;
    for (int number = 0; slot <= PackageCardCount; ++number) {
        const QString upright = CardUprightName(number);
        const QString reversed = CardReversedName(number);
        if (taken.Contains(upright) || taken.Contains(reversed) || taken.Contains(upright + sound) ||
            taken.Contains(reversed + sound))
            continue;
        NewUprightNames(slot) = upright;
        NewUprightSoundNames(slot) = upright + sound;
        NewReversedNames(slot) = reversed;
        NewReversedSoundNames(slot) = reversed + sound;
        ++slot;
    }
}

void PackageInstallation::LoadInstalledDecks() {
    decks_ = ReadAllRecords<DeckRecord>(TheRun.Paths.DecksPath);
    for (const DeckRecord& deck : decks_) heldBefore_.insert(deck.DeckId);
    InstalledDeckNames.Redim(1, std::max<int>(1, static_cast<int>(decks_.size())));
    int n = 0;
    for (const DeckRecord& deck : decks_) {
        InstalledDeckIds.Add(deck.DeckId, DeckIdStep);
        InstalledDeckNames(++n) = deck.DeckName.Value();
    }
}

void PackageInstallation::LoadInstalledSpreads() {
    spreads_ = ReadAllRecords<SpreadRecord>(TheRun.Paths.SpreadsPath);
    InstalledSpreadNames.Redim(1, std::max<int>(1, static_cast<int>(spreads_.size())));
    int n = 0;
    for (const SpreadRecord& spread : spreads_) {
        InstalledSpreadIds.Add(spread.SpreadId, SpreadIdStep);
        InstalledSpreadNames(++n) = spread.SpreadName.Value();
    }
}

bool PackageInstallation::NameIsInDeckInstalledArray(const QString& name) const {
    for (const QString& entry : InstalledDeckNames)
        if (entry == name) return true;
    return false;
}

bool PackageInstallation::NameIsInSpreadInstalledArray(const QString& name) const {
    for (const QString& entry : InstalledSpreadNames)
        if (entry == name) return true;
    return false;
}

int PackageInstallation::AskDesignExists(int design, const QString& title) {
    if (AnswersForAll(TheRun.DesignExistsChoice)) return TheRun.DesignExistsChoice;
    const DesignExistsReply reply = ask_.DesignExists(design, title, [this, design](const QString& padded) {
        return design == DesignSpread ? NameIsInSpreadInstalledArray(padded) : NameIsInDeckInstalledArray(padded);
    });
    TheRun.DesignExistsChoice = reply.Choice;
    newDesignName_ = reply.NewName;
    return TheRun.DesignExistsChoice;
}

void PackageInstallation::InstallDecks() {
    int position = static_cast<int>(decks_.size()) + 1;
    RecordReader<DeckRecord> reader(TempFile("Temp.dck"));
    DeckRecord deck;
    for (int i = 1; reader.Next(deck); ++i) {
        if (NameIsInArray(InstalledDeckNames, deck.DeckName.Value())) {
            const int choice = AskDesignExists(DesignDeck, deck.DeckName.Trimmed());
            if (IsOverwrite(choice)) {
                // The deck is found by its name in the live file. The replaced
                // deck's id goes, and with it its cards; spreads tied to it
                // follow it to its new id.
                deck.DeckId = NewDeckIds.Ids(i);
                const int at = FindDeckByName(deck.DeckName.Trimmed());
                if (at >= 1 && at <= static_cast<int>(decks_.size()))
                    replacedDecks_.emplace_back(decks_[static_cast<std::size_t>(at - 1)].DeckId, deck.DeckId);
                Place(decks_, changedDecks_, at, deck);
                ++DecksInstalled;
                continue;
            }
            // A deck passed over, by a skip or a question closed unanswered,
            // brings no cards: they would belong to no deck.
            if (choice != DesignExistsRename) {
                NewDeckIds.Ids(i) = -1;
                continue;
            }
            deck.DeckName = newDesignName_;
        }
        deck.DeckId = NewDeckIds.Ids(i);
        Place(decks_, changedDecks_, position++, deck);
        ++DecksInstalled;
    }
}

Integer PackageInstallation::MapDeckId(Integer oldId) {
    if (oldId == LastOldDeckId) return LastNewDeckId;
    const int at = IndexOfId(PackageDeckIds.Ids, oldId);
    LastOldDeckId = oldId;
    LastNewDeckId = at == -1 ? Integer(-1) : NewDeckIds.Ids(at);
    return LastNewDeckId;
}

// A file of Temp/ goes into Cards/ under its new name. A file that several
// records name is put there once for each, so every design gets its own.
QString PackageInstallation::TakeUnpackedFile(const QString& recorded, const QString& newName) {
    if (!IsUnpackedFile(recorded)) RaiseError(errFileNotFound);
    files_.push_back({recorded, newName});
    return newName;
}

void PackageInstallation::InstallCards() {
    RecordReader<CardRecord> reader(TempFile("Temp.crd"));
    CardRecord card;
    // Every card file is put under a fresh name, so the files of installed
    // cards, those of an overwritten deck included, stay untouched.
    auto takeFile = [this](FixedText<12>& field, const QString& newName) {
        field = TakeUnpackedFile(field.Trimmed(), newName);
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
        cards_.push_back(card);
    }
}

void PackageInstallation::InstallSpreads() {
    TheRun.ChooserManageMode = false;
    TheRun.InstallAllSpreads = true;
    FirstLinkPending = true;
    ChosenDeckCount = -1;
    // Background names are drawn against Cards/ and the names already given
    // out by this installation, whose files are not there yet.
    TakenStems backgrounds({TheRun.Paths.CardsDir});
    const std::vector<SpreadRecord> package = ReadAllRecords<SpreadRecord>(TempFile("Temp.spr"));
    int position = static_cast<int>(spreads_.size()) + 1;
    for (int i = 1; i <= static_cast<int>(package.size()); ++i) {
        TheRun.CurrentSpread = package[static_cast<std::size_t>(i - 1)];
        InstallSpread(i, position, backgrounds);
    }
}

void PackageInstallation::InstallSpread(int i, int& position, TakenStems& backgrounds) {
    const int locationCount = TheRun.CurrentSpread.LocationCount;
    LoadSpreadLocationsFrom(TempFile("Temp.loc"), TheRun.CurrentSpread.SpreadId, locationCount);
    if (NameIsInArray(InstalledSpreadNames, TheRun.CurrentSpread.SpreadName.Value())) {
        const int choice = AskDesignExists(DesignSpread, TheRun.CurrentSpread.SpreadName.Trimmed());
        if (IsOverwrite(choice)) {
            RemapSpread(i);
            InstallSpreadBackground(backgrounds);
            const int at = FindSpreadByName(TheRun.CurrentSpread.SpreadName.Trimmed());
            if (at < 1 || at > static_cast<int>(spreads_.size())) RaiseError(errInputPastEndOfFile);
            // The old background goes once no record names it.
            oldBackgrounds_.append(spreads_[static_cast<std::size_t>(at - 1)].BackgroundFile.Value());
            ReplaceSpreadLocations(locationCount);
            LinkToExistingDecks();
            Place(spreads_, changedSpreads_, at, TheRun.CurrentSpread);
            ++SpreadsInstalled;
            return;
        }
        if (choice != DesignExistsRename) return;
        TheRun.CurrentSpread.SpreadName = newDesignName_;
    }
    RemapSpread(i);
    InstallSpreadBackground(backgrounds);
    ReplaceSpreadLocations(locationCount);
    LinkToExistingDecks();
    Place(spreads_, changedSpreads_, position++, TheRun.CurrentSpread);
    ++SpreadsInstalled;
}

void PackageInstallation::RemapSpread(int i) {
    TheRun.CurrentSpread.SpreadId = NewSpreadIds.Ids(i);
    const int count = TheRun.CurrentSpread.AllowedDeckCount;
    if (count < 0) return;
    for (int k = 1; k <= count; ++k) {
        if (k > 10) RaiseError(errSubscriptOutOfRange);
        Integer& id = TheRun.CurrentSpread.AllowedDeckId[static_cast<std::size_t>(k - 1)];
        const int at = IndexOfId(PackageDeckIds.Ids, id);
        id = at == -1 ? Integer(-1) : NewDeckIds.Ids(at);
    }
    CompactAllowedDecks(TheRun.CurrentSpread, count);
}

void PackageInstallation::InstallSpreadBackground(TakenStems& backgrounds) {
    if (TheRun.CurrentSpread.BackgroundFile.Trimmed().isEmpty()) return;
    const QString oldName = TheRun.CurrentSpread.BackgroundFile.Trimmed();
    const QString newName = NewBackgroundName(oldName, backgrounds);
    backgrounds.Take(newName);
    TheRun.CurrentSpread.BackgroundFile = TakeUnpackedFile(oldName, newName);
}

void PackageInstallation::ReplaceSpreadLocations(int count) {
    std::vector<LocationRecord> mine;
    for (int n = 1; n <= count; ++n) {
        LocationRecord location = TheRun.SpreadLocations(n);
        // A location the package lacks is put in its place as a fresh one.
        if (location.LocationNumber != n) ResetLocation(location);
        location.LocationSpreadId = TheRun.CurrentSpread.SpreadId;
        location.LocationNumber = static_cast<Integer>(n);
        mine.push_back(location);
    }
    locations_.emplace_back(TheRun.CurrentSpread.SpreadId, std::move(mine));
}

void PackageInstallation::LinkToExistingDecks() {
    if (!FirstLinkPending && TheRun.InstallAllSpreads) {
        TheRun.CurrentSpread.AllowedDeckCount = static_cast<Integer>(ChosenDeckCount);
        TheRun.CurrentSpread.AllowedDeckId = ChosenDeckIds;
        return;
    }
    TheRun.ChooserManageMode = false;
    ask_.ChooseDecks(decks_);
    ChosenDeckCount = TheRun.CurrentSpread.AllowedDeckCount;
    ChosenDeckIds = TheRun.CurrentSpread.AllowedDeckId;
    FirstLinkPending = false;
}

// Follows a deck's id through the overwrites of this installation.
Integer PackageInstallation::ReplacementOf(Integer id) const {
    for (const auto& [old, now] : replacedDecks_)
        if (id == old) id = now;
    return id;
}

// A live spread stays tied to a deck this installation overwrites, under the
// deck's new id. An entry naming an id that no deck held, which a deck of
// this installation takes, named a deck that has gone: it goes, so that the
// spread does not take up the new deck.
bool PackageInstallation::RetieSpread(SpreadRecord& spread) const {
    const int count = std::min<int>(spread.AllowedDeckCount, static_cast<int>(spread.AllowedDeckId.size()));
    const auto takenAnew = [this](Integer id) {
        return !heldBefore_.count(id) &&
               std::any_of(decks_.begin(), decks_.end(), [id](const DeckRecord& d) { return d.DeckId == id; });
    };
    bool changed = false;
    for (int k = 0; k < count; ++k) {
        Integer& id = spread.AllowedDeckId[static_cast<std::size_t>(k)];
        const Integer now = ReplacementOf(id);
        if (now == id && !takenAnew(id)) continue;
        id = now == id ? Integer(-1) : now;
        changed = true;
    }
    if (changed) CompactAllowedDecks(spread, count);
    return changed;
}

void PackageInstallation::Commit() {
    // An installation that passed over every design leaves the files as
    // they were.
    if (DecksInstalled == 0 && SpreadsInstalled == 0) return;
    DesignCommit commit;
    // The files go into Cards/: each Temp/ file is moved under the last name
    // that takes it and copied for the others.
    for (std::size_t k = 0; k < files_.size(); ++k) {
        const bool takenAgain = std::any_of(files_.begin() + static_cast<std::ptrdiff_t>(k) + 1, files_.end(),
                                            [&](const FileTake& later) { return later.From == files_[k].From; });
        if (takenAgain) commit.AddFile(TheRun.Paths.TempDir + files_[k].From, files_[k].To);
        else commit.MoveFile(TheRun.Paths.TempDir + files_[k].From, files_[k].To);
    }

    // The decks and spreads as they will be, and the ids this installation
    // gives.
    std::set<Integer> deckIds, givenIds, spreadIds;
    for (const DeckRecord& deck : decks_) deckIds.insert(deck.DeckId);
    for (int n : changedDecks_) givenIds.insert(decks_[static_cast<std::size_t>(n - 1)].DeckId);
    for (int n = 1; n <= static_cast<int>(spreads_.size()); ++n) {
        SpreadRecord& spread = spreads_[static_cast<std::size_t>(n - 1)];
        if (!changedSpreads_.count(n) && RetieSpread(spread)) changedSpreads_.insert(n);
        spreadIds.insert(spread.SpreadId);
    }

    // Cards.crd: a card record under an id that no deck holds belongs to
    // nobody, a replaced deck's among them, and goes, with the files that no
    // record that stays names; then the cards of the package.
    const int cardIdAt = OffsetOf(&CardRecord::CardDeckId);
    const auto stays = [&](const char* raw) {
        const Integer id = RawInteger(raw, cardIdAt);
        return deckIds.count(id) && !givenIds.count(id);
    };
    QSet<QString> unnamed;
    CardRecord card;
    {
        RecordReader<CardRecord> reader(TheRun.Paths.CardsPath);
        while (const char* raw = reader.NextRaw()) {
            if (stays(raw)) continue;
            DecodeRecord(raw, card);
            for (const QString& file : CardFilesOf(card)) unnamed.insert(file);
        }
    }
    QByteArray added;
    for (const CardRecord& mine : cards_) added += EncodeRecord(mine);
    commit.AddRecordFile(
        TheRun.Paths.CardsPath, CardRecord::Length,
        [&](const char* raw, int) -> const char* {
            if (!stays(raw)) return nullptr;
            if (!unnamed.isEmpty()) {
                DecodeRecord(raw, card);
                for (const QString& file : CardFilesOf(card)) unnamed.remove(file);
            }
            return raw;
        },
        added);
    for (const QString& background : oldBackgrounds_) unnamed.insert(DesignFilePath(background));
    for (const SpreadRecord& spread : spreads_) unnamed.remove(DesignFilePath(spread.BackgroundFile.Value()));
    unnamed.remove(QString());
    for (const QString& file : unnamed) commit.DropFile(file);

    // Location.loc: the locations of other spreads in their order, then
    // each installed spread's; a location under an id no spread holds goes.
    std::set<Integer> installedSpreads;
    QByteArray placed;
    for (std::size_t k = 0; k < locations_.size(); ++k) {
        const Integer id = locations_[k].first;
        installedSpreads.insert(id);
        // A spread installed twice under one id keeps its last locations.
        if (std::any_of(locations_.begin() + static_cast<std::ptrdiff_t>(k) + 1, locations_.end(),
                        [id](const auto& later) { return later.first == id; }))
            continue;
        for (const LocationRecord& location : locations_[k].second) placed += EncodeRecord(location);
    }
    const int locationIdAt = OffsetOf(&LocationRecord::LocationSpreadId);
    commit.AddRecordFile(
        TheRun.Paths.LocationsPath, LocationRecord::Length,
        [&](const char* raw, int) -> const char* {
            const Integer id = RawInteger(raw, locationIdAt);
            return spreadIds.count(id) && !installedSpreads.count(id) ? raw : nullptr;
        },
        placed);

    AddRecords(commit, TheRun.Paths.DecksPath, decks_, changedDecks_);
    AddRecords(commit, TheRun.Paths.SpreadsPath, spreads_, changedSpreads_);
    commit.Commit();
}
