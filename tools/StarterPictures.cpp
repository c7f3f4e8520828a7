#include "StarterPictures.h"

#include <QBuffer>
#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QStringList>
#include <QtMath>
#include <cmath>

#include "StarterSource.h"
#include "screens/widgets/Emblems.h"

namespace {

struct SuitColours {
    QColor Ink;     // frame, number and emblem outline
    QColor Fill;    // the emblem
    QColor Ground;  // the face behind everything
};

SuitColours ColoursOf(const QString& suit) {
    if (suit == QLatin1String("Wands")) return {QColor(150, 40, 24), QColor(214, 88, 44), QColor(252, 232, 220)};
    if (suit == QLatin1String("Cups")) return {QColor(22, 62, 140), QColor(60, 120, 210), QColor(224, 236, 252)};
    if (suit == QLatin1String("Swords")) return {QColor(128, 96, 10), QColor(214, 170, 40), QColor(252, 244, 212)};
    if (suit == QLatin1String("Pentacles")) return {QColor(24, 100, 44), QColor(70, 160, 84), QColor(226, 244, 224)};
    return {QColor(76, 36, 120), QColor(226, 184, 70), QColor(236, 226, 248)};
}

QFont FaceFont(int pixelSize, bool bold) {
    QFont font(QStringLiteral("DejaVu Serif"));
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferFullHinting);
    return font;
}

// Every emblem is drawn in a box of 100 by 100 around the origin.
QPainterPath WandEmblem() {
    QPainterPath path;
    path.addRoundedRect(QRectF(-7, -48, 14, 96), 6, 6);
    path.addEllipse(QRectF(-11, -52, 22, 12));
    // Leaves budding from the staff.
    for (int side : {-1, 1})
        for (double y : {-26.0, 6.0}) {
            const double dy = side < 0 ? 0.0 : 14.0;
            QPainterPath leaf;
            leaf.addEllipse(QRectF(side < 0 ? -30 : 7, y + dy - 6, 23, 11));
            path = path.united(leaf);
        }
    return path;
}

QPainterPath CupEmblem() {
    QPainterPath bowl;
    bowl.moveTo(-34, -40);
    bowl.lineTo(34, -40);
    bowl.cubicTo(34, -2, 18, 8, 0, 8);
    bowl.cubicTo(-18, 8, -34, -2, -34, -40);
    bowl.closeSubpath();
    QPainterPath rest;
    rest.addRect(QRectF(-5, 6, 10, 30));
    rest.addRoundedRect(QRectF(-26, 34, 52, 12), 5, 5);
    return bowl.united(rest);
}

QPainterPath SwordEmblem() {
    QPainterPath blade;
    blade.moveTo(0, -52);
    blade.lineTo(9, -38);
    blade.lineTo(9, 18);
    blade.lineTo(-9, 18);
    blade.lineTo(-9, -38);
    blade.closeSubpath();
    QPainterPath rest;
    rest.addRoundedRect(QRectF(-30, 18, 60, 9), 4, 4);
    rest.addRect(QRectF(-5, 27, 10, 17));
    rest.addEllipse(QRectF(-8, 42, 16, 12));
    return blade.united(rest);
}

QPainterPath PentacleEmblem() {
    QPainterPath disc;
    disc.addEllipse(QPointF(0, 0), 46, 46);
    QPainterPath star;
    star.addPolygon(Star(QPointF(0, 2), 36, 14, 5));
    star.closeSubpath();
    return disc.subtracted(star);
}

QPainterPath MajorEmblem() {
    QPainterPath path;
    path.addPolygon(Star(QPointF(0, 0), 50, 20, 8));
    path.closeSubpath();
    return path;
}

QPainterPath EmblemOf(const QString& suit) {
    if (suit == QLatin1String("Wands")) return WandEmblem();
    if (suit == QLatin1String("Cups")) return CupEmblem();
    if (suit == QLatin1String("Swords")) return SwordEmblem();
    if (suit == QLatin1String("Pentacles")) return PentacleEmblem();
    return MajorEmblem();
}

QString ArcanaLine(const StarterCard& card) {
    if (card.Suit == QLatin1String("Major")) return QStringLiteral("MAJOR ARCANA");
    return card.Suit.toUpper();
}

