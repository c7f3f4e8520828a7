#include "screens/widgets/DecorativePictures.h"

#include <QCoreApplication>
#include <QFont>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>
#include <QtMath>

#include "screens/widgets/Emblems.h"

namespace {

const QColor Night(14, 12, 40);
const QColor Dusk(44, 34, 92);
const QColor Gold(222, 184, 92);
const QColor PaleGold(240, 222, 170);
const QColor CardBlue(34, 26, 80);

QColor Faded(const QColor& colour, int alpha) {
    QColor c = colour;
    c.setAlpha(alpha);
    return c;
}

// A fixed sequence of numbers, so that the stars stand where they stood.
class StarSequence {
public:
    explicit StarSequence(quint32 seed) : seed_(seed) {}
    quint32 Next() {
        seed_ = seed_ * 1664525u + 1013904223u;
        return seed_ >> 8;
    }
    double Unit() { return (Next() % 10000) / 10000.0; }

private:
    quint32 seed_;
};

// The lit part of the moon at a phase from 0 (new) through 0.5 (full) to 1,
// lit from the right while waxing.
QPainterPath MoonPhase(QPointF centre, double r, double phase) {
    QPainterPath lit;
    const double k = std::cos(phase * 2 * M_PI);  // 1 new, -1 full
    const bool waxing = phase < 0.5;
    // Outer limb: half a circle on the lit side; terminator: half an
    // ellipse whose width follows the phase.
    const QRectF disc(centre.x() - r, centre.y() - r, 2 * r, 2 * r);
    const QRectF terminator(centre.x() - std::abs(k) * r, centre.y() - r, 2 * std::abs(k) * r, 2 * r);
    lit.moveTo(centre.x(), centre.y() - r);
    lit.arcTo(disc, 90, waxing ? -180 : 180);
    // Back up the terminator: bulging to the lit side before the quarter,
    // to the dark side after it.
    const bool bulgesLit = k > 0;
    const double sweep = (waxing == bulgesLit) ? 180 : -180;
    lit.arcTo(terminator, -90, sweep);
    lit.closeSubpath();
    return lit;
}

void FillSky(QPainter& p, const QRect& area, double glowY) {
    QLinearGradient sky(0, 0, 0, area.height());
    sky.setColorAt(0.0, Night);
    sky.setColorAt(0.55, Dusk);
    sky.setColorAt(1.0, QColor(22, 18, 52));
    p.fillRect(area, sky);
    QRadialGradient glow(QPointF(area.width() / 2.0, area.height() * glowY), area.width() * 0.5);
    glow.setColorAt(0.0, QColor(130, 100, 180, 90));
    glow.setColorAt(1.0, QColor(130, 100, 180, 0));
    p.fillRect(area, glow);
}

void Starfield(QPainter& p, StarSequence& seq, const QRectF& where, int count) {
    p.setPen(Qt::NoPen);
    for (int i = 0; i < count; ++i) {
        const QPointF at(where.left() + seq.Unit() * where.width(), where.top() + seq.Unit() * where.height());
        const double r = 0.4 + seq.Unit();
        p.setBrush(QColor(255, 250, 230, 70 + int(seq.Next() % 160)));
        p.drawEllipse(at, r, r);
    }
}

// A star that twinkles: a small four-pointed cross with a soft halo.
void BrightStar(QPainter& p, QPointF at, double size) {
    QRadialGradient halo(at, size * 1.8);
    halo.setColorAt(0.0, QColor(255, 244, 210, 120));
    halo.setColorAt(1.0, QColor(255, 244, 210, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(halo);
    p.drawEllipse(at, size * 1.8, size * 1.8);
    p.setBrush(PaleGold);
    p.drawPolygon(Star(at, size, size * 0.22, 4));
}

// A card lying face down: the card back of the decks, small.
void CardBack(QPainter& p, QPointF centre, double width, double angle) {
    const double height = width * 1.7;
    p.save();
    p.translate(centre);
    p.rotate(angle);
    const QRectF card(-width / 2, -height / 2, width, height);
    p.setPen(QPen(Gold, 1.6));
    p.setBrush(CardBlue);
    p.drawRoundedRect(card, width * 0.08, width * 0.08);
    p.setPen(QPen(Faded(Gold, 170), 0.8));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(card.adjusted(width * 0.1, width * 0.1, -width * 0.1, -width * 0.1), 2, 2);
    p.setPen(Qt::NoPen);
    p.setBrush(Gold);
    p.drawPolygon(Star(QPointF(0, 0), width * 0.22, width * 0.08, 8));
    p.drawPath(MoonPhase(QPointF(0, -height * 0.3), width * 0.11, 0.2));
    p.drawPath(MoonPhase(QPointF(0, height * 0.3), width * 0.11, 0.8));
    p.restore();
}

void Fan(QPainter& p, QPointF pivot, double cardWidth, double spread, int cards, double tilt) {
    for (int i = 0; i < cards; ++i) {
        const double angle = tilt + (i - (cards - 1) / 2.0) * spread;
        const double a = qDegreesToRadians(angle);
        const double lift = cardWidth * 0.85;
        CardBack(p, pivot + QPointF(lift * std::sin(a), -lift * std::cos(a)), cardWidth, angle);
    }
}

// The double gold frame with a small star at each corner.
void GoldFrame(QPainter& p, const QRectF& outer, double inset) {
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(Gold, 2));
    p.drawRect(outer);
    const QRectF inner = outer.adjusted(inset, inset, -inset, -inset);
    p.setPen(QPen(Faded(Gold, 160), 1));
    p.drawRect(inner);
    p.setPen(Qt::NoPen);
    p.setBrush(Gold);
    for (const QPointF c : {inner.topLeft(), inner.topRight(), inner.bottomLeft(), inner.bottomRight()})
        p.drawPolygon(Star(c, inset * 1.1, inset * 0.35, 4));
}

}  // namespace

QImage MainScreenPicture(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const double w = width, h = height;
    FillSky(p, image.rect(), 0.22);

    StarSequence seq(20240611u);
    Starfield(p, seq, QRectF(0, 0, w, h * 0.5), 150);

    // A faint wheel of the twelve houses around the name, wide enough that
    // its rim passes clear of the name and the tagline.
    const QPointF hub(w / 2, h * 0.24);
    const double rim = w * 0.3, inner = w * 0.27;
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(Faded(Gold, 50), 1));
    p.drawEllipse(hub, rim, rim);
    p.drawEllipse(hub, inner, inner);
    for (int i = 0; i < 12; ++i) {
        const double a = i * M_PI / 6;
        const QPointF dir(std::cos(a), std::sin(a));
        p.drawLine(hub + dir * inner, hub + dir * rim);
        p.drawPolygon(Star(hub + dir * ((rim + inner) / 2), 2.2, 0.8, 4));
    }

