#include "core/journal/ChartLayout.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <cmath>

namespace {

QString FigureText(int figure) { return QLocale().toString(figure); }

int Largest(const std::vector<ChartBar>& bars, std::size_t count) {
    int most = 1;
    for (std::size_t i = 0; i < count; ++i) most = std::max(most, bars[i].First + bars[i].Second);
    return most;
}

// A text put in a box of its own width, plus a hairline of slack so that
// rounding on the surface never clips its last letter.
ChartText Fitted(const QString& text, double x, double y, const ChartMetrics& m, int align) {
    return {QRectF(x, y, m.Width(text) + m.Hairline, m.LineHeight), text, text, align};
}

// The legend along the top: a swatch of each part's colour and its name.
// Returns the height it takes.
double LayOutLegend(const ChartData& chart, const QRectF& inner, const ChartMetrics& m, ChartDrawing& d) {
    if (chart.FirstPart.isEmpty()) return 0;
    const double swatch = m.LineHeight * 0.7;
    double x = inner.left();
    const std::pair<ChartInk, QString> parts[] = {{ChartInk::First, chart.FirstPart},
                                                  {ChartInk::Second, chart.SecondPart}};
    for (const auto& [ink, name] : parts) {
        d.Blocks.push_back({QRectF(x, inner.top() + (m.LineHeight - swatch) / 2, swatch, swatch), ink});
        x += swatch + m.Gap / 2;
        d.Texts.push_back(Fitted(name, x, inner.top(), m, Qt::AlignLeft | Qt::AlignVCenter));
        x = d.Texts.back().Box.right() + 2 * m.Gap;
    }
    return m.LineHeight + m.Gap;
}

// The two parts of a bar or column, the first at its base.
void AddParts(const ChartBar& bar, const QRectF& whole, bool across, ChartDrawing& d) {
    const double total = std::max(1, bar.First + bar.Second);
    QRectF first = whole, second = whole;
    if (across) {
        first.setWidth(whole.width() * bar.First / total);
        second.setLeft(first.right());
    } else {
        first.setTop(whole.bottom() - whole.height() * bar.First / total);
        second.setBottom(first.top());
    }
    d.Blocks.push_back({first, ChartInk::First});
    if (bar.Second > 0) d.Blocks.push_back({second, ChartInk::Second});
}

// One bar a line: its label at the left, right-aligned, in a column as wide
// as the widest label up to half the chart; the figure at its end.
// As many bars as there are lines of text.
void LayOutBars(const ChartData& chart, const QRectF& inner, const ChartMetrics& m, ChartDrawing& d) {
    const auto lines = static_cast<std::size_t>(std::max(0.0, std::floor(inner.height() / m.LineHeight)));
    const std::size_t shown = std::min(chart.Bars.size(), lines);
    if (shown == 0) return;
    double labels = 0, figures = 0;
    for (std::size_t i = 0; i < shown; ++i) {
        const ChartBar& bar = chart.Bars[i];
        labels = std::max(labels, m.Width(bar.Label));
        figures = std::max(figures, m.Width(FigureText(bar.First + bar.Second)));
    }
    const double labelWidth = std::min(labels, inner.width() * 0.5) + m.Hairline;
    figures += m.Hairline;
    const double plotLeft = inner.left() + labelWidth + m.Gap;
    const double plotWidth = std::max(0.0, inner.right() - plotLeft - m.Gap / 2 - figures);
    const double pitch = inner.height() / static_cast<double>(shown);
    const int most = Largest(chart.Bars, shown);
    for (std::size_t i = 0; i < shown; ++i) {
        const ChartBar& bar = chart.Bars[i];
        const QRectF row(inner.left(), inner.top() + static_cast<double>(i) * pitch, inner.width(), pitch);
        const QRectF whole(plotLeft, row.top() + pitch * 0.1, plotWidth * (bar.First + bar.Second) / most, pitch * 0.8);
        AddParts(bar, whole, true, d);
        d.Texts.push_back({QRectF(row.left(), row.top(), labelWidth, pitch),
                           ElideToWidth(bar.Label, labelWidth, m.Width), bar.Label, Qt::AlignRight | Qt::AlignVCenter});
        const QString figure = FigureText(bar.First + bar.Second);
        d.Texts.push_back({QRectF(whole.right() + m.Gap / 2, row.top(), figures, pitch), figure, figure,
                           Qt::AlignLeft | Qt::AlignVCenter});
        d.Bands.push_back(row);
    }
    d.Blocks.push_back(
        {QRectF(plotLeft - m.Hairline, inner.top(), m.Hairline, pitch * static_cast<double>(shown)), ChartInk::Axis});
}

// The finest step of 1, 2 or 5 times a power of ten that puts at most
// `marks` steps up to the largest figure.
int ScaleStep(int most, int marks) {
    for (int power = 1;; power *= 10)
        for (const int base : {1, 2, 5})
            if ((most + base * power - 1) / (base * power) <= marks) return base * power;
}

// How many columns a label stands for: a step that reads as a period of
// months where one fits (a quarter, half a year, a year), else any.
int LabelEvery(double labelWidth, double pitch) {
    for (const int every : {1, 2, 3, 4, 6, 12, 24, 36, 60, 120, 240, 600})
        if (every * pitch >= labelWidth) return every;
    return static_cast<int>(std::ceil(labelWidth / pitch));
}

// Columns over a scale of figures at the left, with grid lines; the figure
// over each column where it fits, the labels under them thinned to whole
// periods so that none runs into the next or off the chart. A label stands
// under its column where there is one for each column, else from the start
// of its period on.
void LayOutColumns(const ChartData& chart, const QRectF& inner, const ChartMetrics& m, ChartDrawing& d) {
    const double top = inner.top() + m.LineHeight;  // room for the figure over the tallest column
    const double height = inner.bottom() - m.LineHeight - m.Gap / 2 - top;
    if (height < 2 * m.LineHeight) return;
    const int most = Largest(chart.Bars, chart.Bars.size());
    const int step = ScaleStep(most, std::max(1, static_cast<int>(height / (2 * m.LineHeight))));
    const int scaleTop = (most + step - 1) / step * step;
    double scaleWidth = 0;
    for (int v = 0; v <= scaleTop; v += step) scaleWidth = std::max(scaleWidth, m.Width(FigureText(v)));
    scaleWidth += m.Hairline;
    const QRectF plot(inner.left() + scaleWidth + m.Gap, top, inner.right() - (inner.left() + scaleWidth + m.Gap),
                      height);
    if (plot.width() <= 0) return;
    for (int v = 0; v <= scaleTop; v += step) {
        const double y = plot.bottom() - height * v / scaleTop;
        if (v > 0) d.Blocks.push_back({QRectF(plot.left(), y, plot.width(), m.Hairline), ChartInk::Grid});
        const QString figure = FigureText(v);
        d.Texts.push_back({QRectF(inner.left(), y - m.LineHeight / 2, scaleWidth, m.LineHeight), figure, figure,
                           Qt::AlignRight | Qt::AlignVCenter});
    }
    const double pitch = plot.width() / static_cast<double>(chart.Bars.size());
    double labelWidth = 0;
    for (const ChartBar& bar : chart.Bars) labelWidth = std::max(labelWidth, m.Width(bar.Label) + m.Hairline);
    const int every = LabelEvery(labelWidth + m.Gap, pitch);
    // Labels start clear of the scale's figures.
    const double labelsLeft = inner.left() + scaleWidth + m.Gap / 2;
    double labelsEnd = labelsLeft - m.Gap;
    for (std::size_t i = 0; i < chart.Bars.size(); ++i) {
        const ChartBar& bar = chart.Bars[i];
        const QRectF band(plot.left() + static_cast<double>(i) * pitch, inner.top(), pitch,
                          plot.bottom() - inner.top());
        const double share = height * (bar.First + bar.Second) / scaleTop;
        const QRectF whole(band.left() + pitch * 0.1, plot.bottom() - share, pitch * 0.8, share);
        AddParts(bar, whole, false, d);
        const QString figure = FigureText(bar.First + bar.Second);
        if (bar.First + bar.Second > 0 && m.Width(figure) + m.Hairline <= pitch)
            d.Texts.push_back({QRectF(band.left(), whole.top() - m.LineHeight, pitch, m.LineHeight), figure, figure,
                               Qt::AlignHCenter | Qt::AlignBottom});
        d.Bands.push_back(band);
        if ((chart.FirstNumber + static_cast<int>(i)) % every != 0) continue;
        ChartText label = Fitted(bar.Label, 0, plot.bottom() + m.Gap / 2, m, Qt::AlignCenter);
        const double width = label.Box.width();
        // Kept on the chart: a label at either end moves in rather than lose
        // its end, and gives way where it would then run into the one before.
        const double left = every == 1 ? band.center().x() - width / 2 : band.left();
        label.Box.moveLeft(std::max(labelsLeft, std::min(left, inner.right() - width)));
        if (label.Box.left() < labelsEnd + m.Gap) continue;
        labelsEnd = label.Box.right();
        d.Texts.push_back(label);
    }
    d.Blocks.push_back({QRectF(plot.left(), plot.bottom(), plot.width(), m.Hairline), ChartInk::Axis});
    d.Blocks.push_back({QRectF(plot.left() - m.Hairline, plot.top(), m.Hairline, height), ChartInk::Axis});
}

}  // namespace

