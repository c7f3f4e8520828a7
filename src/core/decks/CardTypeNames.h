#pragma once
// A deck sorts its cards into up to four types, each with a name the reader
// sees when choosing what to draw from. Two types of one name could not be
// told apart, so the names given must differ; a type left without a name is
// unused and clashes with nothing.
#include <QStringList>

// Why the four type names cannot stand: the message to show, or an empty
// text when they can. Names compare with their blanks trimmed, case counting.
QString CardTypeNamesProblem(const QStringList& names);
