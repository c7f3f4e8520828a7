#pragma once
// The star and the crescent that the program's drawn pictures share: the main
// screen's background, the side picture, the card back, the icon and the
// starter deck's faces. Header only, with nothing but Qt's painting types, so
// that the small picture tools can include it without the program's library.
#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <cmath>

// A star of `points` rays around a centre, the first ray pointing up.
inline QPolygonF Star(QPointF centre, double outer, double inner, int points) {
    QPolygonF star;
    for (int i = 0; i < points * 2; ++i) {
        const double r = (i % 2 == 0) ? outer : inner;
        const double a = -M_PI / 2 + i * M_PI / points;
        star << centre + QPointF(r * std::cos(a), r * std::sin(a));
    }
    return star;
}

// A crescent: a disc of radius r with a disc of radius r * bite, moved by
// shift, taken out of it.
inline QPainterPath Crescent(QPointF centre, double r, QPointF shift, double bite) {
    QPainterPath disc, taken;
    disc.addEllipse(centre, r, r);
    taken.addEllipse(centre + shift, r * bite, r * bite);
    return disc.subtracted(taken);
}
