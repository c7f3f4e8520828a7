#include "screens/decks/frmSaveDeck.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <array>
#include <vector>

#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/records/RecordFile.h"
#include "core/store/DeckLoading.h"
#include "core/store/DeletePasses.h"
#include "core/store/DesignCommit.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/decks/frmDesignDeck.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/shell/ScreenPlacement.h"

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
    }
    SaveDeck(name, existing);

    if (IsLoaded<frmDesignDeck>()) {
        Get<frmDesignDeck>().DeckSaved(name);
    }
    SetScreenPointer(MousePointer::Arrow);
    Unload();
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

// The final picture stems of one side, one per card: numbers upward whose
// stem no file in Cards/ or Temp/ carries, the files of the deck being
// replaced not counted.
std::vector<QString> NameRow(int side, int count, const QStringList& going) {
    std::vector<QString> row;
    const TakenStems taken({CardsDir, TempDir}, going);
    int n = 1;
    for (int i = 0; i < count; ++i) {
        while (taken.Contains(CardPictureStem(side, n))) ++n;
        row.push_back(CardPictureStem(side, n++));
    }
    return row;
}

// The working files of the deck on their way to Cards/: each is copied there
// under its final name and, once the save is made, takes that name in Temp/
// too, so that the working folder stays in step for a later save of the same
// design.
class FilePass {
public:
    explicit FilePass(DesignCommit& commit) : commit_(commit) {}

    void Move(const QString& from, const QString& to) {
        const QString source = NativePath(TempDir + from);
        // A working file that is not there (a second card on the same file,
        // whose first took it along) is told for the copy and for the
        // rename; the card keeps a name that no file answers to.
        if (moved_.contains(source) || !FileExists(source)) {
            for (int i = 0; i < 2; ++i) ReportAndGoOn([] { RaiseError(errFileNotFound); });
            return;
        }
        commit_.AddFile(source, to);
        moved_.insert(source);
        renames_.emplace_back(source, TempDir + to);
    }

    void RenameWorkingFiles() {
        for (const auto& [from, to] : renames_) ReportAndGoOn([&] { Name(from, to); });
    }

private:
    DesignCommit& commit_;
    QSet<QString> moved_;
    std::vector<std::pair<QString, QString>> renames_;
};

}  // namespace

void frmSaveDeck::SaveDeck(const QString& name, int existing) {
    // The deck being replaced goes in the same step as the new one comes, so
    // ids and picture names are drawn as if it were gone already.
    DeckRecord old;
    const bool replacing = existing >= 0 && GetRecord(DecksPath, existing, old);
    const int cardIdAt = OffsetOf(&CardRecord::CardDeckId);
    QStringList going;
    if (replacing) {
        RecordReader<CardRecord> reader(CardsPath);
        CardRecord card;
        while (const char* raw = reader.NextRaw()) {
            if (RawInteger(raw, cardIdAt) != old.DeckId) continue;
            DecodeRecord(raw, card);
            going << CardFilesOf(card);
        }
    }

    DeckInMemory deck = CurrentDeck;
    deck.DeckName = name;
    deck.ModifiedOn = OleToday();
    deck.DeckRevision = static_cast<Integer>(deck.DeckRevision + 1);
    deck.DeckId = NextDeckId(replacing ? existing : 0);
    const int sides = deck.IncludesReversed ? 2 : 1;
    std::array<std::vector<QString>, 2> names;
    for (int side = 0; side < sides; ++side)
        names[static_cast<std::size_t>(side)] = NameRow(side, deck.DeckCards.Count(), going);

    DesignCommit commit;
    FilePass files(commit);
    QByteArray cards;
    std::size_t i = 0;
    for (CardRecord& card : deck.DeckCards) {
        card.CardDeckId = deck.DeckId;
        for (int side = 0; side < sides; ++side) {
            auto& picture = card.CardPicture[static_cast<std::size_t>(side)];
            auto& sound = card.CardSound[static_cast<std::size_t>(side)];
            // The trimmed name never equals the 12-character default name, so
            // a side on the default picture is renamed too: the first such
            // side takes the working copy of the default picture with it, and
            // the next finds no file to copy.
            if (picture.Trimmed() == DefaultPictureName) continue;
            const QString oldPicture = picture.Value();
            picture = names[static_cast<std::size_t>(side)][i] + oldPicture.right(5);
            files.Move(oldPicture, picture.Value());
            if (sound.IsBlank()) continue;
            const QString oldSound = sound.Trimmed();
            sound = QStringLiteral("M") + picture.Value().left(7) + oldSound.right(4);
            files.Move(oldSound, sound.Value());
        }
        cards += EncodeRecord(card);
        ++i;
    }
    commit.AddRecordFile(CardsPath, CardRecord::Length, [&](const char* card, int) {
        return replacing && RawInteger(card, cardIdAt) == old.DeckId ? nullptr : card;
    }, cards);
    const DeckRecord& record = deck;
    commit.AddRecordFile(DecksPath, DeckRecord::Length, [&](const char* r, int number) {
        return replacing && number == existing ? nullptr : r;
    }, EncodeRecord(record));
    for (const QString& file : going) commit.DropFile(file);
    commit.Commit();

    // The save is made: the deck in hand and the working folder follow it.
    CurrentDeck = deck;
    StoreListDeck();
    files.RenameWorkingFiles();
}
