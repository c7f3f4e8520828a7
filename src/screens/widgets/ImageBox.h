#pragma once
// The image box of the screens: shows a picture, stretched to the box when
// Stretch is on, else at its natural size from the top left corner. Its
// position and size are twips in its container and are kept exactly as set,
// so that the geometry of a fitted picture can be read back unrounded.
#include <QImage>
#include <QWidget>

class ImageBox : public QWidget {
    Q_OBJECT
public:
    explicit ImageBox(QWidget* parent = nullptr);

    int Left() const { return left_; }
    int Top() const { return top_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    void Move(int left, int top);
    void Move(int left, int top, int width, int height);
    void setLeft(int left) { Move(left, top_); }
    void setTop(int top) { Move(left_, top); }
    void setWidth(int width) { Move(left_, top_, width, height_); }
    void setHeight(int height) { Move(left_, top_, width_, height); }

    bool Stretch() const { return stretch_; }
    void setStretch(bool stretch);

    const QImage& Image() const { return image_; }
    bool HasPicture() const { return !image_.isNull(); }
    void setPicture(const QImage& image);
    void ClearPicture();

signals:
    void Click();
    void DblClick();

protected:
    void paintEvent(QPaintEvent* e) override;
    void moveEvent(QMoveEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;

private:
    void ApplyGeometry();

    int left_ = 0, top_ = 0, width_ = 0, height_ = 0;  // twips
    bool applying_ = false;
    bool stretch_ = false;
    bool pressed_ = false;
    QImage image_;
};
