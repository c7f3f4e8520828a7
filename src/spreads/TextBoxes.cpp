#include "spreads/TextBoxes.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextCursor>
#include <QValidator>

namespace {
// Refuses an edit that would lengthen the text past the limit; shortening
// and replacing within it are always allowed, whatever the text held before.
class TypingLimit : public QValidator {
public:
    explicit TypingLimit(TextBox* box) : QValidator(box), box_(box) {}
    State validate(QString& input, int&) const override {
        const int limit = box_->MaxLength();
        if (limit > 0 && input.size() > limit && input.size() > box_->text().size()) return Invalid;
        return Acceptable;
    }

private:
    TextBox* box_;
};
}  // namespace

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    setValidator(new TypingLimit(this));
    connect(this, &QLineEdit::textChanged, this, [this] { emit Change(); });
}

void TextBox::Type(const QString& value) {
    QLineEdit::setText(maxLength_ > 0 ? value.left(maxLength_) : value);
}

MultiLineTextBox::MultiLineTextBox(QWidget* parent) : QPlainTextEdit(parent) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { emit Change(); });
}

int MultiLineTextBox::RoomLeft() const {
    if (maxLength_ <= 0) return INT_MAX;
    const QTextCursor cursor = textCursor();
    const int selected = cursor.selectionEnd() - cursor.selectionStart();
    return maxLength_ - (static_cast<int>(toPlainText().size()) - selected);
}

void MultiLineTextBox::keyPressEvent(QKeyEvent* e) {
    const QString typed = e->text();
    const bool inserts = !typed.isEmpty() && (typed.at(0).isPrint() || e->key() == Qt::Key_Return ||
                                              e->key() == Qt::Key_Enter);
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
