#include "spreads/SortedListBox.h"

SortedListBox::SortedListBox(QWidget* parent) : QListWidget(parent) {
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!quiet_ && row >= 0) emit Click();
    });
}

int SortedListBox::AddItem(const QString& text) {
    int position = count();
    for (int i = 0; i < count(); ++i) {
        if (QString::compare(text, item(i)->text(), Qt::CaseInsensitive) < 0) {
            position = i;
            break;
        }
    }
    quiet_ = true;
    insertItem(position, text);
    quiet_ = false;
    return position;
}

void SortedListBox::RemoveItem(int index) {
    if (index < 0 || index >= count()) return;
    quiet_ = true;
    delete takeItem(index);
    setCurrentRow(-1);
    clearSelection();
    quiet_ = false;
}

void SortedListBox::Clear() {
    quiet_ = true;
    clear();
    quiet_ = false;
}

QString SortedListBox::List(int index) const {
    const QListWidgetItem* entry = item(index);
    return entry ? entry->text() : QString();
}

int SortedListBox::ListIndex() const {
    const int row = currentRow();
    return row >= 0 && item(row)->isSelected() ? row : -1;
}

void SortedListBox::setListIndex(int index) {
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

QString SortedListBox::Text() const {
    const int row = ListIndex();
    return row >= 0 ? List(row) : QString();
}