    // The moon's phases across the top, the full moon above the name.
    for (int i = 0; i < 7; ++i) {
        const double phase = 0.125 + i * 0.125;
        const QPointF at(w / 2 + (i - 3) * 26, h * 0.075);
        p.setPen(Qt::NoPen);
        p.setBrush(Faded(PaleGold, 40));
        p.drawEllipse(at, 7, 7);
        p.setBrush(i == 3 ? PaleGold : Faded(PaleGold, 220));
        p.drawPath(MoonPhase(at, 7, phase));
    }

    // Fans of cards on either side of the name.
    Fan(p, QPointF(w * 0.13, h * 0.47), w * 0.075, 16, 3, -8);
    Fan(p, QPointF(w * 0.87, h * 0.47), w * 0.075, 16, 3, 8);

    for (const QPointF at : {QPointF(w * 0.24, h * 0.1), QPointF(w * 0.79, h * 0.19), QPointF(w * 0.31, h * 0.36),
                             QPointF(w * 0.7, h * 0.06)})
        BrightStar(p, at, 5);

    // The band the buttons stand on, from one side of the frame to the other.
    const QRectF band(15, h * 0.515, w - 30, h * 0.26);
    QLinearGradient cloth(0, band.top(), 0, band.bottom());
    cloth.setColorAt(0.0, QColor(10, 8, 30, 210));
    cloth.setColorAt(1.0, QColor(24, 18, 60, 210));
    p.fillRect(band, cloth);
    p.setPen(QPen(Faded(Gold, 140), 1));
    p.drawLine(band.topLeft(), band.topRight());
    p.drawLine(band.bottomLeft(), band.bottomRight());

    GoldFrame(p, QRectF(8, 8, w - 16, h - 16), 6);
    // The rule under the name.
    p.setPen(QPen(Faded(Gold, 160), 1));
    p.drawLine(QPointF(w * 0.25, 152), QPointF(w * 0.75, 152));
    p.setPen(Qt::NoPen);
    p.setBrush(Gold);
    p.drawPolygon(Star(QPointF(w / 2, 152), 5, 1.6, 4));

    QFont tagline(QStringLiteral("DejaVu Serif"));
    tagline.setItalic(true);
    tagline.setPointSize(12);
    p.setFont(tagline);
    p.setPen(PaleGold);
    p.drawText(QRect(0, 160, width, 30), Qt::AlignCenter,
               QCoreApplication::translate("DecorativePictures", "Unlock the Door to Future Possibilities"));
    p.end();
    return image;
}

QImage IntroductionSidePicture(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const double w = width, h = height;
    FillSky(p, image.rect(), 0.12);

    StarSequence seq(19700101u);
    Starfield(p, seq, QRectF(0, 0, w, h), int(w * h / 450));

    // A sun with its rays at the top.
    const QPointF sun(w / 2, h * 0.11);
    const double r = w * 0.13;
    QRadialGradient corona(sun, r * 2.4);
    corona.setColorAt(0.0, QColor(255, 220, 140, 140));
    corona.setColorAt(1.0, QColor(255, 220, 140, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(corona);
    p.drawEllipse(sun, r * 2.4, r * 2.4);
    p.setBrush(Gold);
    p.drawPolygon(Star(sun, r * 1.9, r * 1.05, 16));
    p.setBrush(PaleGold);
    p.drawEllipse(sun, r, r);

    // The moon's phases down the middle, on a thread of light.
    const double top = h * 0.27, bottom = h * 0.62;
    p.setPen(QPen(Faded(Gold, 90), 1));
    p.drawLine(QPointF(w / 2, top), QPointF(w / 2, bottom));
    const int phases = 5;
    const double moon = w * 0.1;
    for (int i = 0; i < phases; ++i) {
        const QPointF at(w / 2, top + i * (bottom - top) / (phases - 1));
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(30, 24, 70));
        p.drawEllipse(at, moon, moon);
        p.setBrush(PaleGold);
        p.drawPath(MoonPhase(at, moon, 0.1 + i * 0.2));
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(Faded(Gold, 120), 0.8));
        p.drawEllipse(at, moon, moon);
    }
    BrightStar(p, QPointF(w * 0.22, h * 0.36), 4);
    BrightStar(p, QPointF(w * 0.8, h * 0.5), 4);
    BrightStar(p, QPointF(w * 0.25, h * 0.6), 3);

    // A fan of three cards at the foot.
    const double cardWidth = w * 0.3;
    Fan(p, QPointF(w / 2, h - 16 - cardWidth * 1.7 / 2 + cardWidth * 0.85), cardWidth, 18, 3, 0);

    GoldFrame(p, QRectF(3, 3, w - 6, h - 6), 4);
    p.end();
    return image;
}
