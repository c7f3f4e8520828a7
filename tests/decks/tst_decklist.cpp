// The deck store's rules: which spreads let go of a deleted deck, and what a
// save leaves on the disk whatever the folder held before.
#include <QTemporaryDir>
#include <QtTest>
#include <map>

#include "core/decks/CardEditing.h"
#include "core/decks/CardStore.h"
#include "core/decks/DeckStore.h"
#include "core/platform/FileSys.h"
#include "core/spreads/AllowedDecks.h"
#include "core/store/DeckLoading.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "support/Fixtures.h"

namespace {

// What a folder may hold before a deck is saved in it.
enum LeftOver {
    Nothing,
    Overwritten,   // an installation that overwrote a deck left its 78 cards under the old id
    KilledDelete,  // a delete killed between its two writes left a deck's cards
    SharedFile,    // the same, one of them naming a file that another deck's card names
    SharedId,      // two deck records carry one id
};

// Takes record n out of Decks.dck and nothing else, as a killed delete or an
// overwriting installation leaves the folder.
void DropDeckRecord(int n) {
    QByteArray decks = ReadWholeFile(TheRun.Paths.DecksPath);
    decks.remove((n - 1) * DeckRecord::Length, DeckRecord::Length);
    WriteWholeFile(TheRun.Paths.DecksPath, decks);
}

void LeaveOver(LeftOver state) {
    const Integer other = Fixtures::MakeDeck(QStringLiteral("Other"), 2, true);
    if (state == Overwritten) {
        Fixtures::MakeDeck(QStringLiteral("Starter"), 78, true);
        Fixtures::MakeDeck(QStringLiteral("Starter"), 78, true);
        DropDeckRecord(2);
    } else if (state == KilledDelete || state == SharedFile) {
        Fixtures::MakeDeck(QStringLiteral("Gone"), 3, false);
        if (state == SharedFile) {
            CardRecord shared;
            GetRecord(TheRun.Paths.CardsPath, 1, shared);
            ChangeRecord<CardRecord>(TheRun.Paths.CardsPath, 3,
                                     [&](CardRecord& c) { c.CardPicture[0] = shared.CardPicture[0]; });
        }
        DropDeckRecord(2);
    } else if (state == SharedId) {
        Fixtures::MakeDeck(QStringLiteral("Twin"), 2, true);
        ChangeRecord<DeckRecord>(TheRun.Paths.DecksPath, 2, [&](DeckRecord& d) { d.DeckId = other; });
    }
}

// Each card's title and the bytes of its pictures in a folder, a picture
// that is not there read as the default picture, as loading shows a deck.
QStringList Held(const BoundedArray<CardRecord>& cards, const QString& folder) {
    QStringList held;
    for (const CardRecord& card : cards) {
        held << card.CardTitle.Trimmed();
        for (const auto& picture : card.CardPicture) {
            const QString path =
                FileExists(folder + picture.Value()) ? folder + picture.Value() : TheRun.Paths.DefaultPicturePath;
            held.last() += QLatin1Char('|') + QString::fromLatin1(ReadWholeFile(path).toHex());
        }
    }
    return held;
}

QStringList Loaded(const QString& name) {
    if (!GetRecord(TheRun.Paths.DecksPath, FindDeckByName(name), TheRun.ListDeck) || !LoadDeckCards())
        return {QStringLiteral("(no deck)")};
    return Held(TheRun.CurrentDeck.DeckCards, TheRun.Paths.CardsDir);
}

}  // namespace

class TestDeckList : public QObject {
    Q_OBJECT

private slots:

    // A spread tied to the decks `allowed` when deck 4 goes: the decks after
    // it move up and the freed place is -1. A spread that does not list it is
    // not written, nor one for any deck. The second question says whether a
    // spread is left without a deck.
    void aDeckThatGoesIsUntiedFromItsSpreads_data() {
        QTest::addColumn<QList<Integer>>("allowed");
        QTest::addColumn<bool>("anyDeck");
        QTest::addColumn<bool>("sole");
        QTest::addColumn<QList<Integer>>("after");
        QTest::newRow("its only deck") << QList<Integer>{4} << false << true << QList<Integer>{};
        QTest::newRow("the first of three") << QList<Integer>{4, 2, 7} << false << false << QList<Integer>{2, 7};
        QTest::newRow("the middle one") << QList<Integer>{2, 4, 7} << false << false << QList<Integer>{2, 7};
        QTest::newRow("the tenth") << QList<Integer>{1, 2, 3, 5, 6, 7, 8, 9, 10, 4} << false << false
                                   << QList<Integer>{1, 2, 3, 5, 6, 7, 8, 9, 10};
        QTest::newRow("not listed") << QList<Integer>{2} << false << false << QList<Integer>{2};
        QTest::newRow("any deck") << QList<Integer>{4} << true << false << QList<Integer>{4};
    }
    void aDeckThatGoesIsUntiedFromItsSpreads() {
        QFETCH(QList<Integer>, allowed);
        QFETCH(bool, anyDeck);
        QFETCH(bool, sole);
        QFETCH(QList<Integer>, after);
        QTemporaryDir dir;
        Fixtures::UseProgramDir(dir.path());
        DeckRecord four;
        four.DeckName = QStringLiteral("Four");
        four.DeckId = 4;
        AppendRecord(TheRun.Paths.DecksPath, four);
        Fixtures::MakeSpread(QStringLiteral("Tied"), 1, allowed);
        if (anyDeck)
            ChangeRecord<SpreadRecord>(TheRun.Paths.SpreadsPath, 1, [](SpreadRecord& s) { s.AllowedDeckCount = -1; });
        const QByteArray before = ReadWholeFile(TheRun.Paths.SpreadsPath);
        const DeckDeleteCheck check = CheckDeckDelete(QStringLiteral("Four"));
        QCOMPARE(check.Questions.size(), 2);
        QCOMPARE(check.Questions[0], QStringLiteral("Are you sure you want to delete deck 'Four' ?\nBe aware that this "
                                                    "deck will be removed from all spreads that use it."));
        QCOMPARE(check.Questions[1],
                 sole ? QStringLiteral("At least one spread uses solely this deck. Further, any readings or diaries "
                                       "that\nuse this deck will not be able to be opened. Proceed anyway?")
                      : QStringLiteral("Any readings or diaries using this deck will not be able to be opened.\n"
                                       "Proceed anyway?"));
        RemoveDeck(check.RecordNumber);
        QCOMPARE(CountDecks(), 0);
        if (anyDeck || !allowed.contains(4)) QCOMPARE(ReadWholeFile(TheRun.Paths.SpreadsPath), before);
        SpreadRecord spread;
        GetRecord(TheRun.Paths.SpreadsPath, 1, spread);
        QCOMPARE(int(spread.AllowedDeckCount), anyDeck ? -1 : int(after.size()));
        for (int i = 0; i < 10; ++i) QCOMPARE(spread.AllowedDeckId[std::size_t(i)], after.value(i, -1));
    }

