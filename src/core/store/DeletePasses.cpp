#include "core/store/DeletePasses.h"

#include <array>
#include <cstring>
#include <optional>

#include "core/store/DesignCommit.h"
#include "core/store/RecordPasses.h"

using namespace RecordPasses;

void RemoveUnfinishedRewrites() {
    for (const QString* name : {&SpreadsTmpName, &LocationTmpName, &ReadingsTmpName, &DiariesTmpName, &CardsTmpName})
        KillIgnoringErrors(TheRun.Paths.AppPath + *name);
}

QString DesignFilePath(const QString& name) {
    const QString trimmed = TrimField(name);
    // Names come from records, which a package may have filled: a wildcard
    // in one must never widen a delete to other designs' files.
    if (trimmed.isEmpty() || trimmed.contains(QLatin1Char('*')) || trimmed.contains(QLatin1Char('?'))) return {};
    return NativePath(TheRun.Paths.CardsDir + name);
}

// A design file in Cards/ goes with its design; a failure to delete it is of
// no consequence.
void KillDesignFile(const QString& name) {
    const QString path = DesignFilePath(name);
    if (!path.isEmpty()) KillIgnoringErrors(path);
}

namespace {

using FileNames = std::array<FixedText<12>, 2>;

QStringList FilesNamed(const FileNames& pictures, const FileNames& sounds) {
    QStringList files;
    for (const auto& picture : pictures) {
        // The shared default picture is recognised by the exact field value;
        // every other picture belongs to this card alone.
        if (picture.Value() != DefaultPictureName) files << DesignFilePath(picture.Value());
    }
    for (const auto& sound : sounds) files << DesignFilePath(sound.Value());
    files.removeAll(QString());
    // A name from a package may spell the default picture otherwise (a zero
    // byte for its space, or as a sound): the file is still everyone's.
    files.removeAll(NativePath(TheRun.Paths.DefaultPicturePath));
    return files;
}

}  // namespace

QStringList CardFilesOf(const CardRecord& card) { return FilesNamed(card.CardPicture, card.CardSound); }

namespace {

// The four file names of a card record, in its bytes.
std::array<const char*, 4> NameFields(const char* rawCard) {
    static const int picturesAt = OffsetOf(&CardRecord::CardPicture);
    static const int soundsAt = OffsetOf(&CardRecord::CardSound);
    return {rawCard + picturesAt, rawCard + picturesAt + 12, rawCard + soundsAt, rawCard + soundsAt + 12};
}

// A name's bytes as the file system meets them (see NativePath): without
// trailing spaces and zero bytes, a backslash read as a slash. The code page
// gives each byte a character of its own, so equal keys are equal files. The
// key may point into the record: it lives no longer than the look-up.
QByteArray NameKey(const char* field) {
    int length = 12;
    while (length > 0 && (field[length - 1] == ' ' || field[length - 1] == '\0')) --length;
    QByteArray key = QByteArray::fromRawData(field, length);
    if (key.contains('\\')) key.replace('\\', '/');
    return key;
}

}  // namespace

void LeavingCardFiles::Leaving(const char* rawCard) {
    CardRecord card;
    const auto fields = NameFields(rawCard);
    for (std::size_t side = 0; side < 2; ++side) {
        std::memcpy(card.CardPicture[side].Bytes.data(), fields[side], 12);
        std::memcpy(card.CardSound[side].Bytes.data(), fields[2 + side], 12);
    }
    const QStringList files = CardFilesOf(card);
    for (const char* field : fields) {
        const QString path = DesignFilePath(DecodeText(field, 12));
        if (!files.contains(path)) continue;
        const QByteArray key = NameKey(field);
        leaving_.insert(QByteArray(key.constData(), key.size()), path);
    }
}

void LeavingCardFiles::Staying(const char* rawCard) {
    if (leaving_.isEmpty()) return;
    for (const char* field : NameFields(rawCard)) {
        const QByteArray key = NameKey(field);
        if (leaving_.contains(key)) kept_.insert(QByteArray(key.constData(), key.size()));
    }
}

QStringList LeavingCardFiles::Files() const {
    QStringList files;
    for (auto it = leaving_.begin(); it != leaving_.end(); ++it)
        if (!kept_.contains(it.key())) files << it.value();
    files.sort();
    return files;
}

