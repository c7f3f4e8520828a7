// Packages between two program directories: made on the creation screen in
// one, installed in the other over designs of the same names; every state a
// design can be in packed and installed whole; installations over the
// package's own designs leaving nothing that belongs to nobody; the rules of
// an installation on its own (fresh names, the decks offered, damaged
// packages refused with nothing written); what the screen does with a
// package it cannot install or that vanished after the listing; and the
// creation screen's limits.
#include "core/packages/PackageFile.h"
#include "core/packages/PackageStaging.h"
#include <set>

#include "core/platform/WriteFaults.h"
#include "core/store/DeckLoading.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "readings/ReadingFixtures.h"
#include "screens/packages/PackageSummary.h"
#include "screens/packages/frmCreatePackage.h"
#include "screens/packages/frmInstallPackage.h"
#include "screens/platform/CommonDialog.h"
#include "screens/platform/FileLists.h"
#include "screens/spreads/frmDeckChooser.h"
#include "screens/store/Startup.h"
#include "screens/store/frmDesignExists.h"
#include "screens/store/frmSetPassword.h"
#include "support/BadInput.h"
#include "support/InstallAnswers.h"
#include "support/Prompts.h"

using namespace ReadingFixtures;

namespace {

template <class R>
std::vector<R> All(const QString& path) { return ReadAllRecords<R>(path); }

void GiveSounds(const QString& cardsPath, Integer deckId) {
    int n = 0;
    for (int r = 1; r <= CountCards(cardsPath); ++r)
        ChangeRecord<CardRecord>(cardsPath, r, [&n, deckId](CardRecord& c) {
            if (c.CardDeckId != deckId) return;
            ++n;
            for (int side = 0; side < 2; ++side) {
                const QString name = QStringLiteral("MC%1%2.wav").arg(side ? 'R' : 'U').arg(n, 5, 10, QLatin1Char('0'));
                c.CardSound[static_cast<std::size_t>(side)] = name;
                WriteWholeFile(CardsDir + name, "RIFF sound " + name.toLatin1());
            }
        });
}

// One member of a package: its head (the name it was packed under), then its bytes.
QByteArray Member(const char* name, const QByteArray& bytes) {
    return EncodeMemberHead(QString::fromLatin1(name), qint32(bytes.size())) + bytes;
}

QByteArray Int16s(std::initializer_list<int> values) {
    QByteArray bytes;
    for (int v : values) bytes += char(v & 0xFF), bytes += char((v >> 8) & 0xFF);
    return bytes;
}

// Designs staged in Temp/ of `from` as the creation screen stages them, then
// laid in Temp/ of `to` as an extraction leaves them; `to` holds a deck and a
// spread of its own. Decks "Tarot" (two cards with reversed pictures and
// sounds), "Lenormand" (one card) and "Empty"; spreads "Cross" (two
// locations, on Tarot, with a background) and "Line" (one location).
void StagePackage(const QString& from, const QString& to) {
    FreshRun(from);
    const Integer tarot = Fixtures::MakeDeck(QStringLiteral("Tarot"), 2, true);
    GiveSounds(CardsPath, tarot);
    Fixtures::MakeDeck(QStringLiteral("Lenormand"), 1, false);
    Fixtures::MakeDeck(QStringLiteral("Empty"), 0, false);
    Fixtures::MakeSpread(QStringLiteral("Cross"), 2, {tarot});
    Fixtures::MakeSpread(QStringLiteral("Line"), 1);
    ChangeRecord<SpreadRecord>(SpreadsPath, 1, [](SpreadRecord& s) { s.BackgroundFile = QStringLiteral("S000001.bmp"); });
    Fixtures::WritePicture(CardsDir + QStringLiteral("S000001.bmp"));
    PackageStaging staging;
    staging.DeckNames = {QStringLiteral("Tarot"), QStringLiteral("Lenormand"), QStringLiteral("Empty")};
    staging.SpreadNames = {QStringLiteral("Cross"), QStringLiteral("Line")};
    staging.StageDecks();
    staging.StageCards();
    staging.StageSpreads();
    const QString staged = TempDir;
    FreshRun(to);
    Fixtures::MakeDeck(QStringLiteral("Mine"), 1, false);
    Fixtures::MakeSpread(QStringLiteral("Mine"), 1);
    for (const QString& name : Dir(staged + QStringLiteral("*.*"))) FileCopy(staged + name, TempDir + name);
}

// Designs written into the program folder in one of the states the designers
// and the store can leave them in; the names of those to pack.
struct Packed {
    QStringList Decks, Spreads;
};
using DesignState = std::function<Packed()>;

// A deck "Tarot" of three cards with reversed pictures and sounds, and a
// spread "Cross" of two locations tied to it, with a background.
Packed TarotAndCross() {
    const Integer tarot = Fixtures::MakeDeck(QStringLiteral("Tarot"), 3, true);
    GiveSounds(CardsPath, tarot);
    Fixtures::MakeSpread(QStringLiteral("Cross"), 2, {tarot});
    ChangeRecord<SpreadRecord>(SpreadsPath, 1, [](SpreadRecord& s) { s.BackgroundFile = QStringLiteral("S000001.bmp"); });
    Fixtures::WritePicture(CardsDir + QStringLiteral("S000001.bmp"), Qt::darkGreen);
    return {{QStringLiteral("Tarot")}, {QStringLiteral("Cross")}};
}

// TarotAndCross with these files of Cards/ gone.
DesignState TarotAndCrossWithout(const QStringList& gone) {
    return [gone] {
        const Packed packed = TarotAndCross();
        for (const QString& name : gone) Kill(CardsDir + name);
        return packed;
    };
}

// The designs of the program folder as a user meets them, names, ids and
// file names aside: each deck named with its cards as a load takes them, each
// spread named with its locations and the places in the list of the decks it
// is tied to among those named, every file a record names by its bytes. A picture that
// is not there shows as the default one, any other file as none; only an
// attachment, which an installation never takes over, counts by its name
// where it is not there, unless `attachmentsMustBeThere`.
QList<QByteArray> AsShown(const Packed& designs, bool attachmentsMustBeThere) {
    QList<QByteArray> shown;
    const auto file = [](const auto& field, bool picture) {
        const QString path = CardsDir + field.Trimmed();
        if (!field.IsBlank() && FileExists(path)) return ReadWholeFile(path);
        return picture ? ReadWholeFile(DefaultPicturePath) : QByteArray();
    };
    const auto attachment = [attachmentsMustBeThere](auto& field) {
        if (attachmentsMustBeThere && !FileExists(CardsDir + field.Trimmed())) field = QString();
    };
    QMap<Integer, int> places;
    for (const QString& name : designs.Decks) {
        DeckRecord deck;
        GetRecord(DecksPath, FindDeckByName(name), deck);
        places[deck.DeckId] = places.size();
        int taken = 0;
        for (CardRecord card : All<CardRecord>(CardsPath)) {
            if (card.CardDeckId != deck.DeckId || ++taken > deck.CardCount) continue;
            QByteArray files;
            for (int side = 0; side < 2; ++side) {
                const auto s = static_cast<std::size_t>(side);
                files += file(card.CardPicture[s], true) + '|' + file(card.CardSound[s], false) + '|';
                card.CardPicture[s] = card.CardSound[s] = QString();
            }
            card.CardDeckId = 0;
            shown << EncodeRecord(card) + files;
        }
        deck.DeckId = 0;
        deck.DeckName = QString();
        attachment(deck.DeckAttachment);
        shown << EncodeRecord(deck);
    }
    for (const QString& name : designs.Spreads) {
        SpreadRecord spread;
        GetRecord(SpreadsPath, FindSpreadByName(name), spread);
        LoadSpreadLocations(spread.SpreadId, spread.LocationCount);
        for (LocationRecord location : SpreadLocations) {
            location.LocationSpreadId = 0;
            attachment(location.LocationAttachment);
            shown << EncodeRecord(location);
        }
        QByteArray tied = file(spread.BackgroundFile, false);
        for (int k = 0; k < spread.AllowedDeckCount; ++k)
            if (const Integer id = spread.AllowedDeckId[static_cast<std::size_t>(k)]; places.contains(id))
                tied += '|' + QByteArray::number(places[id]);
        spread.SpreadId = 0;
        spread.SpreadName = QString();
        spread.AllowedDeckCount = qMin<Integer>(spread.AllowedDeckCount, 0);
        spread.AllowedDeckId.fill(0);
        spread.BackgroundFile = QString();
        attachment(spread.SpreadAttachment);
        shown << EncodeRecord(spread) + tied;
    }
    return shown;
}

// The package's questions answered as the package's maker would: each
// spread tied to the decks it was tied to where it was made (by name), and
// a design of a name in use treated as Exists says.
struct AsMade : InstallAnswers {
    QMap<QString, QStringList> Ties;   // "*" for any deck
    void ChooseDecks(const std::vector<DeckRecord>& decks) override {
        InstallAllSpreads = false;
        Chosen = Ties.value(CurrentSpread.SpreadName.Trimmed());
        InstallAnswers::ChooseDecks(decks);
        if (Chosen == QStringList{QStringLiteral("*")}) CurrentSpread.AllowedDeckCount = -1;
    }
};

// The files of Cards/ that no card or spread names, the default picture aside.
QStringList Unnamed() {
    QSet<QString> named{NativePath(DefaultPicturePath)};
    for (const CardRecord& card : All<CardRecord>(CardsPath))
        for (const QString& path : CardFilesOf(card)) named << path;
    for (const SpreadRecord& spread : All<SpreadRecord>(SpreadsPath))
        named << DesignFilePath(spread.BackgroundFile.Value());
    QStringList unnamed;
    for (const QString& name : Dir(CardsDir + QStringLiteral("*.*")))
        if (!named.contains(NativePath(CardsDir + name))) unnamed << name;
    return unnamed;
}

// Everything an installation may write: the design record files and the
// names in Cards/.
QByteArray Stored() {
    QByteArray all;
    for (const QString* path : {&DecksPath, &CardsPath, &SpreadsPath, &LocationsPath}) all += ReadWholeFile(*path) + '|';
    return all + Dir(CardsDir + QStringLiteral("*.*")).join(QLatin1Char('|')).toLatin1();
}

}  // namespace

