#include "screens/readings/SaveEntryScreen.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/platform/Twips.h"
#include "core/readings/EntryStore.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/readings/EntryScreen.h"
#include "screens/widgets/ScreenPlacement.h"

QString FirstNonBlank(std::initializer_list<QString> texts) {
    for (const QString& text : texts)
        if (!text.trimmed().isEmpty()) return text.trimmed();
    return QString();
}

SaveEntryScreen::SaveEntryScreen(EntryKind kind, const SaveEntryTexts& texts) : kind_(kind) {
    setCaption(texts.Caption);
    resize(TwipsToPixels(4935), TwipsToPixels(4215));
    auto* label = new QLabel(tr("Save As:"), this);
    PlaceControl(label, 120, 120, 3255, 255);
    txtSaveAs = new QLineEdit(this);
    txtSaveAs->setObjectName(QStringLiteral("txtSaveAs"));
    txtSaveAs->setMaxLength(MaxNameLength);
    PlaceControl(txtSaveAs, 120, 420, 3255, 375);
    lstNames = new ListBox(this);
    lstNames->setObjectName(texts.ListName);
    lstNames->setSorted(true);
    PlaceControl(lstNames, 120, 900, 3255, 3135);
    cmdSave = new QPushButton(tr("&Save"), this);
    cmdSave->setObjectName(QStringLiteral("cmdSave"));
    cmdSave->setAutoDefault(false);
    PlaceControl(cmdSave, 3555, 420, 1215, 375);
    cmdCancel = new QPushButton(tr("&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->setAutoDefault(false);
    PlaceControl(cmdCancel, 3555, 900, 1215, 375);

    connect(txtSaveAs, &QLineEdit::textChanged, this, Handler([this] { txtSaveAs_Change(); }));
    connect(lstNames, &ListBox::Click, this, Handler([this] { lstNames_Click(); }));
    connect(cmdSave, &QPushButton::clicked, this, Handler([this] { cmdSave_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
}

void SaveEntryScreen::Form_Load() {
    CentreInFrame(*this);
    txtSaveAs->setText(ProposedName());
    for (const QString& name : SavedEntryNames(kind_)) lstNames->AddItem(name);
    cmdSave->setEnabled(false);
}

void SaveEntryScreen::txtSaveAs_Change() {
    if (!txtSaveAs->text().isEmpty()) cmdSave->setEnabled(true);
}

void SaveEntryScreen::lstNames_Click() {
    if (lstNames->ListIndex() < 0) return;
    cmdSave->setEnabled(true);
    txtSaveAs->setText(lstNames->Text());
}

void SaveEntryScreen::cmdSave_Click() {
    const QString text = txtSaveAs->text();
    const EntryNameCheck check = CheckEntryName(kind_, text);
    if (!check.Problem.isEmpty()) {
        MsgBox(check.Problem, vbExclamation);
        return;
    }
    if (!check.Question.isEmpty() && MsgBox(check.Question, vbYesNo | vbDefaultButton2 | vbQuestion) != vbYes) return;
    SaveAs(text, check.Replacing);
    MarkEntrySaved();
    Unload();
}

void SaveEntryScreen::cmdCancel_Click() { Unload(); }

void SaveEntryScreen::Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) {
    (void)shift;
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
    } else if ((key == Qt::Key_Return || key == Qt::Key_Enter) &&
               (focusWidget() == txtSaveAs || focusWidget() == lstNames)) {
        handled = true;
        cmdSave_Click();
    }
}
