#include "screens/decks/frmSaveDeck.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/decks/DeckStore.h"
#include "core/records/RecordFile.h"
#include "core/store/DeckLoading.h"
#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/decks/frmDesignDeck.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/widgets/ScreenPlacement.h"

frmSaveDeck::frmSaveDeck() {
    setObjectName(QStringLiteral("frmSaveDeck"));
    resize(TwipsToPixels(5160), TwipsToPixels(4560));
    MakeLabel(this, tr("Save As:"), At(240, 165, 1200, 255));
    txtSaveAs = new QLineEdit(this);
    txtSaveAs->setObjectName(QStringLiteral("txtSaveAs"));
    txtSaveAs->setMaxLength(50);
    txtSaveAs->setGeometry(At(1440, 120, 3480, 360));
    MakeLabel(this, tr("Saved Decks:"), At(240, 600, 2400, 255));
    lstDeckNames = new ListBox(this);
    lstDeckNames->setObjectName(QStringLiteral("lstDeckNames"));
    lstDeckNames->setSorted(true);
    lstDeckNames->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstDeckNames->setGeometry(At(240, 900, 4680, 2820));
    cmdSave = MakeButton(this, "cmdSave", tr("&Save"), At(1800, 3900, 1500, 420));
    cmdCancel = MakeButton(this, "cmdCancel", tr("&Cancel"), At(3420, 3900, 1500, 420));
    cmdSave->setEnabled(false);

    connect(lstDeckNames, &ListBox::Click, this, Handler([this] { lstDeckNames_Click(); }));
    connect(txtSaveAs, &QLineEdit::textChanged, this, Handler([this] { txtSaveAs_Change(); }));
    connect(cmdSave, &QPushButton::clicked, this, Handler([this] { cmdSave_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
}

void frmSaveDeck::Form_Load() {
    setCaption(tr("Save Deck"));
    CentreInFrame(*this);
    const QString name = TheRun.CurrentDeck.DeckName.Trimmed();
    txtSaveAs->setText(name.isEmpty() ? TheRun.CurrentDeck.DeckTitle.Trimmed() : name);
    {
        RecordReader<DeckRecord> reader(TheRun.Paths.DecksPath);
        DeckRecord deck;
        while (reader.Next(deck)) lstDeckNames->AddItem(deck.DeckName.Value());
    }
    const int line = FindLine(lstDeckNames, txtSaveAs->text());
    if (line >= 0) lstDeckNames->setListIndex(line);
}

void frmSaveDeck::lstDeckNames_Click() {
    // The list shows names as stored; the box takes them as typed.
    if (lstDeckNames->ListIndex() >= 0) txtSaveAs->setText(TrimField(lstDeckNames->Text()));
}

void frmSaveDeck::txtSaveAs_Change() { cmdSave->setEnabled(!txtSaveAs->text().isEmpty()); }

void frmSaveDeck::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
    } else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && (txtSaveAs->hasFocus() || lstDeckNames->hasFocus())) {
        handled = true;
        cmdSave_Click();
    }
}

void frmSaveDeck::cmdCancel_Click() { Unload(); }

void frmSaveDeck::cmdSave_Click() {
    const DeckSaveCheck check = CheckDeckSave(txtSaveAs->text());
    if (!check.Refusal.isEmpty()) {
        MsgBox(check.Refusal, vbExclamation);
        return;
    }
    SetScreenPointer(MousePointer::Hourglass);
    if (!check.Question.isEmpty()) {
        SetScreenPointer(MousePointer::Arrow);
        if (MsgBox(check.Question, vbYesNo | vbQuestion | vbDefaultButton2) == vbNo) return;
        SetScreenPointer(MousePointer::Hourglass);
    }
    const DeckSaveResult saved = SaveDeck(TheRun.CurrentDeck, check.Name, check.Replacing);
    for (const QString& problem : saved.Problems) MsgBox(problem);
    if (saved.Failure) throw *saved.Failure;
    TheRun.CurrentDeck = saved.Deck;
    StoreListDeck();

    if (IsLoaded<frmDesignDeck>()) {
        Get<frmDesignDeck>().DeckSaved(check.Name);
    }
    SetScreenPointer(MousePointer::Arrow);
    Unload();
}
