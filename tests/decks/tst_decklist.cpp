// The deck list: brief info, deleting a deck with its cards and files and
// untying it from spreads, the password of a locked deck for editing but not
// for viewing, coming back to the deck left, and the deck chooser of the
// spread designer. How the spreads let go of a deck is checked on the spread
// file alone.

#include "DeckDriver.h"
#include "core/decks/CardEditing.h"
#include "core/decks/CardStore.h"
#include "core/decks/DeckStore.h"
#include "core/spreads/AllowedDecks.h"
#include "core/store/DeckLoading.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "screens/decks/frmBrowseDeck.h"
#include "screens/decks/frmDeckInfo.h"
#include "screens/decks/frmDecks.h"
#include "screens/decks/frmDesignDeck.h"
#include "screens/shell/frmMainScreen.h"
#include "screens/store/frmGetPassword.h"
#include "support/ScreenTest.h"

namespace {

// What a folder may hold before a deck is saved in it.
enum LeftOver {
    Nothing,
    Overwritten,     // an installation that overwrote a deck left its 78 cards under the old id
    KilledDelete,    // a delete killed between its two writes left a deck's cards
    SharedFile,      // the same, one of them naming a file that another deck's card names
    SharedId,        // two deck records carry one id
};

// Takes record n out of Decks.dck and nothing else, as a killed delete or an
// overwriting installation leaves the folder.
void DropDeckRecord(int n) {
    QByteArray decks = ReadWholeFile(DecksPath);
    decks.remove((n - 1) * DeckRecord::Length, DeckRecord::Length);
    WriteWholeFile(DecksPath, decks);
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
            GetRecord(CardsPath, 1, shared);
            ChangeRecord<CardRecord>(CardsPath, 3, [&](CardRecord& c) { c.CardPicture[0] = shared.CardPicture[0]; });
        }
        DropDeckRecord(2);
    } else if (state == SharedId) {
        Fixtures::MakeDeck(QStringLiteral("Twin"), 2, true);
        ChangeRecord<DeckRecord>(DecksPath, 2, [&](DeckRecord& d) { d.DeckId = other; });
    }
}

// A deck as loading shows it: each card's title and the bytes of the files
// its pictures name.
QStringList Loaded(const QString& name) {
    if (!GetRecord(DecksPath, FindDeckByName(name), ListDeck) || !LoadDeckCards()) return {QStringLiteral("(no deck)")};
    QStringList cards;
    for (const CardRecord& card : CurrentDeck.DeckCards) {
        QString held = card.CardTitle.Trimmed();
        for (const auto& picture : card.CardPicture)
            held += QLatin1Char('|') + QString::fromLatin1(ReadWholeFile(CardsDir + picture.Value()).toHex());
        cards << held;
    }
    return cards;
}

}  // namespace

class TestDeckList : public QObject {
    Q_OBJECT
    QTemporaryDir program_;
    Integer alpha_ = 0, beta_ = 0, gamma_ = 0;