Q_DECLARE_METATYPE(DesignState)

class TestPackages : public QObject, ScreenRun {
    Q_OBJECT

private slots:
    void initTestCase() {
        CommonDialogScript::Enable();
        StandUp();
    }

    void init() {
        MsgBoxScript::Clear();
        CommonDialogScript::Clear();
    }

    void cleanup() {
        QCOMPARE(MsgBoxScript::Unanswered(), 0);
        QCOMPARE(CommonDialogScript::Pending(), 0);
    }

    void aPackageTravelsWithPasswordAndAttachment() {
        QTemporaryDir a, b;
        // ---- Directory A: a deck of three cards with sounds and reversed
        // pictures, a spread on it with a background, and an attachment.
        FreshRun(a.path());
        const QList<QByteArray> made = AsShown(TarotAndCross(), true);
        WriteWholeFile(a.path() + QStringLiteral("/notes.txt"), "Read me first.");

        Get<frmMainScreen>().lblButton_Click(8);
        frmCreatePackage& create = Get<frmCreatePackage>();
        create.lstAvailableSpreads->item(0)->setCheckState(Qt::Checked);   // picks its deck as well
        QCOMPARE(create.lstAvailableDecks->item(0)->checkState(), Qt::Checked);
        ModalScript passwordScript;
        passwordScript.On<frmSetPassword>([](frmSetPassword& f) {
            f.txtPassword1->setText(QStringLiteral("secret"));
            f.txtPassword2->setText(QStringLiteral("secret"));
            f.cmdOK->click();
        });
        create.chkPassword->setChecked(true);
        QVERIFY(passwordScript.Done() && create.PasswordSet);
        CommonDialogScript::Answer(a.path() + QStringLiteral("/notes.txt"));
        create.cmdAttach->click();

        ModalScript summaryScript;
        summaryScript.On<frmCreatePackageSummary>([](frmCreatePackageSummary& s) {
            QCOMPARE(s.txtDecksCount->text(), QStringLiteral("1"));
            QCOMPARE(s.txtSpreadsCount->text(), QStringLiteral("1"));
            QCOMPARE(s.txtAttachment->text(), QStringLiteral("notes.txt"));
            s.cmdCancel->click();
        });
        create.cmdCreate->click();
        QVERIFY(summaryScript.Done());
        Settle();
        QVERIFY(!IsLoaded<frmCreatePackage>() && Get<frmMainScreen>().Visible());
        QVERIFY(Dir(TempDir + QStringLiteral("*.*")).isEmpty());
        // The live designs in A did not take the password.
        QCOMPARE(All<DeckRecord>(DecksPath)[0].DeckLocked, Integer(0));
        const QString package = PackagesDir + QStringLiteral("Cartomar Package - 1.pck");
        QVERIFY(FileExists(package));

        // ---- Directory B: a deck and a spread of the same names already.
        FreshRun(b.path());
        FileCopy(package, PackagesDir + QStringLiteral("Cartomar Package - 1.pck"));
        const Integer oldDeckB = Fixtures::MakeDeck(QStringLiteral("Tarot"), 2, false);
        Fixtures::MakeSpread(QStringLiteral("Cross"), 1, {oldDeckB});
        const QByteArray oldDeckRecordB = ReadWholeFile(DecksPath);

        Get<frmMainScreen>().lblButton_Click(7);
        frmInstallPackage& install = Get<frmInstallPackage>();
        QCOMPARE(install.filSelection->ListCount(), 1);
        install.filSelection->setListIndex(0);
        CommonDialogScript::Answer(AttachmentsDir + QStringLiteral("notes.txt"));
        ModalScript installScript;
        installScript
            .On<frmDesignExists>([](frmDesignExists& f) {
                f.cmdRename->click();
                f.cmdOK->click();
            })
            .On<frmDesignExists>([](frmDesignExists& f) {
                f.cmdOverwrite->click();
            })
            .On<frmDeckChooser>([](frmDeckChooser& f) {
                QCOMPARE(f.lstDecks->ListCount(), 0);
                for (int i = 0; i < f.lstAvailableDecks->ListCount(); ++i)
                    if (f.lstAvailableDecks->List(i).trimmed() == QStringLiteral("Tarot (Copy)"))
                        f.lstAvailableDecks->setListIndex(i);
                f.cmdAddDeck_Click();
                f.cmdClose_Click();
            })
            .On<frmPackageSummary>([](frmPackageSummary& s) {
                QCOMPARE(s.txtDecksCount->text(), QStringLiteral("1"));
                QCOMPARE(s.txtSpreadsCount->text(), QStringLiteral("1"));
                QCOMPARE(s.Label1->text(), QStringLiteral("The package was successfully installed."));
                s.cmdCancel->click();
            });
        install.cmdInstall->click();
        QVERIFY(installScript.Done());
        Settle();
        QVERIFY(!IsLoaded<frmInstallPackage>() && Get<frmMainScreen>().Visible());
        QVERIFY(Dir(TempDir + QStringLiteral("*.*")).isEmpty());
        // The attachment is saved with its extension added once more.
        QCOMPARE(ReadWholeFile(AttachmentsDir + QStringLiteral("notes.txt.txt")), QByteArray("Read me first."));

        // B's own deck stays as it was; the renamed deck and the spread that
        // took the place of B's carry the package's password, and are
        // otherwise as they were in A.
        QCOMPARE(ReadWholeFile(DecksPath).left(DeckRecord::Length), oldDeckRecordB);
        QCOMPARE(CountSpreads(), 1);
        ChangeRecord<DeckRecord>(DecksPath, 2, [](DeckRecord& d) {
            QVERIFY(d.DeckLocked && d.DeckPassword.Trimmed() == QLatin1String("secret"));
            d.DeckLocked = 0;
            d.DeckPassword = QString();
        });
        ChangeRecord<SpreadRecord>(SpreadsPath, 1, [](SpreadRecord& s) {
            QVERIFY(s.SpreadLocked && s.SpreadPassword.Trimmed() == QLatin1String("secret"));
            s.SpreadLocked = 0;
            s.SpreadPassword = QString();
        });
        QCOMPARE(AsShown({{QStringLiteral("Tarot (Copy)")}, {QStringLiteral("Cross")}}, false), made);
    }

