// Nothing the program shows escapes translation: every screen, opened under
// the pseudo-translation (each letter of a translated text accented), shows
// no plain letter but in the user's data, file names and accelerators; and
// neither do the message boxes a screen gives on the way.
#include <QAbstractItemView>
#include <QGroupBox>
#include <QRegularExpression>
#include <QTabWidget>

#include "i18n/Screens.h"
#include "screens/platform/Application.h"

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

}  // namespace

class TestCoverage : public QObject {
    Q_OBJECT
    QTemporaryDir frame_;

private slots:
    void initTestCase() {
        // The frame and the main screen are made in the language too.
        QCOMPARE(UseLanguages({QStringLiteral("pseudo")}), QStringLiteral("pseudo"));
        MsgBoxScript::Enable();
        MediaPlayerScript::Enable();
        Fixtures::StandUpFrame(frame_.path());
    }
    void cleanupTestCase() { UseLanguages({QStringLiteral("en")}); }

    void everyTextIsTranslated_data() {
        QTest::addColumn<int>("row");
        const QList<Screens::Screen> screens = Screens::Every();
        for (int row = 0; row < screens.size(); ++row) QTest::newRow(screens[row].Name) << row;
    }
    void everyTextIsTranslated() {
        QFETCH(int, row);
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
};

QTEST_MAIN(TestCoverage)
#include "tst_coverage.moc"
