#pragma once
// The faces of the starter cards, drawn rather than painted: the number in
// the corners and at the top, the suit's emblem in the middle, the title at
// the foot, each suit in its own colours. The same card always gives the same
// pixels, so the package comes out the same at every build.
#include <QByteArray>
#include <QImage>

struct StarterCard;

// Pixel size of a face: the proportions of a tarot card.
constexpr int FaceWidth = 200;
constexpr int FaceHeight = 340;

QImage DrawCardFace(const StarterCard& card);
// The reversed side is the upright face turned half a turn.
QImage ReversedFace(const QImage& upright);
// The face as a JPEG file's bytes.
QByteArray FaceFileBytes(const QImage& face);
