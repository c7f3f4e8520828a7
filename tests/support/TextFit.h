#pragma once
// Whether every text of a screen fits its control: labels, buttons, check
// boxes, radio buttons, frames' titles, tabs and the items of drop-down
// lists, each measured in its own font against the room its style gives the
// text. Meant for every screen and every language.
#include <QStringList>

class QWidget;

// One line a text that does not fit, naming its control and the text: a
// single line by its width, a wrapped label by its height, a tab also when it
// lies beyond its bar. Looks only at controls on show under root.
QStringList TextsThatDoNotFit(const QWidget& root);
