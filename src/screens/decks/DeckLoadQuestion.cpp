#include "screens/decks/DeckLoadQuestion.h"

#include <QCoreApplication>

#include "core/store/DeckLoading.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/platform/MsgBox.h"

bool LoadDeck(bool& DeckRemoved) {
    DeckRemoved = false;
    if (LoadDeckCards()) return true;
    const int answer = MsgBox(
        QCoreApplication::translate("DeckLoadQuestion", "This deck is missing some pictures. Cannot continue loading.\n"
                                                        "Do you want to remove it?"),
        vbYesNo | vbCritical);
    if (answer == vbYes) {
        DeleteDeck(FindDeckByName(TheRun.ListDeck.DeckName.Value()));
        DeckRemoved = true;
    }
    return false;
}
