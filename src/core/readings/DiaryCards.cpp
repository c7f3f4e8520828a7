#include "core/readings/DiaryCards.h"

#include <QCoreApplication>
#include <algorithm>

#include "core/readings/Element.h"
#include "core/store/RunState.h"

namespace {

// The card that lay elsewhere comes back to the end of every other list by
// its title only: its row carries no number any more.
void ReturnCardToLists(DiaryCardLists& lists, int location, const QString& text, int locationCount) {
    if (text == SelectPrompt()) return;
    for (int i = 1; i <= locationCount; ++i)
        if (i != location) lists.Rows(i).append({text, 0});
}

// The card chosen leaves every other list: the first row of its title goes.
void TakeCardFromLists(DiaryCardLists& lists, int location, int locationCount) {
    const QString text = SelectedText(lists, location);
    if (text == SelectPrompt()) return;
    for (int i = 1; i <= locationCount; ++i) {
        if (i == location) continue;
        QList<CardRow>& rows = lists.Rows(i);
        int row = 0;
        while (row < rows.size() && rows[row].Text != text) ++row;
        // A card missing from a list it should still be in is a broken entry.
        if (row == rows.size())
            RaiseError(5, QCoreApplication::translate("DiaryCards", "Invalid procedure call or argument"));
        rows.removeAt(row);
        // The location keeps standing on its own row.
        int& selected = lists.Selected(i);
        if (row < selected) --selected;
        selected = std::min(selected, static_cast<int>(rows.size()) - 1);
    }
}

}  // namespace

QString SelectPrompt() { return QCoreApplication::translate("DiaryCards", " [Select]"); }

void FillCardLists(DiaryCardLists& lists, const DeckInMemory& deck, int locationCount,
                   const std::array<bool, 4>& types) {
    for (int i = 1; i <= locationCount; ++i) {
        QList<CardRow>& rows = lists.Rows(i);
        rows = {{SelectPrompt(), 0}};
        for (int n = 1; n <= deck.CardCount; ++n) {
            const CardRecord& card = deck.DeckCards(n);
            // Cards of the types left out never appear.
            if (card.CardType >= 0 && card.CardType <= 3 && types[static_cast<std::size_t>(card.CardType)])
                rows.append({card.CardTitle.Trimmed(), static_cast<Integer>(n)});
        }
        lists.Selected(i) = IndexOfNone(lists, i);
    }
}

int IndexOfNone(const DiaryCardLists& lists, int location) {
    const QList<CardRow>& rows = lists.Rows(location);
    for (int r = 0; r < rows.size(); ++r)
        if (rows[r].Text == SelectPrompt()) return r;
    return -1;
}

QString SelectedText(const DiaryCardLists& lists, int location) {
    const int row = lists.Selected(location);
    const QList<CardRow>& rows = lists.Rows(location);
    return row >= 0 && row < rows.size() ? rows[row].Text : QString();
}

Integer SelectedCard(const DiaryCardLists& lists, int location) {
    const int row = lists.Selected(location);
    const QList<CardRow>& rows = lists.Rows(location);
    return row >= 0 && row < rows.size() ? rows[row].Card : Integer(0);
}

bool HasCardIn(const DiaryCardLists& lists, int location) {
    const int row = lists.Selected(location);
    return row >= 0 && row != IndexOfNone(lists, location);
}

int CardNumberOfRow(const DiaryCardLists& lists, int location, const DeckInMemory& deck) {
    const QString text = SelectedText(lists, location);
    if (text == SelectPrompt()) return IndexOfNone(lists, location);
    const QString title = text.trimmed();
    for (int n = 1; n <= deck.CardCount; ++n)
        if (deck.DeckCards(n).CardTitle.Trimmed() == title) return n;
    return IndexOfNone(lists, location);
}

int RowOfCard(const DiaryCardLists& lists, int location, Integer card) {
    const QList<CardRow>& rows = lists.Rows(location);
    for (int r = 0; r < rows.size(); ++r)
        if (rows[r].Card == card) return r;
    return IndexOfNone(lists, location);
}

int ChooseRow(DiaryCardLists& lists, DiaryRecord& diary, int location, int row, const QString& before,
              bool allowDuplicates, bool rebuilding, const DeckInMemory& deck, int locationCount) {
    lists.Selected(location) = row;
    if (!allowDuplicates && !rebuilding) ReturnCardToLists(lists, location, before, locationCount);
    const int n = CardNumberOfRow(lists, location, deck);
    Element(diary.DealtCard, location) = static_cast<Integer>(n > 0 ? n : 0);
    if (!allowDuplicates) TakeCardFromLists(lists, location, locationCount);
    return n > 0 ? n : 0;
}

int RowToRestore(const DiaryCardLists& lists, const DiaryRecord& diary, int location, const DeckInMemory& deck) {
    const int n = Element(diary.DealtCard, location);
    if (n < 1 || n > deck.CardCount) return IndexOfNone(lists, location);
    const QString title = deck.DeckCards(n).CardTitle.Trimmed();
    const QList<CardRow>& rows = lists.Rows(location);
    for (int r = 0; r < rows.size(); ++r)
        if (rows[r].Text == title) return r;
    return IndexOfNone(lists, location);
}

void GatherDiary(DiaryRecord& diary, const DeckRecord& deck, const SpreadRecord& spread, const QString& issue,
                 int focusLocation) {
    diary.ReadingDeckId = deck.DeckId;
    diary.ReadingDeckRevision = deck.DeckRevision;
    diary.Issue = issue;
    diary.ReadingSpreadId = spread.SpreadId;
    diary.ReadingSpreadRevision = spread.SpreadRevision;
    diary.DiaryChoice = static_cast<Integer>(focusLocation);
}
