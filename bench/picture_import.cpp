// A deck made from a folder of 78 pictures of about 2 MB each. The import
// that only copies (JPEG pictures, no reversed side) stands beside a plain
// copy of the same bytes, the machine's own limit; the imports that convert
// (PNG to JPEG) or turn (the reversed side made from the upright) are worked
// on all cores, and the longest wait of a 10 ms timer in the owner's thread
// shows whether the screen would stay answering meanwhile. And the listing of
// a folder of 2,000 small pictures, half of them reversed sides found by
// name, beside opening each file and reading its first bytes.
//
//   QT_QPA_PLATFORM=offscreen build/bench/bench_picture_import [runs]
//
// The data is made in a temporary program folder and removed afterwards.
#include <fcntl.h>
#include <unistd.h>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QImage>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "BenchSupport.h"
#include "core/decks/PictureImport.h"
#include "core/platform/FileSys.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "screens/shell/Startup.h"

using namespace Bench;

namespace {

constexpr int Pictures = 78;

// A picture of noise, which JPEG cannot make small: 1300 x 1300 at quality
// 95 is about 2 MB.
QImage Noise() {
    QImage image(1300, 1300, QImage::Format_RGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<quint32*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) line[x] = random.generate() | 0xff000000u;
    }
    return image;
}

void MakeFolder(const QString& folder, const char* format, const char* extension) {
    QDir().mkpath(folder);
    const QString first = folder + QStringLiteral("/01 card.") + QLatin1String(extension);
    Noise().save(first, format, 95);
    for (int i = 2; i <= Pictures; ++i)
        QFile::copy(first,
                    folder + QStringLiteral("/%1 card.").arg(i, 2, 10, QLatin1Char('0')) + QLatin1String(extension));
}

void EmptyDeck() {
    KillIgnoringErrors(TheRun.Paths.TempDir + QStringLiteral("*.*"));
    ResetDeck();
    TheRun.CurrentDeck.IncludesReversed = True16;
}

// One whole import as the screen runs it: listed, worked, committed. The
// longest gap between two ticks of a 10 ms timer goes to longestWait.
void Import(const QString& folder, ReversedSide reversed, double* longestWait = nullptr) {
    const FolderPictures found = ListFolderPictures(folder, 0);
    QStringList past;
    PictureImport work(folder, CardsWithinLimit(found.Cards, past), reversed);
    QEventLoop loop;
    QObject::connect(&work, &PictureImport::Done, &loop, &QEventLoop::quit);
    QTimer tick;
    QElapsedTimer since;
    double longest = 0;
    QObject::connect(&tick, &QTimer::timeout, [&] {
        longest = std::max(longest, since.nsecsElapsed() / 1e6);
        since.restart();
    });
    tick.start(10);
    since.start();
    work.Start();
    loop.exec();
    work.Commit();
    if (longestWait) *longestWait = longest;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc > 1) Runs = std::max(1, atoi(argv[1]));
    QTemporaryDir dir;
    ResetRun();
    FormPaths(dir.path());
    InitDatabase();
    const QString jpegs = dir.filePath(QStringLiteral("scans")), pngs = dir.filePath(QStringLiteral("pngs"));
    MakeFolder(jpegs, "JPEG", "jpg");
    MakeFolder(pngs, "PNG", "png");
    qint64 bytes = 0;
    for (const QFileInfo& f : QDir(jpegs).entryInfoList(QDir::Files)) bytes += f.size();
    std::printf("%d JPEG pictures, %.1f MB; %d threads\n", Pictures, bytes / 1e6, QThread::idealThreadCount());

    const QString copies = dir.filePath(QStringLiteral("copies"));
    QDir().mkpath(copies);
    // Into an empty folder each time, as the import finds Temp/.
    const double copy = Time(
        [&] {
            for (const QFileInfo& f : QDir(jpegs).entryInfoList(QDir::Files))
                CopyOnce(f.filePath(), copies + QLatin1Char('/') + f.fileName(), false);
        },
        [&] { KillIgnoringErrors(copies + QStringLiteral("/*.*")); });
    const double plain = Time([&] { Import(jpegs, ReversedSide::None); }, EmptyDeck);
    Row("import of 78 JPEG pictures, copied as they are", plain, "copy of the bytes", copy, 2.0);

    double wait = 0;
    const double turned = Time([&] { Import(jpegs, ReversedSide::Turned, &wait); }, EmptyDeck);
    std::printf("%-60s %9.2f ms | %.1f ms a card | longest wait of a 10 ms timer %.1f ms\n",
                "import of 78 JPEG pictures, reversed sides turned", turned, turned / Pictures, wait);
    const double converted = Time([&] { Import(pngs, ReversedSide::None, &wait); }, EmptyDeck);
    std::printf("%-60s %9.2f ms | %.1f ms a card | longest wait of a 10 ms timer %.1f ms\n",
                "import of 78 PNG pictures, converted to JPEG", converted, converted / Pictures, wait);

    // Listed on the GUI thread before the screen shows: it must not grow
    // with the square of the folder.
    const QString many = dir.filePath(QStringLiteral("many"));
    QDir().mkpath(many);
    QImage small(16, 16, QImage::Format_RGB32);
    small.fill(Qt::darkBlue);
    small.save(many + QStringLiteral("/0001 card.jpg"), "JPEG");
    for (int i = 1; i <= 1000; ++i)
        for (const char* suffix : {"", "_r"})
            QFile::copy(
                many + QStringLiteral("/0001 card.jpg"),
                many + QStringLiteral("/%1 card%2.jpg").arg(i, 4, 10, QLatin1Char('0')).arg(QLatin1String(suffix)));
    const double heads = Time([&] {
        char head[64];
        for (const QString& name : QDir(many).entryList(QDir::Files)) {
            QFile f(many + QLatin1Char('/') + name);
            if (f.open(QIODevice::ReadOnly)) f.read(head, sizeof head);
        }
    });
    const double listing = Time([&] { ListFolderPictures(many, 0); });
    Row("listing a folder of 2,000 pictures, 1,000 reversed sides by name", listing, "first bytes of each", heads, 3.0);
    return 0;
}
