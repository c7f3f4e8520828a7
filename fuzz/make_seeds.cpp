// Writes the seed corpus of every fuzz target from the program's own
// writers: record files and old-format files through the record encoders,
// packages through the package writer, pictures through the picture writers.
//   fuzz_make_seeds <seeds folder>
// Each target's seeds go to <seeds folder>/<target without "fuzz_">/.
#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QImageWriter>
#include <cstdio>

#include "FuzzSupport.h"
#include "core/packages/PackageFile.h"
#include "core/platform/FileSys.h"
#include "core/records/Records.h"
#include "core/store/RunState.h"

namespace {

QString SeedsRoot;

void Seed(const QString& target, const QString& name, const QByteArray& bytes) {
    const QString folder = SeedsRoot + QLatin1Char('/') + target;
    QDir().mkpath(folder);
    WriteWholeFile(folder + QLatin1Char('/') + name, bytes);
}

// A file as written, its first record alone, and one with a last record cut
// short (a partial record is no record).
void SeedRecordFile(const QString& target, const QByteArray& file, int recordLength) {
    Seed(target, QStringLiteral("whole"), file);
    Seed(target, QStringLiteral("first_record"), file.left(recordLength));
    Seed(target, QStringLiteral("cut_short"), file + file.left(recordLength / 2));
}

void SeedRecordFiles() {
    SeedRecordFile(QStringLiteral("records_decks"), Fuzz::BaselineFile(FuzzedFile::Decks), DeckRecord::Length);
    SeedRecordFile(QStringLiteral("records_cards"), Fuzz::BaselineFile(FuzzedFile::Cards), CardRecord::Length);
    SeedRecordFile(QStringLiteral("records_spreads"), Fuzz::BaselineFile(FuzzedFile::Spreads), SpreadRecord::Length);
    SeedRecordFile(QStringLiteral("records_locations"), Fuzz::BaselineFile(FuzzedFile::Locations),
                   LocationRecord::Length);
    SeedRecordFile(QStringLiteral("records_readings"), Fuzz::BaselineFile(FuzzedFile::Readings), ReadingRecord::Length);
    SeedRecordFile(QStringLiteral("records_diary"), Fuzz::BaselineFile(FuzzedFile::Diary), DiaryRecord::Length);
}

void SeedConversion() {
    const char* names[] = {"old_decks", "old_cards", "old_spreads"};
    for (int i = 0; i < 3; ++i) {
        QByteArray seed(1, static_cast<char>(i));
        seed += Fuzz::OldBaselineFile(static_cast<Fuzz::OldFile>(i));
        Seed(QStringLiteral("conversion"), QString::fromLatin1(names[i]), seed);
    }
}

void SeedPackages() {
    // A package as the package screen makes it: the design's records and
    // its pictures, from a folder in Temp/.
    Fuzz::LayDatabase(FuzzedFile::Decks, Fuzz::BaselineFile(FuzzedFile::Decks));
    const QString folder = TheRun.Paths.TempDir + QStringLiteral("pack/");
    QDir().mkpath(folder);
    for (FuzzedFile file : {FuzzedFile::Decks, FuzzedFile::Cards, FuzzedFile::Spreads, FuzzedFile::Locations}) {
        const QString path = Fuzz::PathOf(file);
        WriteWholeFile(folder + path.mid(path.lastIndexOf(QLatin1Char('/')) + 1), Fuzz::BaselineFile(file));
    }
    FileCopy(TheRun.Paths.CardsDir + QStringLiteral("CU00001.bmp"), folder + QStringLiteral("CU00001.bmp"));
    const QString package = TheRun.Paths.TempDir + QStringLiteral("design.pck");
    if (!CreatePackageFile(folder, package)) Fuzz::Fail("the seed package could not be made");
    Seed(QStringLiteral("package_reader"), QStringLiteral("design.pck"), ReadWholeFile(package));
    QDir(folder).removeRecursively();
    QFile::remove(package);
}

QByteArray Encoded(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    if (!writer.write(image)) Fuzz::Fail("a seed picture could not be written");
    return bytes;
}

void SeedPictures() {
    QImage image(6, 4, QImage::Format_RGB32);
    image.fill(Qt::darkBlue);
    image.setPixel(1, 1, qRgb(250, 200, 0));
    Seed(QStringLiteral("picture"), QStringLiteral("card.bmp"), Encoded(image, "bmp"));
    Seed(QStringLiteral("picture"), QStringLiteral("card.jpg"), Encoded(image, "jpg"));
    Seed(QStringLiteral("picture"), QStringLiteral("card.png"), Encoded(image, "png"));
    Seed(QStringLiteral("picture"), QStringLiteral("indexed.bmp"),
         Encoded(image.convertToFormat(QImage::Format_Indexed8), "bmp"));
    // The toolkit reads GIF but cannot write it: a 2 x 2 picture of two
    // colours, byte by byte.
    static const unsigned char gif[] = {'G',  'I',  'F',  '8',  '9',  'a',  2, 0, 2, 0,
                                        0x80, 0,    0,                                   // screen, 2-entry table
                                        0x00, 0x00, 0x80, 0xFF, 0xC8, 0x00,              // dark blue, gold
                                        0x2C, 0,    0,    0,    0,    2,    0, 2, 0, 0,  // image descriptor
                                        0x02, 0x02, 0x44, 0x01, 0x00,                    // LZW data
                                        0x3B};
    Seed(QStringLiteral("picture"), QStringLiteral("card.gif"),
         QByteArray(reinterpret_cast<const char*>(gif), sizeof gif));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s <seeds folder>\n", argv[0]);
        return 2;
    }
    SeedsRoot = QString::fromLocal8Bit(argv[1]);
    Fuzz::Initialize(&argc, &argv);
    SeedRecordFiles();
    SeedConversion();
    SeedPackages();
    SeedPictures();
    return 0;
}
