#pragma once
// A label that acts as a button: it reports its mouse events with their
// position in twips, and a click when the left button is pressed and released
// over it. Its background colour is its own (BackColor), so a screen can give
// it a pressed look.
#include <QColor>
#include <QLabel>

class ClickLabel : public QLabel {
    Q_OBJECT
public:
    explicit ClickLabel(QWidget* parent = nullptr);

    QColor BackColor() const { return backColor_; }
    void setBackColor(const QColor& colour);
    QColor ForeColor() const;
    void setForeColor(const QColor& colour);

signals:
    // Button and buttons are Qt's; x and y are twips from the label's corner.
    void MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers shift, int x, int y);
    void MouseMove(Qt::MouseButtons buttons, Qt::KeyboardModifiers shift, int x, int y);
    void MouseUp(Qt::MouseButton button, Qt::KeyboardModifiers shift, int x, int y);
    void Click();

protected:
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    QColor backColor_;
    bool pressed_ = false;
};
