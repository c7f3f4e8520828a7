// Loading a deck into memory, what a vanished picture does to it, card types,
// and the names of picture files in Cards/.
#include <QTemporaryDir>
#include <QtTest>
#include "core/store/DeckLoading.h"

#include "core/platform/FileSys.h"
#include "core/store/Lookups.h"
#include "support/Fixtures.h"

namespace {

// Puts the deck of that name in ListDeck, as a deck list does before loading.
void SelectDeck(const QString& name) {
    const int number = FindDeckByName(name);
    QVERIFY(number > 0);
    QVERIFY(GetRecord(TheRun.Paths.DecksPath, number, TheRun.ListDeck));
}

// Loads the deck of that name as a deck list does, from ListDeck.
bool Load(const QString& name) {
    SelectDeck(name);
    return LoadDeckCards();
}

QByteArray CardBytes(int recordNumber) {
    return ReadWholeFile(TheRun.Paths.CardsPath).mid((recordNumber - 1) * CardRecord::Length, CardRecord::Length);
}

}  // namespace

class TestDeckLoading : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> dir_;

private slots:
    void init() {
        dir_ = std::make_unique<QTemporaryDir>();
        Fixtures::UseProgramDir(dir_->path());
    }

    void missingPictureBlanksTheCardThenTheDeckFails() {
        Fixtures::MakeDeck(QStringLiteral("Other"), 2, false);
        const Integer id = Fixtures::MakeDeck(QStringLiteral("Tarot"), 5, true);
        // Records 1-2 belong to Other; Tarot's third card is record 5.
        CardRecord third;
        QVERIFY(GetRecord(TheRun.Paths.CardsPath, 5, third));
        QVERIFY(QFile::remove(TheRun.Paths.CardsDir + third.CardPicture[1].Trimmed()));
        const QByteArray before = ReadWholeFile(TheRun.Paths.CardsPath);

        QVERIFY(Load(QStringLiteral("Tarot")));
        QCOMPARE(TheRun.CurrentDeck.DeckId, id);
        QCOMPARE(TheRun.CurrentDeck.DeckCards.Count(), 5);
        QCOMPARE(TheRun.CurrentDeck.DeckCards(3).CardPicture[0], third.CardPicture[0]);
        QCOMPARE(TheRun.CurrentDeck.DeckCards(3).CardPicture[1].Value(), DefaultPictureName);
        QCOMPARE(TheRun.CurrentDeck.DeckCards(4).CardTitle.Trimmed(), QStringLiteral("Card 4"));

        // Exactly that record is blanked; every other byte stays.
        const QByteArray after = ReadWholeFile(TheRun.Paths.CardsPath);
        QCOMPARE(CardBytes(5), QByteArray(CardRecord::Length, '\0'));
        QCOMPARE(after.left(4 * CardRecord::Length), before.left(4 * CardRecord::Length));
        QCOMPARE(after.mid(5 * CardRecord::Length), before.mid(5 * CardRecord::Length));

        // The next load finds only four cards.
        QVERIFY(!LoadDeckCards());
    }

    void cardCountDecidesHowManyCardsLoad() {
        const Integer id = Fixtures::MakeDeck(QStringLiteral("Empty"), 0, false);
        Fixtures::MakeDeck(QStringLiteral("Five"), 5, false);
        const QByteArray before = ReadWholeFile(TheRun.Paths.CardsPath);
        QVERIFY(Load(QStringLiteral("Empty")));
        QCOMPARE(TheRun.CurrentDeck.DeckId, id);
        QCOMPARE(TheRun.CurrentDeck.DeckCards.Count(), 0);

        // A deck that claims fewer cards than it has loads only the first ones.
        SelectDeck(QStringLiteral("Five"));
        TheRun.ListDeck.CardCount = 3;
        QVERIFY(LoadDeckCards());
        QCOMPARE(TheRun.CurrentDeck.DeckCards.Count(), 3);
        QCOMPARE(TheRun.CurrentDeck.DeckCards(3).CardTitle.Trimmed(), QStringLiteral("Card 3"));
        QCOMPARE(ReadWholeFile(TheRun.Paths.CardsPath), before);

        // A claim past what Cards.crd holds fails as a deck with missing
        // cards does, without a place for every card claimed.
        TheRun.ListDeck.CardCount = 32767;
        QVERIFY(!LoadDeckCards());
        QVERIFY(TheRun.CurrentDeck.DeckCards.Count() <= CountCards());
    }

    void cardTypes() {
        Fixtures::MakeDeck(QStringLiteral("Full"), 30, false);
        QVERIFY(Load(QStringLiteral("Full")));
        QCOMPARE(CardTypeIndex(QStringLiteral("  Minor Arcana ")), 1);
        QCOMPARE(CardTypeIndex(QStringLiteral("Cups")), -1);
        QCOMPARE(CountCardsOfTypeName(QStringLiteral("Major Arcana")), 22);
        QCOMPARE(CountCardsOfTypeName(QStringLiteral("Minor Arcana")), 8);

        TheRun.CardTypeSelected = {true, false, false, false};
        QCOMPARE(CountSelectedCardsOfType(TheRun.CurrentDeck.DeckCards, 30, 0), 22);
        QCOMPARE(CountSelectedCardsOfType(TheRun.CurrentDeck.DeckCards, 30, 1), 0);
        QCOMPARE(CountSelectedCardsOfType(TheRun.CurrentDeck.DeckCards, 10, 0), 10);
    }

    void pictureNamesWidenPastTheirDigits() {
        QCOMPARE(QStringList({CardUprightName(12), CardReversedName(123456), SpreadPictureName(123456)}),
                 QStringList({"CU00012", "CR123456", "S0123456"}));
    }

    // Which stems a file in a folder takes, the one rule behind every free
    // picture name.
    void aFileTakesItsStem_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("stem");
        QTest::addColumn<bool>("taken");
        const auto row = [](const char* name, const char* file, const char* stem, bool taken) {
            QTest::newRow(name) << QString::fromLatin1(file) << QString::fromLatin1(stem) << taken;
        };
        row("with an extension", "CU00001.jpg", "CU00001", true);
        row("without one", "S000003", "S000003", true);
        row("four letters that lost their dot", "CU00001jpeg", "CU00001", true);
        row("in other letters", "cu00001.BMP", "CU00001", true);
        row("after two dots", "S000001.tar.gz", "S000001", true);
        row("a longer number", "CU000012.jpg", "CU00001", false);
        row("the stem's sound", "CU00001M.WAV", "CU00001", false);
        row("the sound's own stem", "CU00001M.WAV", "CU00001M", true);
    }

    void aFileTakesItsStem() {
        QFETCH(QString, file);
        QFETCH(QString, stem);
        QFETCH(bool, taken);
        WriteWholeFile(TheRun.Paths.TempDir + file, "x");
        QCOMPARE(TakenStems({TheRun.Paths.TempDir}).Contains(stem), taken);
    }

    void freeNamesGoByStem() {
        Fixtures::WritePicture(TheRun.Paths.CardsDir + QStringLiteral("S000001.jpg"));
        WriteWholeFile(TheRun.Paths.CardsDir + QStringLiteral("S000002"), QByteArray("no extension"));
        QCOMPARE(NewBackgroundName(QStringLiteral("/home/user/table.gif  ")), QStringLiteral("S000003.gif"));
        Fixtures::WritePicture(TheRun.Paths.TempDir + QStringLiteral("CU00001.jpg"));
        WriteWholeFile(TheRun.Paths.CardsDir + QStringLiteral("CU00002jpeg"), QByteArray("a .jpeg source"));
        QCOMPARE(FreeCardNumber(0, {TheRun.Paths.CardsDir, TheRun.Paths.TempDir}), 3);
        QCOMPARE(FreeCardNumber(1, {TheRun.Paths.CardsDir, TheRun.Paths.TempDir}), 1);
    }
};

QTEST_MAIN(TestDeckLoading)
#include "tst_deckloading.moc"