QString ElideToWidth(const QString& text, double width, const std::function<double(const QString&)>& measure) {
    if (measure(text) <= width) return text;
    const QString ellipsis(QChar(0x2026));
    // The longest start that fits with the ellipsis, found by halving.
    qsizetype fits = 0, fails = text.size();
    while (fails - fits > 1) {
        const qsizetype mid = (fits + fails) / 2;
        if (measure(text.left(mid).trimmed() + ellipsis) <= width) fits = mid;
        else fails = mid;
    }
    const QString cut = text.left(fits).trimmed() + ellipsis;
    return measure(cut) <= width ? cut : QString();
}

ChartDrawing LayOutChart(const ChartData& chart, const QRectF& area, const ChartMetrics& m) {
    ChartDrawing d;
    QRectF inner = area.adjusted(m.Gap, m.Gap, -m.Gap, -m.Gap);
    if (chart.Bars.empty()) {
        const QString nothing = QCoreApplication::translate("ChartLayout", "Nothing to show");
        d.Texts.push_back({inner, ElideToWidth(nothing, inner.width(), m.Width), nothing, Qt::AlignCenter});
        return d;
    }
    inner.setTop(inner.top() + LayOutLegend(chart, inner, m, d));
    if (chart.Shape == ChartShape::Bars) LayOutBars(chart, inner, m, d);
    else LayOutColumns(chart, inner, m, d);
    return d;
}

QString ChartBarFigures(const ChartData& chart, std::size_t i) {
    const ChartBar& bar = chart.Bars[i];
    if (chart.SecondPart.isEmpty())
        return QCoreApplication::translate("ChartLayout", "%1: %2").arg(bar.Label, FigureText(bar.First + bar.Second));
    return QCoreApplication::translate("ChartLayout", "%1: %2 (%3 %4, %5 %6)")
        .arg(bar.Label, FigureText(bar.First + bar.Second), chart.FirstPart, FigureText(bar.First), chart.SecondPart,
             FigureText(bar.Second));
}
