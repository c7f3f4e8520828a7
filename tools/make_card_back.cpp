// Draws the card back that the program carries as its default card picture
// (resources/C000000.bmp) and writes it as an indexed bitmap, so that the
// picture stays small inside the executable. It is drawn without smoothing:
// three exact colours keep the file at 4 bits a pixel.
//
//   g++ -std=c++20 -fPIC -Isrc tools/make_card_back.cpp $(pkg-config --cflags --libs Qt6Gui) -o /tmp/make_card_back
//   /tmp/make_card_back resources/C000000.bmp
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QtMath>
#include <cstdio>

#include "screens/widgets/Emblems.h"

namespace {

const QColor Night(28, 24, 72);
const QColor Dusk(52, 40, 110);
const QColor Gold(222, 184, 92);

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: make_card_back <out.bmp>\n");
        return 2;
    }
    const int w = 100, h = 170;
    QImage image(w, h, QImage::Format_RGB32);
    image.fill(Night);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing, false);

    // Two frames in gold.
    p.setPen(QPen(Gold, 3));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(2.5, 2.5, w - 5, h - 5));
    p.setPen(QPen(Gold, 1));
    p.drawRect(QRectF(8, 8, w - 17, h - 17));
    p.fillRect(QRect(9, 9, w - 18, h - 18), Dusk);

    const QPointF centre(w / 2.0, h / 2.0);
    p.setPen(QPen(Gold, 1));
    p.drawEllipse(centre, 30, 30);
    p.drawEllipse(centre, 26, 26);
    p.setBrush(Gold);
    p.setPen(Qt::NoPen);
    p.drawPolygon(Star(centre, 24, 9, 8));
    p.setBrush(Dusk);
    p.drawEllipse(centre, 6, 6);
    p.setBrush(Gold);
    p.drawEllipse(centre, 3, 3);

    // Crescent moons above and below the star, facing each other.
    p.drawPath(Crescent(QPointF(w / 2.0, 32), 10, QPointF(5, 0), 0.85));
    p.drawPath(Crescent(QPointF(w / 2.0, h - 32), 10, QPointF(-5, 0), 0.85));

    // A small star in each corner.
    for (const QPointF c : {QPointF(20, 20), QPointF(w - 20, 20), QPointF(20, h - 20), QPointF(w - 20, h - 20)})
        p.drawPolygon(Star(c, 5, 2, 4));
    p.end();

    const QImage small = image.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither | Qt::AvoidDither);
    if (!small.save(QString::fromLocal8Bit(argv[1]), "BMP")) {
        std::fprintf(stderr, "cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