// A spread goes in one step with its locations and its background, as a
// save does: a process that dies part-way leaves the spread whole or gone,
// never locations or a background that nothing names.
void DeleteSpread(int recordNumber) {
    DesignCommit commit;
    std::optional<SpreadRecord> gone;
    commit.AddRecordFile(TheRun.Paths.SpreadsPath, SpreadRecord::Length,
                         [&](const char* raw, int number) -> const char* {
                             if (number != recordNumber) return raw;
                             DecodeRecord(raw, gone.emplace());
                             return nullptr;
                         },
                         {});
    if (!gone) return;
    const int idAt = OffsetOf(&LocationRecord::LocationSpreadId);
    commit.AddRecordFile(
        TheRun.Paths.LocationsPath, LocationRecord::Length,
        [&](const char* raw, int) -> const char* { return RawInteger(raw, idAt) == gone->SpreadId ? nullptr : raw; },
        {});
    commit.DropFile(DesignFilePath(gone->BackgroundFile.Value()));
    commit.Commit();
}

void DeleteSpreadLocations(Integer spreadId) {
    const int idAt = OffsetOf(&LocationRecord::LocationSpreadId);
    RewriteWithout<LocationRecord>(
        TheRun.Paths.LocationsPath, TheRun.Paths.AppPath + LocationTmpName,
        [&](const char* raw) { return RawInteger(raw, idAt) == spreadId; }, [](const LocationRecord&) {});
}

void ReplaceSpreadLocations(Integer spreadId, int count) {
    RecordRewriter<LocationRecord> writer(TheRun.Paths.AppPath + LocationTmpName, TheRun.Paths.LocationsPath);
    {
        const int idAt = OffsetOf(&LocationRecord::LocationSpreadId);
        RecordReader<LocationRecord> reader(TheRun.Paths.LocationsPath);
        while (const char* raw = reader.NextRaw())
            if (RawInteger(raw, idAt) != spreadId) writer.AddRaw(raw);
    }
    for (int i = 1; i <= count; ++i) {
        LocationRecord& location = TheRun.SpreadLocations(i);
        location.LocationSpreadId = spreadId;
        location.LocationNumber = static_cast<Integer>(i);
        writer.Add(location);
    }
    writer.Commit();
}

void DeleteReading(const QString& name) {
    RewriteWithout<ReadingRecord>(TheRun.Paths.ReadingsPath, TheRun.Paths.AppPath + ReadingsTmpName,
                                  NameField(&ReadingRecord::ReadingName, name), [](const ReadingRecord&) {});
}

void DeleteDiary(const QString& name) {
    RewriteWithout<DiaryRecord>(TheRun.Paths.DiaryPath, TheRun.Paths.AppPath + DiariesTmpName,
                                NameField(&DiaryRecord::DiaryName, name), [](const DiaryRecord&) {});
}

void DeleteDeck(int recordNumber) {
    std::vector<Integer> gone;
    RewriteWithout<DeckRecord>(TheRun.Paths.DecksPath, TheRun.Paths.TempDir + DecksTmpName,
                               [&](const DeckRecord& r, int number) {
                                   if (number != recordNumber) return false;
                                   gone.push_back(r.DeckId);
                                   return true;
                               });
    for (Integer deckId : gone)
        if (FindDeckRecordById(deckId) < 0) DeleteDeckCards(deckId);
}

void DeleteDeckCards(Integer deckId) {
    const int idAt = OffsetOf(&CardRecord::CardDeckId);
    // The files go once the records that name them are gone, and only those
    // that no other card names.
    LeavingCardFiles files;
    {
        RecordReader<CardRecord> reader(TheRun.Paths.CardsPath);
        while (const char* raw = reader.NextRaw())
            if (RawInteger(raw, idAt) == deckId) files.Leaving(raw);
    }
    RewriteWithout<CardRecord>(
        TheRun.Paths.CardsPath, TheRun.Paths.AppPath + CardsTmpName,
        [&](const char* raw) {
            if (RawInteger(raw, idAt) == deckId) return true;
            files.Staying(raw);
            return false;
        },
        [](const CardRecord&) {});
    for (const QString& file : files.Files()) KillIgnoringErrors(file);
}