    // A package this program writes installs whole, whatever state its
    // designs are in: what comes out in an empty program folder is what went
    // in as the user met it there.
    void everyStateOfADesignTravelsAsItWasShown_data() {
        QTest::addColumn<DesignState>("state");
        QTest::newRow("complete") << DesignState(TarotAndCross);
        QTest::newRow("background gone") << TarotAndCrossWithout({QStringLiteral("S000001.bmp")});
        QTest::newRow("pictures and a sound gone")
            << TarotAndCrossWithout({QStringLiteral("CU00001.bmp"), QStringLiteral("CR00002.bmp"),
                                     QStringLiteral("MCU00003.wav")});
        QTest::newRow("a card blanked by a load") << DesignState([] {
            const Packed packed = TarotAndCrossWithout({QStringLiteral("CU00002.bmp")})();
            GetRecord(DecksPath, 1, ListDeck);
            LoadDeckCards();
            return packed;
        });
        QTest::newRow("attachments, two of them gone") << DesignState([] {
            const Packed packed = TarotAndCross();
            for (const char* name : {"deck.txt", "place.txt"}) WriteWholeFile(CardsDir + QLatin1String(name), name);
            ChangeRecord<DeckRecord>(DecksPath, 1, [](DeckRecord& d) { d.DeckAttachment = QStringLiteral("deck.txt"); });
            ChangeRecord<SpreadRecord>(SpreadsPath, 1,
                                       [](SpreadRecord& s) { s.SpreadAttachment = QStringLiteral("gone.txt"); });
            for (int n = 1; n <= 2; ++n)
                ChangeRecord<LocationRecord>(LocationsPath, n, [n](LocationRecord& l) {
                    l.LocationAttachment = n == 1 ? QStringLiteral("place.txt") : QStringLiteral("lost.txt");
                });
            return packed;
        });
        // Five decks fill the installation's first list of ids; a spread tied
        // to one packed deck and two left out has its list closed up.
        QTest::newRow("five decks and three spreads tied together") << DesignState([] {
            Packed packed;
            QList<Integer> ids;
            for (int i = 1; i <= 7; ++i) {
                const QString name = QStringLiteral("Deck %1").arg(i);
                ids << Fixtures::MakeDeck(name, i % 3, i % 2);
                if (i <= 5) packed.Decks << name;
            }
            Fixtures::MakeSpread(QStringLiteral("Three"), 3, {ids[0], ids[1], ids[2]});
            Fixtures::MakeSpread(QStringLiteral("Apart"), 2, {ids[4], ids[5], ids[6]});
            Fixtures::MakeSpread(QStringLiteral("Any"), 1, {}, true);
            packed.Spreads = QStringList{QStringLiteral("Three"), QStringLiteral("Apart"), QStringLiteral("Any")};
            return packed;
        });
        QTest::newRow("a deck without cards, a spread without locations") << DesignState([] {
            Fixtures::MakeDeck(QStringLiteral("Empty"), 0, false);
            Fixtures::MakeSpread(QStringLiteral("Bare"), 0);
            return Packed{{QStringLiteral("Empty")}, {QStringLiteral("Bare")}};
        });
    }

