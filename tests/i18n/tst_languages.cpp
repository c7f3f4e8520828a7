// The language the program speaks: the first of the user's languages that it
// has, as the system lists them, with Qt's own texts in the same language; and
// what it writes, the same bytes whatever the language. Every screen in every
// language: under the pseudo-translation (each letter of a translated text
// accented) none shows a plain letter but in the user's data, file names and
// accelerators, nor do the message boxes it gives on the way; in each of the
// program's languages every text fits its control, the screens keeping the
// sizes they have in English.
#include <QAbstractItemView>
#include <QGroupBox>
#include <QRegularExpression>
#include <QTabWidget>

#include "core/packages/PackageFile.h"
#include "core/packages/PackageInstallation.h"
#include "core/packages/PackageStaging.h"
#include "core/platform/Errors.h"
#include "core/platform/OleDate.h"
#include "core/store/Housekeeping.h"
#include "core/store/NewDesigns.h"
#include "i18n/Screens.h"
#include "screens/platform/Application.h"
#include "support/InstallAnswers.h"
#include "support/TextFit.h"

namespace {

// What the sample holds and the program shows as it is (the user's names and
// texts, file names, pictures' names and paths), what the pseudo-translation
// keeps (an accelerator and its letter, markup), and the dates of a language
// Qt has no names for ("05-Mar-2026", "9 Dec 2025").
const QRegularExpression& Kept() {
    static const QRegularExpression kept(QStringLiteral(
        R"((Upright|Reversed) meaning of card \d+|(upright|reversed) keywords \d+|What position \d+ stands for|)"
        R"(\S*/\S*|\S+@\S+|www\.\S+|[\w*]+\.\w{2,4}\b|Card \d+|Position \d+|Major Arcana|Minor Arcana|)"
        R"(Celtic Cross|Tarot|\bSaved\b|\d{1,2} [A-Z][a-z]{2} \d{4}|\bC[UR]?\d{5,6}\b|<[^>]*>|&\w+;|&.|\d\d-[A-Z][a-z]{2}-\d{4})"));
    return kept;
}

// The folders on the way to the program folder, which the folder lists show.
QStringList& Folders() {
    static QStringList folders;
    return folders;
}

// Names the text when a plain letter is left in it once what is kept is
// taken out.
void Add(QStringList& texts, const QString& what, const QString& text) {
    static const QRegularExpression plain(QStringLiteral("[A-Za-z]"));
    if (!Folders().contains(text.trimmed()) && QString(text).remove(Kept()).contains(plain))
        texts << QStringLiteral("%1 '%2'").arg(what, text);
}

void AddModel(QStringList& texts, const QString& what, const QAbstractItemModel* model) {
    if (!model) return;
    for (int column = 0; column < model->columnCount(); ++column)
        Add(texts, what, model->headerData(column, Qt::Horizontal).toString());
    for (int row = 0; row < model->rowCount(); ++row)
        for (int column = 0; column < model->columnCount(); ++column)
            for (int role : {int(Qt::DisplayRole), int(Qt::ToolTipRole)})
                Add(texts, what, model->index(row, column).data(role).toString());
}

// Every text on show in the screen that is not pseudo-translated, named by
// its control: the title, captions, buttons, tabs, list entries, tooltips.
QStringList UntranslatedTexts(QWidget& screen) {
    QStringList texts;
    Add(texts, QStringLiteral("title"), screen.windowTitle());
    QList<QWidget*> controls = screen.findChildren<QWidget*>();
    controls.prepend(&screen);
    for (QWidget* w : controls) {
        if (w != &screen && !w->isVisibleTo(&screen)) continue;
        const QString name = w->objectName().isEmpty() ? QLatin1String(w->metaObject()->className()) : w->objectName();
        Add(texts, name + QStringLiteral(" tooltip"), w->toolTip());
        if (auto* label = qobject_cast<QLabel*>(w)) Add(texts, name, label->text());
        else if (auto* button = qobject_cast<QAbstractButton*>(w)) Add(texts, name, button->text());
        else if (auto* group = qobject_cast<QGroupBox*>(w)) Add(texts, name, group->title());
        else if (auto* combo = qobject_cast<QComboBox*>(w)) AddModel(texts, name, combo->model());
        else if (auto* view = qobject_cast<QAbstractItemView*>(w)) AddModel(texts, name, view->model());
        else if (auto* tabs = qobject_cast<QTabWidget*>(w))
            for (int t = 0; t < tabs->count(); ++t) Add(texts, name + QStringLiteral(" tab"), tabs->tabText(t));
    }
    return texts;
}

// Gives the box a screen gives at a touch, as the screen stands in the
// table; false for a screen left alone.
bool Provoke(const QString& screen) {
    if (screen == QLatin1String("frmSelectSpread")) {
        Get<frmSelectSpread>().lstCardTypes->clearSelection();  // too few card types
        Get<frmSelectSpread>().cmdSelect_Click();
    } else if (screen == QLatin1String("frmSaveReading")) {
        Get<frmSaveReading>().txtSaveAs->clear();  // no name
        Get<frmSaveReading>().cmdSave_Click();
    } else if (screen == QLatin1String("frmOpenReading")) {
        MsgBoxScript::Answer(vbNo);  // the delete question
        Get<frmOpenReading>().cmdDelete_Click();
    } else if (screen == QLatin1String("frmDiaryCards")) {
        Get<frmDiaryCards>().cmdSelect_Click();  // no card chosen
    } else {
        return false;
    }
    return true;
}

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
    staging.StageAll();
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
    QTemporaryDir frame_;

private slots:
    void initTestCase() {
        // The frame is made in the pseudo-translation too.
        QCOMPARE(UseLanguages({QStringLiteral("pseudo")}), QStringLiteral("pseudo"));
        MsgBoxScript::Enable();
        MediaPlayerScript::Enable();
        Fixtures::StandUpFrame(frame_.path());
    }
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

