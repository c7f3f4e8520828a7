#pragma once
// Message boxes. Every question and notice of the program goes through MsgBox,
// so that tests can answer them from a queue and no modal box ever blocks a test.
#include <QList>
#include <QString>

enum MsgBoxStyle : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbAbortRetryIgnore = 2,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbRetryCancel = 5,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
    vbDefaultButton1 = 0,
    vbDefaultButton2 = 256,
    vbDefaultButton3 = 512,
};

enum MsgBoxResult : int {
    vbOK = 1,
    vbCancel = 2,
    vbAbort = 3,
    vbRetry = 4,
    vbIgnore = 5,
    vbYes = 6,
    vbNo = 7,
};

// Shows a box and returns the button pressed. The title defaults to "Cartomar".
int MsgBox(const QString& prompt, int style = vbOKOnly, const QString& title = QString());

// A short audible beep.
void Beep();

// Scripted answers for tests. Once enabled, MsgBox never opens a window: it
// records the box and returns the next queued answer. A box with only an OK
// button answers vbOK by itself when nothing is queued; any other box with an
// empty queue counts as unanswered and returns its default button.
namespace MsgBoxScript {
struct Shown {
    QString prompt;
    int style = 0;
    QString title;
    int answer = 0;
};
void Enable();
void Disable();
bool Enabled();
void Answer(int answer);        // queue one answer
void Clear();                   // forget shown boxes, queued answers, unanswered count
const QList<Shown>& History();  // every box shown since the last Clear
int Pending();                  // answers still queued
int Unanswered();               // boxes that needed an answer and found none
}  // namespace MsgBoxScript
