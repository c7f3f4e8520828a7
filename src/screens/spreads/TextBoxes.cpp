#include "screens/spreads/TextBoxes.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextCursor>

namespace {
// Raises a box's Change when its text differs from what it was at the last
// one; the toolkit signals also a text set anew to the same value.
template <class Box>
void ChangeOnNewText(Box* box, QString& shown, const QString& now) {
    if (now == shown) return;
    shown = now;
    emit box->Change();
}
}  // namespace

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    connect(this, &QLineEdit::textChanged, this, [this] { ChangeOnNewText(this, shown_, text()); });
}

void TextBox::keyPressEvent(QKeyEvent* e) {
    if (maxLength_ > 0 && !isReadOnly()) {
        const int room = maxLength_ - (static_cast<int>(text().size()) - static_cast<int>(selectedText().size()));
        if (e->matches(QKeySequence::Paste)) {
            // Pasted text is cut to the room left, as typing would be.
            if (room > 0) insert(QApplication::clipboard()->text().left(room));
            e->accept();
            return;
        }
        if (!e->text().isEmpty() && e->text().at(0).isPrint() && room < 1) {
            e->accept();
            return;
        }
    }
    QLineEdit::keyPressEvent(e);
}

MultiLineTextBox::MultiLineTextBox(QWidget* parent) : QPlainTextEdit(parent) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { ChangeOnNewText(this, shown_, toPlainText()); });
}

int MultiLineTextBox::RoomLeft() const {
    if (maxLength_ <= 0) return INT_MAX;
    const QTextCursor cursor = textCursor();
    const int selected = cursor.selectionEnd() - cursor.selectionStart();
    return maxLength_ - (static_cast<int>(toPlainText().size()) - selected);
}

void MultiLineTextBox::keyPressEvent(QKeyEvent* e) {
    const QString typed = e->text();
    const bool inserts =
        !typed.isEmpty() && (typed.at(0).isPrint() || e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter);
    if (inserts && !isReadOnly() && RoomLeft() < 1) {
        e->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(e);
}

void MultiLineTextBox::insertFromMimeData(const QMimeData* source) {
    if (!source->hasText()) return;
    const int room = RoomLeft();
    if (room <= 0) return;
    insertPlainText(source->text().left(room));
}