    void everyTextIsTranslated_data() { Screens::AddRows(); }
    void everyTextIsTranslated() {
        QFETCH(int, row);
        UseLanguages({QStringLiteral("pseudo")});
        const Screens::Screen screen = Screens::Every()[row];
        QTemporaryDir dir;
        Screens::LaySample(dir.path());
        Folders() = dir.path().split(QLatin1Char('/'), Qt::SkipEmptyParts);
        Folders() << QStringLiteral("Cards") << QStringLiteral("Temp") << QStringLiteral("Packages")
                  << QStringLiteral("Attachments");
        QStringList found;
        bool provoked = true;
        screen.Open([&](QWidget& shown) {
            QCoreApplication::processEvents();
            found = UntranslatedTexts(shown);
            if (Provoke(QLatin1String(screen.Name))) provoked = !MsgBoxScript::History().isEmpty();
        });
        QVERIFY(provoked);
        for (const MsgBoxScript::Shown& box : MsgBoxScript::History()) {
            Add(found, QStringLiteral("message"), box.prompt);
            Add(found, QStringLiteral("message title"), box.title);
        }
        QCOMPARE(MsgBoxScript::Unanswered(), 0);
        Screens::CloseEvery();
        QVERIFY2(found.isEmpty(), qPrintable(found.join(QStringLiteral("; "))));
    }

    void everyTextFits_data() { Screens::AddRows(); }
    void everyTextFits() {
        QFETCH(int, row);
        const Screens::Screen screen = Screens::Every()[row];
        QStringList misfits;
        for (const QString& language : {QStringLiteral("es"), QStringLiteral("de")}) {
            QCOMPARE(UseLanguages({language}), language);
            QTemporaryDir dir;
            Screens::LaySample(dir.path());
            screen.Open([&](QWidget& shown) {
                QCoreApplication::processEvents();
                auto judge = [&] {
                    for (const QString& misfit : TextsThatDoNotFit(shown))
                        misfits << QStringLiteral("%1, %2: %3").arg(language, QLatin1String(screen.Name), misfit);
                };
                judge();
                // Only what is on show is judged: each other page of a tab in turn.
                for (QTabWidget* tab : shown.findChildren<QTabWidget*>())
                    for (int page = 1; page < tab->count(); ++page) {
                        tab->setCurrentIndex(page);
                        QCoreApplication::processEvents();
                        judge();
                    }
            });
            QCOMPARE(MsgBoxScript::Unanswered(), 0);
            Screens::CloseEvery();
        }
        QVERIFY2(misfits.isEmpty(), qPrintable(misfits.join(QLatin1Char('\n'))));
    }
};

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
