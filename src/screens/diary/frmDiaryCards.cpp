#include "screens/diary/frmDiaryCards.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "core/platform/Twips.h"
#include "core/readings/DiaryCards.h"
#include "core/store/RunState.h"
#include "screens/diary/frmNewDiary.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/widgets/ClickLabel.h"
#include "screens/widgets/FitPicture.h"
#include "screens/widgets/ImageBox.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {

frmNewDiary& Diary() { return Get<frmNewDiary>(); }

QLabel* MakeNamedCaption(QWidget* parent, const QString& name, const QString& caption, int left, int top, int width) {
    QLabel* label = MakeCaption(parent, caption, left, top, width);
    label->setObjectName(name);
    return label;
}

// The card a row of a location's list names: by its number, or by its title
// for a row that came back without one.
const CardRecord* CardOfRow(int number, const QString& text) {
    if (number >= 1 && number <= TheRun.CurrentDeck.CardCount) return &DeckCard(number);
    for (int n = 1; n <= TheRun.CurrentDeck.CardCount; ++n)
        if (DeckCard(n).CardTitle.Trimmed() == text.trimmed()) return &DeckCard(n);
    return nullptr;
}

}  // namespace

frmDiaryCards::frmDiaryCards() {
    setObjectName(QStringLiteral("frmDiaryCards"));
    setCaption(tr("Diary Cards"));
    resize(TwipsToPixels(7455), TwipsToPixels(5295));
    lblCardTypes = MakeNamedCaption(this, QStringLiteral("lblCardTypes"), tr("Card Types:"), 120, 120, 2655);
    lstCardTypes = MakeList(this, QStringLiteral("lstCardTypes"), 120, 420, 2655, 1215);
    lstCardTypes->setSelectionMode(QAbstractItemView::MultiSelection);
    lblCards = MakeNamedCaption(this, QStringLiteral("lblCards"), tr("Cards:"), 120, 1755, 2655);
    lstCards = MakeList(this, QStringLiteral("lstCards"), 120, 2055, 2655, 3015);
    lblCardImage = MakeNamedCaption(this, QStringLiteral("lblCardImage"), tr("Card Image:"), 2955, 120, 2655);
    imgCard = new ImageBox(this);
    imgCard->setObjectName(QStringLiteral("imgCard"));
    imgCard->Move(2955, 420, 2655, 4215);
    chkReserved = new QCheckBox(tr("Reversed"), this);
    chkReserved->setObjectName(QStringLiteral("chkReserved"));
    PlaceControl(chkReserved, 2955, 4755, 2655, 300);
    cmdSelect = new QPushButton(tr("&Select"), this);
    cmdSelect->setObjectName(QStringLiteral("cmdSelect"));
    cmdCancel = new QPushButton(tr("&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    PlaceControl(cmdSelect, 5835, 420, 1455, 375);
    PlaceControl(cmdCancel, 5835, 900, 1455, 375);
    for (QPushButton* button : {cmdSelect, cmdCancel}) button->setAutoDefault(false);

    connect(lstCardTypes, &ListBox::Click, this, Handler([this] { lstCardTypes_ItemCheck(); }));
    connect(lstCards, &ListBox::Click, this, Handler([this] { lstCards_Click(); }));
    connect(lstCards, &ListBox::DblClick, this, Handler([this] { cmdSelect_Click(); }));
    connect(chkReserved, &QCheckBox::clicked, this, Handler([this] { chkReserved_Click(); }));
    connect(cmdSelect, &QPushButton::clicked, this, Handler([this] { cmdSelect_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
}

void frmDiaryCards::Form_Load() {
    PlaceTopLeft(*this, false);
    frmNewDiary& diary = Diary();
    pick_ = diary.PickLocation;
    diary.MarkLocation(pick_, true);
    setCaption(tr("Select card for location: %1").arg(diary.LocationTitle(pick_)));
    CardFrameTop = imgCard->Top();
    CardFrameLeft = imgCard->Left();
    CardFrameWidth = imgCard->Width();
    CardFrameHeight = imgCard->Height();
    chkReserved->setVisible(TheRun.CurrentDeck.IncludesReversed != 0);
    ShowCardTypes();
    UpdateCards();
    ShowSelectedCard();
}

void frmDiaryCards::ShowCardTypes() {
    for (std::size_t i = 0; i < 4; ++i)
        if (TheRun.CurrentDeck.CardTypeUsed[i] != 0)
            lstCardTypes->AddItem(TheRun.CurrentDeck.CardTypeName[i].Trimmed());
    const QSignalBlocker quiet(lstCardTypes);  // the cards are listed next, once
    lstCardTypes->selectAll();
}

void frmDiaryCards::lstCardTypes_ItemCheck() { UpdateCards(); }

void frmDiaryCards::UpdateCards() {
    lstCards->Clear();
    const QList<CardRow>& rows = TheRun.DiaryLists.Rows(pick_);
    for (int r = 0; r < rows.size(); ++r) {
        if (r > 0) {
            // The card's type is taken as the row of the type list, as it
            // always was: a deck that leaves out a type shifts the rows.
            const CardRecord* card = CardOfRow(rows[r].Card, rows[r].Text);
            if (!card || !lstCardTypes->Selected(card->CardType)) continue;
        }
        lstCards->AddItem(rows[r].Text, rows[r].Card);
    }
    imgCard->ClearPicture();
}

void frmDiaryCards::ShowSelectedCard() {
    if (!HasCardIn(TheRun.DiaryLists, pick_)) return;
    const Integer dealt = Element(TheRun.CurrentDiary.DealtCard, pick_);
    for (int r = 0; r < lstCards->ListCount(); ++r) {
        if (lstCards->ItemData(r) != dealt) continue;
        chkReserved->setChecked(Element(TheRun.CurrentDiary.DealtUpright, pick_) == 0);
        lstCards->setListIndex(r);  // shows the picture through lstCards_Click
        return;
    }
}

void frmDiaryCards::lstCards_Click() { UpdatePictures(); }

void frmDiaryCards::UpdatePictures() {
    imgCard->ClearPicture();
    if (lstCards->ListIndex() < 0) return;
    const int n = lstCards->ItemData(lstCards->ListIndex());
    // The row of no card, and a card that came back without its number,
    // have no picture to show.
    if (n < 1 || n > TheRun.CurrentDeck.CardCount) return;
    imgCard->Move(CardFrameLeft, CardFrameTop, CardFrameWidth, CardFrameHeight);
    FitPicture(*imgCard, CardPicturePath(DeckCard(n), !chkReserved->isChecked()), true, false);
}

void frmDiaryCards::chkReserved_Click() {
    if (lstCards->ListIndex() >= 0) UpdatePictures();
    else chkReserved->setChecked(false);
}

void frmDiaryCards::cmdSelect_Click() {
    if (lstCards->ListIndex() < 0) {
        MsgBox(tr("Please select a card from the list."));
        return;
    }
    const Integer n = static_cast<Integer>(lstCards->ItemData(lstCards->ListIndex()));
    const Integer u = Flag(!chkReserved->isChecked());
    Integer& dealt = Element(TheRun.CurrentDiary.DealtCard, pick_);
    Integer& upright = Element(TheRun.CurrentDiary.DealtUpright, pick_);
    if (n != dealt || (u != 0) != (upright != 0)) {
        Diary().DiaryChanged = true;
        dealt = n;
        upright = u;
    }
    Unload();
}

void frmDiaryCards::cmdCancel_Click() { Unload(); }

void frmDiaryCards::Form_Unload(bool& cancel) {
    (void)cancel;
    if (frmNewDiary* diary = ScreenSlot<frmNewDiary>()) diary->MarkLocation(pick_, false);
}

void frmDiaryCards::Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) {
    (void)shift;
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
    } else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && focusWidget() == lstCards) {
        handled = true;
        cmdSelect_Click();
    }
}
