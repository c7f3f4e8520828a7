#include "decks/frmSaveDeck.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "decks/frmDesignDeck.h"
#include "decks/mdlDeckDesign.h"
#include "platform/FileSys.h"
#include "platform/ListBox.h"
#include "platform/MsgBox.h"
#include "platform/OleDate.h"
#include "shell/mdlFORM.h"
#include "store/RecordFile.h"
#include "store/mdlSubRoutines.h"

frmSaveDeck::frmSaveDeck() {
    setObjectName(QStringLiteral("frmSaveDeck"));
    resize(TwipsToPixels(5160), TwipsToPixels(4560));
    MakeLabel(this, QStringLiteral("Save As:"), At(240, 165, 1200, 255));
    txtSaveAs = new QLineEdit(this);
    txtSaveAs->setObjectName(QStringLiteral("txtSaveAs"));
    txtSaveAs->setMaxLength(50);
    txtSaveAs->setGeometry(At(1440, 120, 3480, 360));
    MakeLabel(this, QStringLiteral("Saved Decks:"), At(240, 600, 2400, 255));
    lstDeckNames = new ListBox(this);
    lstDeckNames->setObjectName(QStringLiteral("lstDeckNames"));
    lstDeckNames->setSorted(true);
    lstDeckNames->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstDeckNames->setGeometry(At(240, 900, 4680, 2820));
    cmdSave = MakeButton(this, "cmdSave", QStringLiteral("&Save"), At(1800, 3900, 1500, 420));
    cmdCancel = MakeButton(this, "cmdCancel", QStringLiteral("&Cancel"), At(3420, 3900, 1500, 420));
    cmdSave->setEnabled(false);

    connect(lstDeckNames, &ListBox::Click, this, Handler([this] { lstDeckNames_Click(); }));
    connect(txtSaveAs, &QLineEdit::textChanged, this, Handler([this] { txtSaveAs_Change(); }));
    connect(cmdSave, &QPushButton::clicked, this, Handler([this] { cmdSave_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
}

void frmSaveDeck::Form_Load() {
    setCaption(QStringLiteral("Save Deck"));
    CentreInFrame(*this);
    const QString name = CurrentDeck.DeckName.Trimmed();
    txtSaveAs->setText(name.isEmpty() ? CurrentDeck.DeckTitle.Trimmed() : name);
    {
        RecordReader<DeckRecord> reader(DecksPath);
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
    } else if ((key == Qt::Key_Return || key == Qt::Key_Enter) &&
               (txtSaveAs->hasFocus() || lstDeckNames->hasFocus())) {
        handled = true;
        cmdSave_Click();
    }
}

void frmSaveDeck::cmdCancel_Click() { Unload(); }

void frmSaveDeck::cmdSave_Click() {
    const QString name = TrimField(txtSaveAs->text());
    if (name.isEmpty()) {
        MsgBox(QStringLiteral("Please select a name to save the deck as."), vbExclamation);
        return;
    }
    SetScreenPointer(MousePointer::Hourglass);
    const int existing = FindDeckByName(name);
    if (existing >= 0) {
        SetScreenPointer(MousePointer::Arrow);
        if (MsgBox(QStringLiteral("Deck already exists. Overwrite?"), vbYesNo | vbQuestion | vbDefaultButton2) == vbNo)
            return;
        SetScreenPointer(MousePointer::Hourglass);
        // Everything being saved lies in Temp/, so the old deck's files in
        // Cards/ may go now.
        DeleteDeck(existing);
    }

    names_ = {};
    namesBuilt_ = false;
    drawn_ = {};
    CurrentDeck.DeckName = name;
    CurrentDeck.ModifiedOn = OleToday();
    CurrentDeck.DeckRevision = static_cast<Integer>(CurrentDeck.DeckRevision + 1);
    CurrentDeck.DeckId = NextDeckId();
    for (CardRecord& card : CurrentDeck.DeckCards) card.CardDeckId = CurrentDeck.DeckId;
    WriteCards();
    StoreListDeck();
    PutRecord(DecksPath, CountDecks() + 1, ListDeck);

    if (IsLoaded<frmDesignDeck>()) {
        frmDesignDeck& designer = Get<frmDesignDeck>();
        designer.lblModifiedOnDate->setText(FormatLongDate(CurrentDeck.ModifiedOn));
        designer.DesignModified = false;
        designer.OldDesignName = name;
    }
    SetScreenPointer(MousePointer::Arrow);
    Unload();
}

void frmSaveDeck::BuildNameTable() {
    const int count = CurrentDeck.CardCount;
    for (int side = 0; side < 2; ++side) {
        auto& row = names_[static_cast<std::size_t>(side)];
        int n = 1;
        for (int i = 0; i < count; ++i) {
            n = FreeCardNumber(side, {CardsDir, TempDir}, n);
            row.push_back(CardPictureStem(side, n));
            ++n;
        }
    }
    namesBuilt_ = true;
}

QString frmSaveDeck::NextPictureName(int side) {
    if (!namesBuilt_) BuildNameTable();
    auto& row = names_[static_cast<std::size_t>(side)];
    std::size_t& next = drawn_[static_cast<std::size_t>(side)];
    // A row holds one name per card and each side draws once per card.
    if (next >= row.size()) RaiseError(errSubscriptOutOfRange);
    return row[next++];
}

namespace {

// An error of the file pass is told and the pass goes on.
void ReportAndGoOn(const std::function<void()>& step) {
    try {
        step();
    } catch (const RuntimeError& e) {
        MsgBox(QStringLiteral("Error number ") + QString::number(e.Number()) + QStringLiteral(".  ") +
               e.Description());
    }
}

}  // namespace

void frmSaveDeck::WriteCards() {
    // The pictures and sounds are copied without a wait each and made
    // durable together before the cards that name them go into Cards.crd,
    // in one replacement of the file.
    RecordEdit<CardRecord> cards(CardsPath);
    const int sides = CurrentDeck.IncludesReversed ? 2 : 1;
    for (CardRecord& card : CurrentDeck.DeckCards) {
        for (int side = 0; side < sides; ++side) {
            auto& picture = card.CardPicture[static_cast<std::size_t>(side)];
            auto& sound = card.CardSound[static_cast<std::size_t>(side)];
            // The trimmed name never equals the 12-character default name, so
            // a side on the default picture is renamed too: the first such
            // side takes the working copy of the default picture with it, and
            // the next finds no file to copy.
            if (picture.Trimmed() == DefaultPictureName) continue;
            const QString oldPicture = picture.Value();
            ReportAndGoOn([&] {
                picture = NextPictureName(side) + oldPicture.right(5);
                const QString newPicture = picture.Value();
                ReportAndGoOn([&] { FileCopyUnsynced(TempDir + oldPicture, CardsDir + newPicture); });
                ReportAndGoOn([&] { Name(TempDir + oldPicture, TempDir + newPicture); });
                if (sound.IsBlank()) return;
                const QString oldSound = sound.Trimmed();
                sound = QStringLiteral("M") + newPicture.left(7) + oldSound.right(4);
                const QString newSound = sound.Value();
                ReportAndGoOn([&] { FileCopyUnsynced(TempDir + oldSound, CardsDir + newSound); });
                ReportAndGoOn([&] { Name(TempDir + oldSound, TempDir + newSound); });
            });
        }
        cards.Append(card);
    }
    SyncFileSystem(CardsDir);
    ReportAndGoOn([&] { cards.Commit(); });
}
