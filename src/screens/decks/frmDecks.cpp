#include "screens/decks/frmDecks.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "core/decks/DeckStore.h"
#include "core/platform/OleDate.h"
#include "core/records/RecordFile.h"
#include "core/store/DeckLoading.h"
#include "core/store/Housekeeping.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/decks/DeckLoadQuestion.h"
#include "screens/decks/frmDeckInfo.h"
#include "screens/decks/frmDesignDeck.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/ShellHooks.h"
#include "screens/store/PasswordPrompts.h"
#include "screens/widgets/ScreenPlacement.h"

frmDecks::frmDecks() {
    setObjectName(QStringLiteral("frmDecks"));
    resize(TwipsToPixels(7800), TwipsToPixels(5000));

    MakeLabel(this, tr("Decks:"), At(240, 120, 3600, 285));
    lstDecks = new ListBox(this);
    lstDecks->setObjectName(QStringLiteral("lstDecks"));
    lstDecks->setSorted(true);
    lstDecks->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstDecks->setGeometry(At(240, 420, 3600, 3600));

    fraQuickInfo = new QGroupBox(tr(" Brief Info "), this);
    fraQuickInfo->setObjectName(QStringLiteral("fraQuickInfo"));
    fraQuickInfo->setGeometry(At(4080, 300, 3480, 3720));
    const QStringList captions{tr("Title:"), tr("Modified On:"), tr("Designer:"), tr("Cards:")};
    const char* names[] = {"lblTitleField", "lblDesignDateField", "lblDesignerNameField", "lblCardsField"};
    QLabel** fields[] = {&lblTitleField, &lblDesignDateField, &lblDesignerNameField, &lblCardsField};
    for (int i = 0; i < 4; ++i) {
        MakeLabel(fraQuickInfo, captions[i], At(120, 360 + i * 600, 3240, 255));
        *fields[i] = MakeLabel(fraQuickInfo, QString(), At(240, 615 + i * 600, 3120, 285), names[i]);
        (*fields[i])->setTextFormat(Qt::PlainText);
    }
    cboCards = new FocusComboBox(fraQuickInfo);
    cboCards->setObjectName(QStringLiteral("cboCards"));
    cboCards->setEditable(true);
    cboCards->lineEdit()->setReadOnly(true);
    cboCards->setInsertPolicy(QComboBox::NoInsert);
    cboCards->setGeometry(At(120, 3000, 3240, 360));
    cboCards->setEditText(tr("Cards List"));

    cmdDesign = MakeButton(this, "cmdDesign", tr("&New"), At(240, 4260, 1320, 420));
    cmdEdit = MakeButton(this, "cmdEdit", tr("&Edit"), At(1740, 4260, 1320, 420));
    cmdInfo = MakeButton(this, "cmdInfo", tr("&View"), At(3240, 4260, 1320, 420));
    cmdDelete = MakeButton(this, "cmdDelete", tr("&Delete"), At(4740, 4260, 1320, 420));
    cmdClose = MakeButton(this, "cmdClose", tr("&Close"), At(6240, 4260, 1320, 420));

    connect(lstDecks, &ListBox::Click, this, Handler([this] { lstDecks_Click(); }));
    connect(lstDecks, &ListBox::DblClick, this, Handler([this] { cmdEdit_Click(); }));
    connect(cboCards, &FocusComboBox::GotFocus, this, Handler([this] { cboCards_GotFocus(); }));
    connect(cmdDesign, &QPushButton::clicked, this, Handler([this] { cmdDesign_Click(); }));
    connect(cmdEdit, &QPushButton::clicked, this, Handler([this] { cmdEdit_Click(); }));
    connect(cmdInfo, &QPushButton::clicked, this, Handler([this] { cmdInfo_Click(); }));
    connect(cmdDelete, &QPushButton::clicked, this, Handler([this] { cmdDelete_Click(); }));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
    setWayOut([this] { cmdClose_Click(); });
}

void frmDecks::Form_Load() {
    setCaption(tr("Decks' Menu"));
    SetScreenPointer(MousePointer::Hourglass);
    CentreInFrame(*this);
    ResetDeck();
    StoreListDeck();
    {
        RecordReader<DeckRecord> reader(TheRun.Paths.DecksPath);
        while (reader.Next(TheRun.ListDeck)) lstDecks->AddItem(TheRun.ListDeck.DeckName.Value());
    }
    if (lstDecks->ListCount() > 0) lstDecks->setListIndex(0);
    UpdateButtons();
    SetScreenPointer(MousePointer::Arrow);
}

void frmDecks::Form_Activate() { UpdateButtons(); }

void frmDecks::UpdateButtons() {
    const bool selected = lstDecks->ListIndex() >= 0;
    cmdEdit->setEnabled(selected);
    cmdInfo->setEnabled(selected);
    cmdDelete->setEnabled(selected);
}

