#pragma once
// The base of every screen. A screen is created at first use through Get<T>(),
// its Form_Load runs once, and Unload destroys it so that a later Get<T>()
// starts afresh. Non-modal screens live inside the frame's MDI area; a modal
// Show runs a local event loop and returns when the screen hides or unloads.
// Positions and sizes are in twips, relative to the frame's inner area.
#include <QWidget>
#include <functional>

#include "screens/platform/Events.h"

class QMdiArea;
class QMdiSubWindow;
class QEventLoop;

// Why a screen is asked to unload.
enum UnloadMode : int {
    vbFormControlMenu = 0,  // the user's close box
    vbFormCode = 1,         // the program's Unload
};

class QKeyEvent;

class Form : public QWidget {
    Q_OBJECT
public:
    explicit Form(QWidget* parent = nullptr);
    ~Form() override;

    // Runs Form_Load the first time only; Get<T>() calls it. A Form_Load
    // that raises an error takes the screen away again before the error
    // goes on to the caller.
    void Load();
    bool IsLoadedForm() const { return loaded_; }

    void Show(bool modal = false);
    void Hide();
    // Runs Form_QueryUnload and Form_Unload; unless one cancels, hides the
    // screen and destroys it once control is back in the event loop. Returns
    // false when cancelled.
    bool Unload();
    bool Visible() const;
    bool ShownModal() const { return modalLoop_ != nullptr; }

    QString Caption() const;
    void setCaption(const QString& caption);

    int Left() const;
    int Top() const;
    int Width() const;
    int Height() const;
    void Move(int left, int top);
    void Move(int left, int top, int width, int height);

    void setMousePointer(MousePointer pointer);

    // Wraps an event handler so that a run-time error it raises shows the
    // error box and ends only that handler.
    static std::function<void()> Handler(std::function<void()> body);

    // The screen's own way out, its Close or Cancel. The close box of the
    // title bar runs it, so that leaving by the frame asks the same questions
    // and leads back where that button leads. A screen without one is
    // unloaded by its close box, through Form_QueryUnload with
    // vbFormControlMenu: enough where the way out does nothing but unload.
    void setWayOut(std::function<void()> wayOut) { wayOut_ = std::move(wayOut); }

    // Internal: set by Get<T>() so that the slot empties when the screen goes.
    void setOnDestroyed(std::function<void()> hook) { onDestroyed_ = std::move(hook); }
    // Internal: the frame tells a screen about (de)activation.
    void NotifyActivated(bool active);

protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Deactivate() {}
    virtual void Form_QueryUnload(bool& cancel, int unloadMode) {
        (void)cancel;
        (void)unloadMode;
    }
    virtual void Form_Unload(bool& cancel) { (void)cancel; }
    // Key preview: the screen sees keys before its controls. Set handled to
    // keep the key from the control.
    virtual void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) {
        (void)key;
        (void)shift;
        (void)handled;
    }
    virtual void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) {
        (void)key;
        (void)shift;
        (void)handled;
    }

    QSize sizeHint() const override { return size(); }
    bool event(QEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* e) override;
    // Hands a key, whether the form or one of its controls has it, to
    // Form_KeyDown or Form_KeyUp; true when the form handled it.
    bool KeyToForm(QKeyEvent* k);
    void closeEvent(QCloseEvent* e) override;

    // The widget whose geometry is the screen's (the MDI sub-window when in
    // the frame, the screen itself otherwise).
    QWidget* outer() const;

private:
    bool RunUnload(int mode);
    // Hides the screen, empties its slot and destroys it once control is
    // back in the event loop.
    void Dispose();
    void watchChildren(QObject* root);
    void leaveFrame();
    void enterFrame();

    QPoint FrameOrigin() const;
    void ApplyPosition();

    int left_ = 0;  // twips, relative to the frame's inner area
    int top_ = 0;
    bool loaded_ = false;
    bool unloading_ = false;
    bool active_ = false;
    QMdiSubWindow* sub_ = nullptr;
    QEventLoop* modalLoop_ = nullptr;
    std::function<void()> onDestroyed_;
    std::function<void()> wayOut_;
};

// The frame's area for screens. MDIMainForm registers it; without one (in
// some tests) screens are top-level windows.
void SetFrameArea(QMdiArea* area);
QMdiArea* FrameArea();
// The frame's inner size and its own position on the desktop, in twips.
int FrameInnerWidth();
int FrameInnerHeight();
int FrameOwnTop();
int FrameOwnLeft();

template <class T>
T*& ScreenSlot() {
    static T* slot = nullptr;
    return slot;
}

// The live instance of a screen, created (and loaded) at first use.
template <class T>
T& Get() {
    T*& slot = ScreenSlot<T>();
    if (!slot) {
        T* created = new T();
        slot = created;
        created->setOnDestroyed([] { ScreenSlot<T>() = nullptr; });
        created->Load();
    }
    return *slot;
}

template <class T>
bool IsLoaded() {
    return ScreenSlot<T>() != nullptr;
}

// Unloads a screen if it is loaded.
template <class T>
void UnloadScreen() {
    if (T* f = ScreenSlot<T>()) f->Unload();
}
