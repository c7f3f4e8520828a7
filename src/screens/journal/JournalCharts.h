#pragma once
// A journal chart on the screen: the core's layout of the chart drawn in the
// widget's font and the program's colours, the exact figures of the bar
// under the pointer, and the same drawing into a picture for saving.
#include <QImage>
#include <QWidget>

#include "core/journal/ChartLayout.h"

class JournalChart : public QWidget {
    Q_OBJECT
public:
    explicit JournalChart(QWidget* parent = nullptr);

    void setChart(ChartData chart);
    const ChartData& Chart() const { return chart_; }
    // The layout drawn on a surface of that size: the widget, or a picture.
    ChartDrawing Layout(const QSize& size, const QPaintDevice& surface) const;
    // The figures of the bar at a point of the widget, or "" between bars.
    QString FigureAt(const QPoint& point) const;
    // The chart drawn into a picture of that size, as the screen draws it.
    QImage Render(const QSize& size) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    QSize sizeHint() const override { return {400, 240}; }

private:
    void Draw(QPainter& p, const QRect& all) const;

    ChartData chart_;
};
