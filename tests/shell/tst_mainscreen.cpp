// The frame and the main screen: the manual laid beside the program as the
// build lays it and opened by Help, every picture loading and every link
// leading somewhere; Esc doing nothing, the pressed look, a missing manual,
// the quick help panels; screens placed in the frame at and around their
// thresholds; pictures fitted into image boxes; and the exit question as the
// only way out.
#include <QDir>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextFragment>
#include <QTextImageFormat>

#include "core/platform/Palette.h"
#include "core/platform/Picture.h"
#include "core/platform/Twips.h"
#include "screens/diary/frmDiaryHelp.h"
#include "screens/journal/frmJournal.h"
#include "screens/platform/Form.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/readings/frmQuickHelp.h"
#include "screens/shell/MDIMainForm.h"
#include "screens/shell/Startup.h"
#include "screens/shell/frmHelpViewer.h"
#include "screens/shell/frmMainScreen.h"
#include "screens/widgets/ClickLabel.h"
#include "screens/widgets/FitPicture.h"
#include "screens/widgets/ImageBox.h"
#include "screens/widgets/ScreenPlacement.h"
#include "spreads/SpreadTestKit.h"
#include "support/ScreenTest.h"

namespace {

QList<int> gEnds;
using SpreadTestKit::SendMouse;

class frmProbe : public Form {};

// A probe screen of a size given in twips (whole pixels), not shown, so that
// its position reads back exactly as placed.
frmProbe& Probe(int widthTwips, int heightTwips) {
    frmProbe& f = Get<frmProbe>();
    f.resize(TwipsToPixels(widthTwips), TwipsToPixels(heightTwips));
    return f;
}

// The manual in the source tree.
QString SourceHelpFolder() { return QStringLiteral(CARTOMAR_SOURCE_HELP); }

// The image names the document shows, in order.
QStringList ImagesOf(const QTextDocument& document) {
    QStringList names;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto it = block.begin(); !it.atEnd(); ++it)
            if (it.fragment().charFormat().isImageFormat()) names << it.fragment().charFormat().toImageFormat().name();
    return names;
}

QImage AsImage(const QVariant& resource) {
    if (resource.canConvert<QImage>() && !resource.value<QImage>().isNull()) return resource.value<QImage>();
    if (resource.canConvert<QPixmap>() && !resource.value<QPixmap>().isNull())
        return resource.value<QPixmap>().toImage();
    return QImage::fromData(resource.toByteArray());
}

}  // namespace

