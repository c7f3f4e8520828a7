// Placing screens in the frame (the centring rule and its variants, at and
// around their thresholds) and fitting pictures into image boxes (each case,
// centring, the default picture for a missing or broken file).
#include <QMdiArea>

#include "core/platform/Picture.h"
#include "core/platform/Twips.h"
#include "screens/platform/Form.h"
#include "screens/shell/Startup.h"
#include "screens/widgets/FitPicture.h"
#include "screens/widgets/ImageBox.h"
#include "screens/widgets/ScreenPlacement.h"
#include "support/ScreenTest.h"

namespace {

class frmProbe : public Form {};

// A probe screen of a size given in twips (whole pixels), not shown, so that
// its position reads back exactly as placed.
frmProbe& Probe(int widthTwips, int heightTwips) {
    frmProbe& f = Get<frmProbe>();
    f.resize(TwipsToPixels(widthTwips), TwipsToPixels(heightTwips));
    return f;
}

}  // namespace

class TestPlacement : public QObject {
    Q_OBJECT
    QMdiArea area_;
    QTemporaryDir dir_;
    int W = 0, H = 0;

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        area_.resize(800, 600);
        area_.move(120, 90);
        area_.show();
        SetFrameArea(&area_);
        W = FrameInnerWidth();
        H = FrameInnerHeight();
        QVERIFY(W > 6000 && H > 4500);
        Fixtures::UseProgramDir(dir_.path());
    }

    void init() { MsgBoxScript::Clear(); }

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
};

QTEST_MAIN(TestPlacement)
#include "tst_placement.moc"
