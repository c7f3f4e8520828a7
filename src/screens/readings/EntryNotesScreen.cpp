#include "screens/readings/EntryNotesScreen.h"

#include <QPlainTextEdit>
#include <QPushButton>

#include "core/platform/Twips.h"
#include "screens/readings/EntryScreen.h"
#include "screens/widgets/ScreenPlacement.h"

EntryNotesScreen::EntryNotesScreen(const QString& caption) {
    setCaption(caption);
    resize(TwipsToPixels(6255), TwipsToPixels(4455));
    txtComments = new QPlainTextEdit(this);
    txtComments->setObjectName(QStringLiteral("txtComments"));
    PlaceControl(txtComments, 120, 120, 6015, 3600);
    cmdClose = new QPushButton(tr("&Close"), this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    PlaceControl(cmdClose, 4920, 3900, 1215, 375);
    connect(txtComments, &QPlainTextEdit::textChanged, this, Handler([this] { txtComments_Change(); }));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
}

void EntryNotesScreen::Form_Load() {
    PlaceBesideFrame(*this, false);
    txtComments->setPlainText(Notes().trimmed());
    original_ = txtComments->toPlainText();
}

void EntryNotesScreen::txtComments_Change() {
    QString text = txtComments->toPlainText();
    if (text.size() > MaxNotesLength) {
        // The box takes no more than the record holds.
        text.truncate(MaxNotesLength);
        const QSignalBlocker quiet(txtComments);
        txtComments->setPlainText(text);
        txtComments->moveCursor(QTextCursor::End);
    }
    SetNotes(text);
}

void EntryNotesScreen::cmdClose_Click() { Unload(); }

void EntryNotesScreen::Form_Deactivate() { Unload(); }

void EntryNotesScreen::Form_Unload(bool& cancel) {
    (void)cancel;
    if (txtComments->toPlainText() != original_) MarkEntryChanged();
}

void EntryNotesScreen::Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) {
    (void)shift;
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdClose_Click();
}
