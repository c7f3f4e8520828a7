#pragma once
// Text boxes whose limit holds for typing only, as the design screens need:
// a field filled from a record keeps all of its text even when it is longer
// than the box lets a user type, and so reaches the record again uncut.
// Change is raised whenever the text changes, also when the program fills the
// box, and only then: a box given the text it already shows raises nothing,
// so that opening a screen on an empty field neither marks the design
// changed nor writes the field.
#include <QLineEdit>
#include <QPlainTextEdit>

class TextBox : public QLineEdit {
    Q_OBJECT
public:
    explicit TextBox(QWidget* parent = nullptr);
    int MaxLength() const { return maxLength_; }
    void setMaxLength(int length) { maxLength_ = length; }
    QString Text() const { return text(); }
    void setText(const QString& value) { QLineEdit::setText(value); }

signals:
    void Change();

protected:
    void keyPressEvent(QKeyEvent* e) override;

private:
    int maxLength_ = 0;  // 0: no limit
    QString shown_;      // the text at the last Change
};

class MultiLineTextBox : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit MultiLineTextBox(QWidget* parent = nullptr);
    int MaxLength() const { return maxLength_; }
    void setMaxLength(int length) { maxLength_ = length; }
    QString Text() const { return toPlainText(); }
    void setText(const QString& value) { setPlainText(value); }
    // Locked: shown and selectable, never changed by the user.
    void setLocked(bool locked) { setReadOnly(locked); }

signals:
    void Change();

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    int RoomLeft() const;
    int maxLength_ = 0;
    QString shown_;  // the text at the last Change
};
