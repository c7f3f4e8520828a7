#pragma once
// The frame of the program. Every screen runs inside its area; its load runs
// the whole start-up. Its close box only asks the exit question, which is the
// one way out; when it unloads, Temp/ is emptied.
#include "screens/platform/Form.h"

class QMdiArea;

class MDIMainForm : public Form {
    Q_OBJECT
public:
    MDIMainForm();

    // The folder whose data the run works on: the executable's folder, or a
    // test's folder set before the frame is first asked for.
    static void SetProgramDirectory(const QString& programDir);
    static QString ProgramDirectory();

    // A package file the desktop handed over (opened from the file manager):
    // once the main screen stands, the installer opens on it instead of the
    // offer to install designs. Empty for a plain start.
    static void SetPackageToOpen(const QString& packageFile);

    // Brings the frame window itself up (it is the desktop's window, not a
    // screen inside its own area).
    void ShowFrame();

    QMdiArea* Area() const { return area_; }

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void resizeEvent(QResizeEvent* e) override;

private:
    QMdiArea* area_ = nullptr;
};

// "Are you sure you want to EXIT Cartomar?": on Yes the frame unloads and the
// process ends; on No nothing changes.
void ExitQuestion();
