#pragma once
// The journal's charts laid out once for every surface they are drawn on: the
// screen, a saved picture and the printed page. A layout is blocks of colour
// and texts in boxes, in the surface's own units, every text measured in the
// font it is drawn in, so that each text is given the room it needs and cut
// short only where the room is not there.
//
// Two shapes: bars that run across (one a card or a type, the two parts of a
// bar stacked, named in a legend) and columns that stand up over a scale of
// figures (one a month).
#include <QRectF>
#include <QString>
#include <cstddef>
#include <functional>
#include <vector>

struct ChartBar {
    QString Label;
    int First = 0;   // upright, or the whole figure
    int Second = 0;  // reversed; 0 in one-part charts
};

enum class ChartShape { Bars, Columns };

struct ChartData {
    ChartShape Shape = ChartShape::Bars;
    std::vector<ChartBar> Bars;
    QString FirstPart;   // what the parts of a bar stand for, named in the legend;
    QString SecondPart;  // both empty in a one-part chart, which has no legend
    // The number of the first column in its series (a month's number), so
    // that thinned labels fall on whole periods: every January, say.
    int FirstNumber = 0;
};

// How the surface measures: its text in the chart's font, and its spacing.
struct ChartMetrics {
    std::function<double(const QString&)> Width;
    double LineHeight = 0;
    double Gap = 0;       // between a text and what it names
    double Hairline = 0;  // the width of an axis
};

enum class ChartInk { First, Second, Axis, Grid };

struct ChartBlock {
    QRectF Box;
    ChartInk Ink = ChartInk::First;
};

struct ChartText {
    QRectF Box;
    QString Text;  // as drawn: Full, or Full cut short with an ellipsis where the box is narrower
    QString Full;
    int Align = 0;  // Qt::Alignment within the box
};

struct ChartDrawing {
    std::vector<ChartBlock> Blocks;
    std::vector<ChartText> Texts;
    // Where each bar shown answers the pointer; a chart too small for all its
    // bars shows the first ones only.
    std::vector<QRectF> Bands;
};

ChartDrawing LayOutChart(const ChartData& chart, const QRectF& area, const ChartMetrics& metrics);

// The figures of bar i as the pointer shows them.
QString ChartBarFigures(const ChartData& chart, std::size_t i);

// The text cut at the right, with an ellipsis, to the widest that fits.
QString ElideToWidth(const QString& text, double width, const std::function<double(const QString&)>& measure);