    void everyStateOfADesignTravelsAsItWasShown() {
        QFETCH(DesignState, state);
        QTemporaryDir a, b;
        FreshRun(a.path());
        const Packed packed = state();
        const QList<QByteArray> made = AsShown(packed, true);
        AsMade answers;
        for (const QString& name : packed.Spreads) {
            SpreadRecord spread;
            GetRecord(SpreadsPath, FindSpreadByName(name), spread);
            QStringList& ties = answers.Ties[name];
            if (spread.AllowedDeckCount < 0) ties << QStringLiteral("*");
            for (int k = 0; k < spread.AllowedDeckCount; ++k)
                if (const QString deck = DeckNameById(spread.AllowedDeckId[std::size_t(k)]).trimmed();
                    packed.Decks.contains(deck))
                    ties << deck;
        }
        PackageStaging staging;
        staging.DeckNames = packed.Decks;
        staging.SpreadNames = packed.Spreads;
        staging.StageDecks();
        staging.StageCards();
        staging.StageSpreads();
        const QString package = a.path() + QStringLiteral("/p.pck");
        QVERIFY(CreatePackageFile(TempDir, package));

        FreshRun(b.path());
        QVERIFY(ExtractPackageFile(package, TempDir));
        PackageInstallation installation(answers, QString());
        QCOMPARE(installation.Install(), InstallOutcome::Installed);
        QCOMPARE(AsShown(packed, false), made);
        QCOMPARE(Unnamed(), QStringList());
    }

