// The language the program speaks: the first of the user's languages that it
// has, as the system lists them, with Qt's own texts in the same language; and
// what it writes, the same bytes whatever the language.
#include <QtTest>

#include "core/packages/PackageFile.h"
#include "core/packages/PackageInstallation.h"
#include "core/packages/PackageStaging.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/records/RecordFile.h"
#include "core/store/Housekeeping.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "screens/platform/Application.h"
#include "support/Fixtures.h"
#include "support/InstallAnswers.h"

namespace {

// A designer's day under the language in force: a new deck with the
// program's own defaults and a card, a spread tied to it, a reading and a
// diary entry, all saved; a package of the deck and the spread; and that
// package installed in a second program folder. Returns every file of both
// folders and the package, by name.
QMap<QString, QByteArray> MakeEverything(const QString& base) {
    SetClockForTests(QDateTime(QDate(2025, 5, 4), QTime(21, 30, 15)));
    for (const char* folder : {"maker", "user"}) QDir(base).mkdir(QLatin1String(folder));
    Fixtures::UseProgramDir(base + QStringLiteral("/maker"));
    ResetDeck();
    TheRun.CurrentDeck.DeckId = 1;
    TheRun.CurrentDeck.DeckName = QStringLiteral("Tarot");
    TheRun.CurrentDeck.CardCount = 1;
    CardRecord card;
    ResetCard(card);
    card.CardTitle = QStringLiteral("The Moon");
    card.CardDeckId = 1;
    AppendRecord(TheRun.Paths.CardsPath, card);
    AppendRecord(TheRun.Paths.DecksPath, static_cast<const DeckRecord&>(TheRun.CurrentDeck));
    Fixtures::MakeSpread(QStringLiteral("Cross"), 2, {1});
    ReadingRecord reading;
    ResetReading(reading);
    reading.ReadingName = QStringLiteral("Morning");
    AppendRecord(TheRun.Paths.ReadingsPath, reading);
    DiaryRecord diary;
    ResetDiary(diary);
    diary.DiaryName = QStringLiteral("Evening");
    AppendRecord(TheRun.Paths.DiaryPath, diary);

    PackageStaging staging;
    staging.DeckNames = {QStringLiteral("Tarot")};
    staging.SpreadNames = {QStringLiteral("Cross")};
    staging.StageDecks();
    staging.StageCards();
    staging.StageSpreads();
    const QString package = base + QStringLiteral("/Tarot.pck");
    if (!CreatePackageFile(TheRun.Paths.TempDir, package)) return {};

    Fixtures::UseProgramDir(base + QStringLiteral("/user"));
    ExtractPackageFile(package, TheRun.Paths.TempDir);
    InstallAnswers answers;
    answers.Chosen = {QStringLiteral("Tarot")};
    if (PackageInstallation(answers, QString()).Install() != InstallOutcome::Installed) return {};
    ClearTemp();

    QMap<QString, QByteArray> files;
    QDirIterator it(base, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        if (!path.endsWith(QLatin1String(".lck"))) files.insert(QDir(base).relativeFilePath(path), ReadWholeFile(path));
    }
    return files;
}

}  // namespace

class TestLanguages : public QObject {
    Q_OBJECT

private slots:
    void cleanupTestCase() { UseLanguages({QStringLiteral("en")}); }

    void theFirstLanguageSpokenIsChosen_data() {
        QTest::addColumn<QStringList>("languages");
        QTest::addColumn<QString>("chosen");
        QTest::newRow("German of Germany") << QStringList{"de-DE", "de-Latn-DE", "de"} << "de";
        QTest::newRow("Austrian German") << QStringList{"de-AT"} << "de";
        QTest::newRow("Mexican Spanish, as glibc writes it") << QStringList{"es_MX"} << "es";
        QTest::newRow("LANGUAGE=es:de") << QStringList{"es", "es-Latn-ES", "es-ES", "de", "de-DE"} << "es";
        QTest::newRow("French, then German") << QStringList{"fr-FR", "fr", "de-DE"} << "de";
        QTest::newRow("English before German") << QStringList{"en-GB", "de-DE"} << "";
        QTest::newRow("none spoken") << QStringList{"fr-FR", "it"} << "";
        QTest::newRow("the C locale") << QStringList{"C"} << "";
        QTest::newRow("nothing") << QStringList{} << "";
    }
    void theFirstLanguageSpokenIsChosen() {
        QFETCH(QStringList, languages);
        QFETCH(QString, chosen);
        QCOMPARE(ChooseLanguage(languages, {QStringLiteral("de"), QStringLiteral("es")}), chosen);
    }

