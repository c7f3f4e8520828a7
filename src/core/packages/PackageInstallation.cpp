#include "core/packages/PackageInstallation.h"

#include <QCoreApplication>
#include <algorithm>
#include <optional>

#include "core/packages/PackageFile.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"
#include "core/store/DeckLoading.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"

namespace {

constexpr int DeckIdStep = 5;
constexpr int SpreadIdStep = 15;

QString TempFile(const char* name) { return TempDir + QLatin1String(name); }

// A record file the package does not hold counts as one without records.
qint64 LengthOrZero(const QString& path) { return FileExists(path) ? FileLen(path) : 0; }

bool IsOverwrite(int choice) { return choice == DesignExistsOverwrite || choice == DesignExistsOverwriteAll; }
bool IsSkip(int choice) { return choice == DesignExistsSkip || choice == DesignExistsSkipAll; }
bool AnswersForAll(int choice) { return choice == DesignExistsOverwriteAll || choice == DesignExistsSkipAll; }

// The format's only version check: the lengths of the record files.
bool PassesCompatibilityTest() {
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

// A file a package's record names is one the package brought into Temp/,
// which holds plain file names only. A name that would reach elsewhere
// ("../x", "/etc/x") names no file the package brought.
bool IsUnpackedFile(const QString& name) {
    return !name.isEmpty() && MemberFileName(name) == name && FileExists(TempDir + name);
}

QString Damaged(const QString& why) {
    return QCoreApplication::translate("PackageInstallation", "Unable to install: Damaged Cartomar Package.\n%1")
        .arg(why);
}

// One sentence for each kind of record, so that a language can agree its
// words with the kind.
constexpr const char* DeckNamesFile =
    QT_TRANSLATE_NOOP("PackageInstallation", "The deck '%1' names the file '%2', which the package does not hold.");
constexpr const char* CardNamesFile =
    QT_TRANSLATE_NOOP("PackageInstallation", "The card '%1' names the file '%2', which the package does not hold.");
constexpr const char* SpreadNamesFile =
    QT_TRANSLATE_NOOP("PackageInstallation", "The spread '%1' names the file '%2', which the package does not hold.");
constexpr const char* LocationNamesFile =
    QT_TRANSLATE_NOOP("PackageInstallation", "The location '%1' names the file '%2', which the package does not hold.");

// The refusal of a record naming a file the package lacks; empty when the
// field is blank or the file is there.
template <int N>
QString MissingFile(const char* sentence, const QString& owner, const FixedText<N>& field) {
    if (field.IsBlank() || IsUnpackedFile(field.Trimmed())) return {};
    return Damaged(QCoreApplication::translate("PackageInstallation", sentence).arg(owner, field.Trimmed()));
}

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
        if (QString missing = MissingFile(DeckNamesFile, name, deck.DeckAttachment); !missing.isEmpty()) return missing;
    }
    for (const CardRecord& card : cards)
        if (std::none_of(decks.begin(), decks.end(),
                         [&card](const DeckRecord& d) { return d.DeckId == card.CardDeckId; }))
            return Damaged(QCoreApplication::translate("PackageInstallation",
                                                       "A card of the package belongs to none of its decks."));
    for (const DeckRecord& deck : decks) {
        const auto held = std::count_if(cards.begin(), cards.end(),
                                        [&deck](const CardRecord& c) { return c.CardDeckId == deck.DeckId; });
        if (held < deck.CardCount)
            return Damaged(QCoreApplication::translate(
                               "PackageInstallation",
                               "The deck '%1' claims %n cards, but the package holds %2 of them.", "", deck.CardCount)
                               .arg(deck.DeckName.Trimmed())
                               .arg(held));
    }
    for (const CardRecord& card : cards) {
        const QString title = card.CardTitle.Trimmed();
        if (card.CardType < 0 || card.CardType > 3)
            return Damaged(QCoreApplication::translate("PackageInstallation", "The card '%1' has an unknown card type.")
                               .arg(title));
        // The shared default stands for no reversed picture and is never brought.
        const bool ownReversed = card.CardPicture[1].Value() != DefaultPictureName;
        for (const QString& missing : {MissingFile(CardNamesFile, title, card.CardPicture[0]),
                                       ownReversed ? MissingFile(CardNamesFile, title, card.CardPicture[1]) : QString(),
                                       MissingFile(CardNamesFile, title, card.CardSound[0]),
                                       MissingFile(CardNamesFile, title, card.CardSound[1])})
            if (!missing.isEmpty()) return missing;
    }
    return {};
}

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
        for (const QString& missing : {MissingFile(SpreadNamesFile, name, spread.BackgroundFile),
                                       MissingFile(SpreadNamesFile, name, spread.SpreadAttachment)})
            if (!missing.isEmpty()) return missing;
    }
    for (const LocationRecord& location : locations)
        if (std::none_of(spreads.begin(), spreads.end(),
                         [&location](const SpreadRecord& s) { return s.SpreadId == location.LocationSpreadId; }))
            return Damaged(QCoreApplication::translate("PackageInstallation",
                                                       "A location of the package belongs to none of its spreads."));
    for (const SpreadRecord& spread : spreads) {
        // Its locations are numbered 1 to its count, each number once.
        std::vector<int> seen(static_cast<std::size_t>(spread.LocationCount) + 1, 0);
        bool agree = true;
        for (const LocationRecord& location : locations) {
            if (location.LocationSpreadId != spread.SpreadId) continue;
            const int n = location.LocationNumber;
            agree = agree && n >= 1 && n <= spread.LocationCount && ++seen[static_cast<std::size_t>(n)] == 1;
        }
        agree = agree && std::count(seen.begin() + 1, seen.end(), 1) == spread.LocationCount;
        if (!agree)
            return Damaged(
                QCoreApplication::translate("PackageInstallation",
                                            "The locations of the spread '%1' do not agree with its count of %2.")
                    .arg(spread.SpreadName.Trimmed())
                    .arg(spread.LocationCount));
    }
    for (const LocationRecord& location : locations)
        if (QString missing =
                MissingFile(LocationNamesFile, location.LocationTitle.Trimmed(), location.LocationAttachment);
            !missing.isEmpty())
            return missing;
    return {};
}