    // A package installed twice over its own designs (overwrite all), into a
    // folder whose Cards.crd holds cards under the id its first deck takes:
    // every deck then loads its own cards, all of them, no card is left under
    // an id that no deck holds and no file that nothing names, and a spread
    // tied to an overwritten deck follows it to its new id.
    void installingOverItsOwnDesignsLeavesNothingOfNobody() {
        QTemporaryDir a, b;
        StagePackage(a.path(), b.path());
        const QString unpacked = a.path() + QStringLiteral("/Temp/");   // `a`'s Temp/ holds the package still
        CardRecord nobodys;
        nobodys.CardTitle = QStringLiteral("Nobody's");
        nobodys.CardPicture[0] = QStringLiteral("CU00009.bmp");
        nobodys.CardDeckId = 2;   // the id Tarot takes
        Fixtures::WritePicture(CardsDir + QStringLiteral("CU00009.bmp"));
        AppendRecord(CardsPath, nobodys);
        InstallAnswers answers;
        answers.Chosen = {QStringLiteral("Tarot")};
        answers.Exists = DesignExistsOverwriteAll;
        for (int round = 1; round <= 2; ++round) {
            // "Mine" is tied to a deck that has gone under Tarot's id, then to Tarot.
            const Integer tarot = round == 1 ? 2 : FindDeckIdByName(QStringLiteral("Tarot"));
            ChangeRecord<SpreadRecord>(SpreadsPath, 1, [tarot](SpreadRecord& s) {
                s.AllowedDeckId[0] = tarot;
                s.AllowedDeckCount = 1;
            });
            for (const QString& name : Dir(unpacked + QStringLiteral("*.*"))) FileCopy(unpacked + name, TempDir + name);
            QCOMPARE(PackageInstallation(answers, QString()).Install(), InstallOutcome::Installed);
            std::set<Integer> ids;
            for (const DeckRecord& deck : All<DeckRecord>(DecksPath)) {
                ids.insert(deck.DeckId);
                ListDeck = deck;
                QVERIFY(LoadDeckCards());
                for (const CardRecord& card : CurrentDeck.DeckCards)
                    QVERIFY(card.CardTitle.Trimmed() != QLatin1String("Nobody's"));
            }
            QCOMPARE(int(ids.size()), 4);
            for (const CardRecord& card : All<CardRecord>(CardsPath)) QVERIFY(ids.count(card.CardDeckId));
            QCOMPARE(Unnamed(), QStringList());
            const SpreadRecord mine = All<SpreadRecord>(SpreadsPath)[0];
            QCOMPARE(mine.AllowedDeckCount, Integer(round - 1));
            QCOMPARE(mine.AllowedDeckId[0], round == 1 ? Integer(-1) : FindDeckIdByName(QStringLiteral("Tarot")));
        }
    }

