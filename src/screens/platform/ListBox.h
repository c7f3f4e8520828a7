#pragma once
// The toolkit's list box, the one way every screen gets a list's Click.
//
// Click is raised once for each change of the selection, whoever made it:
// a click of the mouse, the arrow keys (or any key that moves the
// highlight), or the program setting ListIndex. A mouse click on the entry
// that is already selected raises it too, once; a double click adds DblClick.
// Filling and emptying the list (AddItem, RemoveItem, Clear) raise nothing.
// Code that must change the selection without running Click says so where
// it does it, with a QSignalBlocker on the list.
//
// Positions count from 0 and -1 means that nothing is selected. A sorted
// list keeps its entries in alphabetical order, capitals and small letters
// together, a new entry after any equal one.
#include <QListWidget>

class ListBox : public QListWidget {
    Q_OBJECT
public:
    explicit ListBox(QWidget* parent = nullptr);

    bool Sorted() const { return sorted_; }
    void setSorted(bool sorted) { sorted_ = sorted; }

    // Adds an entry (in its place when sorted) carrying a number, and returns
    // the position it took.
    int AddItem(const QString& text, int itemData = 0);
    // Removes an entry; afterwards nothing is selected.
    void RemoveItem(int index);
    void Clear();

    int ListCount() const { return count(); }
    QString List(int index) const;
    int ItemData(int index) const;
    // The selected entry, -1 when none.
    int ListIndex() const;
    // Selects an entry, raising Click once (also when it was selected
    // already); -1 or a position past the end clears the selection quietly.
    void setListIndex(int index);
    // The selected entry's text, "" when none.
    QString Text() const;
    // Whether an entry of a multiple-selection list is selected.
    bool Selected(int index) const;

signals:
    void Click();
    void DblClick();

protected:
    void mousePressEvent(QMouseEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* e = nullptr) const override;

private:
    bool sorted_ = false;
    bool quiet_ = false;    // filling or emptying: no Click
    bool changed_ = false;  // the selection changed since the press began
};
