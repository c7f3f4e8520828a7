#include "screens/platform/Events.h"

#include <QApplication>
#include <QCursor>

void DoEvents() { QCoreApplication::processEvents(QEventLoop::AllEvents); }

void SetScreenPointer(MousePointer pointer) {
    while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
    if (pointer == MousePointer::Hourglass) QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
}
