#include "screens/platform/Form.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

#include "core/platform/CodePage.h"
#include "core/platform/Errors.h"
#include "core/platform/Twips.h"
#include "screens/platform/ErrorReport.h"

namespace {
QPointer<QMdiArea> gArea;
QPointer<QMdiSubWindow> gActiveSub;

Form* FormOf(QMdiSubWindow* sub) { return sub ? qobject_cast<Form*>(sub->widget()) : nullptr; }

// Text boxes hold only what a record can: a character typed or pasted that
// the code page cannot hold turns into '?' at once, so what the user sees is
// what is saved, looked up and shown again.
QString AsRecordText(const QString& text) { return FromAnsi(ToAnsi(text)); }

void KeepToCodePage(QLineEdit* box, const QString& text) {
    if (AnsiRepresentable(text)) return;
    const int cursor = static_cast<int>(AsRecordText(text.left(box->cursorPosition())).size());
    box->setText(AsRecordText(text));
    box->setCursorPosition(cursor);
}

void KeepToCodePage(QPlainTextEdit* box) {
    const QString text = box->toPlainText();
    if (AnsiRepresentable(text)) return;
    const int at = box->textCursor().position();
    const int cursor = static_cast<int>(AsRecordText(text.left(at)).size());
    const int scrolled = box->verticalScrollBar()->value();
    QTextCursor all(box->document());
    all.select(QTextCursor::Document);
    all.insertText(AsRecordText(text));  // raises textChanged once more, representable now
    QTextCursor back(box->document());
    back.setPosition(std::min(cursor, static_cast<int>(box->document()->characterCount()) - 1));
    box->setTextCursor(back);
    box->verticalScrollBar()->setValue(scrolled);
}

void WatchTextBox(QObject* child) {
    static const char* kept = "cartomarCodePageKept";
    if (child->property(kept).toBool()) return;
    if (auto* line = qobject_cast<QLineEdit*>(child)) {
        QObject::connect(line, &QLineEdit::textEdited, line,
                         [line](const QString& text) { KeepToCodePage(line, text); });
    } else if (auto* plain = qobject_cast<QPlainTextEdit*>(child)) {
        QObject::connect(plain, &QPlainTextEdit::textChanged, plain, [plain] { KeepToCodePage(plain); });
    } else {
        return;
    }
    child->setProperty(kept, true);
}
}  // namespace

void SetFrameArea(QMdiArea* area) {
    gArea = area;
    if (!area) return;
    QObject::connect(area, &QMdiArea::subWindowActivated, area, [](QMdiSubWindow* sub) {
        if (sub == gActiveSub) return;
        QPointer<QMdiSubWindow> previous = gActiveSub;
        gActiveSub = sub;
        if (Form* old = FormOf(previous)) old->NotifyActivated(false);
        if (Form* now = FormOf(sub)) now->NotifyActivated(true);
    });
}

QMdiArea* FrameArea() { return gArea; }

int FrameInnerWidth() { return gArea ? PixelsToTwips(gArea->viewport()->width()) : PixelsToTwips(1024); }
int FrameInnerHeight() { return gArea ? PixelsToTwips(gArea->viewport()->height()) : PixelsToTwips(768); }
int FrameOwnTop() { return gArea ? PixelsToTwips(gArea->window()->y()) : 0; }
int FrameOwnLeft() { return gArea ? PixelsToTwips(gArea->window()->x()) : 0; }

Form::Form(QWidget* parent) : QWidget(parent) {}

Form::~Form() {
    if (modalLoop_) modalLoop_->quit();
    if (onDestroyed_) onDestroyed_();
}

void Form::Load() {
    if (loaded_) return;
    loaded_ = true;
    watchChildren(this);
    // A screen whose loading fails goes again at once, so that the next use
    // loads it afresh instead of showing it half-filled. Its unload hooks do
    // not run: they belong to a screen that was loaded.
    try {
        Form_Load();
    } catch (...) {
        Dispose();
        throw;
    }
    watchChildren(this);
}

QWidget* Form::outer() const { return sub_ ? static_cast<QWidget*>(sub_) : const_cast<Form*>(this); }

QPoint Form::FrameOrigin() const {
    if (gArea && !sub_) return gArea->viewport()->mapToGlobal(QPoint(0, 0));
    return QPoint(0, 0);
}

void Form::ApplyPosition() { outer()->move(FrameOrigin() + QPoint(TwipsToPixels(left_), TwipsToPixels(top_))); }

