#include "screens/spreads/SpreadCanvas.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <cmath>

#include "core/platform/Errors.h"
#include "core/platform/Twips.h"
#include "core/spreads/LocationTitle.h"
#include "screens/widgets/ImageBox.h"

namespace {
// Whole pixels for a place in twips, rounding towards minus infinity so that
// a rectangle off the left or top edge is drawn where it stands.
int PixelFloor(int twips) { return static_cast<int>(std::floor(twips / double(TwipsPerPixel))); }

QRect PixelRect(int left, int top, int width, int height) {
    return QRect(PixelFloor(left), PixelFloor(top), TwipsToPixels(width), TwipsToPixels(height));
}

int ButtonArgument(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton: return 1;
    case Qt::RightButton: return 2;
    case Qt::MiddleButton: return 4;
    default: return 0;
    }
}

int ButtonsArgument(Qt::MouseButtons buttons) {
    return (buttons & Qt::LeftButton ? 1 : 0) | (buttons & Qt::RightButton ? 2 : 0) |
           (buttons & Qt::MiddleButton ? 4 : 0);
}

double TwipsOf(double pixels) { return pixels * TwipsPerPixel; }
}  // namespace

int ShiftArgument(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
           (modifiers & Qt::AltModifier ? 4 : 0);
}

QColor LocationGrey() { return QColor(128, 128, 128); }
QColor LocationNavy() { return QColor(0, 0, 128); }

// ---- Arithmetic ----------------------------------------------------------------

Integer GridStep(int length, int parts) {
    return static_cast<Integer>(std::lrint(static_cast<double>(length) / parts));
}

bool SnapDown(Integer& position, Integer step, int lastLine) {
    for (int i = 1; i <= lastLine; ++i) {
        const int line = i * step;
        if (position == line) return false;
        if (position < line) {
            position = static_cast<Integer>((i - 1) * step);
            return true;
        }
    }
    return false;
}

void KeepInside(Integer& left, Integer& top, int canvasWidth, int canvasHeight) {
    if (left < 0) left = 0;
    if (canvasWidth - LocationWidth < left) left = static_cast<Integer>(canvasWidth - LocationWidth);
    if (top < 0) top = 0;
    if (canvasHeight - LocationHeight < top) top = static_cast<Integer>(canvasHeight - LocationHeight);
}

// ---- LocationBox -----------------------------------------------------------------

LocationBox::LocationBox(int index, QWidget* parent) : QWidget(parent), index_(index) {
    setFocusPolicy(Qt::ClickFocus);
    setBackColor(LocationGrey());
    resize(TwipsToPixels(LocationWidth), TwipsToPixels(LocationHeight));
}

void LocationBox::Move(Integer left, Integer top) {
    left_ = left;
    top_ = top;
    move(PixelFloor(left), PixelFloor(top));
}

void LocationBox::setBackColor(const QColor& colour) {
    backColor_ = colour;
    update();
}

void LocationBox::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), backColor_);
    p.setPen(Qt::black);
    p.drawRect(rect().adjusted(0, 0, -1, -1));
}

void LocationBox::mousePressEvent(QMouseEvent* e) {
    emit MouseDown(ButtonArgument(e->button()), ShiftArgument(e->modifiers()), TwipsOf(e->position().x()),
                   TwipsOf(e->position().y()));
}

void LocationBox::mouseMoveEvent(QMouseEvent* e) {
    emit MouseMove(ButtonsArgument(e->buttons()), ShiftArgument(e->modifiers()), TwipsOf(e->position().x()),
                   TwipsOf(e->position().y()));
}

void LocationBox::mouseReleaseEvent(QMouseEvent* e) {
    emit MouseUp(ButtonArgument(e->button()), ShiftArgument(e->modifiers()), TwipsOf(e->position().x()),
                 TwipsOf(e->position().y()));
}

void LocationBox::keyPressEvent(QKeyEvent* e) {
    bool handled = false;
    emit KeyDown(e->key(), ShiftArgument(e->modifiers()), handled);
    if (!handled) QWidget::keyPressEvent(e);
}

void LocationBox::keyReleaseEvent(QKeyEvent* e) {
    emit KeyUp(e->key(), ShiftArgument(e->modifiers()));
    QWidget::keyReleaseEvent(e);
}

void LocationBox::focusInEvent(QFocusEvent* e) {
    QWidget::focusInEvent(e);
    emit GotFocus();
}

