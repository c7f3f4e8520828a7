#include "screens/journal/JournalCharts.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "core/platform/Palette.h"
#include "core/store/RunState.h"

namespace {

constexpr double Gap = 6;  // pixels

}  // namespace

JournalChart::JournalChart(QWidget* parent) : QWidget(parent) {
    setMinimumSize(200, 120);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void JournalChart::setChart(ChartData chart) {
    chart_ = std::move(chart);
    update();
}

ChartDrawing JournalChart::Layout(const QSize& size, const QPaintDevice& surface) const {
    // Measured on the surface drawn on: a picture may count its pixels to
    // the inch otherwise than the screen does.
    const QFontMetricsF metrics(font(), &surface);
    return LayOutChart(
        chart_, QRectF(QPointF(0, 0), size),
        {[metrics](const QString& text) { return metrics.horizontalAdvance(text); }, metrics.height(), Gap, 1});
}

void JournalChart::Draw(QPainter& p, const QRect& all) const {
    p.fillRect(all, palette().base());
    p.setRenderHint(QPainter::Antialiasing);
    p.setFont(font());
    const ChartDrawing drawing = Layout(all.size(), *p.device());
    for (const ChartBlock& block : drawing.Blocks) {
        switch (block.Ink) {
        case ChartInk::First: p.fillRect(block.Box, QBColor(TheRun.CurrentLocationColour)); break;
        case ChartInk::Second: p.fillRect(block.Box, QBColor(TheRun.OtherLocationColour)); break;
        case ChartInk::Axis: p.fillRect(block.Box, palette().color(QPalette::Mid)); break;
        case ChartInk::Grid: p.fillRect(block.Box, palette().color(QPalette::Midlight)); break;
        }
    }
    p.setPen(palette().color(chart_.Bars.empty() ? QPalette::PlaceholderText : QPalette::Text));
    // The layout gave each text the room it measures; no clipping can then
    // take a pixel of its last letter where the surface rounds.
    for (const ChartText& text : drawing.Texts) p.drawText(text.Box, text.Align | Qt::TextDontClip, text.Text);
}

void JournalChart::paintEvent(QPaintEvent*) {
    QPainter p(this);
    Draw(p, rect());
}

QImage JournalChart::Render(const QSize& size) const {
    QImage image(size, QImage::Format_RGB32);
    QPainter p(&image);
    Draw(p, QRect(QPoint(0, 0), size));
    return image;
}

QString JournalChart::FigureAt(const QPoint& point) const {
    const ChartDrawing drawing = Layout(size(), *this);
    for (std::size_t i = 0; i < drawing.Bands.size(); ++i)
        if (drawing.Bands[i].contains(point)) return ChartBarFigures(chart_, i);
    return {};
}

bool JournalChart::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        const QString figure = FigureAt(help->pos());
        if (figure.isEmpty()) QToolTip::hideText();
        else QToolTip::showText(help->globalPos(), figure, this);
        return true;
    }
    return QWidget::event(event);
}
