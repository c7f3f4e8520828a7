#include "screens/decks/frmAddCard.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include "core/decks/CardEditing.h"
#include "core/decks/CardStore.h"
#include "core/store/DeckLoading.h"
#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/decks/frmDesignDeck.h"
#include "screens/decks/frmGetImageFile.h"
#include "screens/decks/frmGetSoundFile.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MediaPlayer.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/widgets/ImageBox.h"
#include "screens/widgets/ScreenPlacement.h"

frmAddCard::frmAddCard() : CardScreen(tr("Add Card"), true) {
    setObjectName(QStringLiteral("frmAddCard"));
    lstCardType = new ListBox(this);
    lstCardType->setObjectName(QStringLiteral("lstCardType"));
    lstCardType->setGeometry(At(1560, 720, 4200, 900));
    imgCard->setToolTip(tr("Click Here to Edit the Image"));
    cmdEditImage = MakeButton(this, "cmdEditImage", tr("Edit &Image"), At(6000, 5640, 1620, 420));
    cmdGetSound = MakeButton(this, "cmdGetSound", tr("Edit &Sound"), At(7740, 5640, 1620, 420));
    cmdSaveClose = MakeButton(this, "cmdSaveClose", tr("&Save-Close"), At(4260, 6240, 1500, 420));
    cmdSaveNew = MakeButton(this, "cmdSaveNew", tr("Save-&New"), At(6000, 6240, 1620, 420));

    connect(txtCardTitle, &QLineEdit::textChanged, this, Handler([this] { txtCardTitle_Change(); }));
    connect(txtDescription, &QPlainTextEdit::textChanged, this, Handler([this] { txtDescription_Change(); }));
    connect(txtKeywords, &QPlainTextEdit::textChanged, this, Handler([this] { txtKeywords_Change(); }));
    connect(lstCardType, &ListBox::Click, this, Handler([this] { lstCardType_Click(); }));
    connect(imgCard, &ImageBox::Click, this, Handler([this] { imgCard_Click(); }));
    connect(cmdEditImage, &QPushButton::clicked, this, Handler([this] { cmdEditImage_Click(); }));
    connect(cmdGetSound, &QPushButton::clicked, this, Handler([this] { cmdGetSound_Click(); }));
    connect(cmdSaveClose, &QPushButton::clicked, this, Handler([this] { cmdSaveClose_Click(); }));
    connect(cmdSaveNew, &QPushButton::clicked, this, Handler([this] { cmdSaveNew_Click(); }));
    connect(cmdBack, &QPushButton::clicked, this, Handler([this] { cmdBack_Click(); }));
    setWayOut([this] { cmdBack_Click(); });
}

void frmAddCard::Form_Load() {
    AddTolstCards = true;
    SaveSuccessful = true;
    OpenCard();
    for (int i = 0; i < 4; ++i)
        if (TheRun.CurrentDeck.CardTypeUsed[static_cast<std::size_t>(i)])
            lstCardType->AddItem(TheRun.CurrentDeck.CardTypeName[static_cast<std::size_t>(i)].Trimmed(), i);
    CentreInFrame(*this);
    Loading = true;
    FillFields();
    DesignModified = false;
    CardTitle = TheRun.CurrentCard.CardTitle.Trimmed();
    CardPositionBeingEdited = getCardPositionInTempDeckCards();
    Loading = false;
}

// The card's place in DeckCards by its title as stored, all 50 characters.
int frmAddCard::getCardPositionInTempDeckCards() const {
    for (int i = 1; i <= TheRun.CurrentDeck.DeckCards.UBound(); ++i)
        if (TheRun.CurrentDeck.DeckCards(i).CardTitle == TheRun.CurrentCard.CardTitle) return i;
    return 0;
}

// Showing the card's type is no change to the card.
void frmAddCard::ShowCardType() {
    const QSignalBlocker quiet(lstCardType);
    int line = -1;
    for (int row = 0; row < lstCardType->ListCount() && line < 0; ++row)
        if (lstCardType->ItemData(row) == TheRun.CurrentCard.CardType) line = row;
    lstCardType->setListIndex(line);
}

void frmAddCard::optPosition_Click() {
    // Showing the other side is no change to the card.
    const bool modified = DesignModified;
    CardScreen::optPosition_Click();
    DesignModified = modified;
}