void frmDecks::ClearBriefInfo() {
    lblCardsField->clear();
    lblDesignDateField->clear();
    lblDesignerNameField->clear();
    lblTitleField->clear();
}

void frmDecks::lstDecks_Click() {
    UpdateButtons();
    cboCards->setEditText(tr("Cards List"));
    if (lstDecks->ListIndex() < 0) {
        ClearBriefInfo();
        return;
    }
    const int recordNumber = FindDeckByName(lstDecks->Text());
    if (recordNumber < 0 || !GetRecord(TheRun.Paths.DecksPath, recordNumber, TheRun.ListDeck)) {
        ClearBriefInfo();
        return;
    }
    lblCardsField->setText(QString::number(TheRun.ListDeck.CardCount));
    lblDesignDateField->setText(FormatLongDate(TheRun.ListDeck.ModifiedOn));
    lblDesignerNameField->setText(TheRun.ListDeck.DeckDesigner.DesignerName.Trimmed());
    lblTitleField->setText(TheRun.ListDeck.DeckTitle.Trimmed());
}

void frmDecks::cboCards_GotFocus() {
    if (lstDecks->ListIndex() < 0) return;
    cboCards->clear();
    RecordReader<CardRecord> reader(TheRun.Paths.CardsPath);
    CardRecord card;
    while (reader.Next(card))
        if (card.CardDeckId == TheRun.ListDeck.DeckId) cboCards->addItem(card.CardTitle.Trimmed());
    cboCards->setEditText(tr("Cards List"));
}

void frmDecks::SelectDeck(const QString& deckName) {
    const int line = FindLine(lstDecks, deckName);
    if (line >= 0) lstDecks->setListIndex(line);
}

void frmDecks::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdClose_Click();
    } else if (lstDecks->hasFocus() && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        handled = true;
        cmdEdit_Click();
    } else if (lstDecks->hasFocus() && key == Qt::Key_Delete) {
        handled = true;
        cmdDelete_Click();
    }
}

void frmDecks::cmdDesign_Click() {
    ClearTemp();
    TheRun.DesignMode = 1;
    ResetDeck();
    Get<frmDesignDeck>().Show();
    Unload();
}

bool frmDecks::LoadSelectedDeck() {
    bool DeckRemoved = false;
    if (LoadDeck(DeckRemoved)) return true;
    if (DeckRemoved) {
        ClearBriefInfo();
        lstDecks->RemoveItem(lstDecks->ListIndex());
        UpdateButtons();
    }
    SetScreenPointer(MousePointer::Arrow);
    return false;
}

void frmDecks::cmdEdit_Click() {
    if (lstDecks->ListIndex() < 0) return;
    ClearTemp();
    SetScreenPointer(MousePointer::Hourglass);
    if (TheRun.ListDeck.DeckLocked && !CheckPassword(TheRun.ListDeck.DeckPassword.Value())) {
        SetScreenPointer(MousePointer::Arrow);
        return;
    }
    if (!LoadSelectedDeck()) return;
    TheRun.DesignMode = 0;
    Get<frmDesignDeck>().Show();
    SetScreenPointer(MousePointer::Arrow);
    Unload();
}

// Viewing needs no password. DesignMode keeps its value: after a New that
// stored no card it is still 1, and the viewer then shows default pictures.
void frmDecks::cmdInfo_Click() {
    if (lstDecks->ListIndex() < 0) return;
    ClearTemp();
    SetScreenPointer(MousePointer::Hourglass);
    if (!LoadSelectedDeck()) return;
    Get<frmDeckInfo>().Show();
    SetScreenPointer(MousePointer::Arrow);
    Unload();
}

void frmDecks::cmdClose_Click() {
    ResetDeck();
    ReturnToMainScreen();
    Unload();
}

QString frmDecks::ChosenDeckName() const { return lstDecks->Text(); }

void frmDecks::cmdDelete_Click() {
    ClearTemp();
    const int line = lstDecks->ListIndex();
    if (line < 0) {
        UpdateButtons();
        return;
    }
    const DeckDeleteCheck check = CheckDeckDelete(lstDecks->Text());
    for (const QString& question : check.Questions)
        if (MsgBox(question, vbYesNo | vbQuestion | vbDefaultButton2) == vbNo) return;

    SetScreenPointer(MousePointer::Hourglass);
    RemoveDeck(check.RecordNumber);

    lstDecks->RemoveItem(line);
    lstDecks->setListIndex(line - 1);
    if (lstDecks->ListIndex() < 0 && lstDecks->ListCount() > 0) lstDecks->setListIndex(0);
    if (lstDecks->ListIndex() < 0) lstDecks_Click();  // nothing left: the brief info empties
    UpdateButtons();
    SetScreenPointer(MousePointer::Arrow);
}
