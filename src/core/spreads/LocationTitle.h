#pragma once
// The title label of a location's rectangle, beside its card picture: on the
// spread designer it shows the title, on the reading and diary screens the
// number, ". " and the title. The label is small and a title must show whole
// in it, so it has a font of its own, the same on every desktop, given in
// pixels as the screens are laid out in pixels (15 twips each).
#include <QFont>
#include <QString>

// The label's size in twips.
constexpr int LocationTitleWidth = 975;
constexpr int LocationTitleHeight = 435;

QFont LocationTitleFont();

// What the reading and diary screens show for location `number`.
QString NumberedLocationTitle(int number, const QString& title);

// Whether the text shows whole in the label, broken into lines at its blanks
// as the label breaks it: no word wider than the label, no line below it.
bool FitsLocationTitle(const QString& text);