    // The program's catalogues are in the executable; Qt's come from the
    // system, and a later choice replaces both.
    void theProgramAndQtSpeakTheChosenLanguage() {
        QVERIFY(TranslatedLanguages().contains(QStringLiteral("de")));
        QVERIFY(TranslatedLanguages().contains(QStringLiteral("es")));
        QCOMPARE(UseLanguages({QStringLiteral("de-AT"), QStringLiteral("en")}), QStringLiteral("de"));
        QCOMPARE(ErrorDescription(errFileNotFound), QStringLiteral("Datei nicht gefunden"));
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Abbrechen"));
        QCOMPARE(QLocale().language(), QLocale::German);
        QCOMPARE(UseLanguages({QStringLiteral("es-ES")}), QStringLiteral("es"));
        QCOMPARE(ErrorDescription(errFileNotFound), QStringLiteral("No se encontró el archivo"));
        QCOMPARE(UseLanguages({QStringLiteral("fr")}), QString());
        QCOMPARE(ErrorDescription(errFileNotFound), QStringLiteral("File not found"));
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancel"));
    }

    // The pseudo-translation marks every text and keeps what the program
    // fills in or acts on: arguments, breaks, double spaces, the
    // accelerator's letter.
    void thePseudoTranslationKeepsWhatTheProgramActsOn_data() {
        QTest::addColumn<QString>("context");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QStringList>("kept");
        QTest::newRow("arguments and breaks") << "ErrorReport"
                                              << "Run-time error '%1':\n\n%2" << QStringList{"'%1':\n\n%2"};
        QTest::newRow("accelerator") << "frmConvert"
                                     << "Con&vert" << QStringList{"&v"};
        QTest::newRow("double space, argument at the end")
            << "Startup"
            << "Unable to convert to new database format as existing backups exist.  Please reinstall in a new "
               "directory or contact %1."
            << QStringList{".  ", "%1."};
    }
    void thePseudoTranslationKeepsWhatTheProgramActsOn() {
        QFETCH(QString, context);
        QFETCH(QString, source);
        QFETCH(QStringList, kept);
        QCOMPARE(UseLanguages({QStringLiteral("pseudo")}), QStringLiteral("pseudo"));
        const QString text = QCoreApplication::translate(qPrintable(context), qPrintable(source));
        QVERIFY2(text.startsWith(QLatin1Char('[')) && text.size() > source.size(), qPrintable(text));
        for (const QString& piece : kept) QVERIFY2(text.contains(piece), qPrintable(text));
    }

    // Record files and packages are the user's data: no text of the program
    // and no manner of the language may reach them. Both runs work in the
    // same folder, whose path a package records.
    void recordsAndPackagesAreTheSameInEveryLanguage() {
        QTemporaryDir work;
        const QString base = work.path() + QStringLiteral("/run");
        QVERIFY(QDir().mkpath(base));
        UseLanguages({QStringLiteral("de-DE")});
        const QMap<QString, QByteArray> made = MakeEverything(base);
        QVERIFY(QDir(base).removeRecursively() && QDir().mkpath(base));
        UseLanguages({QStringLiteral("en-US")});
        const QMap<QString, QByteArray> expected = MakeEverything(base);
        QVERIFY(expected.contains(QStringLiteral("Tarot.pck")));
        QVERIFY(expected.value(QStringLiteral("user/Decks.dck")).contains("Major Arcana"));
        QCOMPARE(made.keys(), expected.keys());
        for (auto it = expected.cbegin(); it != expected.cend(); ++it)
            QVERIFY2(made.value(it.key()) == it.value(), qPrintable(it.key()));
    }
};

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
