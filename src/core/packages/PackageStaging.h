#pragma once
// The data part of creating a package: the chosen decks with their cards and
// spreads with their locations, and every file their records name, copied
// into Temp/ under the names a package holds (Temp.dck, Temp.crd, Temp.spr,
// Temp.loc and the files' own names). The password goes only into the
// copies; the live designs never change. The create-package screen fills the
// choice from its lists; anything else that makes a package fills it from
// names.
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "core/records/Records.h"

struct PackageStaging {
    // The designs chosen, by name, in the order they are to be packed.
    QStringList DeckNames;
    QStringList SpreadNames;
    // The password rule: with UsePassword, a design that is not locked is
    // locked with Password; one that is locked keeps its own password, and
    // ProtectedDesignMet (if set) is told.
    bool UsePassword = false;
    QString Password;
    std::function<void()> ProtectedDesignMet;

    // What went into the staged record files.
    int DecksPacked = 0;
    int SpreadsPacked = 0;

    // Each design goes whole, as it shows: a file that is not in Cards/ is
    // left out and its field names the default picture (a card's picture)
    // or nothing (any other file). A record file without records is not
    // staged.
    //
    // Temp.dck from the chosen decks, with their attachments.
    void StageDecks();
    // Temp.crd: every card of the decks staged by StageDecks, in Cards.crd
    // order, with its pictures and sounds.
    void StageCards();
    // Temp.spr and Temp.loc from the chosen spreads with all their locations,
    // with their files. A file of a spread that cannot be copied is left out
    // like one that is not there.
    void StageSpreads();
    // All three, as the creation screen stages a package; a kind with nothing
    // chosen is skipped, which stages what its step would (nothing).
    void StageAll();
    // Whether a card's CardDeckId belongs to a deck staged by StageDecks.
    bool IsCardOfPackedDeck(Integer id);

private:
    void ApplyPassword(Integer& locked, FixedText<25>& password);

    std::vector<Integer> PackedDeckIds;
    Integer LastPackedDeckId = 0;
};
