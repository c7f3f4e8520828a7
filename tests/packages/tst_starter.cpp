// The starter package: its sources fit the records, its faces repeat, and it
// installs designs a reading can use at once.
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "StarterPictures.h"
#include "StarterSource.h"
#include "core/packages/PackageFile.h"
#include "core/platform/FileSys.h"
#include "core/platform/Picture.h"
#include "core/store/Usability.h"
#include "support/Fixtures.h"
#include "support/InstallAnswers.h"

namespace {

StarterDesigns ReadSources() {
    QStringList problems;
    StarterDesigns designs = ReadStarterDesigns(QStringLiteral(STARTER_SOURCE_DIR), problems);
    if (!problems.isEmpty()) qWarning() << problems;
    return designs;
}

const QString StarterPackageName = QStringLiteral("Cartomar Starter.pck");

// Runs the package tool into a folder of its own; the package's bytes, or
// nothing when the tool failed.
QByteArray RunTool(const QString& folder) {
    const QString package = folder + QStringLiteral("/") + StarterPackageName;
    QProcess tool;
    tool.setProcessChannelMode(QProcess::ForwardedChannels);
    tool.start(QStringLiteral(MAKE_STARTER_PATH),
               {QStringLiteral(STARTER_SOURCE_DIR), package, folder + QStringLiteral("/work")});
    if (!tool.waitForFinished(240000) || tool.exitStatus() != QProcess::NormalExit || tool.exitCode() != 0)
        return QByteArray();
    return ReadWholeFile(package);
}

const StarterSpread* SpreadNamed(const StarterDesigns& designs, const QString& name) {
    for (const StarterSpread& spread : designs.Spreads)
        if (spread.Name == name) return &spread;
    return nullptr;
}

}  // namespace