// ---- GridLine ---------------------------------------------------------------------

GridLine::GridLine(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAutoFillBackground(true);
    QPalette palette = this->palette();
    // The colour of menus, as the system draws them.
    palette.setColor(QPalette::Window, QApplication::palette("QMenu").color(QPalette::Window).darker(125));
    setPalette(palette);
    hide();
}

void GridLine::Apply() {
    const int x = PixelFloor(std::min(X1, X2));
    const int y = PixelFloor(std::min(Y1, Y2));
    const int w = std::max(1, TwipsToPixels(std::abs(X2 - X1)));
    const int h = std::max(1, TwipsToPixels(std::abs(Y2 - Y1)));
    setGeometry(x, y, w, h);
}

// ---- SpreadCanvas -------------------------------------------------------------------

SpreadCanvas::SpreadCanvas(int width, int height, int left, int top, QWidget* parent)
    : QWidget(parent), width_(width), height_(height), left_(left), top_(top) {
    setObjectName(QStringLiteral("picDesignLocations"));
    setGeometry(PixelRect(left, top, width, height));
    setAutoFillBackground(true);

    // Built bottom to top: the picture, then the grid, then the rectangles.
    imgBackground = new ImageBox(this);
    imgBackground->setObjectName(QStringLiteral("imgBackground"));
    imgBackground->Move(0, 0, width, height);

    for (int i = 0; i < HorizontalGridLines; ++i) {
        auto* line = new GridLine(this);
        line->setObjectName(QStringLiteral("linHorizontalGrid%1").arg(i));
        line->X1 = 0;
        line->X2 = GridLineRight;
        line->Apply();
        horizontal_[static_cast<std::size_t>(i)] = line;
    }
    for (int i = 0; i < VerticalGridLines; ++i) {
        auto* line = new GridLine(this);
        line->setObjectName(QStringLiteral("linVerticalGrid%1").arg(i));
        line->Y1 = 0;
        line->Apply();
        vertical_[static_cast<std::size_t>(i)] = line;
    }
    for (int i = 0; i <= MaxLocations; ++i) BuildLocation(i);
}

std::size_t SpreadCanvas::Checked(int Index) {
    if (Index < 0 || Index > MaxLocations) RaiseError(errSubscriptOutOfRange);
    return static_cast<std::size_t>(Index);
}

GridLine* SpreadCanvas::linHorizontalGrid(int Index) const {
    if (Index < 0 || Index >= HorizontalGridLines) RaiseError(errSubscriptOutOfRange);
    return horizontal_[static_cast<std::size_t>(Index)];
}

GridLine* SpreadCanvas::linVerticalGrid(int Index) const {
    if (Index < 0 || Index >= VerticalGridLines) RaiseError(errSubscriptOutOfRange);
    return vertical_[static_cast<std::size_t>(Index)];
}

void SpreadCanvas::BuildLocation(int Index) {
    const auto slot = static_cast<std::size_t>(Index);
    auto* pic = new LocationBox(Index, this);
    pic->setObjectName(QStringLiteral("picLocation%1").arg(Index));

    auto* number = new QLabel(pic);
    number->setObjectName(QStringLiteral("lblCardNumber%1").arg(Index));
    number->setGeometry(PixelRect(240, 360, 255, 255));
    number->setStyleSheet(QStringLiteral("color: white; background: transparent;"));
    number->setAttribute(Qt::WA_TransparentForMouseEvents);

    auto* title = new QLabel(pic);
    title->setObjectName(QStringLiteral("lblCardTitle%1").arg(Index));
    title->setGeometry(PixelRect(720, 45, LocationTitleWidth, LocationTitleHeight));
    title->setStyleSheet(QStringLiteral("color: yellow; background: transparent;"));
    title->setFont(LocationTitleFont());
    title->setWordWrap(true);
    title->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    title->setAttribute(Qt::WA_TransparentForMouseEvents);

    auto* attributes = new QPushButton(tr("Attributes"), pic);
    attributes->setObjectName(QStringLiteral("cmdCardAttributes%1").arg(Index));
    attributes->setGeometry(PixelRect(720, 600, 900, 310));
    attributes->installEventFilter(this);

    pic_[slot] = pic;
    number_[slot] = number;
    title_[slot] = title;
    attributes_[slot] = attributes;

    connect(pic, &LocationBox::MouseDown, this, [this, Index](int b, int s, double x, double y) {
        if (movable_) emit MouseDown(Index, b, s, x, y);
    });
    connect(pic, &LocationBox::MouseMove, this, [this, Index](int b, int s, double x, double y) {
        if (movable_) emit MouseMove(Index, b, s, x, y);
    });
    connect(pic, &LocationBox::MouseUp, this, [this, Index](int b, int s, double x, double y) {
        if (movable_) emit MouseUp(Index, b, s, x, y);
    });
    connect(pic, &LocationBox::KeyDown, this, [this, Index](int k, int s, bool& handled) {
        emit KeyDown(Index, LocationPart::Rectangle, k, s, handled);
    });
    connect(pic, &LocationBox::KeyUp, this,
            [this, Index](int k, int s) { emit KeyUp(Index, LocationPart::Rectangle, k, s); });
    connect(pic, &LocationBox::GotFocus, this, [this, Index] { emit GotFocus(Index, LocationPart::Rectangle); });
    connect(attributes, &QPushButton::clicked, this, [this, Index] { emit AttributesClick(Index); });

    pic->Move(0, 0);
    SetLocationActive(Index, false);
}

