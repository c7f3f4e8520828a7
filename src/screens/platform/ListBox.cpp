#include "screens/platform/ListBox.h"

#include <QFocusEvent>
#include <QMouseEvent>

ListBox::ListBox(QWidget* parent) : QListWidget(parent) {
    setSelectionMode(QAbstractItemView::SingleSelection);
    // The selection, not the highlight: with the keys of a single-selection
    // list both move together, and a multiple-selection list changes only
    // when an entry is toggled.
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        changed_ = true;
        if (!quiet_) emit Click();
    });
    connect(this, &QListWidget::itemDoubleClicked, this, [this] { emit DblClick(); });
}

void ListBox::mousePressEvent(QMouseEvent* e) {
    changed_ = false;
    QListWidget::mousePressEvent(e);
    // A click on the entry already selected changes nothing, yet it is a
    // click on that entry all the same.
    const QListWidgetItem* hit = itemAt(e->position().toPoint());
    if (!changed_ && e->button() == Qt::LeftButton && hit && hit->isSelected()) emit Click();
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex& index, const QEvent* e) const {
    const QItemSelectionModel::SelectionFlags command = QListWidget::selectionCommand(index, e);
    // The user moves the one selected entry but never takes it away.
    if (selectionMode() == SingleSelection && index.isValid() &&
        (command & (QItemSelectionModel::Toggle | QItemSelectionModel::Deselect)))
        return QItemSelectionModel::ClearAndSelect;
    return command;
}

void ListBox::focusInEvent(QFocusEvent* e) {
    QListWidget::focusInEvent(e);
    // With nothing selected no entry has the highlight either, so that the
    // first arrow key selects the first entry instead of the one after it.
    if (selectionMode() == SingleSelection && ListIndex() < 0 && currentRow() >= 0)
        selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
}

int ListBox::AddItem(const QString& text, int itemData) {
    int position = count();
    if (sorted_) {
        // The entries stand in order already: the place after the last entry
        // that does not sort after the new one, found by halving, so that
        // filling a list of thousands stays quick.
        int low = 0;
        while (low < position) {
            const int middle = low + (position - low) / 2;
            if (QString::compare(text, item(middle)->text(), Qt::CaseInsensitive) < 0) position = middle;
            else low = middle + 1;
        }
    }
    auto* entry = new QListWidgetItem(text);
    entry->setData(Qt::UserRole, itemData);
    quiet_ = true;
    insertItem(position, entry);
    quiet_ = false;
    return position;
}

void ListBox::RemoveItem(int index) {
    if (index < 0 || index >= count()) return;
    quiet_ = true;
    delete takeItem(index);
    setCurrentRow(-1);
    clearSelection();
    quiet_ = false;
}

void ListBox::Clear() {
    quiet_ = true;
    clear();
    quiet_ = false;
}

QString ListBox::List(int index) const {
    const QListWidgetItem* entry = item(index);
    return entry ? entry->text() : QString();
}

int ListBox::ItemData(int index) const {
    const QListWidgetItem* entry = item(index);
    return entry ? entry->data(Qt::UserRole).toInt() : 0;
}

int ListBox::ListIndex() const {
    const int row = currentRow();
    return row >= 0 && item(row)->isSelected() ? row : -1;
}

void ListBox::setListIndex(int index) {
    quiet_ = true;
    if (index < 0 || index >= count()) {
        setCurrentRow(-1);
        clearSelection();
        quiet_ = false;
        return;
    }
    setCurrentRow(index);
    item(index)->setSelected(true);
    quiet_ = false;
    emit Click();
}

QString ListBox::Text() const {
    const int row = ListIndex();
    return row >= 0 ? List(row) : QString();
}

bool ListBox::Selected(int index) const {
    const QListWidgetItem* entry = item(index);
    return entry && entry->isSelected();
}