void Form::enterFrame() {
    if (sub_ || !gArea) return;
    setWindowModality(Qt::NonModal);
    sub_ = gArea->addSubWindow(
        this, Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    sub_->setAttribute(Qt::WA_DeleteOnClose, false);
    sub_->installEventFilter(this);
    sub_->adjustSize();
    ApplyPosition();
}

void Form::leaveFrame() {
    if (!sub_) return;
    QMdiSubWindow* old = sub_;
    sub_ = nullptr;
    old->removeEventFilter(this);
    old->setWidget(nullptr);
    setParent(nullptr);
    old->deleteLater();
}

void Form::Show(bool modal) {
    if (!modal) {
        enterFrame();
        outer()->show();
        if (sub_) {
            sub_->raise();
            gArea->setActiveSubWindow(sub_);
        } else {
            raise();
            activateWindow();
        }
        return;
    }
    leaveFrame();
    QWidget* owner = gArea ? gArea->window() : nullptr;
    if (parentWidget() != owner || !(windowFlags() & Qt::Dialog)) {
        setParent(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    }
    setWindowModality(Qt::ApplicationModal);
    ApplyPosition();
    show();
    raise();
    activateWindow();
    QEventLoop loop;
    QPointer<Form> self(this);
    modalLoop_ = &loop;
    loop.exec();
    if (self) self->modalLoop_ = nullptr;
}

void Form::Hide() {
    outer()->hide();
    if (modalLoop_) modalLoop_->quit();
}

bool Form::Visible() const { return outer()->isVisible(); }

bool Form::Unload() { return RunUnload(vbFormCode); }

bool Form::RunUnload(int mode) {
    if (unloading_) return true;
    bool cancel = false;
    Form_QueryUnload(cancel, mode);
    if (cancel) return false;
    Form_Unload(cancel);
    if (cancel) return false;
    Dispose();
    return true;
}

void Form::Dispose() {
    unloading_ = true;
    if (onDestroyed_) {
        onDestroyed_();
        onDestroyed_ = nullptr;
    }
    outer()->hide();
    if (modalLoop_) modalLoop_->quit();
    if (sub_) sub_->deleteLater();
    else deleteLater();
}

QString Form::Caption() const { return windowTitle(); }
void Form::setCaption(const QString& caption) { setWindowTitle(caption); }

int Form::Left() const { return left_; }
int Form::Top() const { return top_; }
int Form::Width() const { return PixelsToTwips(width()); }
int Form::Height() const { return PixelsToTwips(height()); }

void Form::Move(int left, int top) {
    left_ = left;
    top_ = top;
    ApplyPosition();
}

void Form::Move(int left, int top, int width, int height) {
    resize(TwipsToPixels(width), TwipsToPixels(height));
    if (sub_) sub_->adjustSize();
    Move(left, top);
}

void Form::setMousePointer(MousePointer pointer) {
    if (pointer == MousePointer::Hourglass) setCursor(Qt::WaitCursor);
    else unsetCursor();
}

std::function<void()> Form::Handler(std::function<void()> body) {
    return [body = std::move(body)] { Guarded(body); };
}

void Form::NotifyActivated(bool active) {
    if (active == active_ || unloading_) return;
    active_ = active;
    Guarded([&] {
        if (active) Form_Activate();
        else Form_Deactivate();
    });
}

void Form::watchChildren(QObject* root) {
    for (QObject* child : root->children()) {
        if (child->isWidgetType()) {
            WatchTextBox(child);
            child->removeEventFilter(this);
            child->installEventFilter(this);
            watchChildren(child);
        }
    }
}

bool Form::event(QEvent* e) {
    switch (e->type()) {
    case QEvent::WindowActivate:
        if (!sub_) NotifyActivated(true);
        break;
    case QEvent::WindowDeactivate:
        if (!sub_) NotifyActivated(false);
        break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (KeyToForm(static_cast<QKeyEvent*>(e))) return true;
        break;
    case QEvent::Move:
        if (!sub_ && isWindow() && isVisible()) {
            const QPoint p = pos() - FrameOrigin();
            left_ = PixelsToTwips(p.x());
            top_ = PixelsToTwips(p.y());
        }
        break;
    default: break;
    }
    return QWidget::event(e);
}

bool Form::KeyToForm(QKeyEvent* k) {
    bool handled = false;
    Guarded([&] {
        if (k->type() == QEvent::KeyPress) Form_KeyDown(k->key(), k->modifiers(), handled);
        else Form_KeyUp(k->key(), k->modifiers(), handled);
    });
    return handled;
}

bool Form::eventFilter(QObject* watched, QEvent* e) {
    if (watched == sub_) {
        if (e->type() == QEvent::Move && sub_->isVisible()) {
            left_ = PixelsToTwips(sub_->x());
            top_ = PixelsToTwips(sub_->y());
        }
        return false;
    }
    switch (e->type()) {
    case QEvent::ChildAdded: {
        QObject* child = static_cast<QChildEvent*>(e)->child();
        if (child->isWidgetType()) {
            child->installEventFilter(this);
            watchChildren(child);
        }
        break;
    }
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (KeyToForm(static_cast<QKeyEvent*>(e))) return true;
        break;
    default: break;
    }
    return QWidget::eventFilter(watched, e);
}

void Form::closeEvent(QCloseEvent* e) {
    if (unloading_) {
        e->accept();
        return;
    }
    // The user's close box is a request: the screen's way out, or its unload
    // hooks, decide whether it goes.
    e->ignore();
    Guarded([&] {
        if (!wayOut_) {
            RunUnload(vbFormControlMenu);
            return;
        }
        const std::function<void()> wayOut = wayOut_;  // the way out may unload the screen
        wayOut();
    });
}