    // A new deck of five cards saved, reopened, saved again over itself and
    // reopened: it holds its own five cards and pictures whatever the folder
    // held before, and every other deck stays whole. Cards under the id it
    // takes belong to no deck and go with the files they alone name.
    void aSavedDeckHoldsItsOwnCards_data() {
        QTest::addColumn<int>("leftOver");
        QTest::addColumn<QString>("over");          // the deck it is saved over, if any
        QTest::addColumn<bool>("defaultReversed");  // its reversed sides on the default picture
        QTest::addColumn<int>("gone");              // a card whose working picture has gone, if any
        QTest::newRow("nothing left over") << int(Nothing) << QString() << false << 0;
        QTest::newRow("an overwriting installation's cards") << int(Overwritten) << QString() << false << 0;
        QTest::newRow("a killed delete's cards") << int(KilledDelete) << QString() << false << 0;
        QTest::newRow("a left-over card naming another deck's file") << int(SharedFile) << QString() << false << 0;
        QTest::newRow("over a deck whose id another deck carries") << int(SharedId) << "Twin" << false << 0;
        QTest::newRow("reversed sides on the default picture") << int(Nothing) << QString() << true << 0;
        QTest::newRow("a working picture gone") << int(Nothing) << QString() << false << 3;
    }
    void aSavedDeckHoldsItsOwnCards() {
        QFETCH(int, leftOver);
        QFETCH(QString, over);
        QFETCH(bool, defaultReversed);
        QFETCH(int, gone);
        QTemporaryDir dir;
        Fixtures::UseProgramDir(dir.path());
        LeaveOver(LeftOver(leftOver));
        std::map<QString, QStringList> others;
        for (const DeckRecord& other : ReadAllRecords<DeckRecord>(TheRun.Paths.DecksPath))
            if (other.DeckName.Trimmed() != over) others[other.DeckName.Trimmed()] = Loaded(other.DeckName.Value());

        // The deck as the designer holds it: pictures in Temp/, the default
        // picture beside them.
        ResetDeck();
        TheRun.CurrentDeck.IncludesReversed = True16;
        FileCopy(TheRun.Paths.DefaultPicturePath, TheRun.Paths.TempDir + DefaultPictureName);
        for (int i = 1; i <= 5; ++i) {
            CardRecord card;
            ResetCard(card);
            card.CardTitle = QStringLiteral("Mine %1").arg(i);
            for (int side = 0; side < (defaultReversed ? 1 : 2); ++side) {
                card.CardPicture[std::size_t(side)] = CardPictureStem(side, i) + QStringLiteral(".bmp");
                Fixtures::WritePicture(TheRun.Paths.TempDir + card.CardPicture[std::size_t(side)].Value(),
                                       Fixtures::CardColour(i, side == 0));
            }
            AppendDeckCard(card);
        }
        DeckInMemory deck = TheRun.CurrentDeck;
        // A gone picture shows, and is saved as, the default picture.
        if (gone) QFile::remove(TheRun.Paths.TempDir + deck.DeckCards(gone).CardPicture[0].Trimmed());
        const QStringList mine = Held(deck.DeckCards, TheRun.Paths.TempDir);

        const QString name = over.isEmpty() ? QStringLiteral("Mine") : over;
        for (int save = 1; save <= 2; ++save) {
            const DeckSaveResult saved = SaveDeck(deck, name, FindDeckByName(name));
            QVERIFY(!saved.Failure);
            QCOMPARE(saved.Problems, save == 1 && gone
                                         ? QStringList(2, QStringLiteral("Error number 53.  File not found"))
                                         : QStringList());
            deck = saved.Deck;
            QCOMPARE(Loaded(name), mine);
            int underItsId = 0;
            for (const CardRecord& card : ReadAllRecords<CardRecord>(TheRun.Paths.CardsPath))
                underItsId += card.CardDeckId == deck.DeckId;
            QCOMPARE(underItsId, 5);
            for (const auto& [other, cards] : others) QCOMPARE(Loaded(other), cards);
            QVERIFY(FileExists(TheRun.Paths.DefaultPicturePath));
        }
    }
};

QTEST_MAIN(TestDeckList)
#include "tst_decklist.moc"
