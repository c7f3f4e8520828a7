// The package file: its bytes, what the reader makes of cut-short and odd
// packages, and packages built to do harm.
#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>
#include <optional>

#include "core/packages/PackageFile.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/store/Housekeeping.h"
#include "core/store/RunState.h"
#include "support/Fixtures.h"

namespace {

// A member as the writer lays it out; `size` stated otherwise than the data's
// length makes a member that lies about itself.
QByteArray Member(const QByteArray& name, const QByteArray& data, std::optional<qint32> size = {}) {
    QByteArray bytes(2, '\0');
    qToLittleEndian<qint16>(static_cast<qint16>(name.size()), bytes.data());
    bytes += name;
    char sizeBytes[4];
    qToLittleEndian<qint32>(size.value_or(static_cast<qint32>(data.size())), sizeBytes);
    bytes.append(sizeBytes, 4);
    return bytes + data;
}

// Every file under a folder, as relative path -> bytes.
QMap<QString, QByteArray> Tree(const QString& root) {
    QMap<QString, QByteArray> files;
    QDirIterator it(root, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(QDir(root).relativeFilePath(path), ReadWholeFile(path));
    }
    return files;
}

QStringList TempNames() { return Dir(TheRun.Paths.TempDir + QStringLiteral("*.*")); }

}  // namespace

class TestPackageFile : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> outer_;  // holds the program directory and what lies beside it
    QString program_;

    QString WritePackage(const QByteArray& bytes) {
        const QString path = outer_->path() + QStringLiteral("/p.pck");
        WriteWholeFile(path, bytes);
        return path;
    }

