#pragma once
// A package installation's questions answered by the test: the first spread
// is tied to the decks named in Chosen, what the chooser offered is kept in
// Offered, a design whose name is in use gets the answer Exists (when set),
// and any other question is left unanswered.
#include <QStringList>
#include <optional>

#include "core/packages/PackageInstallation.h"
#include "core/store/RunState.h"

struct InstallAnswers : InstallationQuestions {
    QStringList Chosen;
    QStringList Offered;
    std::optional<int> Exists;

    QString AttachmentTarget(const QString&) override { return {}; }
    DesignExistsReply DesignExists(int, const QString&, const std::function<bool(const QString&)>&) override {
        return {Exists.value_or(TheRun.DesignExistsChoice), {}};
    }
    void ChooseDecks(const std::vector<DeckRecord>& decks) override {
        Offered.clear();
        TheRun.CurrentSpread.AllowedDeckCount = 0;
        TheRun.CurrentSpread.AllowedDeckId.fill(-1);
        for (const DeckRecord& deck : decks) {
            Offered << deck.DeckName.Trimmed();
            if (Chosen.contains(deck.DeckName.Trimmed()))
                TheRun.CurrentSpread.AllowedDeckId[static_cast<std::size_t>(TheRun.CurrentSpread.AllowedDeckCount++)] =
                    deck.DeckId;
        }
    }
};
