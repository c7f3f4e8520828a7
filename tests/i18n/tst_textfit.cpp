// Every screen in each of the program's languages shows its texts whole:
// captions, labels, buttons, check boxes, options and tabs each fit their
// control, the screens keeping the sizes they have in English.
#include <QTabWidget>

#include "i18n/Screens.h"
#include "screens/platform/Application.h"
#include "support/TextFit.h"

class TestTextFit : public QObject {
    Q_OBJECT
    QTemporaryDir frame_;

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        MediaPlayerScript::Enable();
        Fixtures::StandUpFrame(frame_.path());
    }
    void cleanupTestCase() { UseLanguages({QStringLiteral("en")}); }

    void everyTextFits_data() {
        QTest::addColumn<int>("row");
        const QList<Screens::Screen> screens = Screens::Every();
        for (int row = 0; row < screens.size(); ++row) QTest::newRow(screens[row].Name) << row;
    }
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
        // The reading and diary screens' own texts are not yet translated,
        // and "Quick Help" and "Spread Does NOT Includes Question/Issue" do
        // not fit even in English; their translations will.
        for (const char* untranslated : {"frmSelectSpread", "frmSelectSpreadforDiary", "frmNewReading",
                                         "frmNewReading dealing", "frmNewDiary", "frmNewDiary keeping"})
            QEXPECT_FAIL(untranslated, "reading and diary screens still in English", Continue);
        QVERIFY2(misfits.isEmpty(), qPrintable(misfits.join(QLatin1Char('\n'))));
    }
};

QTEST_MAIN(TestTextFit)
#include "tst_textfit.moc"
