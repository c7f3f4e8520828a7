#include "FuzzSupport.h"

#include <unistd.h>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/Picture.h"
#include "core/platform/WriteFaults.h"
#include "core/records/RecordFile.h"
#include "core/store/Housekeeping.h"
#include "core/store/RunState.h"

namespace Fuzz {
namespace {

QTemporaryDir& Root() {
    static QTemporaryDir root;
    return root;
}

// The program directory sits four folders down: a name of at most twelve
// characters in a record ("../../../../") climbs no higher than Root()/1/2,
// so whatever a fuzzed record names, nothing outside the fuzzer's folder is
// ever reached.
QString ProgramDir() { return Root().path() + QStringLiteral("/1/2/3/4/Cartomar"); }
QString KeeperPath() { return Root().path() + QStringLiteral("/1/2/3/4/Keep"); }
const QByteArray KeeperBytes = QByteArrayLiteral("outside the program directory");

template <class R>
void Append(QByteArray& file, const R& r) {
    file += EncodeRecord(r);
}

constexpr double ASavedDay = 45123.75;  // an afternoon in 2023

QByteArray BuildDecks() {
    QByteArray file;
    DeckRecord deck;
    deck.DeckName = QStringLiteral("Fuzz Deck");
    deck.DeckTitle = QStringLiteral("A deck for the fuzzer");
    deck.IncludesReversed = True16;
    deck.DisplayCardTitles = True16;
    deck.ModifiedOn = ASavedDay;
    deck.CardCount = 3;
    deck.DeckId = 1;
    deck.CardTypeName[0] = QStringLiteral("Major Arcana");
    deck.CardTypeName[1] = QStringLiteral("Minor Arcana");
    deck.CardTypeUsed = {True16, True16, False16, False16};
    Append(file, deck);
    // A deck whose cards are not all in Cards.crd: loading it asks whether to
    // remove it.
    deck.DeckName = QStringLiteral("Short Deck");
    deck.IncludesReversed = False16;
    deck.CardCount = 2;
    deck.DeckId = 3;
    Append(file, deck);
    return file;
}

QByteArray BuildCards() {
    QByteArray file;
    for (int i = 1; i <= 3; ++i) {
        CardRecord card;
        card.CardTitle = QStringLiteral("Card %1").arg(i);
        card.CardDescription[0] = QStringLiteral("Upright meaning %1").arg(i);
        card.CardKeywords[1] = QStringLiteral("reversed, %1").arg(i);
        card.CardPicture[0] = QStringLiteral("CU%1.bmp").arg(i, 5, 10, QLatin1Char('0'));
        card.CardPicture[1] = i < 3 ? QStringLiteral("CR%1.bmp").arg(i, 5, 10, QLatin1Char('0')) : DefaultPictureName;
        card.CardType = static_cast<Integer>(i == 3);
        card.CardDeckId = 1;
        Append(file, card);
    }
    CardRecord lone;
    lone.CardTitle = QStringLiteral("Lone card");
    lone.CardPicture[0] = DefaultPictureName;
    lone.CardPicture[1] = DefaultPictureName;
    lone.CardDeckId = 3;
    Append(file, lone);
    return file;
}

QByteArray BuildSpreads() {
    QByteArray file;
    SpreadRecord spread;
    spread.SpreadName = QStringLiteral("Fuzz Spread");
    spread.SpreadTitle = QStringLiteral("Past, present, future");
    spread.SpreadId = 1;
    spread.AllowedDeckId.fill(-1);
    spread.AllowedDeckId[0] = 1;
    spread.AllowedDeckCount = 1;
    spread.ModifiedOn = ASavedDay;
    spread.LocationCount = 3;
    spread.StretchBackground = True16;
    Append(file, spread);
    // Any deck will do for this one.
    spread.SpreadName = QStringLiteral("Any Deck");
    spread.SpreadId = 2;
    spread.AllowedDeckCount = -1;
    spread.LocationCount = 2;
    spread.BackgroundFile = QStringLiteral("S000001.bmp");
    Append(file, spread);
    return file;
}

QByteArray BuildLocations() {
    QByteArray file;
    const int counts[] = {3, 2};
    for (int spread = 1; spread <= 2; ++spread) {
        for (int n = 1; n <= counts[spread - 1]; ++n) {
            LocationRecord location;
            location.LocationTitle = QStringLiteral("Position %1").arg(n);
            location.LocationSpreadId = static_cast<Integer>(spread);
            location.LocationNumber = static_cast<Integer>(n);
            location.LocationQuestion[0] = QStringLiteral("What lies here?");
            location.LocationLeft = static_cast<Integer>(600 * n);
            location.LocationTop = 240;
            Append(file, location);
        }
    }
    return file;
}

template <class Entry>
void FillDealt(Entry& entry) {
    entry.SavedOn = ASavedDay;
    entry.Issue = QStringLiteral("Will it hold?");
    entry.IssueAsked = True16;
    entry.ReadingSpreadId = 1;
    entry.ReadingDeckId = 1;
    entry.DealtCard.fill(0);
    entry.DealtUpright.fill(True16);
    for (int i = 0; i < 3; ++i) entry.DealtCard[static_cast<std::size_t>(i)] = static_cast<Integer>(3 - i);
    entry.DealtUpright[1] = False16;
    entry.CardTypeSelected = {True16, True16, False16, False16};
    entry.UseReversed = True16;
}

QByteArray BuildReadings() {
    ReadingRecord reading;
    FillDealt(reading);
    reading.ReadingName = QStringLiteral("Fuzz Reading");
    reading.ReadingNotes = QStringLiteral("Notes of the reading");
    reading.DealtCount = 3;
    reading.TableCardVisible.fill(True16);
    reading.LocationIsUpright.fill(True16);
    for (int i = 0; i < 3; ++i) reading.LocationCard[static_cast<std::size_t>(i)] = static_cast<Integer>(i + 1);
    QByteArray file;
    Append(file, reading);
    return file;
}

QByteArray BuildDiary() {
    DiaryRecord diary;
    FillDealt(diary);
    diary.DiaryName = QStringLiteral("Fuzz Diary");
    diary.DiaryNotes = QStringLiteral("Notes of the day");
    diary.DiaryChoice = 1;
    QByteArray file;
    Append(file, diary);
    return file;
}

QByteArray BuildOldDecks() {
    OldDeckRecord deck;
    deck.OldDeckName = QStringLiteral("Old Deck");
    deck.OldDeckTitle = QStringLiteral("Kept from the earlier version");
    deck.OldModifiedOn = ASavedDay;
    deck.OldCardCount = 2;
    deck.OldDeckId = 1;
    deck.OldTypeName[0] = QStringLiteral("Major Arcana");
    deck.OldTypeUsed = {True16, False16, False16, False16};
    return EncodeRecord(deck);
}

QByteArray BuildOldCards() {
    QByteArray file;
    for (int i = 1; i <= 2; ++i) {
        OldCardRecord card;
        card.OldCardTitle = QStringLiteral("Old card %1").arg(i);
        card.OldCardDescription[0] = QStringLiteral("Meaning %1").arg(i);
        card.OldCardPicture[0] = QStringLiteral("CU%1.bmp").arg(i, 5, 10, QLatin1Char('0'));
        card.OldCardPicture[1] = DefaultPictureName;
        card.OldCardDeckId = 1;
        Append(file, card);
    }
    return file;
}

QByteArray BuildOldSpreads() {
    OldSpreadRecord spread;
    spread.OldSpreadName = QStringLiteral("Old Spread");
    spread.OldSpreadId = 1;
    spread.OldAllowedDeckId.fill(-1);
    spread.OldAllowedDeckId[0] = 1;
    spread.OldAllowedDeckCount = 1;
    spread.OldModifiedOn = ASavedDay;
    spread.OldLocationCount = 2;
    for (int i = 0; i < 2; ++i) {
        spread.OldLocations[static_cast<std::size_t>(i)].OldLocationTitle = QStringLiteral("Place %1").arg(i + 1);
        spread.OldLocations[static_cast<std::size_t>(i)].OldLocationLeft = static_cast<Integer>(900 * (i + 1));
    }
    spread.OldStretch = True16;
    return EncodeRecord(spread);
}

// The pictures the baseline cards and spread name, as bitmaps.
const QStringList PictureNames = {QStringLiteral("CU00001.bmp"), QStringLiteral("CR00001.bmp"),
                                  QStringLiteral("CU00002.bmp"), QStringLiteral("CR00002.bmp"),
                                  QStringLiteral("CU00003.bmp"), QStringLiteral("S000001.bmp"),
                                  QStringLiteral("C000000.bmp")};

// One bitmap, kept beside the program directory; the pictures of Cards/ are
// links to it, so that putting back what a delete pass took is one call a
// picture instead of a file written whole.
QString PictureMaster() { return Root().path() + QStringLiteral("/picture.bmp"); }

void WritePictureMaster() {
    QImage image(4, 3, QImage::Format_RGB32);
    image.fill(Qt::darkBlue);
    SavePictureAsBmp(image, PictureMaster());
}

}  // namespace

void Initialize(int* argc, char*** argv) {
    // Dates are shown in local time; with no zone named, the C library looks
    // at the zone file again for every date shown.
    qputenv("TZ", "UTC");
    static QCoreApplication app(*argc, *argv);
    // The program folder is thrown away after the run: its record files
    // need not wait for the disk, and the fuzzer runs many more inputs.
    WriteFaults::SetSyncs(false);
    Expect(Root().isValid(), "no temporary folder");
    FormPaths(ProgramDir());
    for (const QString& dir : {TheRun.Paths.TempDir, TheRun.Paths.CardsDir, TheRun.Paths.AttachmentsDir})
        QDir().mkpath(dir);
    WriteWholeFile(KeeperPath(), KeeperBytes);
    WritePictureMaster();
}

QByteArray Bytes(const std::uint8_t* data, std::size_t size) {
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

QString PathOf(FuzzedFile file) {
    switch (file) {
    case FuzzedFile::Decks: return TheRun.Paths.DecksPath;
    case FuzzedFile::Cards: return TheRun.Paths.CardsPath;
    case FuzzedFile::Spreads: return TheRun.Paths.SpreadsPath;
    case FuzzedFile::Locations: return TheRun.Paths.LocationsPath;
    case FuzzedFile::Readings: return TheRun.Paths.ReadingsPath;
    case FuzzedFile::Diary: return TheRun.Paths.DiaryPath;
    }
    Fail("no such record file");
}

QByteArray BaselineFile(FuzzedFile file) {
    switch (file) {
    case FuzzedFile::Decks: return BuildDecks();
    case FuzzedFile::Cards: return BuildCards();
    case FuzzedFile::Spreads: return BuildSpreads();
    case FuzzedFile::Locations: return BuildLocations();
    case FuzzedFile::Readings: return BuildReadings();
    case FuzzedFile::Diary: return BuildDiary();
    }
    Fail("no such record file");
}

QByteArray OldBaselineFile(OldFile file) {
    switch (file) {
    case OldFile::Decks: return BuildOldDecks();
    case OldFile::Cards: return BuildOldCards();
    case OldFile::Spreads: return BuildOldSpreads();
    }
    Fail("no such old file");
}

void LayDatabase(FuzzedFile fuzzed, const QByteArray& input) {
    static const QList<QByteArray> files = {BuildDecks(),     BuildCards(),    BuildSpreads(),
                                            BuildLocations(), BuildReadings(), BuildDiary()};
    const FuzzedFile kinds[] = {FuzzedFile::Decks,     FuzzedFile::Cards,    FuzzedFile::Spreads,
                                FuzzedFile::Locations, FuzzedFile::Readings, FuzzedFile::Diary};
    for (int i = 0; i < 6; ++i) RecordFilesInMemory::Hold(PathOf(kinds[i]), kinds[i] == fuzzed ? input : files[i]);
    // A delete pass may have taken a picture with its card: put back what is
    // gone. A file a fuzzed record made stays; it does no harm.
    static const QByteArray master = QFile::encodeName(PictureMaster());
    for (const QString& name : PictureNames) {
        const QByteArray path = QFile::encodeName(TheRun.Paths.CardsDir + name);
        if (::link(master.constData(), path.constData()) != 0 && errno != EEXIST) Fail("a picture was not put back");
    }
}

void Handled(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const RuntimeError&) {
        // Reported by the program as an error box; the run goes on.
    }
}

void CheckNothingOutsideTouched() {
    QFile keeper(KeeperPath());
    Expect(keeper.open(QIODevice::ReadOnly) && keeper.readAll() == KeeperBytes,
           "a file outside the program directory was changed");
}

void Fail(const char* what) {
    std::fprintf(stderr, "fuzz check failed: %s\n", what);
    std::abort();
}

}  // namespace Fuzz