class tst_starter : public QObject {
    Q_OBJECT

private slots:
    void sourcesMakeAFullDeckAndTheClassicSpreads() {
        QStringList problems;
        const StarterDesigns designs = ReadStarterDesigns(QStringLiteral(STARTER_SOURCE_DIR), problems);
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
        const QStringList faults = CheckStarterDesigns(designs);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));

        // 78 cards from the Fool to the King of Pentacles: 22 of the Major
        // Arcana, then the four suits.
        const StarterDeck& deck = designs.Deck;
        QVERIFY(deck.IncludesReversed);
        QStringList suits;
        for (const StarterCard& card : deck.Cards) suits << card.Suit;
        for (const char* suit : {"Major", "Wands", "Cups", "Swords", "Pentacles"})
            QCOMPARE(suits.count(QLatin1String(suit)), suit == std::string_view("Major") ? 22 : 14);
        QCOMPARE(deck.Cards.size(), std::size_t(78));
        QCOMPARE(deck.Cards.front().Title + deck.Cards.back().Title, QStringLiteral("The FoolKing of Pentacles"));

        const std::pair<const char*, std::size_t> classics[] = {
            {"One Card", 1}, {"Past, Present, Future", 3}, {"Celtic Cross", 10}, {"Horseshoe", 7}, {"Relationship", 7}};
        for (const auto& [name, count] : classics) {
            const StarterSpread* spread = SpreadNamed(designs, QString::fromLatin1(name));
            QVERIFY2(spread, name);
            QCOMPARE(spread->Locations.size(), count);
        }
    }

    void checkCatchesWhatTheRecordsCannotHold() {
        const StarterDesigns good = ReadSources();

        StarterDesigns designs = good;
        designs.Deck.Cards[5].Upright = QString(1501, QLatin1Char('a'));
        designs.Deck.Cards[6].ReversedKeywords.clear();
        designs.Deck.Cards[7].Type = QStringLiteral("Trumps");
        designs.Deck.Cards[8].Title = QStringLiteral("Ace \u2660");  // no such character in the code page
        QStringList faults = CheckStarterDesigns(designs);
        QCOMPARE(faults.size(), 4);
        QVERIFY(faults[0].contains(QLatin1String("1501 bytes")));

        designs = good;
        StarterSpread& cross = designs.Spreads[2];
        cross.Locations[1].Left = cross.Locations[0].Left;  // one twip over the first
        cross.Locations[1].Top = cross.Locations[0].Top + LocationHeight - 1;
        cross.Locations[2].Top = LocationMaxTop + 1;
        cross.Locations[3].Questions << QStringLiteral("a") << QStringLiteral("b") << QStringLiteral("c");
        cross.Locations[7].Title = QStringLiteral("Your Surroundings");  // "Surroundings" is wider than the label
        faults = CheckStarterDesigns(designs);
        QCOMPARE(faults.size(), 4);
        QVERIFY(faults.join(QLatin1Char('\n')).contains(QLatin1String("location 2: lies on top of location 1")));
        QVERIFY(faults.join(QLatin1Char('\n')).contains(QLatin1String("location 8: title \"Your Surroundings\"")));

        // Rectangles that only touch do not overlap.
        designs = good;
        designs.Spreads[2].Locations[1].Top = designs.Spreads[2].Locations[0].Top + LocationHeight;
        QVERIFY(!CheckStarterDesigns(designs).join(QLatin1Char('\n')).contains(QLatin1String("on top of location 1")));
    }

    // That a face is drawn the same every time is shown by the tool's bytes; the
    // reversed side is the face turned half a turn, suits differ in colour and
    // cards in what they show, and the file is a modest picture that loads back.
    void facesAreLegibleAndTurnWhole() {
        const std::vector<StarterCard> cards = ReadSources().Deck.Cards;
        const QImage face = DrawCardFace(cards[0]), cups = DrawCardFace(cards[36]);
        const QImage reversed = ReversedFace(face);
        for (const QPoint& p : {QPoint(20, 30), QPoint(100, 146), QPoint(60, 270)})
            QCOMPARE(reversed.pixel(FaceWidth - 1 - p.x(), FaceHeight - 1 - p.y()), face.pixel(p));
        QVERIFY(cups.pixel(30, 200) != face.pixel(30, 200) && DrawCardFace(cards[37]) != cups);
        const QByteArray bytes = FaceFileBytes(face);
        QImage loaded;
        QVERIFY(bytes.size() < 40000 && loaded.loadFromData(bytes, "JPG"));
        QCOMPARE(loaded.size(), QSize(FaceWidth, FaceHeight));
    }

    void toolGivesTheSameBytesEveryRun() {
        QTemporaryDir first, second;
        const QByteArray once = RunTool(first.path());
        QVERIFY(!once.isEmpty());
        QCOMPARE(RunTool(second.path()), once);
        // And the build's own package is those bytes too.
        QCOMPARE(ReadWholeFile(QStringLiteral(STARTER_PACKAGE_PATH)), once);
    }

    void installedStarterIsReadyForReadings() {
        QTemporaryDir program;
        Fixtures::UseProgramDir(program.path());
        // Installed as the package reader and installation do it, the deck chosen
        // for every spread; the screen's part is shown with the package tests.
        QVERIFY(ExtractPackageFile(QStringLiteral(STARTER_PACKAGE_PATH), TheRun.Paths.TempDir));
        InstallAnswers answers;
        answers.Chosen = {ReadSources().Deck.Name};
        PackageInstallation installation(answers, QString());
        QCOMPARE(installation.Install(), InstallOutcome::Installed);
        QCOMPARE(answers.Offered, answers.Chosen);
        QCOMPARE(QList<int>({installation.DecksInstalled, installation.SpreadsInstalled}), QList<int>({1, 5}));

        // One deck of 78 cards, its pictures the faces drawn; five spreads tied
        // to it, each one a reading can be dealt on at once (the texts
        // themselves are checked in the sources).
        const std::vector<DeckRecord> decks = ReadAllRecords<DeckRecord>(TheRun.Paths.DecksPath);
        const DeckRecord& deck = decks[0];
        const std::vector<CardRecord> cards = ReadAllRecords<CardRecord>(TheRun.Paths.CardsPath);
        QCOMPARE(QList<int>({int(decks.size()), deck.CardCount, int(cards.size())}), QList<int>({1, 78, 78}));
        for (const CardRecord& card : {cards.front(), cards.back()})
            for (const auto& picture : card.CardPicture)
                QCOMPARE(LoadPicture(TheRun.Paths.CardsDir + picture.Trimmed()).Image.size(),
                         QSize(FaceWidth, FaceHeight));
        for (const SpreadRecord& spread : ReadAllRecords<SpreadRecord>(TheRun.Paths.SpreadsPath)) {
            QCOMPARE(spread.AllowedDeckCount, Integer(1));
            QCOMPARE(spread.AllowedDeckId[0], deck.DeckId);
            QVERIFY2(IsSpreadUsable(spread.SpreadName.Trimmed()), qPrintable(spread.SpreadName.Trimmed()));
        }
    }
};

QTEST_MAIN(tst_starter)
#include "tst_starter.moc"
