#pragma once
// A package installation's questions answered by the test: the attachment's
// place, the design-exists replies in turn, and the decks (by name) that the
// first spread is tied to; what each chooser offered is kept.
#include <QStringList>
#include <deque>

#include "packages/PackageInstallation.h"
#include "store/mdlVariables.h"

struct InstallAnswers : InstallationQuestions {
    QString Attachment;   // empty: cancelled
    std::deque<DesignExistsReply> Replies;
    QStringList Chosen;
    QStringList Offered;

    QString AttachmentTarget(const QString&) override { return Attachment; }
    DesignExistsReply DesignExists(int, const QString&, const std::function<bool(const QString&)>&) override {
        if (Replies.empty()) return {DesignExistsChoice, {}};
        const DesignExistsReply reply = Replies.front();
        Replies.pop_front();
        return reply;
    }
    void ChooseDecks(const std::vector<DeckRecord>& decks) override {
        Offered.clear();
        CurrentSpread.AllowedDeckCount = 0;
        CurrentSpread.AllowedDeckId.fill(-1);
        for (const DeckRecord& deck : decks) {
            Offered << deck.DeckName.Trimmed();
            if (Chosen.contains(deck.DeckName.Trimmed()))
                CurrentSpread.AllowedDeckId[static_cast<std::size_t>(CurrentSpread.AllowedDeckCount++)] = deck.DeckId;
        }
    }
};
