#include "screens/platform/ErrorReport.h"

#include <QCoreApplication>

#include "screens/platform/MsgBox.h"

void ReportError(const RuntimeError& error) {
    MsgBox(QCoreApplication::translate("ErrorReport", "Run-time error '%1':\n\n%2").arg(error.Number()).arg(error.Description()),
           vbOKOnly | vbCritical);
}

void ReportUnexpected(const std::exception& error) {
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