    // Each package contradicts itself in one place and is refused with
    // nothing written; or it holds what the program may pack, or what a
    // package of an earlier version holds, and installs as it stands.
    void packagesThatDisagreeWriteNothing_data() {
        QTest::addColumn<QString>("member");
        QTest::addColumn<int>("at");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("refusal");
        const auto deck = [](int n, int field) { return (n - 1) * DeckRecord::Length + field; };
        const auto card = [](int n, int field) { return (n - 1) * CardRecord::Length + field; };
        const auto spread = [](int n, int field) { return (n - 1) * SpreadRecord::Length + field; };
        const auto location = [](int n, int field) { return (n - 1) * LocationRecord::Length + field; };
        const QString damaged = QStringLiteral("Unable to install: Damaged Cartomar Package.\n");
        QTest::newRow("a deck claiming 32767 cards") << "Temp.dck" << deck(1, 981) << Int16s({32767})
            << damaged + "The deck 'Tarot' claims 32767 cards, which no deck can hold.";
        QTest::newRow("two decks of one id") << "Temp.dck" << deck(2, 985) << Int16s({1})
            << damaged + "The decks 'Tarot' and 'Lenormand' would share their cards.";
        QTest::newRow("a deck of id 0 with cards") << "Temp.dck" << deck(1, 985) << Int16s({0})
            << damaged + "The deck 'Tarot' would be installed without its cards.";
        QTest::newRow("a deck attachment outside Temp") << "Temp.dck" << deck(1, 54) << FixedText<12>("../a.txt").Raw()
            << damaged + "The deck 'Tarot' names the file '../a.txt', which the package does not hold.";
        QTest::newRow("a card of no deck") << "Temp.crd" << card(3, 5100) << Int16s({9})
            << damaged + "A card of the package belongs to none of its decks.";
        QTest::newRow("a card type past 3") << "Temp.crd" << card(1, 0) << Int16s({4})
            << damaged + "The card 'Card 1' has an unknown card type.";
        QTest::newRow("a picture the package lacks") << "Temp.crd" << card(2, 5052) << FixedText<12>("CU09999.bmp").Raw()
            << damaged + "The card 'Card 2' names the file 'CU09999.bmp', which the package does not hold.";
        QTest::newRow("a picture outside Temp") << "Temp.crd" << card(1, 5064) << FixedText<12>("../x.bmp").Raw()
            << damaged + "The card 'Card 1' names the file '../x.bmp', which the package does not hold.";
        QTest::newRow("a spread of 33 locations") << "Temp.spr" << spread(1, 2501) << Int16s({33})
            << damaged + "The spread 'Cross' claims 33 locations, which no spread can hold.";
        QTest::newRow("a spread naming 11 decks") << "Temp.spr" << spread(1, 122) << Int16s({11})
            << damaged + "The spread 'Cross' names 11 decks, which no spread can.";
        QTest::newRow("two spreads of one id") << "Temp.spr" << spread(2, 100) << Int16s({1})
            << damaged + "The spreads 'Cross' and 'Line' would share their locations.";
        QTest::newRow("a background the package lacks") << "Temp.spr" << spread(1, 2507) << FixedText<11>("S000009.bmp").Raw()
            << damaged + "The spread 'Cross' names the file 'S000009.bmp', which the package does not hold.";
        QTest::newRow("a location of no spread") << "Temp.loc" << location(3, 50) << Int16s({9})
            << damaged + "A location of the package belongs to none of its spreads.";
        QTest::newRow("a location past the count") << "Temp.loc" << location(2, 52) << Int16s({3})
            << damaged + "The locations of the spread 'Cross' do not agree with its count of 2.";
        QTest::newRow("a location attachment outside Temp") << "Temp.loc" << location(1, 1083)
            << FixedText<12>("/etc/x").Raw()
            << damaged + "The location 'Position 1' names the file '/etc/x', which the package does not hold.";
        QTest::newRow("a deck short of a card") << "Temp.dck" << deck(1, 981) << Int16s({3}) << QString();
        QTest::newRow("an attachment the package lacks") << "Temp.spr" << spread(1, 2518)
            << FixedText<12>("gone.txt").Raw() << QString();
        QTest::newRow("a spread short of a location") << "Temp.spr" << spread(1, 2501) << Int16s({3}) << QString();
        QTest::newRow("a last deck of id 0 without cards") << "Temp.dck" << deck(3, 985) << Int16s({0}) << QString();
    }

