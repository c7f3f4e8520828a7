#include "screens/platform/ErrorReport.h"

#include <QCoreApplication>

#include "screens/platform/Events.h"
#include "screens/platform/MsgBox.h"

// The operation that met the error ends with the box, and so does the
// hourglass it may have put up: the box waits for the user.
void ReportError(const RuntimeError& error) {
    SetScreenPointer(MousePointer::Default);
    MsgBox(QCoreApplication::translate("ErrorReport", "Run-time error '%1':\n\n%2")
               .arg(error.Number())
               .arg(error.Description()),
           vbOKOnly | vbCritical);
}

void ReportUnexpected(const std::exception& error) {
    SetScreenPointer(MousePointer::Default);
    MsgBox(QCoreApplication::translate("ErrorReport", "Run-time error '%1':\n\n%2")
               .arg(51)
               .arg(QString::fromLocal8Bit(error.what())),
           vbOKOnly | vbCritical);
}

bool Guarded(const std::function<void()>& operation) {
    try {
        operation();
        return true;
    } catch (const RuntimeError& e) {
        ReportError(e);
    } catch (const std::bad_alloc&) {
        ReportError(RuntimeError(7, QCoreApplication::translate("Errors", "Out of memory")));
    } catch (const std::exception& e) {
        ReportUnexpected(e);
    }
    return false;
}
