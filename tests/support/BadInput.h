#pragma once
// The bad input tour: typing past the limit of every text box of a screen and
// pasting text that the record code page cannot hold.
#include <QString>

class QLineEdit;
class QWidget;

namespace BadInput {

// Ω and 漢 and a playing card from outside the basic plane cannot be held by
// a record; € can. As a record holds it, and as the box shows it afterwards.
QString Foreign();
inline const QString ForeignAsStored = QStringLiteral("??€?");

// For every enabled, editable text box of the screen: types far past its
// limit, then pastes Foreign() over its text. Fails the running test when a
// box ends up holding more than its limit or a character that no record can
// hold. Returns the number of inputs tried.
int TourTextBoxes(QWidget& screen);

// Pastes Foreign() into the box in place of its text, as a user does.
void PasteForeign(QLineEdit* box);

}  // namespace BadInput
