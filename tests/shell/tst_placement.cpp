// Placing screens in the frame (the centring rule and its variants, at and
// around their thresholds) and fitting pictures into image boxes (each case,
// centring, the default picture for a missing or broken file).
#include <QFile>
#include <QMdiArea>

#include "core/platform/Picture.h"
#include "core/platform/Twips.h"
#include "screens/platform/Form.h"
#include "screens/shell/FitPicture.h"
#include "screens/shell/ImageBox.h"
#include "screens/shell/ScreenPlacement.h"
#include "screens/store/Startup.h"
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

    void centreInFrameAndItsMargin() {
        // Width, height, then left and top: up to 50 twips of room left is
        // still centred; less puts the screen 50 from the edge.
        const std::array<int, 4> cases[] = {
            {3000, 1500, (W - 3000) / 2, (H - 1500) / 2}, {W - 60, H - 60, 30, 30}, {W - 45, H + 300, 50, 50}};
        for (const auto& [width, height, left, top] : cases) {
            frmProbe& f = Probe(width, height);
            CentreInFrame(f);
            QCOMPARE(QList<int>({f.Left(), f.Top()}), QList<int>({left, top}));
        }
    }

    void variantsUseTheirOwnMargins() {
        frmProbe& f = Probe(3000, 1500);
        PlaceInFrameRight(f, false);
        QCOMPARE(f.Top(), 50);
        QCOMPARE(f.Left(), (W - 3000) / 2);
        PlaceInFrameRight(f, true);
        QCOMPARE(f.Top(), FrameOwnTop() + 150);
        QCOMPARE(FrameOwnTop(), PixelsToTwips(area_.y()));

        PlaceBesideFrame(f, false);
        QCOMPARE(f.Left(), (W - 3000 - 200) / 2);
        QCOMPARE(f.Top(), 50);
        PlaceBesideFrame(f, true);
        QCOMPARE(f.Top(), FrameOwnTop() + 150);
        Probe(W - 210, 1500);
        PlaceBesideFrame(f, false);
        QCOMPARE(f.Left(), 5);
        Probe(W - 195, 1500);
        PlaceBesideFrame(f, false);
        QCOMPARE(f.Left(), 50);

        // Low in the frame: centred downwards once 150 twips are left over,
        // with integer halves.
        Probe(3000, H - 165);
        CentreLowInFrame(f);
        QCOMPARE(f.Top(), 82);
        QCOMPARE(f.Left(), (W - 3000 - 200) / 2);
        Probe(3000, H - 135);
        CentreLowInFrame(f);
        QCOMPARE(f.Top(), 50);

        PlaceTopLeft(f, false);
        QCOMPARE(f.Left(), 50);
        QCOMPARE(f.Top(), 50);
        PlaceTopLeft(f, true);
        QCOMPARE(f.Left(), FrameOwnLeft() + 150);
        QCOMPARE(f.Top(), FrameOwnTop() + 150);
        UnloadScreen<frmProbe>();
    }

    void fitCases() {
        struct Fit {
            int height, width;      // the picture's
            BoxGeometry box;        // {Top, Left, Width, Height}
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
        const QImage defaultPicture = LoadPicture(DefaultPicturePath).Image;

        // A picture 40 pixels wide and 20 high is smaller than the box: the
        // box takes its size, centred.
        QImage image(40, 20, QImage::Format_RGB32);
        image.fill(Qt::red);
        SavePictureAsBmp(image, CardsDir + QStringLiteral("CU00001.bmp"));
        box.Move(0, 0, 1500, 1500);
        FitPicture(box, CardsDir + QStringLiteral("CU00001.bmp"), true, false);
        QVERIFY(box.Stretch());
        QCOMPARE(QList<int>({box.Top(), box.Left(), box.Width(), box.Height()}), QList<int>({600, 450, 600, 300}));
        QCOMPARE(box.Image().pixelColor(0, 0), QColor(Qt::red));
        QVERIFY(MsgBoxScript::History().isEmpty());

        // A missing file: the default picture, without a word.
        box.Move(0, 0, 1500, 1500);
        FitPicture(box, CardsDir + QStringLiteral("CU00099.bmp"), false, false);
        QCOMPARE(box.Image(), defaultPicture);
        QVERIFY(MsgBoxScript::History().isEmpty());

        // A file that is no picture: the message, then the default picture.
        QFile notPicture(CardsDir + QStringLiteral("CU00002.bmp"));
        QVERIFY(notPicture.open(QIODevice::WriteOnly));
        notPicture.write("this is not a bitmap");
        notPicture.close();
        box.Move(0, 0, 1500, 1500);
        FitPicture(box, notPicture.fileName(), false, false);
        QCOMPARE(Prompts(), QStringList{QStringLiteral("Error while loading the picture. A default picture is selected instead.\n"
                                "Please save all your work, exit Cartomar, and then run it again")});
        QCOMPARE(MsgBoxScript::History()[0].style, int(vbCritical));
        QCOMPARE(box.Image(), defaultPicture);
    }
};

QTEST_MAIN(TestPlacement)
#include "tst_placement.moc"
