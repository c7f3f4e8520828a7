#include "screens/decks/frmBrowseDeck.h"

#include <QPushButton>

#include "core/records/RecordFile.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/platform/ListBox.h"
#include "screens/widgets/ScreenPlacement.h"

frmBrowseDeck::frmBrowseDeck() {
    setObjectName(QStringLiteral("frmBrowseDeck"));
    resize(TwipsToPixels(4560), TwipsToPixels(4200));
    MakeLabel(this, tr("Decks:"), At(240, 120, 2400, 255));
    lstDecks = new ListBox(this);
    lstDecks->setObjectName(QStringLiteral("lstDecks"));
    lstDecks->setSorted(true);
    lstDecks->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstDecks->setGeometry(At(240, 420, 4080, 2940));
    cmdSelect = MakeButton(this, "cmdSelect", tr("&Select"), At(1200, 3540, 1500, 420));
    cmdCancel = MakeButton(this, "cmdCancel", tr("&Cancel"), At(2820, 3540, 1500, 420));
    connect(lstDecks, &ListBox::DblClick, this, Handler([this] { cmdSelect_Click(); }));
    connect(cmdSelect, &QPushButton::clicked, this, Handler([this] { cmdSelect_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
}

void frmBrowseDeck::Form_Load() {
    setCaption(tr("Browse Decks"));
    CentreInFrame(*this);
    RecordReader<DeckRecord> reader(TheRun.Paths.DecksPath);
    DeckRecord deck;
    while (reader.Next(deck)) lstDecks->AddItem(deck.DeckName.Value());
}

void frmBrowseDeck::cmdSelect_Click() {
    if (lstDecks->ListIndex() < 0) return;
    const int recordNumber = FindDeckByName(lstDecks->Text());
    if (recordNumber < 0 || !GetRecord(TheRun.Paths.DecksPath, recordNumber, TheRun.ScratchDeck)) return;
    if (DeckChosen) DeckChosen(TheRun.ScratchDeck.DeckName.Value());
    Unload();
}

void frmBrowseDeck::cmdCancel_Click() { Unload(); }

void frmBrowseDeck::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
    } else if (lstDecks->hasFocus() && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        handled = true;
        cmdSelect_Click();
    }
}
