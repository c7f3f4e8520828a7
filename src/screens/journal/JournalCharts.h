#pragma once
// The journal's charts, drawn by the program in its own colours: bars that
// run across (one a card, upright and reversed stacked) and columns that
// stand up (one a month). Each fits the space it is given, shows the exact
// figure of a bar under the pointer, and renders into a picture for saving
// and printing.
#include <QImage>
#include <QString>
#include <QWidget>
#include <vector>

struct ChartBar {
    QString Label;
    int First = 0;    // upright, or the whole figure
    int Second = 0;   // reversed; 0 in one-part charts
};

class JournalChart : public QWidget {
    Q_OBJECT
public:
    enum class Shape { Bars, Columns };
    JournalChart(Shape shape, const QString& firstPart, const QString& secondPart, QWidget* parent = nullptr);

    void setBars(std::vector<ChartBar> bars);
    const std::vector<ChartBar>& Bars() const { return bars_; }
    // The figure of the bar at a point of the widget, or "" between bars.
    QString FigureAt(const QPoint& point) const;
    // The chart drawn into a picture of that size, as the screen would draw it.
    QImage Render(const QSize& size) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    QSize sizeHint() const override { return {400, 240}; }

private:
    QRectF BarRect(std::size_t i, const QRectF& area) const;
    QRectF PlotArea(const QRect& all) const;
    void Draw(QPainter& p, const QRect& all) const;

    Shape shape_;
    QString firstPart_;
    QString secondPart_;
    std::vector<ChartBar> bars_;
};