bool SpreadCanvas::eventFilter(QObject* watched, QEvent* e) {
    auto* button = qobject_cast<QPushButton*>(watched);
    if (!button) return QWidget::eventFilter(watched, e);
    const int Index = static_cast<LocationBox*>(button->parentWidget())->Index();
    switch (e->type()) {
    case QEvent::FocusIn: emit GotFocus(Index, LocationPart::Attributes); break;
    case QEvent::KeyPress: {
        auto* k = static_cast<QKeyEvent*>(e);
        bool handled = false;
        emit KeyDown(Index, LocationPart::Attributes, k->key(), ShiftArgument(k->modifiers()), handled);
        if (handled) return true;
        break;
    }
    case QEvent::KeyRelease: {
        auto* k = static_cast<QKeyEvent*>(e);
        emit KeyUp(Index, LocationPart::Attributes, k->key(), ShiftArgument(k->modifiers()));
        break;
    }
    default: break;
    }
    return QWidget::eventFilter(watched, e);
}

bool SpreadCanvas::GridShown() const { return !horizontal_[0]->isHidden(); }

QString SpreadCanvas::ToggleGrid(Integer stepX, Integer stepY) {
    const bool show = !GridShown();
    for (int i = 0; i < HorizontalGridLines; ++i) {
        GridLine* line = horizontal_[static_cast<std::size_t>(i)];
        if (show) {
            line->Y1 = line->Y2 = stepY * i;
            line->Apply();
        }
        line->setVisible(show);
    }
    for (int i = 0; i < VerticalGridLines; ++i) {
        GridLine* line = vertical_[static_cast<std::size_t>(i)];
        if (show) {
            line->X1 = line->X2 = stepX * i;
            line->Y2 = height_ + top_;
            line->Apply();
        }
        line->setVisible(show);
    }
    return show ? tr("Hide &Grid") : tr("Show &Grid");
}

void SpreadCanvas::SetLocationActive(int Index, bool active) {
    LocationBox* pic = picLocation(Index);
    pic->setEnabled(active);
    pic->setVisible(active);
    if (active) pic->raise();
}

void SpreadCanvas::ShowLocations(const BoundedArray<LocationRecord>& locations, int count) {
    for (int i = 1; i <= MaxLocations; ++i) {
        const bool used = i <= count;
        SetLocationActive(i, used);
        if (!used) continue;
        const LocationRecord& location = locations(i);
        picLocation(i)->Move(location.LocationLeft, location.LocationTop);
        lblCardTitle(i)->setText(location.LocationTitle.Trimmed());
        lblCardNumber(i)->setText(QString::number(i));
    }
}

void SpreadCanvas::KeepLocationOnCanvas(int Index) {
    LocationBox* pic = picLocation(Index);
    Integer left = pic->Left();
    Integer top = pic->Top();
    KeepInside(left, top, width_, height_);
    pic->Move(left, top);
}

void SpreadCanvas::setMovable(bool movable) {
    movable_ = movable;
    for (int i = 0; i <= MaxLocations; ++i) picLocation(i)->setFocusPolicy(movable ? Qt::ClickFocus : Qt::NoFocus);
}

void SpreadCanvas::SetBackground(const QImage& image, bool stretch) {
    imgBackground->setStretch(stretch);
    if (image.isNull()) imgBackground->ClearPicture();
    else imgBackground->setPicture(image);
}
