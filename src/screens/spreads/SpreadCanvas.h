#pragma once
// The canvas of a spread: its background picture, the drawing grid and the 32
// numbered location rectangles, shared by the spread designer and the spread
// viewer. Positions and sizes are twips, as the location records keep them;
// the rectangles stand above the grid and the grid above the picture. Drawing
// is at 15 twips to the pixel, while every position is kept whole in twips so
// that what is saved is exactly what was computed.
#include <QColor>
#include <QWidget>
#include <array>

#include "core/platform/Arrays.h"
#include "core/records/Records.h"

class ImageBox;
class QLabel;
class QPushButton;

constexpr int MaxLocations = 32;
constexpr int LocationWidth = 1695;
constexpr int LocationHeight = 975;
constexpr int HorizontalGridLines = 34;  // indices 0 .. 33
constexpr int VerticalGridLines = 48;    // indices 0 .. 47
// The end of every horizontal grid line, whatever the canvas.
constexpr int GridLineRight = 11655;

// Shift argument of key and mouse events: 1 Shift, 2 Ctrl, 4 Alt, added up.
constexpr int ShiftMask = 1;
int ShiftArgument(Qt::KeyboardModifiers modifiers);

// ---- Canvas arithmetic -----------------------------------------------------
// length / parts to the nearest whole number (halves to even), as a grid step
// is taken from the canvas.
Integer GridStep(int length, int parts);
// Moves a position down to the grid line at or before it, trying lines 1 to
// lastLine. True when the position was set, which happens also when it stays
// where it was below the first line; false when it already lay on a line or
// past the last one.
bool SnapDown(Integer& position, Integer step, int lastLine);
// Brings a rectangle's corner back inside a canvas: left first, then top.
void KeepInside(Integer& left, Integer& top, int canvasWidth, int canvasHeight);

// ---- Controls ----------------------------------------------------------------

// One location's card rectangle (picLocation). Its place is kept in twips;
// the labels inside it pass the mouse on to it, so a press on the number or
// the title starts a drag of the rectangle and gives it the focus.
class LocationBox : public QWidget {
    Q_OBJECT
public:
    LocationBox(int index, QWidget* parent);
    int Index() const { return index_; }
    Integer Left() const { return left_; }
    Integer Top() const { return top_; }
    void setLeft(Integer left) { Move(left, top_); }
    void setTop(Integer top) { Move(left_, top); }
    void Move(Integer left, Integer top);
    QColor BackColor() const { return backColor_; }
    void setBackColor(const QColor& colour);
    bool Active() const { return isEnabled() && !isHidden(); }

signals:
    // Button is the toolkit's; X and Y are twips from the rectangle's corner.
    void MouseDown(int Button, int Shift, double X, double Y);
    void MouseMove(int Button, int Shift, double X, double Y);
    void MouseUp(int Button, int Shift, double X, double Y);
    void KeyDown(int KeyCode, int Shift, bool& handled);
    void KeyUp(int KeyCode, int Shift);
    void GotFocus();

protected:
    void paintEvent(QPaintEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void keyReleaseEvent(QKeyEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;

private:
    int index_;
    Integer left_ = 0;
    Integer top_ = 0;
    QColor backColor_;
};

// One line of the grid, its ends in twips.
class GridLine : public QWidget {
public:
    explicit GridLine(QWidget* parent);
    int X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
    // Places the line after its ends were set.
    void Apply();
};

// Which control of a location an event came from.
enum class LocationPart { Rectangle, Attributes };

class SpreadCanvas : public QWidget {
    Q_OBJECT
public:
    // width and height in twips; left and top are the canvas's place in its
    // screen, which the grid and new locations reckon with.
    SpreadCanvas(int width, int height, int left, int top, QWidget* parent);

    int Width() const { return width_; }
    int Height() const { return height_; }
    int Left() const { return left_; }
    int Top() const { return top_; }

    ImageBox* imgBackground = nullptr;
    LocationBox* picLocation(int Index) const { return pic_.at(Checked(Index)); }
    QLabel* lblCardNumber(int Index) const { return number_.at(Checked(Index)); }
    QLabel* lblCardTitle(int Index) const { return title_.at(Checked(Index)); }
    QPushButton* cmdCardAttributes(int Index) const { return attributes_.at(Checked(Index)); }
    GridLine* linHorizontalGrid(int Index) const;
    GridLine* linVerticalGrid(int Index) const;

    // The grid counts as shown when its first horizontal line is visible.
    bool GridShown() const;
    // Shows a hidden grid at these steps, or hides a shown one. Returns the
    // caption the grid button takes: what its next press will do.
    QString ToggleGrid(Integer stepX, Integer stepY);

    // Shows locations 1 to count at their saved places with their titles and
    // numbers; the others are hidden and disabled.
    void ShowLocations(const BoundedArray<LocationRecord>& locations, int count);
    // Shows or hides one location's set of controls.
    void SetLocationActive(int Index, bool active);
    // Puts a rectangle back on the canvas (KeepLocationOnCanvas).
    void KeepLocationOnCanvas(int Index);
    // With false only the Attributes buttons answer: the rectangles can be
    // neither moved nor focused.
    void setMovable(bool movable);
    bool Movable() const { return movable_; }

    // Shows a picture over the whole canvas, stretched or at its own size; a
    // null image clears the picture.
    void SetBackground(const QImage& image, bool stretch);

signals:
    void MouseDown(int Index, int Button, int Shift, double X, double Y);
    void MouseMove(int Index, int Button, int Shift, double X, double Y);
    void MouseUp(int Index, int Button, int Shift, double X, double Y);
    void KeyDown(int Index, LocationPart part, int KeyCode, int Shift, bool& handled);
    void KeyUp(int Index, LocationPart part, int KeyCode, int Shift);
    void GotFocus(int Index, LocationPart part);
    void AttributesClick(int Index);

protected:
    bool eventFilter(QObject* watched, QEvent* e) override;

private:
    static std::size_t Checked(int Index);
    void BuildLocation(int Index);

    int width_, height_, left_, top_;
    bool movable_ = true;
    std::array<LocationBox*, MaxLocations + 1> pic_{};
    std::array<QLabel*, MaxLocations + 1> number_{};
    std::array<QLabel*, MaxLocations + 1> title_{};
    std::array<QPushButton*, MaxLocations + 1> attributes_{};
    std::array<GridLine*, HorizontalGridLines> horizontal_{};
    std::array<GridLine*, VerticalGridLines> vertical_{};
};

// The colours of a rectangle: grey at rest, navy while it is the location in
// focus.
QColor LocationGrey();
QColor LocationNavy();
