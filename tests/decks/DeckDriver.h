#pragma once
// Driving the deck screens from a test: acting on a modal screen when it
// shows, picking files in the choosers, and comparing Cards/ with the card
// records.
#include <QDir>
#include <QFileInfo>
#include <QList>
#include <QListWidget>
#include <QPointer>
#include <QSet>
#include <QTimer>
#include <QtTest>
#include <functional>

#include "decks/FileChooser.h"
#include "platform/FileLists.h"
#include "platform/FileSys.h"
#include "platform/Form.h"
#include "store/RecordFile.h"
#include "store/mdlVariables.h"

// Acts on each new showing of screen T with the next queued action. A
// showing with no action left is closed and counted, so a test fails rather
// than waits.
template <class T>
class OnEachShowing : public QObject {
public:
    explicit OnEachShowing(QList<std::function<void(T&)>> actions) : actions_(std::move(actions)) {
        connect(&timer_, &QTimer::timeout, this, [this] { Poll(); });
        timer_.start(5);
    }
    int Remaining() const { return static_cast<int>(actions_.size()); }
    int Unexpected() const { return unexpected_; }

private:
    void Poll() {
        T* screen = ScreenSlot<T>();
        if (!screen || screen == last_.data() || !screen->isVisible()) return;
        last_ = screen;
        if (actions_.isEmpty()) {
            ++unexpected_;
            screen->Unload();
            return;
        }
        auto action = actions_.takeFirst();
        QPointer<T> acted(screen);
        action(*screen);
        // A failed check inside the action must not leave a modal screen
        // waiting for nobody.
        if (QTest::currentTestFailed() && acted && ScreenSlot<T>() == acted.data()) acted->Unload();
    }

    QList<std::function<void(T&)>> actions_;
    QPointer<T> last_;
    QTimer timer_;
    int unexpected_ = 0;
};

// Picks a file in a chooser as a user does: opens its folder, clicks it,
// presses Select. An empty name cancels.
inline void PickFile(FileChooser& chooser, const QString& folder, const QString& name) {
    if (name.isEmpty()) {
        chooser.cmdCancel_Click();
        return;
    }
    if (chooser.dirSelection->Path() != QDir::cleanPath(folder)) chooser.dirSelection->setPath(folder);
    int row = -1;
    for (int i = 0; i < chooser.filSelection->ListCount(); ++i)
        if (chooser.filSelection->List(i) == name) row = i;
    QVERIFY2(row >= 0, qPrintable(name));
    chooser.filSelection->setListIndex(row);
    chooser.cmdSelect_Click();
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

// What Cards/ must hold: every picture and sound that a card record names,
// and the default picture.
inline QSet<QString> FilesNamedByCards() {
    QSet<QString> named{QStringLiteral("C000000.bmp")};
    for (const CardRecord& card : ReadAllRecords<CardRecord>(CardsPath)) {
        for (const auto& picture : card.CardPicture) named.insert(picture.Trimmed());
        for (const auto& sound : card.CardSound)
            if (!sound.IsBlank()) named.insert(sound.Trimmed());
    }
    return named;
}

inline int LineOf(const QListWidget* list, const QString& text) {
    for (int i = 0; i < list->count(); ++i)
        if (list->item(i)->text().trimmed() == text) return i;
    return -1;
}

// Selects a line as a click does.
inline void ClickLine(QListWidget* list, const QString& text) {
    const int row = LineOf(list, text);
    QVERIFY2(row >= 0, qPrintable(text));
    list->setCurrentRow(row);
    list->item(row)->setSelected(true);
    emit list->itemClicked(list->item(row));
}
