// A deck made from a folder of pictures: the order, titles, types and
// reversed sides of the cards, the card names they take in Temp/, the limit,
// what cannot be read, and a cancelled import that leaves everything as it was;
// the same import repeated, its pictures worked on threads. And the titles a
// new card may take, however it joins the deck, and the names of the deck's
// card types.
#include <QDir>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>
#include <QtTest>

#include "core/decks/CardStore.h"
#include "core/decks/CardTypeNames.h"
#include "core/decks/PictureImport.h"
#include "core/platform/FileSys.h"
#include "core/store/DeletePasses.h"
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

QByteArray FormatOf(const QString& path) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return reader.format();
}

bool RedAt(const QString& path, int x, int y) {
    const QColor c = QImage(path).pixelColor(x, y);
    return c.red() > 150 && c.blue() < 100;
}

// The deck being designed, holding "Card 1" .. "Card n".
void DeckOf(int cards, bool withReversed = true) {
    ResetDeck();
    TheRun.CurrentDeck.IncludesReversed = Flag(withReversed);
    TheRun.CurrentDeck.CardCount = static_cast<Integer>(cards);
    TheRun.CurrentDeck.DeckCards.RedimPreserve(cards);
    for (int i = 1; i <= cards; ++i) TheRun.CurrentDeck.DeckCards(i).CardTitle = QStringLiteral("Card %1").arg(i);
}

}  // namespace

class TestPictureImport : public QObject {
    Q_OBJECT
    QTemporaryDir program_;
    QTemporaryDir folder_;
    QTemporaryDir clean_;  // five good pictures of every kind, and one more

private slots:
    void initTestCase() {
        const QString c = clean_.path() + QLatin1Char('/'), f = folder_.path() + QLatin1Char('/');
        for (const auto& [name, format] : {std::pair{"1 sun.bmp", "BMP"},
                                           {"2 moon.jpg", "JPEG"},
                                           {"2 moon-reversed.bmp", "BMP"},
                                           {"3 star.png", "PNG"},
                                           {"3 star_r.png", "PNG"},
                                           {"4 tower.webp", "WEBP"},
                                           {"5 world.tiff", "TIFF"},
                                           {"6 left out.jpg", "JPEG"}})
            WriteMarked(c + QLatin1String(name), format);
        for (const auto& [name, format] : {std::pair{"1_the-fool.png", "PNG"},
                                           {"1_the-fool-reversed.jpg", "JPEG"},
                                           {"2 the magician.jpg", "JPEG"},
                                           {"2 the magician_r.bmp", "BMP"},
                                           {"3 the empress.png", "PNG"},
                                           {"4 the emperor.webp", "WEBP"},
                                           {"5 the hierophant.tif", "TIFF"},
                                           {"10 wheel_of-fortune.jpg", "JPEG"},
                                           {"10 Wheel_of-Fortune REVERSED.jpg", "JPEG"},
                                           {"11 justice.bmp", "BMP"}})
            WriteMarked(f + QLatin1String(name), format);
        // The empress's header reads as a picture; its body is cut off.
        const QByteArray cut = ReadWholeFile(f + QStringLiteral("3 the empress.png")).left(40);
        WriteWholeFile(f + QStringLiteral("3 the empress.png"), cut);
        WriteWholeFile(f + QStringLiteral("11 justice_r.png"), cut);
        WriteWholeFile(f + QStringLiteral("notes.txt"), "a list of the cards");
        WriteWholeFile(f + QStringLiteral("broken.jpg"), "no picture at all");
    }