// Records of a record file as they will be: n past the end adds one.
template <class R>
void Place(std::vector<R>& records, std::set<int>& changed, int n, const R& r) {
    if (n < 1 || n > static_cast<int>(records.size()) + 1)
        RaiseError(errBadFileName, QCoreApplication::translate("PackageInstallation", "Bad record number"));
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
// installed ones, in ascending order, until a package entry is 0.
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

// The compaction of a spread's deck list after its ids were mapped: entries
// -1 go, the others move left by the places shifted so far in the run.
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
    const QString decks = DeckProblem(ReadAllRecords<DeckRecord>(TempFile("Temp.dck")),
                                      ReadAllRecords<CardRecord>(TempFile("Temp.crd")));
    if (!decks.isEmpty()) return decks;
    return SpreadProblem(ReadAllRecords<SpreadRecord>(TempFile("Temp.spr")),
                         ReadAllRecords<LocationRecord>(TempFile("Temp.loc")));
}

// ---- The installation --------------------------------------------------------

PackageInstallation::PackageInstallation(InstallationQuestions& ask, const QString& attachmentFile)
    : AttachmentFile(attachmentFile), ask_(ask) {
    for (GrownIdList* ids : {&PackageDeckIds, &NewDeckIds, &InstalledDeckIds, &PackageSpreadIds, &NewSpreadIds,
                             &InstalledSpreadIds})
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
    const QString chosen = ask_.AttachmentTarget(AttachmentsDir + AttachmentFile);
    if (chosen.isEmpty()) return false;
    const QStringList found = Dir(TempDir + AttachmentPrefix + QStringLiteral("*.*"));
    const QString tempName = found.isEmpty() ? QString() : found.first();
    // The package's extension is added even when the chosen name has it
    // already: accepting the proposed "notes.txt" saves "notes.txt.txt".
    const int dot = tempName.lastIndexOf(QLatin1Char('.'));
    const QString target = chosen + (dot < 0 ? QString() : tempName.mid(dot));
    FileCopy(TempDir + tempName, target);
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
    const TakenStems taken({CardsDir});
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
    decks_ = ReadAllRecords<DeckRecord>(DecksPath);
    InstalledDeckNames.Redim(1, std::max<int>(1, static_cast<int>(decks_.size())));
    int n = 0;
    for (const DeckRecord& deck : decks_) {
        InstalledDeckIds.Add(deck.DeckId, DeckIdStep);
        InstalledDeckNames(++n) = deck.DeckName.Value();
    }
}

