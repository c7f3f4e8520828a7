#include "screens/platform/MsgBox.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace {

struct Script {
    bool enabled = false;
    QList<int> answers;
    QList<MsgBoxScript::Shown> history;
    int unanswered = 0;
};

Script& TheScript() {
    static Script s;
    return s;
}

QList<int> ButtonsOf(int style) {
    switch (style & 7) {
    case vbOKCancel: return {vbOK, vbCancel};
    case vbAbortRetryIgnore: return {vbAbort, vbRetry, vbIgnore};
    case vbYesNoCancel: return {vbYes, vbNo, vbCancel};
    case vbYesNo: return {vbYes, vbNo};
    case vbRetryCancel: return {vbRetry, vbCancel};
    default: return {vbOK};
    }
}

int DefaultOf(int style) {
    const QList<int> buttons = ButtonsOf(style);
    const int index = (style & vbDefaultButton3) ? 2 : (style & vbDefaultButton2) ? 1 : 0;
    return buttons.value(index, buttons.first());
}

QMessageBox::StandardButton Standard(int answer) {
    switch (answer) {
    case vbOK: return QMessageBox::Ok;
    case vbCancel: return QMessageBox::Cancel;
    case vbAbort: return QMessageBox::Abort;
    case vbRetry: return QMessageBox::Retry;
    case vbIgnore: return QMessageBox::Ignore;
    case vbYes: return QMessageBox::Yes;
    default: return QMessageBox::No;
    }
}

QMessageBox::Icon IconOf(int style) {
    switch (style & 0x70) {
    case vbCritical: return QMessageBox::Critical;
    case vbQuestion: return QMessageBox::Question;
    case vbExclamation: return QMessageBox::Warning;
    case vbInformation: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

// The program writes a break inside a message as "\n". Text that comes
// from elsewhere (a record, a system error) may break its lines with CR LF
// or a lone CR: each of the three shows as one break.
QString BoxText(const QString& prompt) {
    QString text = prompt;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text;
}

int Scripted(const QString& prompt, int style, const QString& title) {
    Script& s = TheScript();
    const QList<int> buttons = ButtonsOf(style);
    int answer;
    if (!s.answers.isEmpty()) {
        answer = s.answers.takeFirst();
    } else if (buttons.size() == 1) {
        answer = vbOK;
    } else {
        ++s.unanswered;
        answer = DefaultOf(style);
    }
    s.history.append({prompt, style, title, answer});
    return answer;
}

}  // namespace

int MsgBox(const QString& prompt, int style, const QString& title) {
    const QString caption = title.isEmpty() ? QCoreApplication::translate("MsgBox", "Cartomar") : title;
    const QString text = BoxText(prompt);
    if (TheScript().enabled) return Scripted(text, style, caption);

    // The box lives on the heap under the active screen: should that screen
    // go while the box waits (a screen unloaded just before), it takes the
    // box with it and the answer is that of Esc.
    QPointer<QMessageBox> box =
        new QMessageBox(IconOf(style), caption, text, QMessageBox::NoButton, QApplication::activeWindow());
    // Messages are plain text: a name in one that looks like markup (a deck
    // called "<b>Sun</b>") shows as typed, and its breaks stay breaks.
    box->setTextFormat(Qt::PlainText);
    const QList<int> buttons = ButtonsOf(style);
    QHash<QAbstractButton*, int> answerOf;
    for (int b : buttons) answerOf.insert(box->addButton(Standard(b)), b);
    box->setDefaultButton(Standard(DefaultOf(style)));
    // Esc answers Cancel where there is one, otherwise the only button.
    if (buttons.contains(vbCancel)) box->setEscapeButton(box->button(QMessageBox::Cancel));
    else if (buttons.size() == 1) box->setEscapeButton(box->buttons().first());
    box->exec();
    const int escAnswer = buttons.contains(vbCancel) ? vbCancel : buttons.last();
    if (!box) return escAnswer;
    const int answer = answerOf.value(box->clickedButton(), escAnswer);
    delete box;
    return answer;
}

void Beep() { QApplication::beep(); }

namespace MsgBoxScript {
void Enable() { TheScript().enabled = true; }
void Disable() { TheScript().enabled = false; }
bool Enabled() { return TheScript().enabled; }
void Answer(int answer) { TheScript().answers.append(answer); }
void Clear() {
    Script& s = TheScript();
    s.answers.clear();
    s.history.clear();
    s.unanswered = 0;
}
const QList<Shown>& History() { return TheScript().history; }
int Pending() { return static_cast<int>(TheScript().answers.size()); }
int Unanswered() { return TheScript().unanswered; }
}  // namespace MsgBoxScript
