// The shuffle against the generator's formula worked by hand, the rules of
// the deal on the core's value, and the cards a diary entry's locations may
// take, on the core's lists.
#include <QtTest>
#include <cmath>

#include "core/platform/Rnd.h"
#include "core/readings/Deal.h"
#include "core/readings/DiaryCards.h"
#include "core/readings/Shuffle.h"
#include "core/records/RecordFile.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"

namespace {

// The generator as its formula reads: state = (state * 1140671485 + 12820163)
// mod 2^24, value = state / 2^24.
struct HandGenerator {
    std::uint32_t state;
    float Next() {
        state = static_cast<std::uint32_t>((std::uint64_t(state) * 1140671485u + 12820163u) & 0xFFFFFFu);
        return static_cast<float>(state) / 16777216.0f;
    }
};

// The state that the generator leaves as `after` on its next step.
std::uint32_t StateBefore(std::uint32_t after) {
    std::uint32_t inverse = 1140671485u;  // Newton's steps for the inverse modulo 2^32
    for (int i = 0; i < 5; ++i) inverse *= 2u - 1140671485u * inverse;
    return ((after - 12820163u) * inverse) & 0xFFFFFFu;
}

// Cards 2, 4, .. before 1, 3, ..: the pool of a deck whose types alternate.
QList<Integer> GroupedByType(int cards) {
    QList<Integer> list;
    for (int first = 2; first >= 1; --first)
        for (int c = first; c <= cards; c += 2) list << Integer(c);
    return list;
}

// A deck in memory of `cards` cards, the first 22 of type 0, the rest of
// type 1.
DeckInMemory DeckOf(int cards) {
    DeckInMemory deck;
    deck.CardCount = static_cast<Integer>(cards);
    deck.DeckCards.Redim(1, cards);
    for (int n = 1; n <= cards; ++n) deck.DeckCards(n).CardType = static_cast<Integer>(n <= 22 ? 0 : 1);
    return deck;
}

// The shuffle worked by hand on a list and a seed: each card, then its orientation.
QList<Integer> HandShuffle(QList<Integer> list, std::uint32_t seed, bool useReversed) {
    HandGenerator g{seed};
    const int n = static_cast<int>(list.size());
    QList<Integer> upright;
    for (int i = 1; i <= n; ++i) {
        std::swap(list[i - 1], list[static_cast<int>(std::floor(static_cast<float>(n) * g.Next()))]);
        upright << ((g.Next() < 0.5f || !useReversed) ? True16 : False16);
    }
    return list + upright;
}

QString Titled(int n) { return QStringLiteral("Card %1").arg(n); }

// A location's list in short: "-" the row of no card, "n" card n, "n'" card
// n come back without its number.
QString Described(int location) {
    QStringList rows;
    for (const CardRow& row : TheRun.DiaryLists.Rows(location)) {
        if (row.Text == SelectPrompt()) rows << QStringLiteral("-");
        else rows << row.Text.section(QLatin1Char(' '), 1) + (row.Card == 0 ? QStringLiteral("'") : QString());
    }
    return rows.join(QLatin1Char(' '));
}

}  // namespace

class TestShuffle : public QObject {
    Q_OBJECT

private slots:
    void theShuffleIsTheFormulaWorkedByHand_data() {
        QTest::addColumn<std::uint32_t>("seed");
        QTest::addColumn<bool>("useReversed");
        QTest::newRow("with reversals") << std::uint32_t(0x3A5F21) << true;
        // The orientation draws still happen: the same order as with them.
        QTest::newRow("without reversals") << std::uint32_t(0x3A5F21) << false;
        // The second number drawn (the orientation of position 1) is 0.5.
        const std::uint32_t half = StateBefore(StateBefore(1u << 23));
        HandGenerator g{half};
        g.Next();
        QCOMPARE(g.Next(), 0.5f);
        QTest::newRow("exactly one half reverses") << half << true;
    }

