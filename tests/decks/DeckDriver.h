#pragma once
// Driving the deck screens from a test: picking lines in the lists and files
// in the choosers.
#include <QDir>
#include <QFileInfo>
#include <QList>
#include <QSet>
#include <functional>

#include "screens/decks/FileChooser.h"
#include "screens/platform/FileLists.h"
#include "support/ScreenTest.h"

inline int LineOf(const QListWidget* list, const QString& text) {
    for (int i = 0; i < list->count(); ++i)
        if (list->item(i)->text().trimmed() == text) return i;
    return -1;
}

// Moves a list's highlight to a line with the keys, as a user does.
inline void ArrowToLine(ListBox* list, const QString& text) {
    const int row = LineOf(list, text);
    QVERIFY2(row >= 0, qPrintable(text));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Home);
    for (int i = 0; i < row; ++i) QTest::keyClick(list, Qt::Key_Down);
}

// Picks a file in a chooser as a user does: opens its folder, arrows to the
// file, presses Enter. An empty name cancels.
inline void PickFile(FileChooser& chooser, const QString& folder, const QString& name) {
    if (name.isEmpty()) {
        chooser.cmdCancel_Click();
        return;
    }
    if (chooser.dirSelection->Path() != QDir::cleanPath(folder)) chooser.dirSelection->setPath(folder);
    ArrowToLine(chooser.filSelection, name);
    QTest::keyClick(chooser.filSelection, Qt::Key_Return);
}

template <class T>
std::function<void(T&)> Pick(const QString& folder, const QString& name) {
    return [folder, name](T& chooser) { PickFile(chooser, folder, name); };
}

// The names of the files in a folder.
inline QSet<QString> FilesIn(const QString& folder) {
    const QStringList names = QDir(folder).entryList(QDir::Files);
    return QSet<QString>(names.begin(), names.end());
}

// Selects a line as a click does.
inline void ClickLine(ListBox* list, const QString& text) {
    const int row = LineOf(list, text);
    QVERIFY2(row >= 0, qPrintable(text));
    list->setListIndex(row);
}
