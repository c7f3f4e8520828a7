#include "screens/decks/DeckControls.h"

#include <QFocusEvent>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include "core/platform/FileSys.h"
#include "core/records/Records.h"

QPushButton* MakeButton(QWidget* parent, const char* name, const QString& caption, const QRect& where) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(QLatin1String(name));
    button->setGeometry(where);
    button->setAutoDefault(false);
    return button;
}

QLabel* MakeLabel(QWidget* parent, const QString& caption, const QRect& where, const char* name) {
    auto* label = new QLabel(caption, parent);
    if (name) label->setObjectName(QLatin1String(name));
    label->setGeometry(where);
    return label;
}

int FindLine(const QListWidget* list, const QString& name) {
    const QString wanted = TrimField(name);
    for (int i = 0; i < list->count(); ++i)
        if (TrimField(list->item(i)->text()) == wanted) return i;
    return -1;
}

bool ClipText(QPlainTextEdit* box, int limit) {
    const QString text = box->toPlainText();
    if (text.size() <= limit) return false;
    const QSignalBlocker quiet(box);
    box->setPlainText(text.left(limit));
    box->moveCursor(QTextCursor::End);
    return true;
}

void FocusComboBox::focusInEvent(QFocusEvent* e) {
    QComboBox::focusInEvent(e);
    emit GotFocus();
}
