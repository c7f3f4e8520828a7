#include "screens/widgets/ClickLabel.h"

#include <QMouseEvent>
#include <QtMath>

#include "core/platform/Twips.h"

namespace {
int TwipsX(const QMouseEvent* e) { return PixelsToTwips(qFloor(e->position().x())); }
int TwipsY(const QMouseEvent* e) { return PixelsToTwips(qFloor(e->position().y())); }
}  // namespace

ClickLabel::ClickLabel(QWidget* parent) : QLabel(parent) {
    setAutoFillBackground(true);
    // Moves without a button reach the handlers too; they decide what a
    // hover means.
    setMouseTracking(true);
    setBackColor(palette().color(QPalette::Window));
}

void ClickLabel::setBackColor(const QColor& colour) {
    backColor_ = colour;
    QPalette p = palette();
    p.setColor(QPalette::Window, colour);
    setPalette(p);
}

QColor ClickLabel::ForeColor() const { return palette().color(QPalette::WindowText); }

void ClickLabel::setForeColor(const QColor& colour) {
    QPalette p = palette();
    p.setColor(QPalette::WindowText, colour);
    setPalette(p);
}

void ClickLabel::mousePressEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) pressed_ = true;
    emit MouseDown(e->button(), e->modifiers(), TwipsX(e), TwipsY(e));
}

void ClickLabel::mouseMoveEvent(QMouseEvent* e) { emit MouseMove(e->buttons(), e->modifiers(), TwipsX(e), TwipsY(e)); }

void ClickLabel::mouseReleaseEvent(QMouseEvent* e) {
    const bool click = pressed_ && e->button() == Qt::LeftButton && rect().contains(e->position().toPoint());
    if (e->button() == Qt::LeftButton) pressed_ = false;
    emit MouseUp(e->button(), e->modifiers(), TwipsX(e), TwipsY(e));
    if (click) emit Click();
}
