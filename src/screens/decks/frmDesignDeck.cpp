#include "screens/decks/frmDesignDeck.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "core/decks/CardEditing.h"
#include "core/decks/CardStore.h"
#include "core/platform/OleDate.h"
#include "core/store/Housekeeping.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/decks/frmAddCard.h"
#include "screens/decks/frmDeckCardProperties.h"
#include "screens/decks/frmDeckComments.h"
#include "screens/decks/frmDecks.h"
#include "screens/decks/frmGetImageFile.h"
#include "screens/decks/frmImportPictures.h"
#include "screens/decks/frmSaveDeck.h"
#include "screens/platform/CommonDialog.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/widgets/ScreenPlacement.h"

frmDesignDeck::frmDesignDeck() : DeckScreen(tr("Deck Design"), true) {
    setObjectName(QStringLiteral("frmDesignDeck"));
    cmdAddCard = MakeButton(this, "cmdAddCard", tr("&Add"), At(5640, 4620, 1020, 420));
    cmdDeleteCard = MakeButton(this, "cmdDeleteCard", tr("Dele&te"), At(7860, 4620, 1020, 420));
    cmdSave = MakeButton(this, "cmdSave", tr("&Save"), At(5700, 5580, 1500, 420));
    // In the gap between the notes and the save buttons, so nothing moves.
    cmdImportPictures = MakeButton(this, "cmdImportPictures", tr("&Import Pictures..."), At(3540, 5580, 2040, 420));

    connect(txtDeckTitle, &QLineEdit::textChanged, this, Handler([this] { txtDeckTitle_Change(); }));
    // Each of the other boxes stores its own field and marks the deck changed.
    auto& designer = TheRun.CurrentDeck.DeckDesigner;
    const std::pair<QLineEdit*, FixedText<40>*> narrow[] = {{txtDeckDesigner, &designer.DesignerName},
                                                            {txtDesignerEmail, &designer.DesignerEmail}};
    for (const auto& [box, field] : narrow)
        connect(box, &QLineEdit::textChanged, this,
                Handler([this, box = box, field = field] { StoreDeckField(*field, box->text()); }));
    connect(txtDesignerWebPage, &QLineEdit::textChanged, this, Handler([this] {
                StoreDeckField(TheRun.CurrentDeck.DeckDesigner.DesignerWebPage, txtDesignerWebPage->text());
            }));
    connect(txtDeckDescription, &QPlainTextEdit::textChanged, this, Handler([this] {
                ClipText(txtDeckDescription, 500);
                StoreDeckField(TheRun.CurrentDeck.DeckDescription, txtDeckDescription->toPlainText());
            }));
    connect(lstCards, &ListBox::DblClick, this, Handler([this] { cmdEditCard_Click(); }));
    connect(cmdAddCard, &QPushButton::clicked, this, Handler([this] { cmdAddCard_Click(); }));
    connect(cmdEditCard, &QPushButton::clicked, this, Handler([this] { cmdEditCard_Click(); }));
    connect(cmdDeleteCard, &QPushButton::clicked, this, Handler([this] { cmdDeleteCard_Click(); }));
    connect(cmdSave, &QPushButton::clicked, this, Handler([this] { cmdSave_Click(); }));
    connect(cmdImportPictures, &QPushButton::clicked, this, Handler([this] { cmdImportPictures_Click(); }));
    connect(cmdProperties, &QPushButton::clicked, this, Handler([this] { cmdProperties_Click(); }));
    connect(cmdComments, &QPushButton::clicked, this, Handler([this] { cmdComments_Click(); }));
    connect(cmdBack, &QPushButton::clicked, this, Handler([this] { cmdBack_Click(); }));
    setWayOut([this] { cmdBack_Click(); });
}

void frmDesignDeck::Form_Load() {
    Loading = true;
    // A new deck has reversed cards unless its designer turns them off.
    if (TheRun.DesignMode == 1) TheRun.CurrentDeck.IncludesReversed = True16;
    OpenDeck(TheRun.DesignMode == 0, true);
    DesignModified = false;
    DeckCardProperties_Configured = TheRun.DesignMode == 0;
    Show();
    if (TheRun.DesignMode == 1) Get<frmDeckCardProperties>().Show(true);
    Loading = false;
}

void frmDesignDeck::UpdateCardButtons() {
    const bool selected = lstCards->ListIndex() >= 0;
    cmdEditCard->setEnabled(selected);
    cmdDeleteCard->setEnabled(selected);
}

