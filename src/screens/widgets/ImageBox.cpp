#include "screens/widgets/ImageBox.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "core/platform/Twips.h"

ImageBox::ImageBox(QWidget* parent) : QWidget(parent) {}

void ImageBox::Move(int left, int top) { Move(left, top, width_, height_); }

void ImageBox::Move(int left, int top, int width, int height) {
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    ApplyGeometry();
}

void ImageBox::ApplyGeometry() {
    applying_ = true;
    setGeometry(TwipsToPixels(left_), TwipsToPixels(top_), std::max(0, TwipsToPixels(width_)),
                std::max(0, TwipsToPixels(height_)));
    applying_ = false;
}

void ImageBox::setStretch(bool stretch) {
    stretch_ = stretch;
    update();
}

void ImageBox::setPicture(const QImage& image) {
    image_ = image;
    update();
}

void ImageBox::ClearPicture() {
    image_ = QImage();
    update();
}

void ImageBox::paintEvent(QPaintEvent*) {
    if (image_.isNull()) return;
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    if (stretch_) p.drawImage(rect(), image_);
    else p.drawImage(QPoint(0, 0), image_);
}

// A layout or the code of a screen may place the box in pixels; the twips
// then follow, so that both views agree.
void ImageBox::moveEvent(QMoveEvent* e) {
    QWidget::moveEvent(e);
    if (applying_) return;
    if (TwipsToPixels(left_) != x()) left_ = PixelsToTwips(x());
    if (TwipsToPixels(top_) != y()) top_ = PixelsToTwips(y());
}

void ImageBox::resizeEvent(QResizeEvent* e) {
    QWidget::resizeEvent(e);
    if (applying_) return;
    if (std::max(0, TwipsToPixels(width_)) != width()) width_ = PixelsToTwips(width());
    if (std::max(0, TwipsToPixels(height_)) != height()) height_ = PixelsToTwips(height());
}

void ImageBox::mousePressEvent(QMouseEvent* e) {
    pressed_ = e->button() == Qt::LeftButton;
    QWidget::mousePressEvent(e);
}

void ImageBox::mouseReleaseEvent(QMouseEvent* e) {
    const bool click = pressed_ && e->button() == Qt::LeftButton && rect().contains(e->position().toPoint());
    pressed_ = false;
    if (click) emit Click();
    QWidget::mouseReleaseEvent(e);
}

void ImageBox::mouseDoubleClickEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) emit DblClick();
    QWidget::mouseDoubleClickEvent(e);
}
