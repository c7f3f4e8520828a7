// Two figures a user feels without knowing it: how long the program takes from
// its start to the main screen on an empty database, and how long the next
// free deck and spread numbers take to find when the files hold 10,000 designs
// (every new design and every package installation asks for them).
// Run with QT_QPA_PLATFORM=offscreen. Optional argument: number of designs
// (default 10000).
#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <cstdio>
#include <vector>

#include "core/platform/BinaryFile.h"
#include "core/platform/FileSys.h"
#include "core/records/Records.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/platform/MsgBox.h"
#include "screens/shell/Startup.h"

namespace {

// Writes count records whose ids run from 1 to count+1 in a scattered order,
// leaving out one id near the top so the search must read nearly everything.
template <class R, class SetId>
Integer WriteDesigns(const QString& path, int count, SetId setId) {
    std::vector<Integer> ids;
    const Integer missing = static_cast<Integer>(count - 7);
    for (int id = 1; id <= count + 1; ++id)
        if (id != missing) ids.push_back(static_cast<Integer>(id));
    for (size_t i = 0; i < ids.size(); ++i) std::swap(ids[i], ids[(i * 7919) % ids.size()]);
    AtomicFileWriter out(path + QStringLiteral(".tmp"), path);
    std::vector<char> bytes(R::Length);
    for (Integer id : ids) {
        R r;
        setId(r, id);
        EncodeRecord(r, bytes.data());
        out.Write(bytes.data(), R::Length);
    }
    out.Commit();
    return missing;
}

template <class F>
double MillisecondsPerCall(F f, int calls) {
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < calls; ++i) f();
    return clock.nsecsElapsed() / 1e6 / calls;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const int designs = argc > 1 ? std::max(10, atoi(argv[1])) : 10000;
    MsgBoxScript::Enable();

    // Start-up on an empty database: paths, record files, Temp/, the default
    // picture, the frame and the main screen, up to the offer to install
    // designs (answered No).
    // The folder is as the build leaves it beside the program: an empty
    // location file, so that no conversion is offered.
    QTemporaryDir fresh;
    WriteWholeFile(fresh.filePath(QStringLiteral("Location.loc")), QByteArray());
    MsgBoxScript::Answer(vbNo);
    QElapsedTimer clock;
    clock.start();
    const bool started = RunStartup(fresh.path());
    const double startupMs = clock.nsecsElapsed() / 1e6;
    std::printf("start-up to the main screen on an empty database: %.1f ms (%s)\n", startupMs,
                started ? "main screen up" : "ended early");

    // The id searches on full files.
    const Integer freeDeck = WriteDesigns<DeckRecord>(TheRun.Paths.DecksPath, designs, [](DeckRecord& r, Integer id) {
        r.DeckId = id;
        r.DeckName = QStringLiteral("Deck %1").arg(id);
    });
    const Integer freeSpread =
        WriteDesigns<SpreadRecord>(TheRun.Paths.SpreadsPath, designs, [](SpreadRecord& r, Integer id) {
            r.SpreadId = id;
            r.SpreadName = QStringLiteral("Spread %1").arg(id);
        });
    Integer foundDeck = 0, foundSpread = 0;
    const double deckMs = MillisecondsPerCall([&] { foundDeck = NextDeckId(); }, 20);
    const double spreadMs = MillisecondsPerCall([&] { foundSpread = NextSpreadId(); }, 20);
    std::printf("NextDeckId on %d decks: %.2f ms a call (found %d, expected %d)\n", designs, deckMs, foundDeck,
                freeDeck);
    std::printf("NextSpreadId on %d spreads: %.2f ms a call (found %d, expected %d)\n", designs, spreadMs, foundSpread,
                freeSpread);
    return (foundDeck == freeDeck && foundSpread == freeSpread && started) ? 0 : 1;
}
