#include "screens/journal/JournalCharts.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "core/platform/Palette.h"

namespace {

// The colours of the program's locations: dark red for the upright figure,
// the yellow of the other locations for the reversed.
QColor FirstColour() { return QBColor(4); }
QColor SecondColour() { return QBColor(14); }
constexpr int Gap = 6;   // pixels

int Largest(const std::vector<ChartBar>& bars) {
    int most = 1;
    for (const ChartBar& b : bars) most = std::max(most, b.First + b.Second);
    return most;
}

}  // namespace

JournalChart::JournalChart(Shape shape, const QString& firstPart, const QString& secondPart, QWidget* parent)
    : QWidget(parent), shape_(shape), firstPart_(firstPart), secondPart_(secondPart) {
    setMinimumSize(200, 120);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void JournalChart::setBars(std::vector<ChartBar> bars) {
    bars_ = std::move(bars);
    update();
}

QRectF JournalChart::PlotArea(const QRect& all) const {
    const QFontMetrics metrics(font());
    const QRectF inner = QRectF(all).adjusted(Gap, Gap, -Gap, -Gap);
    if (shape_ == Shape::Bars) {
        int labels = 0;
        for (const ChartBar& b : bars_) labels = std::max(labels, metrics.horizontalAdvance(b.Label));
        const qreal left = std::min<qreal>(labels + Gap, inner.width() * 0.4);
        const qreal right = metrics.horizontalAdvance(QString::number(Largest(bars_))) + Gap;
        return inner.adjusted(left, 0, -right, 0);
    }
    return inner.adjusted(0, metrics.height() + Gap, 0, -metrics.height() - Gap);
}

QRectF JournalChart::BarRect(std::size_t i, const QRectF& area) const {
    const qreal count = static_cast<qreal>(bars_.size());
    const qreal share = (bars_[i].First + bars_[i].Second) / static_cast<qreal>(Largest(bars_));
    if (shape_ == Shape::Bars) {
        const qreal pitch = area.height() / count;
        return {area.left(), area.top() + i * pitch + pitch * 0.1, area.width() * share, pitch * 0.8};
    }
    const qreal pitch = area.width() / count;
    const qreal height = area.height() * share;
    return {area.left() + i * pitch + pitch * 0.1, area.bottom() - height, pitch * 0.8, height};
}

void JournalChart::Draw(QPainter& p, const QRect& all) const {
    p.fillRect(all, palette().base());
    p.setRenderHint(QPainter::Antialiasing);
    p.setFont(font());
    const QFontMetrics metrics(font());
    if (bars_.empty()) {
        p.setPen(palette().color(QPalette::PlaceholderText));
        p.drawText(all, Qt::AlignCenter, tr("Nothing to show"));
        return;
    }
    const QRectF area = PlotArea(all);
    // Column labels are thinned so that they never overlap.
    const int every = shape_ == Shape::Columns
                          ? std::max<int>(1, static_cast<int>(bars_.size() * (metrics.horizontalAdvance(
                                                                                   bars_.front().Label) + Gap) /
                                                                std::max<qreal>(1, area.width())) + 1)
                          : 1;
    for (std::size_t i = 0; i < bars_.size(); ++i) {
        const ChartBar& b = bars_[i];
        const QRectF bar = BarRect(i, area);
        const qreal total = std::max(1, b.First + b.Second);
        QRectF first = bar;
        QRectF second = bar;
        if (shape_ == Shape::Bars) {
            first.setWidth(bar.width() * b.First / total);
            second.setLeft(first.right());
        } else {
            first.setTop(bar.bottom() - bar.height() * b.First / total);
            second.setBottom(first.top());
        }
        p.setPen(Qt::NoPen);
        p.setBrush(FirstColour());
        p.drawRect(first);
        if (b.Second > 0) {
            p.setBrush(SecondColour());
            p.drawRect(second);
        }
        p.setPen(palette().color(QPalette::Text));
        const QString figure = QString::number(b.First + b.Second);
        if (shape_ == Shape::Bars) {
            const qreal labelLeft = all.left() + Gap;
            p.drawText(QRectF(labelLeft, bar.top(), area.left() - labelLeft - Gap, bar.height()),
                       Qt::AlignRight | Qt::AlignVCenter, metrics.elidedText(b.Label, Qt::ElideRight,
                                                                            static_cast<int>(area.left() - labelLeft - Gap)));
            p.drawText(QRectF(bar.right() + Gap / 2, bar.top(), all.right() - bar.right(), bar.height()),
                       Qt::AlignLeft | Qt::AlignVCenter, figure);
        } else {
            if (b.First + b.Second > 0 && bar.width() >= metrics.horizontalAdvance(figure))
                p.drawText(QRectF(bar.left() - Gap, bar.top() - metrics.height(), bar.width() + 2 * Gap,
                                  metrics.height()),
                           Qt::AlignHCenter | Qt::AlignBottom, figure);
            if (i % static_cast<std::size_t>(every) == 0)
                p.drawText(QRectF(bar.center().x() - 100, area.bottom() + Gap / 2, 200, metrics.height()),
                           Qt::AlignHCenter | Qt::AlignTop, b.Label);
        }
    }
    p.setPen(palette().color(QPalette::Mid));
    if (shape_ == Shape::Bars) p.drawLine(area.topLeft(), area.bottomLeft());
    else p.drawLine(area.bottomLeft(), area.bottomRight());
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
    if (bars_.empty()) return {};
    const QRectF area = PlotArea(rect());
    for (std::size_t i = 0; i < bars_.size(); ++i) {
        QRectF hit = BarRect(i, area);
        // The whole band of a bar answers, so that a short bar is easy to point at.
        if (shape_ == Shape::Bars) hit.setRight(area.right());
        else hit.setTop(area.top());
        if (!hit.contains(point)) continue;
        const ChartBar& b = bars_[i];
        if (secondPart_.isEmpty()) return QStringLiteral("%1: %2").arg(b.Label).arg(b.First);
        return QStringLiteral("%1: %2 (%3 %4, %5 %6)")
            .arg(b.Label)
            .arg(b.First + b.Second)
            .arg(b.First)
            .arg(firstPart_)
            .arg(b.Second)
            .arg(secondPart_);
    }
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
