// Draws the program's icon: a card with the crescent and the star of the card
// back, standing on a night-blue tile, in the sizes the desktop's icon theme
// looks for. The PNG files are committed under desktop/icons and installed
// into the hicolor theme; the 64-pixel one is also the window icon carried as
// a Qt resource.
//
//   g++ -std=c++20 -fPIC -Isrc tools/make_icon.cpp $(pkg-config --cflags --libs Qt6Gui) -o /tmp/make_icon
//   /tmp/make_icon desktop/icons resources/cartomar-icon.png
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>
#include <QtMath>
#include <cstdio>

#include "screens/widgets/Emblems.h"

namespace {

const QColor Night(22, 18, 58);
const QColor Dusk(58, 44, 120);
const QColor Gold(222, 184, 92);
const QColor PaleGold(246, 230, 184);

// Draws on a 256-unit square; `detail` drops the fine lines at small sizes,
// where they would only blur.
QImage Icon(int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 256.0, size / 256.0);
    const bool detail = size >= 48;

    // The tile.
    QLinearGradient sky(0, 0, 0, 256);
    sky.setColorAt(0.0, Dusk);
    sky.setColorAt(1.0, Night);
    p.setPen(Qt::NoPen);
    p.setBrush(sky);
    p.drawRoundedRect(QRectF(8, 8, 240, 240), 44, 44);
    QRadialGradient glow(QPointF(128, 118), 120);
    glow.setColorAt(0.0, QColor(150, 120, 210, 110));
    glow.setColorAt(1.0, QColor(150, 120, 210, 0));
    p.setBrush(glow);
    p.drawRoundedRect(QRectF(8, 8, 240, 240), 44, 44);

    // A second card behind, turned, as in a spread being laid.
    p.save();
    p.translate(128, 132);
    p.rotate(-14);
    p.setBrush(QColor(40, 30, 92));
    p.setPen(QPen(Gold, detail ? 5 : 9));
    p.drawRoundedRect(QRectF(-58, -88, 116, 176), 12, 12);
    p.restore();

    // The card in front.
    p.save();
    p.translate(136, 130);
    p.rotate(8);
    const QRectF card(-60, -90, 120, 180);
    p.setBrush(PaleGold);
    p.setPen(QPen(Gold.darker(130), detail ? 3 : 6));
    p.drawRoundedRect(card, 12, 12);
    p.setBrush(Night);
    p.setPen(Qt::NoPen);
    p.drawRoundedRect(card.adjusted(10, 10, -10, -10), 6, 6);
    if (detail) {
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(Gold, 2.5));
        p.drawRoundedRect(card.adjusted(17, 17, -17, -17), 4, 4);
    }
    p.setPen(Qt::NoPen);
    p.setBrush(Gold);
    p.drawPath(Crescent(QPointF(0, -30), 30, QPointF(13, -7), 0.82));
    p.drawPolygon(Star(QPointF(2, 40), 26, 10, 8));
    if (detail) {
        for (const QPointF c : {QPointF(-30, 10), QPointF(32, 4), QPointF(-26, 66), QPointF(30, 70)})
            p.drawPolygon(Star(c, 6, 2.2, 4));
    }
    p.restore();
    p.end();
    return image;
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: make_icon <icons folder> <window icon.png>\n");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        const QString dir = folder + QStringLiteral("/hicolor/%1x%1/apps").arg(size);
        QDir().mkpath(dir);
        if (!Icon(size).save(dir + QStringLiteral("/com.ondinesoftware.Cartomar.png"), "PNG", 9)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(dir));
            return 1;
        }
    }
    if (!Icon(64).save(QString::fromLocal8Bit(argv[2]), "PNG", 9)) {
        std::fprintf(stderr, "cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