// The largest font up to `largest` pixels at which the text fits the box in
// at most two lines.
QFont FittingFont(const QString& text, const QRectF& box, int largest) {
    for (int size = largest; size > 8; --size) {
        const QFont font = FaceFont(size, true);
        const QFontMetricsF metrics(font);
        const QRectF needed = metrics.boundingRect(box, Qt::AlignCenter | Qt::TextWordWrap, text);
        if (needed.width() <= box.width() && needed.height() <= box.height()) return font;
    }
    return FaceFont(8, true);
}

void DrawFrame(QPainter& p, const SuitColours& colours) {
    p.fillRect(QRect(0, 0, FaceWidth, FaceHeight), Qt::white);
    p.setPen(Qt::NoPen);
    p.setBrush(colours.Ink);
    p.drawRoundedRect(QRectF(2, 2, FaceWidth - 4, FaceHeight - 4), 12, 12);
    p.setBrush(colours.Ground);
    p.drawRoundedRect(QRectF(9, 9, FaceWidth - 18, FaceHeight - 18), 8, 8);
    p.setPen(QPen(colours.Ink, 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(14, 14, FaceWidth - 28, FaceHeight - 28), 6, 6);
}

void DrawCorners(QPainter& p, const StarterCard& card, const SuitColours& colours) {
    // Court cards show their initial in the corners, the others their number.
    static const QStringList courts{QStringLiteral("Page"), QStringLiteral("Knight"), QStringLiteral("Queen"),
                                    QStringLiteral("King")};
    const QString corner = !courts.contains(card.Number)            ? card.Number
                           : card.Number == QLatin1String("Knight") ? QStringLiteral("Kn")
                                                                    : card.Number.left(1);
    p.setFont(FaceFont(13, true));
    p.setPen(colours.Ink);
    const QRectF box(19, 17, 60, 18);
    p.drawText(box, Qt::AlignLeft | Qt::AlignTop, corner);
    p.save();
    p.translate(FaceWidth, FaceHeight);
    p.rotate(180);
    p.drawText(box, Qt::AlignLeft | Qt::AlignTop, corner);
    p.restore();
}

}  // namespace

QImage DrawCardFace(const StarterCard& card) {
    const SuitColours colours = ColoursOf(card.Suit);
    QImage face(FaceWidth, FaceHeight, QImage::Format_RGB32);
    QPainter p(&face);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    DrawFrame(p, colours);
    DrawCorners(p, card, colours);

    // The number large at the top.
    p.setPen(colours.Ink);
    const QRectF numberBox(40, 36, FaceWidth - 80, 40);
    p.setFont(FittingFont(card.Number, numberBox, 28));
    p.drawText(numberBox, Qt::AlignCenter, card.Number);

    // The emblem, in a ring for the Major Arcana.
    p.save();
    p.translate(FaceWidth / 2.0, 146);
    p.setPen(QPen(colours.Ink, 2.5));
    if (card.Suit == QLatin1String("Major")) {
        p.setBrush(colours.Ink);
        p.drawEllipse(QPointF(0, 0), 62, 62);
    } else {
        p.setBrush(Qt::white);
        p.drawEllipse(QPointF(0, 0), 62, 62);
    }
    p.setBrush(colours.Fill);
    p.scale(1.05, 1.05);
    p.drawPath(EmblemOf(card.Suit));
    p.restore();

    // The arcana or suit, then the title at the foot.
    p.setPen(colours.Ink);
    p.setFont(FaceFont(11, true));
    p.drawText(QRectF(18, 214, FaceWidth - 36, 18), Qt::AlignCenter, ArcanaLine(card));
    p.setPen(QPen(colours.Ink, 1.5));
    p.drawLine(QPointF(40, 236), QPointF(FaceWidth - 40, 236));
    const QRectF titleBox(20, 244, FaceWidth - 40, 58);
    p.setPen(QColor(30, 24, 20));
    p.setFont(FittingFont(card.Title, titleBox, 20));
    p.drawText(titleBox, Qt::AlignCenter | Qt::TextWordWrap, card.Title);
    p.end();
    return face;
}

QImage ReversedFace(const QImage& upright) { return upright.mirrored(true, true); }

QByteArray FaceFileBytes(const QImage& face) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    face.save(&buffer, "JPG", 88);
    return bytes;
}
