#include "support/TextFit.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QTextDocument>

namespace {

// The text as shown: an ampersand marks the next letter as the shortcut.
QString WithoutMnemonic(const QString& text) {
    QString shown;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&') && i + 1 < text.size()) ++i;
        shown += text[i];
    }
    return shown;
}

QString Name(const QWidget& w) {
    const QString kind = QString::fromLatin1(w.metaObject()->className());
    return w.objectName().isEmpty() ? kind : kind + QLatin1Char(' ') + w.objectName();
}

QString Report(const QWidget& w, const QString& text, const char* measure, int needs, int has) {
    return QStringLiteral("%1 \"%2\": %3 %4, room %5").arg(Name(w), text, QLatin1String(measure)).arg(needs).arg(has);
}

int LineWidth(const QFontMetrics& metrics, const QString& text) {
    int widest = 0;
    for (const QString& line : text.split(QLatin1Char('\n'))) widest = std::max(widest, metrics.horizontalAdvance(line));
    return widest;
}

void CheckLabel(const QLabel& label, QStringList& out) {
    const QString text = label.text();
    if (text.isEmpty()) return;
    const QRect room = label.contentsRect().adjusted(label.margin(), label.margin(), -label.margin(), -label.margin());
    if (label.textFormat() == Qt::RichText || (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(text))) {
        QTextDocument document;
        document.setDefaultFont(label.font());
        document.setHtml(text);
        document.setDocumentMargin(0);
        if (label.wordWrap()) document.setTextWidth(room.width());
        const QSize needs = document.size().toSize();
        if (!label.wordWrap() && needs.width() > room.width())
            out << Report(label, text, "width", needs.width(), room.width());
        else if (needs.height() > room.height()) out << Report(label, text, "height", needs.height(), room.height());
        return;
    }
    const QString shown = label.buddy() ? WithoutMnemonic(text) : text;
    const QFontMetrics metrics(label.font());
    if (label.wordWrap()) {
        const int height = metrics.boundingRect(QRect(0, 0, room.width(), 1 << 20), Qt::TextWordWrap, shown).height();
        if (height > room.height()) out << Report(label, shown, "height", height, room.height());
    } else if (LineWidth(metrics, shown) > room.width()) {
        out << Report(label, shown, "width", LineWidth(metrics, shown), room.width());
    }
}

void CheckButton(const QAbstractButton& button, QStringList& out) {
    if (button.text().isEmpty()) return;
    QStyle::SubElement room;
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    option.icon = button.icon();
    option.iconSize = button.iconSize();
    if (qobject_cast<const QPushButton*>(&button)) room = QStyle::SE_PushButtonContents;
    else if (qobject_cast<const QCheckBox*>(&button)) room = QStyle::SE_CheckBoxContents;
    else if (qobject_cast<const QRadioButton*>(&button)) room = QStyle::SE_RadioButtonContents;
    else return;
    const int has = button.style()->subElementRect(room, &option, &button).width();
    const QString shown = WithoutMnemonic(button.text());
    const int needs = LineWidth(button.fontMetrics(), shown) + (button.icon().isNull() ? 0 : button.iconSize().width() + 4);
    if (needs > has) out << Report(button, shown, "width", needs, has);
}

void CheckTabs(const QTabBar& bar, QStringList& out) {
    for (int i = 0; i < bar.count(); ++i) {
        if (!bar.isTabVisible(i)) continue;
        const QString shown = WithoutMnemonic(bar.tabText(i));
        if (!bar.rect().contains(bar.tabRect(i))) {
            out << Report(bar, shown, "beyond the bar at", bar.tabRect(i).right(), bar.rect().right());
            continue;
        }
        QStyleOptionTab option;
        option.initFrom(&bar);
        option.rect = bar.tabRect(i);
        option.text = bar.tabText(i);
        option.shape = bar.shape();
        option.icon = bar.tabIcon(i);
        option.iconSize = bar.iconSize();
        option.documentMode = bar.documentMode();
        for (const auto side : {QTabBar::LeftSide, QTabBar::RightSide})
            if (const QWidget* extra = bar.tabButton(i, side))
                (side == QTabBar::LeftSide ? option.leftButtonSize : option.rightButtonSize) = extra->size();
        const int has = bar.style()->subElementRect(QStyle::SE_TabBarTabText, &option, &bar).width();
        const int needs = bar.fontMetrics().horizontalAdvance(shown);
        if (needs > has) out << Report(bar, shown, "width", needs, has);
    }
}

// Every item, since each of them is shown in the box once chosen.
void CheckComboBox(const QComboBox& combo, QStringList& out) {
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    option.frame = combo.hasFrame();
    const int has =
        combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo).width();
    for (int i = 0; i < combo.count(); ++i) {
        const QString text = combo.itemText(i);
        const int needs = combo.fontMetrics().horizontalAdvance(text) +
                          (combo.itemIcon(i).isNull() ? 0 : combo.iconSize().width() + 4);
        if (needs > has) out << Report(combo, text, "width", needs, has);
    }
}

}  // namespace

QStringList TextsThatDoNotFit(const QWidget& root) {
    QStringList out;
    QList<const QWidget*> widgets{&root};
    for (const QWidget* w : root.findChildren<const QWidget*>()) widgets << w;
    for (const QWidget* w : widgets) {
        if (!w->isVisible()) continue;
        if (const auto* label = qobject_cast<const QLabel*>(w)) CheckLabel(*label, out);
        else if (const auto* button = qobject_cast<const QAbstractButton*>(w)) CheckButton(*button, out);
        else if (const auto* bar = qobject_cast<const QTabBar*>(w)) CheckTabs(*bar, out);
        else if (const auto* combo = qobject_cast<const QComboBox*>(w)) CheckComboBox(*combo, out);
    }
    return out;
}
