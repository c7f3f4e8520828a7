#include "screens/spreads/DeckLists.h"

#include <QCheckBox>
#include <QPushButton>

#include "core/records/RecordFile.h"
#include "core/spreads/AllowedDecks.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"

void RestoreListPosition(ListBox* list, int noted) {
    if (noted > list->ListCount() - 1) --noted;
    list->setListIndex(noted);
    if (list->ListIndex() < 0 && list->ListCount() > 0) list->setListIndex(0);
}

void DeckLists::ShowDeckLists() {
    const std::vector<DeckRecord> onFile =
        Decks ? std::vector<DeckRecord>() : ReadAllRecords<DeckRecord>(TheRun.Paths.DecksPath);
    for (const DeckRecord& deck : Decks ? *Decks : onFile) lstAvailableDecks->AddItem(deck.DeckName.Trimmed());
    if (lstAvailableDecks->ListCount() > 0) lstAvailableDecks->setListIndex(0);
    if (lstDecks->ListCount() > 0) lstDecks->setListIndex(0);
    UpdateDeckButtons();
}

void DeckLists::AddDeckNames(const SpreadRecord& spread) {
    for (int i = 1; i <= spread.AllowedDeckCount && i <= MaxSpreadDecks; ++i) {
        const QString name = TrimField(DeckNameById(spread.AllowedDeckId[static_cast<std::size_t>(i - 1)]));
        if (name.isEmpty()) continue;
        lstDecks->AddItem(name);
        for (int j = 0; j < lstAvailableDecks->ListCount(); ++j) {
            if (lstAvailableDecks->List(j) == name) {
                lstAvailableDecks->RemoveItem(j);
                break;
            }
        }
    }
    if (lstDecks->ListCount() > 0) lstDecks->setListIndex(0);
}

void DeckLists::UpdateDeckButtons() {
    for (ListBox* list : {lstAvailableDecks, lstDecks}) {
        if (list->ListCount() > 0 && list->ListIndex() < 0) list->setListIndex(0);
    }
    if (chkAnyDeck->isChecked()) {
        cmdAddDeck->setEnabled(false);
        cmdDeleteDeck->setEnabled(false);
        return;
    }
    cmdAddDeck->setEnabled(lstAvailableDecks->ListIndex() >= 0);
    cmdDeleteDeck->setEnabled(lstDecks->ListIndex() >= 0);
}

void DeckLists::Move(ListBox* from, ListBox* to) {
    if (from->ListIndex() < 0) return;
    const int fromPosition = from->ListIndex();
    const int toPosition = to->ListIndex();
    to->AddItem(from->Text());
    from->RemoveItem(fromPosition);
    RestoreListPosition(from, fromPosition);
    RestoreListPosition(to, toPosition);
    if (MarkDirty) MarkDirty();
}

void DeckLists::cmdAddDeck_Click() {
    const QString problem = SpreadDeckLimitProblem(lstDecks->ListCount());
    if (!problem.isEmpty()) {
        MsgBox(problem, vbInformation);
    } else {
        Move(lstAvailableDecks, lstDecks);
    }
    UpdateDeckButtons();
    lstAvailableDecks->setFocus();
}

void DeckLists::cmdDeleteDeck_Click() {
    Move(lstDecks, lstAvailableDecks);
    UpdateDeckButtons();
    lstDecks->setFocus();
}

void DeckLists::EnableForAnyDeck() {
    const bool named = !chkAnyDeck->isChecked();
    for (QWidget* control : NamedDeckControls) control->setEnabled(named);
}

void DeckLists::WriteChoice(SpreadRecord& spread) const {
    spread.AllowedDeckCount = static_cast<Integer>(chkAnyDeck->isChecked() ? -1 : lstDecks->ListCount());
    for (int i = 0; i < MaxSpreadDecks; ++i) {
        spread.AllowedDeckId[static_cast<std::size_t>(i)] =
            i < lstDecks->ListCount() ? DeckIdByName(lstDecks->List(i)) : Integer(-1);
    }
}

Integer DeckLists::DeckIdByName(const QString& name) const {
    if (!Decks) return FindDeckIdByName(name);
    const QString wanted = TrimField(name);
    for (const DeckRecord& deck : *Decks)
        if (deck.DeckName.Trimmed() == wanted) return deck.DeckId;
    return -1;
}