    void theShuffleIsTheFormulaWorkedByHand() {
        QFETCH(std::uint32_t, seed);
        QFETCH(bool, useReversed);
        BoundedArray<CardRecord> deck(1, 20);
        for (int n = 1; n <= 20; ++n) deck(n).CardType = static_cast<Integer>(n % 2);
        TheRun.CardTypeSelected = {true, true, false, false};
        BoundedArray<Integer> cards(1, Deal::TableSize), upright(1, Deal::TableSize);
        QCOMPARE(PoolSize(deck, 20), 20);
        ListPool(cards, deck, 20);
        SetRandomizeSeedForTests(seed);
        ShuffleTable(cards, upright, 20, useReversed);
        QList<Integer> dealt;
        for (int i = 1; i <= 20; ++i) dealt << cards(i);
        for (int i = 1; i <= 20; ++i) dealt << upright(i);
        QCOMPARE(dealt, HandShuffle(GroupedByType(20), seed, useReversed));
    }

    // A draw from each kind of table: where the card goes, what becomes of
    // its position, of the table and of the Shuffle button.
    void aDrawDealsIntoTheNextLocation_data() {
        QTest::addColumn<bool>("duplicates");
        QTest::addColumn<int>("next");
        QTest::addColumn<int>("left");
        QTest::addColumn<int>("leftAfter");
        QTest::addColumn<int>("fate");
        QTest::addColumn<bool>("reshuffles");
        QTest::addColumn<bool>("shuffleAllowed");
        const int stays = int(TableFate::Stays), empty = int(TableFate::RanEmpty), done = int(TableFate::DealComplete);
        QTest::newRow("first card") << false << 1 << 30 << 29 << stays << false << true;
        QTest::newRow("last location") << false << 6 << 25 << 24 << done << false << true;
        QTest::newRow("last card of the table") << false << 3 << 1 << 0 << empty << false << false;
        QTest::newRow("two cards left") << false << 3 << 2 << 1 << stays << false << false;
        QTest::newRow("duplicates, locations open") << true << 2 << 12 << 12 << stays << true << true;
        QTest::newRow("duplicates, last location") << true << 6 << 12 << 12 << done << false << true;
    }

    void aDrawDealsIntoTheNextLocation() {
        QFETCH(bool, duplicates);
        QFETCH(int, next);
        QFETCH(int, left);
        Deal deal;
        deal.ThisLocationNumber = Integer(next);
        deal.DeckCardsLeft = Integer(left);
        deal.LocationCard(9) = 17;
        deal.LocationIsUpright(9) = False16;
        deal.FaceDown(9) = True16;
        QCOMPARE(DealFromPosition(deal, 9, duplicates), next);
        QCOMPARE(deal.DealtCard(next), Integer(17));
        QCOMPARE(deal.DealtUpright(next), False16);
        QCOMPARE(deal.ThisLocationNumber, Integer(next + 1));
        QCOMPARE(deal.FaceDown(9) != 0, duplicates);
        QTEST(int(deal.DeckCardsLeft), "leftAfter");
        QTEST(int(TableAfterDraw(deal, 6)), "fate");
        QTEST(ReshufflesAfterDraw(deal, 6, duplicates), "reshuffles");
        QTEST(ShuffleAllowed(deal), "shuffleAllowed");
    }

    void interpretShowsTheLastCardDealt_data() {
        QTest::addColumn<int>("next");
        QTest::addColumn<int>("shown");
        QTest::newRow("before the first card") << 1 << 1;
        QTest::newRow("after three cards") << 4 << 3;
        QTest::newRow("deal complete") << 7 << 6;
        QTest::newRow("no location") << 0 << 0;
    }

    void interpretShowsTheLastCardDealt() {
        QFETCH(int, next);
        Deal deal;
        deal.ThisLocationNumber = Integer(next);
        QTEST(LocationToInterpret(deal, 6), "shown");
    }

