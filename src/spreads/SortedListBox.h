#pragma once
// The name lists of the spread screens: entries kept in alphabetical order
// (capitals and small letters together, a new entry after any equal one), one
// selected entry at most. Positions count from 0 and -1 means that nothing is
// selected. Click is raised when the user moves the selection and whenever
// the program selects an entry, so that selecting by code loads what the
// entry names just as a click does.
#include <QListWidget>

class SortedListBox : public QListWidget {
    Q_OBJECT
public:
    explicit SortedListBox(QWidget* parent = nullptr);

    // Inserts in order and returns the position taken.
    int AddItem(const QString& text);
    // Removes an entry; afterwards nothing is selected.
    void RemoveItem(int index);
    void Clear();

    int ListCount() const { return count(); }
    QString List(int index) const;
    int ListIndex() const;
    // Selects an entry (raising Click), or clears the selection with -1 or a
    // position past the end.
    void setListIndex(int index);
    // The entry selected, "" when none.
    QString Text() const;

signals:
    void Click();

private:
    bool quiet_ = false;
};