    void titles_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("title");
        const auto row = [](const char* name, const QString& file, const QString& title) {
            QTest::newRow(name) << file << title;
        };
        row("leading number only orders", "01_the-fool.jpg", "The Fool");
        row("a name that is only a number", "07.jpg", "07");
        row("separators and capitals", "ace-of__cups.v2.jpeg", "Ace Of Cups V2");
        row("capitals inside words kept", "page of WANDS.bmp", "Page Of WANDS");
        row("a number inside kept", "the 2nd tower.gif", "The 2nd Tower");
        row("cut to the field", QString(60, QLatin1Char('a')) + ".jpg", "A" + QString(49, QLatin1Char('a')));
        row("as the record holds it", QStringLiteral("луна_sol.jpg"), "???? Sol");
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
        QTest::addColumn<QStringList>("cards");  // title|type|upright|reversed
        QTest::addColumn<QStringList>("pastLimit");
        QTest::addColumn<QStringList>("unreadable");
        const int none = int(ReversedSide::None), turned = int(ReversedSide::Turned), own = int(ReversedSide::OwnFile);
        const QStringList empress{QStringLiteral("3 the empress.png")};
        // The cards of the folder in order, with their reversed sides.
        const auto cards = [](const QStringList& reversed) {
            const QStringList upright{"The Fool|0|CU00001.jpg",         "The Magician|1|CU00002.jpg",
                                      "The Emperor|0|CU00003.jpg",      "The Hierophant|0|CU00004.jpg",
                                      "Wheel Of Fortune|0|CU00005.jpg", "Justice|0|CU00006.bmp"};
            QStringList cards;
            for (int i = 0; i < reversed.size(); ++i) cards << upright[i] + QLatin1Char('|') + reversed[i];
            return cards;
        };
        const QStringList ownFiles{"CR00001.jpg", "CR00002.bmp", "CR00003.bmp", "CR00004.bmp", "CR00005.jpg"};
        // WebP and TIFF become JPEG; a card with no reversed file of its own
        // gets a copy of the default picture under a CR name.
        QTest::newRow("reversed files by name, other formats converted")
            << own << true << 0 << -1 << false << cards(ownFiles) << QStringList{}
            << (empress + QStringList{"11 justice_r.png"});
        QTest::newRow("the same picture turned")
            << turned << true << 0 << -1 << false
            << cards({"CR00001.jpg", "CR00002.jpg", "CR00003.jpg", "CR00004.jpg", "CR00005.jpg", "CR00006.bmp"})
            << QStringList{} << empress;
        QTest::newRow("no reversed side, one row left out")
            << none << true << 0 << 6 << false
            << cards({"CR00001.bmp", "CR00002.bmp", "CR00003.bmp", "CR00004.bmp", "CR00005.bmp"}) << QStringList{}
            << empress;
        QTest::newRow("deck without reversed cards")
            << own << false << 0 << -1 << false << cards(QStringList(6, "C000000.bmp")) << QStringList{} << empress;
        QTest::newRow("two places left") << own << true << 98 << -1 << false << cards(ownFiles.mid(0, 2))
                                         << QStringList{"The Empress", "The Emperor", "The Hierophant",
                                                        "Wheel Of Fortune", "Justice"}
                                         << QStringList{};
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
        KillIgnoringErrors(TheRun.Paths.TempDir + QStringLiteral("*.*"));
        FileCopy(TheRun.Paths.DefaultPicturePath, TheRun.Paths.TempDir + DefaultPictureName);
        DeckOf(cardsBefore, deckReversed);
        const QStringList tempBefore = QDir(TheRun.Paths.TempDir).entryList(QDir::Files);

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
        for (int i = cardsBefore + 1; i <= TheRun.CurrentDeck.CardCount; ++i) {
            const CardRecord& card = TheRun.CurrentDeck.DeckCards(i);
            const QString up = card.CardPicture[0].Trimmed(), rev = card.CardPicture[1].Trimmed();
            added << QStringList{card.CardTitle.Trimmed(), QString::number(card.CardType), up, rev}.join('|');
            files << up;
            if (card.CardPicture[1].Value() != DefaultPictureName) files << rev;
            if (ReversedSide(reversed) == ReversedSide::Turned)
                QVERIFY2(RedAt(TheRun.Paths.TempDir + up, 2, 2) && RedAt(TheRun.Paths.TempDir + rev, 13, 13) &&
                             !RedAt(TheRun.Paths.TempDir + rev, 2, 2),
                         qPrintable(rev));
            if (ReversedSide(reversed) == ReversedSide::None && deckReversed)
                QCOMPARE(ReadWholeFile(TheRun.Paths.TempDir + rev), ReadWholeFile(TheRun.Paths.DefaultPicturePath));
            // The bytes are in the format the name says.
            for (const QString& file : {up, rev})
                QCOMPARE(FormatOf(TheRun.Paths.TempDir + file), file.endsWith(QLatin1String(".jpg")) ? "jpeg" : "bmp");
        }
        QCOMPARE(added, cards);
        files.sort();
        QCOMPARE(QDir(TheRun.Paths.TempDir).entryList(QDir::Files, QDir::Name), files);
    }

    void namesForMessage() {
        QCOMPARE(NamesForMessage({"A", "B", "C", "D"}, 4), QStringLiteral("A, B, C, D"));
        QCOMPARE(NamesForMessage({"A", "B", "C", "D"}, 2), QStringLiteral("A, B and 2 more"));
    }

    // The pictures are worked on threads that share nothing they write: the
    // same folder imported again and again adds every picture each time.
    void repeatedImportsAddEveryPicture() {
        Fixtures::UseProgramDir(program_.path());
        const FolderPictures found = ListFolderPictures(clean_.path(), 0);
        for (int run = 0; run < 100; ++run) {
            KillIgnoringErrors(TheRun.Paths.TempDir + QStringLiteral("*.*"));
            DeckOf(0);
            // The list stays alive beside the import, as the screen's does.
            PictureImport work(clean_.path(), found.Cards, ReversedSide::Turned);
            work.Start();
            QCOMPARE(work.Commit(), QStringList());
            QCOMPARE(TheRun.CurrentDeck.CardCount, 6);
            QCOMPARE(QDir(TheRun.Paths.TempDir).entryList(QDir::Files).size(), 12);
        }
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
