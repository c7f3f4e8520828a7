#include "core/decks/DeckStore.h"

#include <QCoreApplication>
#include <QHash>
#include <array>
#include <functional>
#include <utility>
#include <vector>

#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/records/RecordFile.h"
#include "core/spreads/AllowedDecks.h"
#include "core/store/DeckLoading.h"
#include "core/store/DeletePasses.h"
#include "core/store/DesignCommit.h"
#include "core/store/Lookups.h"

namespace {

// An error of the file pass is noted and the pass goes on.
void NoteAndGoOn(QStringList& problems, const std::function<void()>& step) {
    try {
        step();
    } catch (const RuntimeError& e) {
        problems << QCoreApplication::translate("DeckStore", "Error number %1.  %2")
                        .arg(QString::number(e.Number()), e.Description());
    }
}

// The final picture stems of one side, one per card: numbers upward whose
// stem no file in Cards/ or Temp/ carries, nor the sound named after it, the
// files of the deck being replaced not counted. A sound's name follows its
// picture's: one drawn onto another card's working sound would meet it in
// Temp/, where the working files follow the save one by one.
std::vector<QString> NameRow(int side, int count, const QStringList& going) {
    std::vector<QString> row;
    const TakenStems taken({TheRun.Paths.CardsDir, TheRun.Paths.TempDir}, going);
    const auto isTaken = [&](int n) {
        return taken.Contains(CardPictureStem(side, n)) ||
               taken.Contains(QStringLiteral("M") + CardPictureStem(side, n));
    };
    int n = 1;
    for (int i = 0; i < count; ++i) {
        while (isTaken(n)) ++n;
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
    FilePass(DesignCommit& commit, QStringList& problems) : commit_(commit), problems_(problems) {}

    // The working file `from` is to become `to` in Cards/. One that is not
    // there is told for the copy and for the rename, and false says that
    // the side keeps no file of its own.
    bool Take(const QString& from, const QString& to) {
        const QString source = NativePath(TheRun.Paths.TempDir + from);
        if (!FileExists(source)) {
            for (int i = 0; i < 2; ++i) NoteAndGoOn(problems_, [] { RaiseError(errFileNotFound); });
            return false;
        }
        commit_.AddFile(source, to);
        takes_.emplace_back(source, NativePath(TheRun.Paths.TempDir + to));
        return true;
    }

    // A working file that several sides take (the default picture above
    // all) is copied for each; the last moves it, except the default
    // picture's, which stays for the cards still to come on it.
    void FollowInTemp() {
        QHash<QString, int> left;
        for (const auto& take : takes_) ++left[take.first];
        const QString defaultPicture = NativePath(TheRun.Paths.TempDir + DefaultPictureName);
        for (const auto& [from, to] : takes_) {
            NoteAndGoOn(problems_, [&, from = from, to = to] {
                if (--left[from] > 0 || from == defaultPicture) FileCopyUnsynced(from, to);
                else Name(from, to);
            });
        }
    }

private:
    DesignCommit& commit_;
    QStringList& problems_;
    std::vector<std::pair<QString, QString>> takes_;
};

}  // namespace

DeckSaveCheck CheckDeckSave(const QString& typed) {
    DeckSaveCheck check;
    check.Name = TrimField(typed);
    if (check.Name.isEmpty()) {
        check.Refusal = QCoreApplication::translate("DeckStore", "Please select a name to save the deck as.");
        return check;
    }
    check.Replacing = FindDeckByName(check.Name);
    if (check.Replacing >= 0)
        check.Question = QCoreApplication::translate("DeckStore", "Deck already exists. Overwrite?");
    return check;
}

DeckSaveResult SaveDeck(const DeckInMemory& inHand, const QString& name, int replacing) {
    DeckSaveResult result;
    DeckInMemory deck = inHand;
    try {
        // The deck being replaced goes in the same step as the new one comes,
        // so ids and picture names are drawn as if it were gone already.
        DeckRecord old;
        const bool replacingOne = replacing >= 0 && GetRecord(TheRun.Paths.DecksPath, replacing, old);
        deck.DeckName = name;
        deck.ModifiedOn = OleToday();
        deck.DeckRevision = static_cast<Integer>(deck.DeckRevision + 1);
        // The replaced deck's cards go with it, unless another deck record
        // carries its id as well (a damaged file).
        const bool oldCardsGo = replacingOne && FindDeckRecordById(old.DeckId, replacing) < 0;
        // A deck saved over another takes that deck's id, so that the spreads
        // tied to it stay tied to the deck of that name: the smallest free id
        // may be another, which no spread names, while the old one would be
        // left to a later deck, which every such spread would then name.
        deck.DeckId = oldCardsGo && old.DeckId > 0 ? old.DeckId : NextDeckId(replacingOne ? replacing : 0);

        // The cards that go in the same write: the replaced deck's, and every
        // card still under the id the deck takes, which no deck holds (a
        // delete killed between its writes leaves such cards). Their files go
        // with them, those that no staying card names.
        const int cardIdAt = OffsetOf(&CardRecord::CardDeckId);
        const auto goes = [&](const char* card) {
            const Integer id = RawInteger(card, cardIdAt);
            return id == deck.DeckId || (oldCardsGo && id == old.DeckId);
        };
        LeavingCardFiles leaving;
        for (const bool leavingPass : {true, false}) {
            if (!leavingPass && leaving.IsEmpty()) break;
            RecordReader<CardRecord> reader(TheRun.Paths.CardsPath);
            while (const char* card = reader.NextRaw()) {
                if (goes(card) != leavingPass) continue;
                if (leavingPass) leaving.Leaving(card);
                else leaving.Staying(card);
            }
        }
        const QStringList going = leaving.Files();

        const int sides = deck.IncludesReversed ? 2 : 1;
        std::array<std::vector<QString>, 2> names;
        for (int side = 0; side < sides; ++side)
            names[static_cast<std::size_t>(side)] = NameRow(side, deck.DeckCards.Count(), going);

        DesignCommit commit;
        FilePass pass(commit, result.Problems);
        QByteArray cards;
        std::size_t i = 0;
        for (CardRecord& card : deck.DeckCards) {
            card.CardDeckId = deck.DeckId;
            for (int side = 0; side < sides; ++side) {
                auto& picture = card.CardPicture[static_cast<std::size_t>(side)];
                auto& sound = card.CardSound[static_cast<std::size_t>(side)];
                // The trimmed name never equals the 12-character default
                // name, so a side on the default picture takes a copy of it
                // under a name of its own, as every other side is renamed.
                if (picture.Trimmed() == DefaultPictureName) continue;
                const QString oldPicture = picture.Value();
                const QString drawn = names[static_cast<std::size_t>(side)][i] + oldPicture.right(5);
                // A working picture that has gone leaves the side on the
                // default picture rather than on a name that no file answers
                // to, which the next load would blank, losing the card.
                picture = pass.Take(oldPicture, drawn) ? drawn : DefaultPictureName;
                if (sound.IsBlank()) continue;
                const QString oldSound = sound.Trimmed();
                const QString soundName = QStringLiteral("M") + drawn.left(7) + oldSound.right(4);
                sound = pass.Take(oldSound, soundName) ? soundName : QString();
            }
            cards += EncodeRecord(card);
            ++i;
        }
        commit.AddRecordFile(
            TheRun.Paths.CardsPath, CardRecord::Length,
            [&](const char* card, int) { return goes(card) ? nullptr : card; }, cards);
        const DeckRecord& record = deck;
        commit.AddRecordFile(
            TheRun.Paths.DecksPath, DeckRecord::Length,
            [&](const char* r, int number) { return replacingOne && number == replacing ? nullptr : r; },
            EncodeRecord(record));
        for (const QString& file : going) commit.DropFile(file);
        commit.Commit();
        // The save is made: the working folder follows it.
        pass.FollowInTemp();
    } catch (const RuntimeError& e) {
        result.Failure = e;
        return result;
    }
    result.Deck = deck;
    return result;
}

DeckDeleteCheck CheckDeckDelete(const QString& name) {
    DeckDeleteCheck check;
    check.RecordNumber = FindDeckByName(name);
    DeckRecord deck;
    if (check.RecordNumber < 0 || !GetRecord(TheRun.Paths.DecksPath, check.RecordNumber, deck))
        RaiseError(errInputPastEndOfFile);
    check.Questions << QCoreApplication::translate(
                           "DeckStore", "Are you sure you want to delete deck '%1' ?\n"
                                        "Be aware that this deck will be removed from all spreads that use it.")
                           .arg(name);
    check.Questions << (IsSoleDeckOfASpread(deck.DeckId)
                            ? QCoreApplication::translate("DeckStore",
                                                          "At least one spread uses solely this deck. Further, any "
                                                          "readings or diaries that\nuse this deck will not be able to "
                                                          "be opened. Proceed anyway?")
                            : QCoreApplication::translate("DeckStore",
                                                          "Any readings or diaries using this deck will not be able to "
                                                          "be opened.\nProceed anyway?"));
    return check;
}

void RemoveDeck(int recordNumber) {
    DeckRecord deck;
    if (!GetRecord(TheRun.Paths.DecksPath, recordNumber, deck)) return;
    // The spreads let go of the deck before it goes: a process that dies in
    // between leaves a deck that no spread names, never a spread naming an id
    // that a later deck may take.
    RemoveDeckFromSpreads(deck.DeckId);
    DeleteDeck(recordNumber);
}
