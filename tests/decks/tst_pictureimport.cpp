// A deck made from a folder of pictures: the order, titles, types and
// reversed sides of the cards, the card names they take in Temp/, the limit,
// what cannot be read, and a cancelled import that leaves everything as it was.
// And the titles a new card may take, however it joins the deck, and the names
// of the deck's card types.
#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

#include "core/decks/CardStore.h"
#include "core/decks/CardTypeNames.h"
#include "core/decks/PictureImport.h"
#include "core/platform/FileSys.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "support/Fixtures.h"

namespace {

// 16 x 16, the top left quarter red and the rest blue, so that a turn shows.
void WriteMarked(const QString& path, const char* format) {
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x) image.setPixel(x, y, qRgb(255, 0, 0));
    QVERIFY(image.save(path, format));
}

bool RedAt(const QString& path, int x, int y) {
    const QColor c = QImage(path).pixelColor(x, y);
    return c.red() > 150 && c.blue() < 100;
}

// The deck being designed, holding "Card 1" .. "Card n".
void DeckOf(int cards, bool withReversed = true) {
    ResetDeck();
    CurrentDeck.IncludesReversed = Flag(withReversed);
    CurrentDeck.CardCount = static_cast<Integer>(cards);
    CurrentDeck.DeckCards.RedimPreserve(cards);
    for (int i = 1; i <= cards; ++i) CurrentDeck.DeckCards(i).CardTitle = QStringLiteral("Card %1").arg(i);
}

}  // namespace

class TestPictureImport : public QObject {
    Q_OBJECT
    QTemporaryDir program_;
    QTemporaryDir folder_;

private slots:
    void initTestCase() {
        const QString f = folder_.path() + QLatin1Char('/');
        WriteMarked(f + QStringLiteral("1_the-fool.png"), "PNG");
        WriteMarked(f + QStringLiteral("1_the-fool-reversed.jpg"), "JPEG");
        WriteMarked(f + QStringLiteral("2 the magician.jpg"), "JPEG");
        WriteMarked(f + QStringLiteral("2 the magician_r.bmp"), "BMP");
        WriteMarked(f + QStringLiteral("3 the empress.png"), "PNG");
        // Its header reads as a picture; its body is cut off.
        WriteWholeFile(f + QStringLiteral("3 the empress.png"), ReadWholeFile(f + QStringLiteral("3 the empress.png")).left(40));
        WriteMarked(f + QStringLiteral("10 wheel_of-fortune.jpg"), "JPEG");
        WriteMarked(f + QStringLiteral("10 Wheel_of-Fortune REVERSED.jpg"), "JPEG");
        WriteMarked(f + QStringLiteral("11 justice.bmp"), "BMP");
        WriteWholeFile(f + QStringLiteral("notes.txt"), "a list of the cards");
        WriteWholeFile(f + QStringLiteral("broken.jpg"), "no picture at all");
    }

