#include "support/TextFit.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QRegularExpression>
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

// Adds a line when a text needs more than its room.
void Check(QStringList& out, const QWidget& w, const QString& text, const char* measure, int needs, int room) {
    if (needs <= room) return;
    const QString name = QString::fromLatin1(w.metaObject()->className()) + QLatin1Char(' ') + w.objectName();
    out << QStringLiteral("%1 \"%2\": %3 %4, room %5")
               .arg(name.trimmed(), text, QLatin1String(measure))
               .arg(needs)
               .arg(room);
}

// The widest line, without the spaces that end it, which show nothing.
int Width(const QFontMetrics& metrics, const QString& text) {
    static const QRegularExpression trailing(QStringLiteral("\\s+$"));
    int widest = 0;
    for (QString line : text.split(QLatin1Char('\n')))
        widest = std::max(widest, metrics.horizontalAdvance(line.remove(trailing)));
    return widest;
}

void CheckLabel(const QLabel& label, QStringList& out) {
    const QString text = label.buddy() ? WithoutMnemonic(label.text()) : label.text();
    const int margin = label.margin();
    const QRect room = label.contentsRect().adjusted(margin, margin, -margin, -margin);
    QSize needs;
    if (label.textFormat() == Qt::RichText || (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(text))) {
        QTextDocument document;
        document.setDefaultFont(label.font());
        document.setDocumentMargin(0);
        document.setHtml(text);
        if (label.wordWrap()) document.setTextWidth(room.width());
        needs = document.size().toSize();
    } else if (label.wordWrap()) {
        needs = label.fontMetrics().boundingRect(QRect(0, 0, room.width(), 1 << 20), Qt::TextWordWrap, text).size();
    } else {
        needs = {Width(label.fontMetrics(), text), 0};
    }
    if (label.wordWrap()) Check(out, label, text, "height", needs.height(), room.height());
    else Check(out, label, text, "width", needs.width(), room.width());
}

void CheckButton(const QAbstractButton& button, QStringList& out) {
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    const QStyle::SubElement room = qobject_cast<const QCheckBox*>(&button)      ? QStyle::SE_CheckBoxContents
                                    : qobject_cast<const QRadioButton*>(&button) ? QStyle::SE_RadioButtonContents
                                                                                 : QStyle::SE_PushButtonContents;
    const QString shown = WithoutMnemonic(button.text());
    Check(out, button, shown, "width",
          Width(button.fontMetrics(), shown) + (button.icon().isNull() ? 0 : button.iconSize().width() + 4),
          button.style()->subElementRect(room, &option, &button).width());
}

// Each tab on show: its text in the room its style leaves beside icon and
// buttons, and the tab within the bar rather than scrolled out of it.
void CheckTabs(const QTabBar& bar, QStringList& out) {
    for (int i = 0; i < bar.count(); ++i) {
        if (!bar.isTabVisible(i)) continue;
        const QString shown = WithoutMnemonic(bar.tabText(i));
        Check(out, bar, shown, "right edge", bar.tabRect(i).right(), bar.rect().right());
        QStyleOptionTab option;
        option.initFrom(&bar);
        option.rect = bar.tabRect(i);
        option.text = bar.tabText(i);
        option.shape = bar.shape();
        option.icon = bar.tabIcon(i);
        option.iconSize = bar.iconSize();
        option.documentMode = bar.documentMode();
        if (const QWidget* extra = bar.tabButton(i, QTabBar::LeftSide)) option.leftButtonSize = extra->size();
        if (const QWidget* extra = bar.tabButton(i, QTabBar::RightSide)) option.rightButtonSize = extra->size();
        Check(out, bar, shown, "width", bar.fontMetrics().horizontalAdvance(shown),
              bar.style()->subElementRect(QStyle::SE_TabBarTabText, &option, &bar).width());
    }
}

// Every item, since each of them is shown in the box once chosen.
void CheckComboBox(const QComboBox& combo, QStringList& out) {
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    option.frame = combo.hasFrame();
    const int room =
        combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo).width();
    for (int i = 0; i < combo.count(); ++i)
        Check(out, combo, combo.itemText(i), "width",
              combo.fontMetrics().horizontalAdvance(combo.itemText(i)) +
                  (combo.itemIcon(i).isNull() ? 0 : combo.iconSize().width() + 4),
              room);
}

// A frame's title where its style puts it, within the frame.
void CheckGroupBox(const QGroupBox& box, QStringList& out) {
    QStyleOptionGroupBox option;
    option.initFrom(&box);
    option.text = box.title();
    option.textAlignment = box.alignment();
    option.subControls = QStyle::SC_GroupBoxLabel | QStyle::SC_GroupBoxFrame;
    if (box.isCheckable()) option.subControls |= QStyle::SC_GroupBoxCheckBox;
    const QRect label = box.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &box);
    Check(out, box, WithoutMnemonic(box.title()), "right edge", label.right(), box.rect().right());
}

}  // namespace

QStringList TextsThatDoNotFit(const QWidget& root) {
    QStringList out;
    QList<const QWidget*> widgets = root.findChildren<const QWidget*>();
    widgets.prepend(&root);
    for (const QWidget* w : widgets) {
        // A control folded to nothing shows nothing, as a compact page does.
        if (!w->isVisible() || w->width() == 0 || w->height() == 0) continue;
        if (const auto* label = qobject_cast<const QLabel*>(w)) CheckLabel(*label, out);
        else if (const auto* button = qobject_cast<const QAbstractButton*>(w);
                 button && !button->text().isEmpty() && !button->inherits("QToolButton"))
            CheckButton(*button, out);
        else if (const auto* bar = qobject_cast<const QTabBar*>(w)) CheckTabs(*bar, out);
        // A drive list's entries are the system's mount points, not texts
        // of the program.
        else if (const auto* combo = qobject_cast<const QComboBox*>(w); combo && !combo->inherits("DriveListBox"))
            CheckComboBox(*combo, out);
        else if (const auto* box = qobject_cast<const QGroupBox*>(w); box && !box->title().isEmpty())
            CheckGroupBox(*box, out);
    }
    return out;
}
