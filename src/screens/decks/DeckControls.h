#pragma once
// The small control helpers of the deck screens: buttons and labels placed
// in twips, a list's line by name, a box kept within its limit, and a combo
// box that reports its focus.
#include <QComboBox>
#include <QRect>
#include <QString>
#include <QStringList>

class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QWidget;

QPushButton* MakeButton(QWidget* parent, const char* name, const QString& caption, const QRect& where);
QLabel* MakeLabel(QWidget* parent, const QString& caption, const QRect& where, const char* name = nullptr);

// The line whose text, trimmed, equals the name trimmed; -1 when none.
int FindLine(const QListWidget* list, const QString& name);

// Keeps a multi-line box within its limit; true when it had to cut.
bool ClipText(QPlainTextEdit* box, int limit);

// A combo box that reports when it takes the focus, as the deck list's card
// box fills itself then.
class FocusComboBox : public QComboBox {
    Q_OBJECT
public:
    using QComboBox::QComboBox;
signals:
    void GotFocus();

protected:
    void focusInEvent(QFocusEvent* e) override;
};