    void titles_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("title");
        QTest::newRow("leading number only orders") << "01_the-fool.jpg" << "The Fool";
        QTest::newRow("a name that is only a number") << "07.jpg" << "07";
        QTest::newRow("separators and capitals") << "ace-of__cups.v2.jpeg" << "Ace Of Cups V2";
        QTest::newRow("capitals inside words kept") << "page of WANDS.bmp" << "Page Of WANDS";
        QTest::newRow("a number inside kept") << "the 2nd tower.gif" << "The 2nd Tower";
        QTest::newRow("cut to the field") << QString(60, QLatin1Char('a')) + ".jpg" << "A" + QString(49, QLatin1Char('a'));
    }
    void titles() {
        QFETCH(QString, file);
        QFETCH(QString, title);
        QCOMPARE(TitleFromFileName(file), title);
    }

    void import_data() {
        QTest::addColumn<int>("reversed");
        QTest::addColumn<bool>("deckReversed");
        QTest::addColumn<int>("cardsBefore");
        QTest::addColumn<int>("leftOut");
        QTest::addColumn<bool>("cancel");
        QTest::addColumn<QStringList>("cards");   // title|type|upright|reversed
        QTest::addColumn<QStringList>("pastLimit");
        QTest::addColumn<QStringList>("unreadable");
        const int none = int(ReversedSide::None), turned = int(ReversedSide::Turned), own = int(ReversedSide::OwnFile);
        const QStringList empress{QStringLiteral("3 the empress.png")};
        QTest::newRow("reversed files by name, a PNG converted")
            << own << true << 0 << -1 << false
            << QStringList{"The Fool|0|CU00001.jpg|CR00001.jpg", "The Magician|1|CU00002.jpg|CR00002.bmp",
                           "Wheel Of Fortune|0|CU00003.jpg|CR00003.jpg", "Justice|0|CU00004.bmp|C000000.bmp"}
            << QStringList{} << empress;
        QTest::newRow("the same picture turned")
            << turned << true << 0 << -1 << false
            << QStringList{"The Fool|0|CU00001.jpg|CR00001.jpg", "The Magician|1|CU00002.jpg|CR00002.jpg",
                           "Wheel Of Fortune|0|CU00003.jpg|CR00003.jpg", "Justice|0|CU00004.bmp|CR00004.bmp"}
            << QStringList{} << empress;
        QTest::newRow("no reversed side, one row left out")
            << none << true << 0 << 4 << false
            << QStringList{"The Fool|0|CU00001.jpg|C000000.bmp", "The Magician|1|CU00002.jpg|C000000.bmp",
                           "Wheel Of Fortune|0|CU00003.jpg|C000000.bmp"}
            << QStringList{} << empress;
        QTest::newRow("deck without reversed cards")
            << own << false << 0 << -1 << false
            << QStringList{"The Fool|0|CU00001.jpg|C000000.bmp", "The Magician|1|CU00002.jpg|C000000.bmp",
                           "Wheel Of Fortune|0|CU00003.jpg|C000000.bmp", "Justice|0|CU00004.bmp|C000000.bmp"}
            << QStringList{} << empress;
        QTest::newRow("two places left")
            << own << true << 98 << -1 << false
            << QStringList{"The Fool|0|CU00001.jpg|CR00001.jpg", "The Magician|1|CU00002.jpg|CR00002.bmp"}
            << QStringList{"The Empress", "Wheel Of Fortune", "Justice"} << QStringList{};
        QTest::newRow("cancelled") << turned << true << 0 << -1 << true << QStringList{} << QStringList{}
                                   << QStringList{};
    }
    void import() {
        QFETCH(int, reversed);
        QFETCH(bool, deckReversed);
        QFETCH(int, cardsBefore);
        QFETCH(int, leftOut);
        QFETCH(bool, cancel);
        QFETCH(QStringList, cards);
        QFETCH(QStringList, pastLimit);
        QFETCH(QStringList, unreadable);
        Fixtures::UseProgramDir(program_.path());
        KillIgnoringErrors(TempDir + QStringLiteral("*.*"));
        FileCopy(DefaultPicturePath, TempDir + DefaultPictureName);
        DeckOf(cardsBefore, deckReversed);
        const QStringList tempBefore = QDir(TempDir).entryList(QDir::Files);

        FolderPictures found = ListFolderPictures(folder_.path(), 0);
        QCOMPARE(found.NotPictures, (QStringList{"broken.jpg", "notes.txt"}));
        found.Cards[1].CardType = 1;
        if (leftOut >= 0) found.Cards[leftOut].Included = false;
        QStringList past;
        PictureImport work(folder_.path(), CardsWithinLimit(found.Cards, past), ReversedSide(reversed));
        QCOMPARE(past, pastLimit);
        work.Start();
        work.WaitForDone();
        if (cancel) work.Cancel();
        else QCOMPARE(work.Commit(), unreadable);

        QStringList added, files = tempBefore;
        for (int i = cardsBefore + 1; i <= CurrentDeck.CardCount; ++i) {
            const CardRecord& card = CurrentDeck.DeckCards(i);
            const QString up = card.CardPicture[0].Trimmed(), rev = card.CardPicture[1].Trimmed();
            added << QStringList{card.CardTitle.Trimmed(), QString::number(card.CardType), up, rev}.join('|');
            files << up;
            if (card.CardPicture[1].Value() != DefaultPictureName) files << rev;
            if (ReversedSide(reversed) == ReversedSide::Turned)
                QVERIFY2(RedAt(TempDir + up, 2, 2) && RedAt(TempDir + rev, 13, 13) && !RedAt(TempDir + rev, 2, 2),
                         qPrintable(rev));
        }
        QCOMPARE(added, cards);
        files.sort();
        QStringList tempAfter = QDir(TempDir).entryList(QDir::Files);
        tempAfter.sort();
        QCOMPARE(tempAfter, files);
    }

    // Typed in the card editor or made by the import, a title must be given
    // and new to the deck and to the cards joining with it; blanks around it
    // do not count, case does.
    void newCardTitles_data() {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("joining");
        QTest::addColumn<QString>("problem");
        const QString blank = QStringLiteral("Please enter a title for this card.");
        const QString taken = QStringLiteral("You already have a card with the same title. Please change the title.");
        QTest::newRow("empty") << "" << QStringList{} << blank;
        QTest::newRow("only blanks") << "   " << QStringList{} << blank;
        QTest::newRow("a card of the deck, padded") << " Card 1  " << QStringList{} << taken;
        QTest::newRow("a card joining with it") << "Moon" << QStringList{"Sun", " Moon "} << taken;
        QTest::newRow("another case") << "card 1" << QStringList{} << QString();
        QTest::newRow("new to both") << "Card 3" << QStringList{"Card 4"} << QString();
    }
    void newCardTitles() {
        QFETCH(QString, title);
        QFETCH(QStringList, joining);
        QFETCH(QString, problem);
        DeckOf(2);
        QCOMPARE(NewCardTitleProblem(title, joining), problem);
    }

    // The deck's card types must have names that differ, blanks around them
    // not counting and case counting; types left without a name clash with
    // nothing.
    void cardTypeNames_data() {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("problem");
        const QString same =
            QStringLiteral("The names you chose for the types are not unique. Please change duplicate names.");
        QTest::newRow("four different") << QStringList{"Major", "Minor", "Court", "Extra"} << QString();
        QTest::newRow("all without a name") << QStringList{"", " ", "", "  "} << QString();
        QTest::newRow("two without a name") << QStringList{"Major", "", "Minor", ""} << QString();
        QTest::newRow("another case") << QStringList{"Major", "major", "", ""} << QString();
        QTest::newRow("the same twice") << QStringList{"Major", "Minor", "", "Major"} << same;
        QTest::newRow("the same, padded") << QStringList{"Major", " Major ", "", ""} << same;
        QTest::newRow("the last two the same") << QStringList{"Major", "Minor", "Cups", "Cups"} << same;
    }
    void cardTypeNames() {
        QFETCH(QStringList, names);
        QFETCH(QString, problem);
        QCOMPARE(CardTypeNamesProblem(names), problem);
    }
};

QTEST_MAIN(TestPictureImport)
#include "tst_pictureimport.moc"
