#pragma once
// Helpers of the spread screen tests: the mouse as a user moves it (the main
// screen's buttons take it too), dragging a location rectangle, and reading a
// record file's raw records.
#include <QApplication>
#include <QMouseEvent>

#include "core/platform/FileSys.h"
#include "core/platform/Twips.h"
#include "support/ModalScript.h"

namespace SpreadTestKit {

inline void SendMouse(QWidget* w, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
    QMouseEvent e(type, QPointF(at), w->mapToGlobal(QPointF(at)), button, held, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}

// Presses the left button at `from` (pixels in the widget), moves to `to`
// and releases there; `to` may lie outside the widget and its canvas, as
// the mouse stays with the widget that took the press.
inline void Drag(QWidget* w, QPoint from, QPoint to) {
    // Each move is given where the pointer stands then, seen from the widget
    // as it stands then, for the widget moves under the pointer.
    const QPoint origin = w->mapToGlobal(QPoint(0, 0));
    auto local = [w, origin](QPoint p) { return w->mapFromGlobal(origin + p); };
    SendMouse(w, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    SendMouse(w, QEvent::MouseMove, local((from + to) / 2), Qt::NoButton, Qt::LeftButton);
    SendMouse(w, QEvent::MouseMove, local(to), Qt::NoButton, Qt::LeftButton);
    SendMouse(w, QEvent::MouseButtonRelease, local(to), Qt::LeftButton, Qt::NoButton);
}

// The records of a file as raw bytes.
inline QList<QByteArray> RawRecords(const QString& path, int length) {
    const QByteArray all = ReadWholeFile(path);
    QList<QByteArray> records;
    for (int at = 0; at + length <= all.size(); at += length) records.append(all.mid(at, length));
    return records;
}

}  // namespace SpreadTestKit