    static SpreadRecord Spread(const QString& name) {
        SpreadRecord spread;
        GetRecord(SpreadsPath, FindSpreadByName(name), spread);
        return spread;
    }

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        Fixtures::UseProgramDir(program_.path());
        ResetDeckDesignState();
        alpha_ = Fixtures::MakeDeck(QStringLiteral("Alpha"), 3, true);
        beta_ = Fixtures::MakeDeck(QStringLiteral("Beta"), 2, false);
        gamma_ = Fixtures::MakeDeck(QStringLiteral("Gamma"), 2, false);
        // Beta carries a design password.
        ChangeRecord<DeckRecord>(DecksPath, 2, [](DeckRecord& d) {
            d.DeckLocked = True16;
            d.DeckPassword = QStringLiteral("secret");
        });
        Fixtures::MakeSpread(QStringLiteral("Solo"), 2, {alpha_});
        Fixtures::MakeSpread(QStringLiteral("Mixed"), 2, {beta_, alpha_, gamma_});
    }

    void deleteAsksTwiceAndUntiesSpreads() {
        frmDecks& decks = Get<frmDecks>();
        QCOMPARE(decks.lstDecks->count(), 3);
        QCOMPARE(decks.lstDecks->Text().trimmed(), QStringLiteral("Alpha"));
        QCOMPARE(decks.lblCardsField->text(), QStringLiteral("3"));
        QVERIFY(decks.cmdEdit->isEnabled() && decks.cmdInfo->isEnabled() && decks.cmdDelete->isEnabled());

        MsgBoxScript::Clear();
        MsgBoxScript::Answer(vbNo);
        decks.cmdDelete_Click();
        QCOMPARE(CountDecks(), 3);
        QCOMPARE(MsgBoxScript::History()[0].prompt,
                 QStringLiteral("Are you sure you want to delete deck '") + decks.lstDecks->Text() +
                     QStringLiteral("' ?\nBe aware that this deck will be removed from all spreads that use it."));
        QCOMPARE(MsgBoxScript::History()[0].style, vbYesNo | vbQuestion | vbDefaultButton2);

        MsgBoxScript::Clear();
        MsgBoxScript::Answer(vbYes);
        MsgBoxScript::Answer(vbYes);
        decks.cmdDelete_Click();
        QCOMPARE(MsgBoxScript::History().size(), 2);
        QVERIFY(MsgBoxScript::History()[1].prompt.startsWith(QLatin1String("At least one spread uses solely this deck.")));
        QCOMPARE(CountDecks(), 2);
        // Every spread let go of it.
        QCOMPARE(Spread(QStringLiteral("Solo")).AllowedDeckCount, 0);
        QCOMPARE(Spread(QStringLiteral("Mixed")).AllowedDeckCount, 2);
        // The line went; the first line is selected in its place.
        QCOMPARE(decks.lstDecks->count(), 2);
        QCOMPARE(decks.lstDecks->Text().trimmed(), QStringLiteral("Beta"));
        QCOMPARE(decks.lblTitleField->text(), QStringLiteral("Beta"));

        // Gamma is tied with Beta, never alone: the milder second question.
        ClickLine(decks.lstDecks, QStringLiteral("Gamma"));
        MsgBoxScript::Clear();
        MsgBoxScript::Answer(vbYes);
        MsgBoxScript::Answer(vbNo);
        decks.cmdDelete_Click();
        QCOMPARE(MsgBoxScript::History()[1].prompt,
                 QStringLiteral("Any readings or diaries using this deck will not be able to be opened.\nProceed anyway?"));
        QCOMPARE(CountDecks(), 2);
    }

    void lockedDeckAsksPasswordToEditOnly() {
        frmDecks& decks = Get<frmDecks>();
        ClickLine(decks.lstDecks, QStringLiteral("Beta"));
        MsgBoxScript::Clear();
        ModalScript wrong;
        wrong.On<frmGetPassword>([](frmGetPassword& p) {
            p.txtPassword->setText(QStringLiteral("Secret"));
            p.cmdOK_Click();
        });
        decks.cmdEdit_Click();
        QVERIFY(wrong.Done());
        QCOMPARE(MsgBoxScript::History().size(), 1);   // the wrong password is refused
        QVERIFY(!IsLoaded<frmDesignDeck>());
        QVERIFY(IsLoaded<frmDecks>());

        // Viewing asks nothing.
        decks.cmdInfo_Click();
        QVERIFY(IsLoaded<frmDeckInfo>());
        QCOMPARE(Get<frmDeckInfo>().lstCards->count(), 2);
        Get<frmDeckInfo>().cmdBack_Click();
        QCOMPARE(Get<frmDecks>().lstDecks->Text().trimmed(), QStringLiteral("Beta"));

        ModalScript right;
        right.On<frmGetPassword>([](frmGetPassword& p) {
            p.txtPassword->setText(QStringLiteral("secret"));
            p.cmdOK_Click();
        });
        Get<frmDecks>().cmdEdit_Click();
        QVERIFY(right.Done());
        QVERIFY(IsLoaded<frmDesignDeck>());
        QVERIFY(!IsLoaded<frmDecks>());
        QCOMPARE(Get<frmDesignDeck>().Caption(), QStringLiteral("Deck Design - Beta"));
        QCOMPARE(DesignMode, 0);
        Get<frmDesignDeck>().cmdBack_Click();
        QCOMPARE(Get<frmDecks>().lstDecks->Text().trimmed(), QStringLiteral("Beta"));
    }

    void browseHandsTheChosenDeckToTheSpreadDesigner() {
        QStringList chosen;
        frmBrowseDeck& browse = Get<frmBrowseDeck>();
        browse.DeckChosen = [&chosen](const QString& name) { chosen.append(name); };
        QCOMPARE(browse.lstDecks->count(), 2);
        ClickLine(browse.lstDecks, QStringLiteral("Gamma"));
        browse.cmdSelect_Click();
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen[0].trimmed(), QStringLiteral("Gamma"));
        QVERIFY(!IsLoaded<frmBrowseDeck>());
    }

    void theMainScreenOpensTheListAndTakesItBack() {
        UnloadScreen<frmDecks>();
        frmMainScreen& main = Get<frmMainScreen>();
        main.Show();
        main.lblButton_Click(5);
        QVERIFY(!main.Visible());
        QVERIFY(IsLoaded<frmDecks>() && Get<frmDecks>().Visible());
        Get<frmDecks>().cmdClose_Click();
        QVERIFY(!IsLoaded<frmDecks>());
        QVERIFY(main.Visible());
    }

    void deletingEveryDeckEmptiesTheInfo() {
        frmDecks& decks = Get<frmDecks>();
        while (decks.lstDecks->count() > 0) {
            MsgBoxScript::Answer(vbYes);
            MsgBoxScript::Answer(vbYes);
            decks.cmdDelete_Click();
        }
        QCOMPARE(CountDecks(), 0);
        QVERIFY(!decks.cmdEdit->isEnabled() && !decks.cmdInfo->isEnabled() && !decks.cmdDelete->isEnabled());
        QVERIFY(decks.lblTitleField->text().isEmpty() && decks.lblCardsField->text().isEmpty());
        QCOMPARE(MsgBoxScript::Unanswered(), 0);
    }

    // A spread tied to the decks `allowed` when deck 4 goes: the decks after
    // it move up and the freed place is -1. A spread that does not list it is
    // not written, nor one for any deck that still lists the decks once chosen.
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
        Fixtures::MakeSpread(QStringLiteral("Tied"), 1, allowed);
        if (anyDeck) ChangeRecord<SpreadRecord>(SpreadsPath, 1, [](SpreadRecord& s) { s.AllowedDeckCount = -1; });
        const QByteArray before = ReadWholeFile(SpreadsPath);
        QCOMPARE(IsSoleDeckOfASpread(4), sole);
        RemoveDeckFromSpreads(4);
        if (anyDeck || !allowed.contains(4)) QCOMPARE(ReadWholeFile(SpreadsPath), before);
        const SpreadRecord spread = Spread(QStringLiteral("Tied"));
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
        for (const DeckRecord& other : ReadAllRecords<DeckRecord>(DecksPath))
            if (other.DeckName.Trimmed() != over) others[other.DeckName.Trimmed()] = Loaded(other.DeckName.Value());
        const QString defaultBytes = QString::fromLatin1(ReadWholeFile(DefaultPicturePath).toHex());

        ResetDeck();
        CurrentDeck.IncludesReversed = True16;
        FileCopy(DefaultPicturePath, TempDir + DefaultPictureName);
        QStringList mine;
        for (int i = 1; i <= 5; ++i) {
            CardRecord card;
            ResetCard(card);
            card.CardTitle = QStringLiteral("Mine %1").arg(i);
            QString held = card.CardTitle.Trimmed();
            for (int side = 0; side < 2; ++side) {
                if (side == 1 && defaultReversed) {
                    held += QLatin1Char('|') + defaultBytes;
                    continue;
                }
                card.CardPicture[std::size_t(side)] = CardPictureStem(side, i) + QStringLiteral(".bmp");
                Fixtures::WritePicture(TempDir + card.CardPicture[std::size_t(side)].Trimmed(), Fixtures::CardColour(i, side == 0));
                held += QLatin1Char('|') + (side == 0 && i == gone ? defaultBytes
                                           : QString::fromLatin1(ReadWholeFile(TempDir + card.CardPicture[std::size_t(side)].Trimmed()).toHex()));
            }
            if (i == gone) QFile::remove(TempDir + card.CardPicture[0].Trimmed());
            AppendDeckCard(card);
            mine << held;
        }
        const QString name = over.isEmpty() ? QStringLiteral("Mine") : over;
        DeckInMemory deck = CurrentDeck;
        for (int save = 1; save <= 2; ++save) {
            const DeckSaveResult saved = SaveDeck(deck, name, FindDeckByName(name));
            QVERIFY(!saved.Failure);
            const QStringList problems = save == 1 && gone ? QStringList(2, QStringLiteral("Error number 53.  File not found"))
                                                           : QStringList();
            QCOMPARE(saved.Problems, problems);
            deck = saved.Deck;
            QCOMPARE(Loaded(name), mine);
            int underItsId = 0;
            for (const CardRecord& card : ReadAllRecords<CardRecord>(CardsPath)) underItsId += card.CardDeckId == deck.DeckId;
            QCOMPARE(underItsId, 5);
            for (const auto& [other, cards] : others) QCOMPARE(Loaded(other), cards);
            QVERIFY(FileExists(DefaultPicturePath));
        }
    }
};

QTEST_MAIN(TestDeckList)
#include "tst_decklist.moc"