    // Deal again restarts only a complete deal, keeping name and notes; after
    // a table that ran empty it only counts the deck anew.
    void dealAgainStartsOverOnlyACompleteDeal() {
        for (const bool complete : {true, false}) {
            Deal deal;
            deal.ThisLocationNumber = Integer(complete ? 7 : 4);
            deal.DealtCard(1) = 5;
            ReadingRecord reading;
            reading.ReadingName = QStringLiteral("Kept");
            reading.ReadingNotes = QStringLiteral("Notes kept");
            reading.IssueAsked = True16;
            QCOMPARE(DealAgain(deal, reading, 30, 6, DealOptions{true, true, {false, true, false, false}}), complete);
            QCOMPARE(QList<Integer>({deal.DeckCardsLeft, deal.ThisLocationNumber, deal.DealtCard(1), reading.IssueAsked,
                                     reading.AllowDuplicateCards, reading.CardTypeSelected[1]}),
                     complete ? QList<Integer>({30, 1, 0, False16, True16, True16})
                              : QList<Integer>({30, 4, 5, True16, False16, False16}));
            QCOMPARE(reading.ReadingName.Trimmed() + reading.ReadingNotes.Trimmed(), QStringLiteral("KeptNotes kept"));
        }
    }

    // The save keeps the table only while cards are left and locations open;
    // reopening puts back the saved order face down, counted on top of the pool.
    void aSavedDealReopensAsItWasSaved_data() {
        QTest::addColumn<int>("types");  // 1: type 0 only (22 cards), 2: type 1 only (8), 3: both
        QTest::addColumn<int>("locations");
        QTest::addColumn<int>("draws");
        QTest::addColumn<int>("keptFaceDown");
        QTest::addColumn<int>("cardsLeft");
        QTest::newRow("half dealt") << 3 << 6 << 2 << 28 << 30 + 28;
        QTest::newRow("deal complete") << 3 << 6 << 6 << 0 << 30;
        QTest::newRow("table ran empty") << 2 << 10 << 8 << 0 << 8;
    }

    void aSavedDealReopensAsItWasSaved() {
        QFETCH(int, types);
        QFETCH(int, locations);
        QFETCH(int, draws);
        QFETCH(int, keptFaceDown);
        const DeckInMemory deck = DeckOf(30);
        const DealOptions options{true, false, {(types & 1) != 0, (types & 2) != 0, false, false}};
        Deal deal;
        ReadingRecord reading;
        ::LayTable(deal, deck, options, reading);
        QCOMPARE(reading.LocationCard[0], deal.LocationCard(1));  // the reading keeps the order
        for (int d = 0; d < draws; ++d) DealFromPosition(deal, PickRandomPosition(deal), false);
        SpreadRecord spread;
        spread.LocationCount = Integer(locations);
        spread.SpreadRevision = 4;
        GatherReading(deal, reading, DeckRecord(), spread, QStringLiteral("  Issue  "));
        QCOMPARE(int(std::count(reading.TableCardVisible.begin(), reading.TableCardVisible.end(), True16)),
                 keptFaceDown);
        QCOMPARE(QList<Integer>({reading.DealtCount, reading.ReadingSpreadRevision}),
                 QList<Integer>({Integer(draws), 4}));

        Deal reopened;
        const QByteArray saved = EncodeRecord(reading);
        RestoreDeal(reopened, reading, deck, locations, options);
        QVERIFY(reopened.LoadingReading);
        QCOMPARE(EncodeRecord(reading), saved);  // the laying leaves the record alone
        QCOMPARE(reopened.ThisLocationNumber, Integer(draws + 1));
        QCOMPARE(reopened.MaxCardsUsed, Integer(keptFaceDown + draws));
        QTEST(int(reopened.DeckCardsLeft), "cardsLeft");
        for (int i = 1; i <= Deal::TableSize; ++i) {
            QCOMPARE(reopened.LocationCard(i), deal.LocationCard(i));
            QCOMPARE(reopened.FaceDown(i) != 0, keptFaceDown > 0 && deal.FaceDown(i) != 0);
        }
        for (int i = 1; i <= Deal::MaxLocations; ++i) QCOMPARE(reopened.DealtCard(i), deal.DealtCard(i));
    }