void frmAddCard::txtCardTitle_Change() {
    TheRun.CurrentCard.CardTitle = TrimField(txtCardTitle->text());
    DesignModified = true;
}

void frmAddCard::txtDescription_Change() {
    ClipText(txtDescription, 1500);
    TheRun.CurrentCard.CardDescription[static_cast<std::size_t>(CheckedSide())] =
        TrimField(txtDescription->toPlainText());
    DesignModified = true;
}

void frmAddCard::txtKeywords_Change() {
    ClipText(txtKeywords, 1000);
    TheRun.CurrentCard.CardKeywords[static_cast<std::size_t>(CheckedSide())] = TrimField(txtKeywords->toPlainText());
    DesignModified = true;
}

void frmAddCard::lstCardType_Click() {
    if (lstCardType->ListIndex() < 0) return;
    TheRun.CurrentCard.CardType = static_cast<Integer>(CardTypeIndex(lstCardType->Text()));
    DesignModified = true;
}

void frmAddCard::imgCard_Click() { cmdEditImage_Click(); }

void frmAddCard::cmdEditImage_Click() { Get<frmGetImageFile>().ShowFor(optUpright->isChecked() ? 1 : 2); }

void frmAddCard::cmdGetSound_Click() {
    MediaPlayer1->Close();
    Get<frmGetSoundFile>().ShowFor(optUpright->isChecked() ? 1 : 2);
    UpdateSound();
}

void frmAddCard::TakeWorkingSound(int side, const QString& workingName) {
    TheRun.CurrentCard.CardSound[static_cast<std::size_t>(side)] = workingName;
    DesignModified = true;
}

void frmAddCard::StoreCard() {
    // An edited card keeps its own title, which the deck holds already.
    const QString problem = NewCardTitleProblem(TheRun.CurrentCard.CardTitle.Value());
    if (!problem.isEmpty() && (TheRun.DesignMode == 1 || TheRun.CurrentCard.CardTitle.IsBlank())) {
        MsgBox(problem, vbInformation);
        SaveSuccessful = false;
        return;
    }
    TheRun.CurrentCard.CardReserved = 0;
    if (TheRun.DesignMode == 1) AddTolstCards = true;
    else if (TheRun.DesignMode == 0) AddTolstCards = false;
    else {
        FatalError();
        return;
    }

    // The player lets go of a sound before it takes its final name.
    MediaPlayer1->Close();
    StoreWorkingFiles(TheRun.CurrentCard);

    UpdateThisCartoDeck_frmDesignDeck();
    DesignModified = false;
    Get<frmDesignDeck>().DesignModified = true;
    TheRun.DesignMode = 0;
    SaveSuccessful = true;
}

void frmAddCard::UpdateThisCartoDeck_frmDesignDeck() {
    if (AddTolstCards) CardPositionBeingEdited = AppendDeckCard(TheRun.CurrentCard);
    else TheRun.CurrentDeck.DeckCards(CardPositionBeingEdited) = TheRun.CurrentCard;
    Get<frmDesignDeck>().RefreshCardList();
}

void frmAddCard::cmdSaveClose_Click() {
    StoreCard();
    if (SaveSuccessful) cmdBack_Click();
}

void frmAddCard::cmdSaveNew_Click() {
    StoreCard();
    if (!SaveSuccessful) return;
    cmdBack_Click();
    if (CloseForm) Get<frmDesignDeck>().cmdAddCard_Click();
}

void frmAddCard::cmdBack_Click() {
    if (DesignModified) {
        const int answer = MsgBox(tr("Save changes to the card?"), vbYesNoCancel | vbQuestion);
        if (answer == vbCancel) {
            CloseForm = false;
            return;
        }
        if (answer == vbYes) {
            StoreCard();
            if (!SaveSuccessful) {
                CloseForm = false;
                return;
            }
        }
    }
    MediaPlayer1->Close();
    DropUnstoredWorkingFiles();
    CloseForm = true;
    SetScreenPointer(MousePointer::Arrow);
    Unload();
}

void frmAddCard::Form_Unload(bool&) {
    if (!IsLoaded<frmDesignDeck>()) return;
    frmDesignDeck& designer = Get<frmDesignDeck>();
    designer.Show();
    designer.FocusCardList();
}

void frmAddCard::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdBack_Click();
    }
}