    void packagesThatDisagreeWriteNothing() {
        QFETCH(QString, member);
        QFETCH(int, at);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, refusal);
        QTemporaryDir a, b;
        StagePackage(a.path(), b.path());
        const QByteArray staged = ReadWholeFile(TempDir + member);
        WriteWholeFile(TempDir + member, staged.left(at) + bytes + staged.mid(at + bytes.size()));
        WriteWholeFile(AppPath + QStringLiteral("x.bmp"), "not the package's to take");
        const QByteArray before = Stored();
        InstallAnswers answers;
        PackageInstallation installation(answers, QString());
        QCOMPARE(installation.Install(), refusal.isEmpty() ? InstallOutcome::Installed : InstallOutcome::Refused);
        QCOMPARE(installation.Refusal, refusal);
        QCOMPARE(Stored() != before, refusal.isEmpty());
        // A location the package lacks is put in its place as a fresh one.
        if (QTest::currentDataTag() == QByteArray("a spread short of a location")) {
            LoadSpreadLocations(All<SpreadRecord>(SpreadsPath)[1].SpreadId, 3);
            QCOMPARE(SpreadLocations(3).LocationLeft, Integer(6480));
        }
    }

    // Card files take numbers whose four names (both pictures, both sounds)
    // no file in Cards/ takes, a ".jpeg" picture's "CU00002jpeg" included;
    // two cards on one picture get a copy each; the chooser offers the decks
    // being installed with the others, and its choice holds for every spread.
    void aPackageTakesFreeNamesAndOffersItsOwnDecks() {
        QTemporaryDir a, b;
        StagePackage(a.path(), b.path());
        ChangeRecord<CardRecord>(TempDir + QStringLiteral("Temp.crd"), 2,
                                 [](CardRecord& c) { c.CardPicture[0] = QStringLiteral("CU00001.bmp"); });
        WriteWholeFile(CardsDir + QStringLiteral("CU00002jpeg"), "photo.jpeg");
        WriteWholeFile(CardsDir + QStringLiteral("cr00003.bmp"), "a reversed picture whose upright one went");
        InstallAnswers answers;
        answers.Chosen = {QStringLiteral("Tarot")};
        QCOMPARE(PackageInstallation(answers, QString()).Install(), InstallOutcome::Installed);
        QCOMPARE(answers.Offered, (QStringList{"Mine", "Tarot", "Lenormand", "Empty"}));
        QStringList names;
        for (const CardRecord& c : All<CardRecord>(CardsPath))
            names << c.CardPicture[0].Trimmed() << c.CardPicture[1].Trimmed() << c.CardSound[0].Trimmed()
                  << c.CardSound[1].Trimmed();
        QCOMPARE(names, (QStringList{"CU00001.bmp", "C000000.bmp", "", "",                                  // Mine
                                     "CU00000.bmp", "CR00000.bmp", "CU00000M.WAV", "CR00000M.WAV",  // Tarot
                                     "CU00004.bmp", "CR00004.bmp", "CU00004M.WAV", "CR00004M.WAV",
                                     "CU00005.bmp", "C000000.bmp", "", ""}));                        // Lenormand
        QCOMPARE(ReadWholeFile(CardsDir + QStringLiteral("CU00004.bmp")),
                 ReadWholeFile(CardsDir + QStringLiteral("CU00000.bmp")));
        for (const SpreadRecord& s : All<SpreadRecord>(SpreadsPath))
            if (s.SpreadName.Trimmed() != QStringLiteral("Mine")) QCOMPARE(s.AllowedDeckId[0], Integer(2));
    }

    // A package the installation cannot take leaves the screen open on it,
    // Temp/ emptied and the designs as they were: one whose writing fails
    // with the error box, a damaged one with its refusal, one deleted after
    // the listing with the box that says it cannot be opened; one of a
    // foreign format after its attachment.
    void theScreenStaysOnAPackageItCannotInstall() {
        QTemporaryDir a, b;
        FreshRun(a.path());
        PackageStaging one;
        one.DeckNames << QStringLiteral("Deck");
        Fixtures::MakeDeck(one.DeckNames.last(), 1, false);
        one.StageDecks();
        one.StageCards();
        const QString packages = PackagesDir;
        QVERIFY(CreatePackageFile(TempDir, packages + QStringLiteral("one.pck")));
        DeckRecord claims;
        claims.CardCount = 5;
        WriteWholeFile(packages + QStringLiteral("damaged.pck"), Member("C:\\Temp\\Temp.dck", EncodeRecord(claims)));
        WriteWholeFile(packages + QStringLiteral("gone.pck"), QByteArray("anything"));

        FreshRun(b.path());
        Fixtures::MakeDeck(QStringLiteral("Mine"), 1, false);
        const QByteArray before = Stored();
        frmInstallPackage& install = Get<frmInstallPackage>();
        const std::pair<const char*, int> cases[] = {
            {"one.pck", vbCritical}, {"damaged.pck", vbExclamation}, {"gone.pck", vbCritical}};
        for (const auto& [package, style] : cases) {
            MsgBoxScript::Clear();
            Chosen(packages, QString::fromLatin1(package));
            if (package == std::string_view("gone.pck")) Kill(packages + QStringLiteral("gone.pck"));
            if (package == std::string_view("one.pck")) {
                install.ExtractFiles();
                WriteFaults::Arm(WriteFaults::Fault::Fail, 1);
            }
            install.cmdInstall_Click();
            WriteFaults::Disarm();
            QCOMPARE(MsgBoxScript::History().size(), 1);
            QCOMPARE(MsgBoxScript::History()[0].style & style, style);
            QCOMPARE(Stored(), before);
            QVERIFY(Dir(TempDir + QStringLiteral("*.*")).isEmpty());
            QVERIFY(IsLoaded<frmInstallPackage>());
        }

        // A package whose record file is of a foreign length is refused
        // whole, after its attachment is saved.
        WriteWholeFile(packages + QStringLiteral("bad.pck"),
                       Member("C:\\Temp\\Temp.spr", "garbage") + Member("ATT - a.txt", "hi"));
        Chosen(packages, QStringLiteral("bad.pck"));
        MsgBoxScript::Clear();
        CommonDialogScript::Answer(AttachmentsDir + QStringLiteral("a"));
        ModalScript summary;
        summary.On<frmPackageSummary>([](frmPackageSummary& s) {
            QCOMPARE(s.Label1->text(), QStringLiteral("No elements of this package were installed."));
            QCOMPARE(s.txtAttachment->text(), AttachmentsDir + QStringLiteral("a.txt"));
            s.cmdCancel->click();
        });
        install.cmdInstall_Click();
        QVERIFY(summary.Done());
        QCOMPARE(Prompts(), QStringList{QStringLiteral("Unable to install: Incompatible Cartomar Package.")});
        QCOMPARE(ReadWholeFile(AttachmentsDir + QStringLiteral("a.txt")), QByteArray("hi"));
        QCOMPARE(CountSpreads(), 0);
        Settle();
    }

    void startUpWithoutDesignsOffersTheInstaller() {
        QTemporaryDir c;
        WriteWholeFile(c.path() + QStringLiteral("/Location.loc"), QByteArray());
        MsgBoxScript::Answer(vbYes);
        QVERIFY(RunStartup(c.path()));
        QVERIFY(IsLoaded<frmInstallPackage>() && Get<frmInstallPackage>().Visible());
        QVERIFY(!Get<frmMainScreen>().Visible());
        Get<frmInstallPackage>().close();   // the close box leaves as Close does
        QVERIFY(!IsLoaded<frmInstallPackage>() && Get<frmMainScreen>().Visible());
        Settle();
    }

    void creationScreenHoldsItsLimits() {
        QTemporaryDir a;
        FreshRun(a.path());
        Fixtures::MakeDeck(QStringLiteral("Any"), 1, false);
        frmCreatePackage& create = Get<frmCreatePackage>();
        create.Show();
        BadInput::TourTextBoxes(create);
        create.cmdCancel_Click();
        Settle();
    }

private:
    // The installation screen on a folder, with the package of that name chosen.
    static frmInstallPackage& Chosen(const QString& folder, const QString& name) {
        frmInstallPackage& install = Get<frmInstallPackage>();
        install.ShowFolder(folder);
        for (int i = 0; i < install.filSelection->ListCount(); ++i)
            if (install.filSelection->List(i) == name) install.filSelection->setListIndex(i);
        return install;
    }
};

QTEST_MAIN(TestPackages)
#include "tst_packages.moc"