class TestMainScreen : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    frmMainScreen* main_ = nullptr;
    int W = 0, H = 0;

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        SetEndProcessHook([](int code) { gEnds.append(code); });
        // Laid out as the build lays the program folder.
        const QDir help(SourceHelpFolder());
        QVERIFY(
            QFile::copy(help.filePath(QStringLiteral("Cartomar.hlp")), dir_.filePath(QStringLiteral("Cartomar.hlp"))));
        QVERIFY(QDir(dir_.path()).mkpath(QStringLiteral("Help/images")));
        const QStringList pictures = QDir(help.filePath(QStringLiteral("images"))).entryList({QStringLiteral("*.png")});
        QVERIFY(!pictures.isEmpty());
        for (const QString& png : pictures)
            QVERIFY(QFile::copy(help.filePath(QStringLiteral("images/") + png),
                                dir_.filePath(QStringLiteral("Help/images/") + png)));
        Fixtures::StandUpFrame(dir_.path());
        main_ = &Get<frmMainScreen>();
        W = FrameInnerWidth();
        H = FrameInnerHeight();
        QVERIFY(W > 6000 && H > 4500);
    }

    void init() { MsgBoxScript::Clear(); }
    void cleanup() { QCOMPARE(MsgBoxScript::Unanswered(), 0); }

    void helpShowsTheManualWithItsPictures() {
        MsgBoxScript::Clear();
        Get<frmMainScreen>().lblButton_Click(9);
        QVERIFY(MsgBoxScript::History().isEmpty() && IsLoaded<frmHelpViewer>());
        frmHelpViewer& viewer = Get<frmHelpViewer>();
        QTextDocument& document = *viewer.txtHelp->document();
        const QString text = document.toPlainText();
        for (const char* heading : {"Making a reading", "Keeping a diary", "Decks and cards", "Spreads", "Packages"})
            QVERIFY2(text.contains(QLatin1String(heading)), heading);

        // Every picture the manual names loads as a picture of a screen, not
        // as the broken-image mark.
        const QStringList images = ImagesOf(document);
        QVERIFY(images.size() >= 10);
        for (const QString& name : images) {
            const QImage image = AsImage(document.resource(QTextDocument::ImageResource, QUrl(name)));
            QVERIFY2(!image.isNull(), qPrintable(name));
            QVERIFY2(image.width() > 200 && image.height() > 150, qPrintable(name));
            // Shown at its own size, it fits the viewer without scrolling sideways.
            QVERIFY2(image.width() < viewer.txtHelp->viewport()->width(), qPrintable(name));
        }
        QVERIFY(images.contains(QStringLiteral("Help/images/main-screen.png")));
        QTest::keyClick(viewer.txtHelp, Qt::Key_Escape);  // Esc closes the viewer
        QVERIFY(!IsLoaded<frmHelpViewer>());
        QVERIFY(Get<frmMainScreen>().Visible());
    }

    void contentsLinksLeadToSections() {
        QFile manual(dir_.filePath(QStringLiteral("Cartomar.hlp")));
        QVERIFY(manual.open(QIODevice::ReadOnly));
        const QString html = QString::fromUtf8(manual.readAll());
        QSet<QString> anchors;
        for (const auto& m : QRegularExpression(QStringLiteral("<a name=\"([^\"]+)\"")).globalMatch(html))
            anchors << m.captured(1);
        const auto links = QRegularExpression(QStringLiteral("href=\"#([^\"]+)\"")).globalMatch(html);
        int count = 0;
        for (const auto& m : links) {
            QVERIFY2(anchors.contains(m.captured(1)), qPrintable(m.captured(1)));
            ++count;
        }
        QVERIFY(count >= 14);
    }

    // Esc and an index beyond the buttons do nothing.
    void escapeAndStrayIndexesChangeNothing() {
        QTest::keyClick(main_, Qt::Key_Escape);
        main_->lblButton_Click(0);
        main_->lblButton_Click(12);
        QVERIFY(main_->Visible());
        QVERIFY(MsgBoxScript::History().isEmpty() && gEnds.isEmpty());
    }

    void journalButtonLeadsThereAndBack() {
        main_->lblButton_Click(frmMainScreen::JournalButton);
        QVERIFY(IsLoaded<frmJournal>() && !main_->Visible());
        Get<frmJournal>().cmdClose->click();
        QVERIFY(main_->Visible());
    }

    // The button acts only when released where it was pressed. Here it is
    // Help, and the manual is missing: the message, and no viewer.
    void pressedLookFollowsTheHeldButton() {
        ClickLabel* label = main_->lblButton(9);
        const QPoint inside(5, 5), outside(label->width() + 5, 5);
        SendMouse(label, QEvent::MouseButtonPress, inside, Qt::LeftButton, Qt::LeftButton);
        QCOMPARE(label->BackColor(), QBColor(15));
        SendMouse(label, QEvent::MouseMove, outside, Qt::NoButton, Qt::LeftButton);
        QCOMPARE(label->BackColor(), QBColor(0));
        SendMouse(label, QEvent::MouseButtonRelease, outside, Qt::LeftButton, Qt::NoButton);
        QVERIFY(MsgBoxScript::History().isEmpty());
        QFile::remove(dir_.path() + QStringLiteral("/Cartomar.hlp"));
        SendMouse(label, QEvent::MouseButtonPress, inside, Qt::LeftButton, Qt::LeftButton);
        SendMouse(label, QEvent::MouseButtonRelease, inside, Qt::LeftButton, Qt::NoButton);
        QCOMPARE(Prompts(),
                 QStringList{QStringLiteral("Unable to locate help file. The file is longer in the '") + dir_.path() +
                             QStringLiteral("' directory. Recopy the help file or reinstall Cartomar.")});
        QVERIFY(!IsLoaded<frmHelpViewer>());
    }

    void quickHelpPanelsGoOnEscAndOnLosingTheFocus() {
        frmQuickHelp& quick = Get<frmQuickHelp>();
        quick.Show();
        QTest::keyClick(&quick, Qt::Key_Escape);
        QVERIFY(!IsLoaded<frmQuickHelp>());

        frmDiaryHelp& diary = Get<frmDiaryHelp>();
        diary.Show();
        diary.NotifyActivated(true);
        diary.NotifyActivated(false);
        QVERIFY(!IsLoaded<frmDiaryHelp>());
        Settle();
    }

    // Each placement of a screen of a size in twips, and where it puts it. Up
    // to 50 twips of room left (150 low in the frame, 200 beside it) is still
    // centred, in integer halves; less puts the screen 50 from the edge. With
    // `own` it goes 150 inside the frame's own corner instead.
    void placementsKeepTheirMargins_data() {
        QTest::addColumn<QString>("placement");
        QTest::addColumn<bool>("own");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("left");
        QTest::addColumn<int>("top");
        const int ownLeft = FrameOwnLeft() + 150, ownTop = FrameOwnTop() + 150;
        const int centred = (W - 3000) / 2, beside = (W - 3000 - 200) / 2;
        QTest::newRow("centred") << "centre" << false << 3000 << 1500 << centred << (H - 1500) / 2;
        QTest::newRow("centred, 60 to spare") << "centre" << false << W - 60 << H - 60 << 30 << 30;
        QTest::newRow("at the edge, 45 to spare") << "centre" << false << W - 45 << H + 300 << 50 << 50;
        QTest::newRow("right") << "right" << false << 3000 << 1500 << centred << 50;
        QTest::newRow("right, at the frame's top") << "right" << true << 3000 << 1500 << centred << ownTop;
        QTest::newRow("beside") << "beside" << false << 3000 << 1500 << beside << 50;
        QTest::newRow("beside, at the frame's top") << "beside" << true << 3000 << 1500 << beside << ownTop;
        QTest::newRow("beside, 210 to spare") << "beside" << false << W - 210 << 1500 << 5 << 50;
        QTest::newRow("beside, 195 to spare") << "beside" << false << W - 195 << 1500 << 50 << 50;
        QTest::newRow("low, 165 to spare") << "low" << false << 3000 << H - 165 << beside << 82;
        QTest::newRow("low, 135 to spare") << "low" << false << 3000 << H - 135 << beside << 50;
        QTest::newRow("top left") << "top left" << false << 3000 << 1500 << 50 << 50;
        QTest::newRow("top left, at the frame's corner") << "top left" << true << 3000 << 1500 << ownLeft << ownTop;
    }

    void placementsKeepTheirMargins() {
        QFETCH(QString, placement);
        QFETCH(bool, own);
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(int, left);
        QFETCH(int, top);
        frmProbe& f = Probe(width, height);
        if (placement == QLatin1String("centre")) CentreInFrame(f);
        if (placement == QLatin1String("right")) PlaceInFrameRight(f, own);
        if (placement == QLatin1String("beside")) PlaceBesideFrame(f, own);
        if (placement == QLatin1String("low")) CentreLowInFrame(f);
        if (placement == QLatin1String("top left")) PlaceTopLeft(f, own);
        QCOMPARE(QList<int>({f.Left(), f.Top()}), QList<int>({left, top}));
        UnloadScreen<frmProbe>();
    }

    void fitCases() {
        struct Fit {
            int height, width;  // the picture's
            BoxGeometry box;    // {Top, Left, Width, Height}
            bool centre, keepTop;
            int result;
            BoxGeometry fitted;
        };
        const Fit fits[] = {
            // 1000 high, 2000 wide in a box 1500 square: case 2, height 750,
            // centred 375 lower; the top stays with KeepTop.
            {1000, 2000, {100, 200, 1500, 1500}, true, false, 2, {475, 200, 1500, 750}},
            {1000, 2000, {100, 200, 1500, 1500}, true, true, 2, {100, 200, 1500, 750}},
            // Exactly the box's size: case 2, the height recomputed from the
            // width (and not cut short by the division).
            {450, 1050, {0, 0, 1050, 450}, false, false, 2, {0, 0, 1050, 450}},
            // Larger both ways, taller than the box's shape: the width shrinks;
            // wider than the box's shape: the height shrinks.
            {3000, 2000, {0, 0, 1500, 1500}, true, false, 1, {0, 250, 1000, 1500}},
            {2000, 4000, {0, 0, 1500, 1500}, false, false, 1, {0, 0, 1500, 750}},
            // Taller only, then smaller both ways.
            {3000, 1000, {0, 0, 1500, 1500}, true, false, 3, {0, 500, 500, 1500}},
            {600, 400, {10, 20, 1500, 1500}, true, false, 4, {460, 570, 400, 600}},
        };
        for (const Fit& f : fits) {
            BoxGeometry box = f.box;
            QCOMPARE(FitBoxToPicture(f.height, f.width, box, f.centre, f.keepTop), f.result);
            QCOMPARE(QList<int>({box.Top, box.Left, box.Width, box.Height}),
                     QList<int>({f.fitted.Top, f.fitted.Left, f.fitted.Width, f.fitted.Height}));
        }
    }

    void fitPictureLoadsAndFallsBack() {
        QWidget host;
        ImageBox box(&host);
        const QImage defaultPicture = LoadPicture(TheRun.Paths.DefaultPicturePath).Image;

        // A picture 40 pixels wide and 20 high is smaller than the box: the
        // box takes its size, centred.
        QImage image(40, 20, QImage::Format_RGB32);
        image.fill(Qt::red);
        SavePictureAsBmp(image, TheRun.Paths.CardsDir + QStringLiteral("CU00001.bmp"));
        box.Move(0, 0, 1500, 1500);
        FitPicture(box, TheRun.Paths.CardsDir + QStringLiteral("CU00001.bmp"), true, false);
        QVERIFY(box.Stretch());
        QCOMPARE(QList<int>({box.Top(), box.Left(), box.Width(), box.Height()}), QList<int>({600, 450, 600, 300}));
        QCOMPARE(box.Image().pixelColor(0, 0), QColor(Qt::red));
        QVERIFY(MsgBoxScript::History().isEmpty());

        // A missing file: the default picture, without a word.
        box.Move(0, 0, 1500, 1500);
        FitPicture(box, TheRun.Paths.CardsDir + QStringLiteral("CU00099.bmp"), false, false);
        QCOMPARE(box.Image(), defaultPicture);
        QVERIFY(MsgBoxScript::History().isEmpty());

        // A file that is no picture: the message, then the default picture.
        WriteWholeFile(TheRun.Paths.CardsDir + QStringLiteral("CU00002.bmp"), "this is not a bitmap");
        box.Move(0, 0, 1500, 1500);
        FitPicture(box, TheRun.Paths.CardsDir + QStringLiteral("CU00002.bmp"), false, false);
        QCOMPARE(Prompts(),
                 QStringList{QStringLiteral("Error while loading the picture. A default picture is selected instead.\n"
                                            "Please save all your work, exit Cartomar, and then run it again")});
        QCOMPARE(box.Image(), defaultPicture);
    }

    // No, by the Exit button or the close box, keeps the run; Yes ends it and
    // the frame's unload leaves Temp/ empty but there.
    void exitQuestionIsTheOnlyWayOut() {
        MDIMainForm& frame = Get<MDIMainForm>();
        const QString question = QStringLiteral("Are you sure you want to EXIT Cartomar?");
        MsgBoxScript::Answer(vbNo);
        main_->lblButton_Click(11);
        QCOMPARE(MsgBoxScript::History()[0].style, vbYesNo | vbQuestion | vbDefaultButton2);
        MsgBoxScript::Answer(vbNo);
        frame.close();
        QCOMPARE(Prompts(), (QStringList{question, question}));
        QVERIFY(frame.isVisible() && gEnds.isEmpty());
        WriteWholeFile(TheRun.Paths.TempDir + QStringLiteral("work.tmp"), "x");
        MsgBoxScript::Answer(vbYes);
        frame.close();
        QCOMPARE(gEnds, QList<int>{0});
        QVERIFY(!IsLoaded<MDIMainForm>());
        QVERIFY(QFileInfo(TheRun.Paths.TempDir).isDir() && QDir(TheRun.Paths.TempDir).entryList(QDir::Files).isEmpty());
    }
};

QTEST_MAIN(TestMainScreen)
#include "tst_mainscreen.moc"
