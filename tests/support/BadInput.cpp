#include "support/BadInput.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QtTest>

#include "core/platform/CodePage.h"
#include "screens/spreads/TextBoxes.h"

namespace BadInput {

QString Foreign() { return QStringLiteral("Ω漢€") + QString::fromUcs4(U"\U0001F0A1", 1); }

namespace {

// The limit a user meets when typing; 0 for none.
int LimitOf(QWidget* box) {
    if (auto* t = qobject_cast<TextBox*>(box)) return t->MaxLength();
    if (auto* m = qobject_cast<MultiLineTextBox*>(box)) return m->MaxLength();
    if (auto* l = qobject_cast<QLineEdit*>(box)) return l->maxLength() == 32767 ? 0 : l->maxLength();
    return 0;
}

QString TextOf(QWidget* box) {
    if (auto* l = qobject_cast<QLineEdit*>(box)) return l->text();
    return static_cast<QPlainTextEdit*>(box)->toPlainText();
}

bool Editable(QWidget* box) {
    if (!box->isEnabled()) return false;
    if (auto* l = qobject_cast<QLineEdit*>(box)) return !l->isReadOnly();
    if (auto* p = qobject_cast<QPlainTextEdit*>(box)) return !p->isReadOnly();
    return false;
}

void TourOne(QWidget* box) {
    const QString name = box->objectName();
    const int limit = LimitOf(box);
    // Past the limit, or a good way into a box without one.
    box->setFocus();
    QTest::keyClick(box, Qt::Key_End);
    QTest::keyClicks(box, QString((limit > 0 ? limit : 300) + 20, QLatin1Char('x')));
    if (limit > 0) QVERIFY2(TextOf(box).size() <= limit, qPrintable(name));
    QApplication::clipboard()->setText(Foreign());
    if (auto* l = qobject_cast<QLineEdit*>(box)) l->selectAll();
    else static_cast<QPlainTextEdit*>(box)->selectAll();
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    const QString text = TextOf(box);
    QVERIFY2(AnsiRepresentable(text), qPrintable(name + QStringLiteral(": ") + text));
    QVERIFY2(text.contains(QStringLiteral("€")) || limit < 3, qPrintable(name + QStringLiteral(": ") + text));
}

}  // namespace

int TourTextBoxes(QWidget& screen) {
    int tried = 0;
    QList<QWidget*> boxes;
    for (QWidget* w : screen.findChildren<QWidget*>())
        if (Editable(w) && w->isVisibleTo(&screen)) boxes << w;
    for (QWidget* box : boxes) {
        TourOne(box);
        if (QTest::currentTestFailed()) break;
        tried += 2;
    }
    return tried;
}

}  // namespace BadInput