    // Twelve locations on the deck of 22 cards of type 0 and 8 of type 1.
    void enoughCardsAreChosen_data() {
        QTest::addColumn<QList<int>>("chosen");
        QTest::addColumn<bool>("enough");
        QTest::newRow("the larger type") << QList<int>{0} << true;
        QTest::newRow("the smaller type") << QList<int>{1} << false;
        QTest::newRow("both types") << QList<int>{0, 1} << true;
        QTest::newRow("a name no type has") << QList<int>{-1} << false;
        QTest::newRow("none") << QList<int>{} << false;
    }

    void enoughCardsAreChosen() {
        QFETCH(QList<int>, chosen);
        QTEST(EnoughCardsSelected(DeckOf(30), chosen, 12), "enough");
    }

    void thePickDrawsOnlyFaceDownPositions() {
        SetRandomizeSeedForTests(7);
        Randomize();
        QCOMPARE(PickFaceDownPosition(5, 100, [](int at) { return at == 4; }), 4);
        QCOMPARE(PickFaceDownPosition(5, 100, [](int) { return false; }), 0);
    }

    // Choices "location:card" (0 for no card) made in turn on four locations
    // and a deck of six cards: the cards the entry holds, and the list of one
    // location afterwards.
    void theListsFollowTheCardsChosen_data() {
        QTest::addColumn<bool>("duplicates");
        QTest::addColumn<QString>("choices");
        QTest::addColumn<QString>("dealt");
        QTest::addColumn<int>("location");
        QTest::addColumn<QString>("list");
        const auto row = [](const char* name, bool duplicates, const char* choices, const char* dealt, int location,
                            const char* list) {
            QTest::newRow(name) << duplicates << QString(choices) << QString(dealt) << location << QString(list);
        };
        row("chosen cards leave the other lists", false, "3:5 1:2", "2 0 5 0", 4, "- 1 3 4 6");
        row("a replaced card comes back by its title", false, "4:6 4:1", "0 0 0 1", 2, "- 2 3 4 5 6'");
        row("a location set back gives its card back", false, "1:2 1:0", "0 0 0 0", 3, "- 1 3 4 5 6 2'");
        row("a card come back is found by its title", false, "1:2 1:0 3:2", "0 0 2 0", 4, "- 1 3 4 5 6");
        row("duplicates leave the lists whole", true, "1:2 2:2", "2 2 0 0", 3, "- 1 2 3 4 5 6");
    }

    void theListsFollowTheCardsChosen() {
        QFETCH(bool, duplicates);
        QFETCH(QString, choices);
        QFETCH(int, location);
        DeckInMemory deck;
        deck.CardCount = 6;
        deck.DeckCards.Redim(1, 6);
        for (int n = 1; n <= 6; ++n) deck.DeckCards(n).CardTitle = Titled(n);
        DiaryRecord diary;
        ResetDiary(diary);
        FillCardLists(TheRun.DiaryLists, deck, 4, {true, false, false, false});
        for (const QString& choice : choices.split(QLatin1Char(' '))) {
            const int at = choice.section(QLatin1Char(':'), 0, 0).toInt();
            const int card = choice.section(QLatin1Char(':'), 1).toInt();
            int row = IndexOfNone(TheRun.DiaryLists, at);
            for (int r = 0; card > 0 && r < TheRun.DiaryLists.Rows(at).size(); ++r)
                if (TheRun.DiaryLists.Rows(at)[r].Text == Titled(card)) row = r;
            QCOMPARE(ChooseRow(TheRun.DiaryLists, diary, at, row, SelectedText(TheRun.DiaryLists, at), duplicates,
                               false, deck, 4),
                     card);
        }
        QStringList dealt;
        for (int i = 0; i < 4; ++i) dealt << QString::number(diary.DealtCard[std::size_t(i)]);
        QTEST(dealt.join(QLatin1Char(' ')), "dealt");
        QTEST(Described(location), "list");
    }
};

QTEST_MAIN(TestShuffle)
#include "tst_shuffle.moc"