void PackageInstallation::LoadInstalledSpreads() {
    spreads_ = ReadAllRecords<SpreadRecord>(SpreadsPath);
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
    if (AnswersForAll(DesignExistsChoice)) return DesignExistsChoice;
    const DesignExistsReply reply = ask_.DesignExists(design, title, [this, design](const QString& padded) {
        return design == DesignSpread ? NameIsInSpreadInstalledArray(padded) : NameIsInDeckInstalledArray(padded);
    });
    DesignExistsChoice = reply.Choice;
    newDesignName_ = reply.NewName;
    return DesignExistsChoice;
}

void PackageInstallation::InstallDecks() {
    int position = static_cast<int>(decks_.size()) + 1;
    RecordReader<DeckRecord> reader(TempFile("Temp.dck"));
    DeckRecord deck;
    for (int i = 1; reader.Next(deck); ++i) {
        if (NameIsInArray(InstalledDeckNames, deck.DeckName.Value())) {
            const int choice = AskDesignExists(DesignDeck, deck.DeckName.Trimmed());
            if (IsOverwrite(choice)) {
                // The replaced deck's id goes; its cards stay under it. The
                // deck is found by its name in the live file.
                deck.DeckId = NewDeckIds.Ids(i);
                Place(decks_, changedDecks_, FindDeckByName(deck.DeckName.Trimmed()), deck);
                ++DecksInstalled;
                continue;
            }
            if (IsSkip(choice)) {
                NewDeckIds.Ids(i) = -1;
                continue;
            }
            if (choice != DesignExistsRename) continue;
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
// records name is copied from where the first one put it, so every design
// still gets its own file.
QString PackageInstallation::TakeUnpackedFile(const QString& recorded, const QString& newName) {
    if (!IsUnpackedFile(recorded)) RaiseError(errFileNotFound);
    const auto taken = takenFiles_.constFind(recorded);
    if (taken != takenFiles_.cend()) {
        files_.push_back({taken.value(), newName, true});
    } else {
        files_.push_back({recorded, newName, false});
        takenFiles_.insert(recorded, newName);
    }
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
    ChooserManageMode = false;
    InstallAllSpreads = true;
    FirstLinkPending = true;
    ChosenDeckCount = -1;
    // Background names are drawn against Cards/ and the names already given
    // out by this installation, whose files are not there yet.
    TakenStems backgrounds({CardsDir});
    const std::vector<SpreadRecord> package = ReadAllRecords<SpreadRecord>(TempFile("Temp.spr"));
    int position = static_cast<int>(spreads_.size()) + 1;
    for (int i = 1; i <= static_cast<int>(package.size()); ++i) {
        CurrentSpread = package[static_cast<std::size_t>(i - 1)];
        InstallSpread(i, position, backgrounds);
    }
}

void PackageInstallation::InstallSpread(int i, int& position, TakenStems& backgrounds) {
    const int locationCount = CurrentSpread.LocationCount;
    LoadSpreadLocationsFrom(TempFile("Temp.loc"), CurrentSpread.SpreadId, locationCount);
    if (NameIsInArray(InstalledSpreadNames, CurrentSpread.SpreadName.Value())) {
        const int choice = AskDesignExists(DesignSpread, CurrentSpread.SpreadName.Trimmed());
        if (IsOverwrite(choice)) {
            RemapSpread(i);
            InstallSpreadBackground(backgrounds);
            const int at = FindSpreadByName(CurrentSpread.SpreadName.Trimmed());
            if (at < 1 || at > static_cast<int>(spreads_.size())) RaiseError(errInputPastEndOfFile);
            // The old background goes once no record names it.
            oldBackgrounds_.append(spreads_[static_cast<std::size_t>(at - 1)].BackgroundFile.Value());
            ReplaceSpreadLocations(locationCount);
            LinkToExistingDecks();
            Place(spreads_, changedSpreads_, at, CurrentSpread);
            ++SpreadsInstalled;
            return;
        }
        if (choice != DesignExistsRename) return;
        CurrentSpread.SpreadName = newDesignName_;
    }
    RemapSpread(i);
    InstallSpreadBackground(backgrounds);
    ReplaceSpreadLocations(locationCount);
    LinkToExistingDecks();
    Place(spreads_, changedSpreads_, position++, CurrentSpread);
    ++SpreadsInstalled;
}

void PackageInstallation::RemapSpread(int i) {
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

void PackageInstallation::InstallSpreadBackground(TakenStems& backgrounds) {
    if (CurrentSpread.BackgroundFile.Trimmed().isEmpty()) return;
    const QString oldName = CurrentSpread.BackgroundFile.Trimmed();
    const QString newName = NewBackgroundName(oldName, backgrounds);
    backgrounds.Take(newName);
    CurrentSpread.BackgroundFile = TakeUnpackedFile(oldName, newName);
}

void PackageInstallation::ReplaceSpreadLocations(int count) {
    std::vector<LocationRecord> mine;
    for (int n = 1; n <= count; ++n) {
        LocationRecord location = SpreadLocations(n);
        location.LocationSpreadId = CurrentSpread.SpreadId;
        location.LocationNumber = static_cast<Integer>(n);
        mine.push_back(location);
    }
    locations_.emplace_back(CurrentSpread.SpreadId, std::move(mine));
}

void PackageInstallation::LinkToExistingDecks() {
    if (!FirstLinkPending && InstallAllSpreads) {
        CurrentSpread.AllowedDeckCount = static_cast<Integer>(ChosenDeckCount);
        CurrentSpread.AllowedDeckId = ChosenDeckIds;
        return;
    }
    ChooserManageMode = false;
    ask_.ChooseDecks(decks_);
    ChosenDeckCount = CurrentSpread.AllowedDeckCount;
    ChosenDeckIds = CurrentSpread.AllowedDeckId;
    FirstLinkPending = false;
}

void PackageInstallation::Commit() {
    RecordEdit<CardRecord> cards(CardsPath);
    RecordEdit<DeckRecord> decks(DecksPath);
    RecordEdit<SpreadRecord> spreads(SpreadsPath);
    std::optional<RecordRewriter<LocationRecord>> locations;
    QStringList placed;
    try {
        for (const FileTake& take : files_) {
            if (take.FromCards) {
                FileCopyUnsynced(CardsDir + take.From, CardsDir + take.To);
            } else {
                FileMoveUnsynced(TempDir + take.From, CardsDir + take.To);
            }
            placed.append(take.To);
        }
        SyncFileSystem(CardsDir);
        for (const CardRecord& card : cards_) cards.Append(card);
        for (int n : changedDecks_) decks.Put(n, decks_[static_cast<std::size_t>(n - 1)]);
        for (int n : changedSpreads_) spreads.Put(n, spreads_[static_cast<std::size_t>(n - 1)]);
        if (!locations_.empty()) {
            // Location.loc as replacing each spread's locations in turn leaves
            // it: the others in their order, then the last set of each id.
            locations.emplace(AppPath + QStringLiteral("Location.tmp"), LocationsPath);
            std::set<Integer> replaced;
            for (const auto& [id, mine] : locations_) replaced.insert(id);
            RecordReader<LocationRecord> reader(LocationsPath);
            const int idAt = OffsetOf(&LocationRecord::LocationSpreadId);
            while (const char* raw = reader.NextRaw())
                if (!replaced.count(RawInteger(raw, idAt))) locations->AddRaw(raw);
            for (std::size_t k = 0; k < locations_.size(); ++k) {
                const Integer id = locations_[k].first;
                if (std::any_of(locations_.begin() + static_cast<std::ptrdiff_t>(k) + 1, locations_.end(),
                                [id](const auto& later) { return later.first == id; }))
                    continue;
                for (const LocationRecord& location : locations_[k].second) locations->Add(location);
            }
        }
        cards.Prepare();
        if (locations) locations->Prepare();
        decks.Prepare();
        spreads.Prepare();
    } catch (...) {
        // No record names the files yet: they go, and every record file
        // stays as it was.
        for (const QString& name : placed) KillDesignFile(name);
        throw;
    }
    // Each file is put in place whole, the cards and locations before the
    // decks and spreads that own them: a process killed in between leaves
    // no design without its parts.
    cards.Commit();
    if (locations) locations->Commit();
    decks.Commit();
    spreads.Commit();
    for (const QString& name : oldBackgrounds_) KillDesignFile(name);
}