private slots:
    void init() {
        outer_ = std::make_unique<QTemporaryDir>();
        program_ = outer_->path() + QStringLiteral("/Cartomar");
        QDir().mkpath(program_);
        Fixtures::UseProgramDir(program_);
    }

    void packsEachFileAsNameSizeAndBytesAndUnpacksThemAnywhere() {
        const QString source = outer_->path() + QStringLiteral("/stage/");
        QDir().mkpath(source + QStringLiteral("sub"));
        WriteWholeFile(source + QStringLiteral("Temp.dck"), QByteArray("deck\0bytes", 10));
        WriteWholeFile(source + QStringLiteral("CU00001.bmp"), QByteArray(70000, 'x'));
        WriteWholeFile(source + QStringLiteral("sub/inner.txt"), "not packed");
        WriteWholeFile(source + QStringLiteral(".hidden"), "not packed");
        const QString package = outer_->path() + QStringLiteral("/out.pck");

        QVERIFY(CreatePackageFile(outer_->path() + QStringLiteral("/stage"), package));
        const QByteArray prefix = QString(source).replace('/', '\\').toLatin1();
        const QByteArray expected = Member(prefix + "CU00001.bmp", QByteArray(70000, 'x')) +
                                    Member(prefix + "Temp.dck", QByteArray("deck\0bytes", 10));
        QCOMPARE(ReadWholeFile(package), expected);

        // The reader keeps only the names: they land in this Temp/.
        QVERIFY(ExtractPackageFile(package, TheRun.Paths.TempDir));
        QCOMPARE(TempNames(), (QStringList{QStringLiteral("CU00001.bmp"), QStringLiteral("Temp.dck")}));
        QCOMPARE(ReadWholeFile(TheRun.Paths.TempDir + QStringLiteral("Temp.dck")), QByteArray("deck\0bytes", 10));

        // A package of that name that is longer is written over, not cut short.
        WriteWholeFile(package, expected + "TAIL");
        QVERIFY(CreatePackageFile(source, package));
        QCOMPARE(ReadWholeFile(package), expected + "TAIL");
    }

    void anEmptyFileCannotBePackedAndTheMessageSaysWhy() {
        const QString source = outer_->path() + QStringLiteral("/stage/");
        QDir().mkpath(source);
        WriteWholeFile(source + QStringLiteral("Temp.crd"), QByteArray());
        std::optional<RuntimeError> failure;
        QVERIFY(!CreatePackageFile(source, outer_->path() + QStringLiteral("/out.pck"), &failure));
        QVERIFY(failure);
        QCOMPARE(failure->Number(), 9);
        QCOMPARE(failure->Description(), ErrorDescription(9));
        // The head written before the failure stays.
        QCOMPARE(FileLen(outer_->path() + QStringLiteral("/out.pck")), 2 + source.size() + 8 + 4);

        QVERIFY(!CreatePackageFile(source, outer_->path() + QStringLiteral("/no such folder/out.pck"), &failure));
        QCOMPARE(failure->Number(), 76);
    }

    void cutShortAndOddPackagesYieldWhatIsWhole() {
        // Nothing at all.
        QVERIFY(ExtractPackageFile(WritePackage(QByteArray()), TheRun.Paths.TempDir));
        QVERIFY(TempNames().isEmpty());

        // A member cut short is dropped with what follows (see the hostile
        // sizes below); one whole after another is kept.
        const QByteArray first = Member("C:\\Cartomar\\Temp\\a.txt", "first");
        const QByteArray second = Member("b.txt", "second member");  // no backslash: the whole name
        QVERIFY(ExtractPackageFile(WritePackage(first + second), TheRun.Paths.TempDir));
        QCOMPARE(ReadWholeFile(TheRun.Paths.TempDir + QStringLiteral("b.txt")), QByteArray("second member"));

        // The same name twice: the later one goes over the earlier in place.
        ClearTemp();
        QVERIFY(ExtractPackageFile(WritePackage(Member("x\\same", "LONGER TEXT") + Member("y\\same", "short")),
                                   TheRun.Paths.TempDir));
        QCOMPARE(ReadWholeFile(TheRun.Paths.TempDir + QStringLiteral("same")), QByteArray("shortR TEXT"));

        // A member of no bytes has no buffer: the package cannot be opened.
        ClearTemp();
        QVERIFY(!ExtractPackageFile(WritePackage(first + Member("empty", QByteArray())), TheRun.Paths.TempDir));
        QVERIFY(!ExtractPackageFile(outer_->path() + QStringLiteral("/missing.pck"), TheRun.Paths.TempDir));
    }

    void hostilePackagesNeverWriteOutsideTempNorAllocateWhatTheyClaim() {
        const QMap<QString, QByteArray> before = Tree(outer_->path());
        const QByteArray good = Member("ok.txt", "fine");

        // Separators of both kinds and absolute paths: only the last name counts.
        QVERIFY(ExtractPackageFile(
            WritePackage(good + Member("..\\..\\..\\evil1.txt", "1") + Member("../../evil2.txt", "2") +
                         Member("/etc/evil3.txt", "3") + Member("C:\\Windows\\evil4.txt", "4") +
                         Member("a\\b/..\\../evil5.txt  ", "5")),
            TheRun.Paths.TempDir));
        QCOMPARE(TempNames(),
                 (QStringList{QStringLiteral("evil1.txt"), QStringLiteral("evil2.txt"), QStringLiteral("evil3.txt"),
                              QStringLiteral("evil4.txt"), QStringLiteral("evil5.txt"), QStringLiteral("ok.txt")}));

        // Names that are no file name end the unpacking as a failure.
        for (const QByteArray& name : {QByteArray(), QByteArray("."), QByteArray(".."), QByteArray("x\\.."),
                                       QByteArray("x/.. "), QByteArray("x/"), QByteArray("bad\0name", 8)})
            QVERIFY2(!ExtractPackageFile(WritePackage(good + Member(name, "payload")), TheRun.Paths.TempDir),
                     name.constData());

        // Sizes and lengths past the end, or below 0, end the reading quietly
        // with what came before, as a member cut short in its data, its name
        // or its name's length does.
        for (const QByteArray& tail :
             {Member("huge", "abc", 0x7fffffff), Member("negative", "abc", -5), Member("past", "abc", 4),
              QByteArray("\x10\x00short", 7), QByteArray("\xff\xff", 2) + QByteArray(20, 'n'), QByteArray("\x05", 1)}) {
            ClearTemp();
            QVERIFY(ExtractPackageFile(WritePackage(good + tail), TheRun.Paths.TempDir));
            QCOMPARE(TempNames(), QStringList{QStringLiteral("ok.txt")});
        }

        // Thousands of members.
        ClearTemp();
        QByteArray many;
        for (int i = 0; i < 3000; ++i) many += Member("C:\\T\\m" + QByteArray::number(i), QByteArray::number(i * 7));
        QVERIFY(ExtractPackageFile(WritePackage(many), TheRun.Paths.TempDir));
        QCOMPARE(TempNames().size(), 3000);
        QCOMPARE(ReadWholeFile(TheRun.Paths.TempDir + QStringLiteral("m2999")), QByteArray::number(2999 * 7));

        // Beside Temp/ nothing changed but the package itself.
        ClearTemp();
        QMap<QString, QByteArray> after = Tree(outer_->path());
        after.remove(QStringLiteral("p.pck"));
        QCOMPARE(after, before);
    }
};

QTEST_MAIN(TestPackageFile)
#include "tst_packagefile.moc"
