// The conversion of a database of the old format, with one of its three old
// files made of arbitrary bytes: the input's first byte picks the decks (0),
// cards (1) or spreads (2) file, the rest is its content; the other two are a
// small real old database.
//
// Beyond not crashing: the backups hold the old files exactly, one new record
// comes out per old deck, card and spread, and each spread gives exactly the
// locations it holds (at most 15).
#include <QFile>
#include <algorithm>

#include "FuzzSupport.h"
#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"
#include "core/store/Conversion.h"
#include "core/store/Housekeeping.h"
#include "core/store/RunState.h"

using Fuzz::Expect;

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    Fuzz::Initialize(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 1) return 0;
    const auto fuzzed = static_cast<Fuzz::OldFile>(data[0] % 3);
    QByteArray old[3];
    for (int i = 0; i < 3; ++i) old[i] = Fuzz::OldBaselineFile(static_cast<Fuzz::OldFile>(i));
    old[static_cast<int>(fuzzed)] = Fuzz::Bytes(data + 1, size - 1);

    // An old database: no location file, and the entry files as they were.
    const QString paths[3] = {TheRun.Paths.DecksPath, TheRun.Paths.CardsPath, TheRun.Paths.SpreadsPath};
    for (int i = 0; i < 3; ++i) WriteWholeFile(paths[i], old[i]);
    WriteWholeFile(TheRun.Paths.ReadingsPath, QByteArray());
    WriteWholeFile(TheRun.Paths.DiaryPath, QByteArray());
    QFile::remove(TheRun.Paths.LocationsPath);
    for (const QString& path : {TheRun.Paths.DecksPath, TheRun.Paths.SpreadsPath, TheRun.Paths.CardsPath,
                                TheRun.Paths.ReadingsPath, TheRun.Paths.DiaryPath})
        QFile::remove(path + QStringLiteral(".bkp"));
    ClearTemp();

    bool converted = false;
    Fuzz::Handled([&] {
        ConvertDatabase();
        converted = true;
    });
    Expect(converted, "the conversion failed on a readable old database");

    for (int i = 0; i < 3; ++i)
        Expect(ReadWholeFile(paths[i] + QStringLiteral(".bkp")) == old[i], "a backup differs from its old file");
    Expect(CountRecords<DeckRecord>(TheRun.Paths.DecksPath) == old[0].size() / OldDeckRecord::Length,
           "decks lost or gained");
    Expect(CountRecords<CardRecord>(TheRun.Paths.CardsPath) == old[1].size() / OldCardRecord::Length,
           "cards lost or gained");
    const int oldSpreads = static_cast<int>(old[2].size() / OldSpreadRecord::Length);
    Expect(CountRecords<SpreadRecord>(TheRun.Paths.SpreadsPath) == oldSpreads, "spreads lost or gained");
    int locations = 0;
    for (const SpreadRecord& spread : ReadAllRecords<SpreadRecord>(TheRun.Paths.SpreadsPath)) {
        Expect(spread.LocationCount >= 0 && spread.LocationCount <= 15, "a spread holds impossible locations");
        locations += spread.LocationCount;
    }
    Expect(CountRecords<LocationRecord>(TheRun.Paths.LocationsPath) == locations,
           "locations do not match their spreads");
    Fuzz::CheckNothingOutsideTouched();
    return 0;
}