void frmDesignDeck::txtDeckTitle_Change() {
    const QString text = TrimField(txtDeckTitle->text());
    if (text != TheRun.CurrentDeck.DeckTitle.Trimmed()) DesignModified = true;
    TheRun.CurrentDeck.DeckTitle = text;
}

template <int N>
void frmDesignDeck::StoreDeckField(FixedText<N>& field, const QString& text) {
    field = TrimField(text);
    DesignModified = true;
}

void frmDesignDeck::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdBack->setFocus();
        cmdBack_Click();
        return;
    }
    if (!lstCards->hasFocus()) return;
    if (key == Qt::Key_Delete) {
        handled = true;
        cmdDeleteCard_Click();
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        handled = true;
        cmdEditCard_Click();
    } else if (key == Qt::Key_Insert) {
        handled = true;
        cmdAddCard_Click();
    }
}

void frmDesignDeck::cmdAddCard_Click() {
    if (TheRun.CurrentDeck.CardCount >= MaxDeckCards) {
        MsgBox(CardLimitMessage(), vbCritical);
        return;
    }
    TheRun.DesignMode = 1;
    ResetCard(TheRun.CurrentCard);
    Get<frmAddCard>().Show();
    // The upright picture is asked at once, over the card editor.
    Get<frmGetImageFile>().ShowFor(1);
    bool picked = WorkingFiles().ImageSelected;
    if (picked) {
        if (!TheRun.CurrentDeck.IncludesReversed) {
            PointReversedAtDefault(TheRun.CurrentCard);
        } else {
            Get<frmGetImageFile>().ShowFor(2);
            picked = WorkingFiles().ImageSelected;
        }
    }
    if (!picked) {
        Hide();
        UnloadScreen<frmAddCard>();
    }
}

void frmDesignDeck::cmdEditCard_Click() {
    if (lstCards->ListIndex() < 0) {
        UpdateCardButtons();
        return;
    }
    const int position = SelectedCardPosition();
    if (position < 1) return;
    TheRun.CurrentCard = TheRun.CurrentDeck.DeckCards(position);
    TheRun.DesignMode = 0;
    Hide();
    frmAddCard& editor = Get<frmAddCard>();
    editor.Show();
    editor.CardPositionBeingEdited = position;
}

void frmDesignDeck::DeckSaved(const QString& name) {
    lblModifiedOnDate->setText(FormatLongDate(TheRun.CurrentDeck.ModifiedOn));
    DesignModified = false;
    OldDesignName = name;
}

void frmDesignDeck::FocusCardList() { lstCards->setFocus(); }

void frmDesignDeck::cmdDeleteCard_Click() {
    if (lstCards->ListIndex() < 0) {
        UpdateCardButtons();
        return;
    }
    const QString title = lstCards->Text();
    if (MsgBox(tr("Are you sure you want to delete card '%1' ?").arg(TrimField(title)),
               vbYesNo | vbQuestion | vbDefaultButton2) == vbNo)
        return;
    const int position = SelectedCardPosition();
    if (position < 1) return;
    RemoveDeckCard(TheRun.CurrentDeck, position);
    lstCards->RemoveItem(lstCards->ListIndex());
    UpdateCardButtons();
    DesignModified = true;
}

void frmDesignDeck::cmdSave_Click() { Get<frmSaveDeck>().Show(true); }

void frmDesignDeck::cmdImportPictures_Click() {
    if (TheRun.CurrentDeck.CardCount >= MaxDeckCards) {
        MsgBox(CardLimitMessage(), vbCritical);
        return;
    }
    CommonDialog dialog;
    dialog.DialogTitle = tr("Import Pictures");
    dialog.FileName = RememberedPictureFolder().Folder;
    if (!dialog.ShowFolder()) return;
    Get<frmImportPictures>().ShowFolder(dialog.FileName);
}

void frmDesignDeck::cmdProperties_Click() { Get<frmDeckCardProperties>().Show(true); }

void frmDesignDeck::cmdComments_Click() { Get<frmDeckComments>().Show(); }

void frmDesignDeck::cmdBack_Click() {
    if (DesignModified) {
        const int answer = MsgBox(tr("Save changes to the deck?"), vbYesNoCancel | vbQuestion);
        if (answer == vbCancel) return;
        if (answer == vbYes) cmdSave_Click();
    }
    ClearTemp();
    SetScreenPointer(MousePointer::Hourglass);
    Get<frmDecks>().Show();
    SetScreenPointer(MousePointer::Arrow);
    Unload();
}
