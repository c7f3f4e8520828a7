// Packages between two program directories: made on the creation screen in
// one, installed in the other over designs of the same names; the rules of an installation on its own (fresh names, the
// decks offered, packages refused or stopped part-way with nothing written);
// what the screen does with a package it cannot install or that vanished
// after the listing; and the creation screen's limits.
#include "core/packages/PackageFile.h"
#include "core/packages/PackageStaging.h"
#include "core/store/Lookups.h"
#include "readings/ReadingFixtures.h"
#include "screens/packages/PackageSummary.h"
#include "screens/packages/frmCreatePackage.h"
#include "screens/packages/frmInstallPackage.h"
#include "screens/platform/CommonDialog.h"
#include "screens/platform/FileLists.h"
#include "screens/shell/Startup.h"
#include "screens/spreads/frmDeckChooser.h"
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

// Everything an installation may write: the design record files and the
// names in Cards/.
QByteArray Stored() {
    QByteArray all;
    for (const QString* path : {&DecksPath, &CardsPath, &SpreadsPath, &LocationsPath}) all += ReadWholeFile(*path) + '|';
    return all + Dir(CardsDir + QStringLiteral("*.*")).join(QLatin1Char('|')).toLatin1();
}

}  // namespace

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
        const Integer deckA = Fixtures::MakeDeck(QStringLiteral("Tarot"), 3, true);
        GiveSounds(CardsPath, deckA);
        Fixtures::MakeSpread(QStringLiteral("Cross"), 2, {deckA});
        ChangeRecord<SpreadRecord>(SpreadsPath, 1, [](SpreadRecord& s) { s.BackgroundFile = QStringLiteral("S000001.bmp"); });
        Fixtures::WritePicture(CardsDir + QStringLiteral("S000001.bmp"), Qt::darkGreen);
        WriteWholeFile(a.path() + QStringLiteral("/notes.txt"), "Read me first.");
        const DeckRecord deckInA = All<DeckRecord>(DecksPath)[0];
        const SpreadRecord spreadInA = All<SpreadRecord>(SpreadsPath)[0];
        const std::vector<LocationRecord> locationsInA = All<LocationRecord>(LocationsPath);
        const QString cardsDirA = CardsDir;

        Get<frmMainScreen>().lblButton_Click(8);
        frmCreatePackage& create = Get<frmCreatePackage>();
        QVERIFY(create.Visible());
        QCOMPARE(create.txtFilename->text(), QStringLiteral("Cartomar Package - 1.pck"));
        QVERIFY(!create.cmdCreate->isEnabled());
        create.lstAvailableSpreads->item(0)->setCheckState(Qt::Checked);   // picks its deck as well
        QCOMPARE(create.lstAvailableDecks->item(0)->checkState(), Qt::Checked);
        QVERIFY(create.cmdCreate->isEnabled());
        ModalScript passwordScript;
        passwordScript.On<frmSetPassword>([](frmSetPassword& f) {
            f.txtPassword1->setText(QStringLiteral("secret"));
            f.txtPassword2->setText(QStringLiteral("secret"));
            f.cmdOK->click();
        });
        create.chkPassword->setChecked(true);
        QVERIFY(passwordScript.Done() && create.PasswordSet && create.chkPassword->isChecked());
        CommonDialogScript::Answer(a.path() + QStringLiteral("/notes.txt"));
        create.cmdAttach->click();
        QVERIFY(!create.cmdAttach->isEnabled() && create.cmdDeAttach->isEnabled());

        ModalScript summaryScript;
        summaryScript.On<frmCreatePackageSummary>([](frmCreatePackageSummary& s) {
            QCOMPARE(s.Caption(), QStringLiteral("Package Summary - Cartomar Package - 1.pck"));
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
        const QByteArray oldCardsB = ReadWholeFile(CardsPath);

        Get<frmMainScreen>().lblButton_Click(7);
        frmInstallPackage& install = Get<frmInstallPackage>();
        QCOMPARE(install.filSelection->ListCount(), 1);
        install.filSelection->setListIndex(0);
        QVERIFY(install.cmdInstall->isEnabled());
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
                QCOMPARE(f.cmdClose->text(), QStringLiteral("&Continue"));
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

        // Decks: B's own stays as it was; the renamed one has a fresh id and
        // the package's password, and otherwise A's fields.
        const std::vector<DeckRecord> decks = All<DeckRecord>(DecksPath);
        QCOMPARE(int(decks.size()), 2);
        QCOMPARE(EncodeRecord(decks[0]), oldDeckRecordB);
        DeckRecord expectedDeck = deckInA;
        expectedDeck.DeckName = QStringLiteral("Tarot (Copy)");
        expectedDeck.DeckId = 2;
        expectedDeck.DeckLocked = True16;
        expectedDeck.DeckPassword = QStringLiteral("secret");
        QCOMPARE(EncodeRecord(decks[1]), EncodeRecord(expectedDeck));

        // Cards: B's untouched, then A's under the new id (the names their
        // files take are checked on their own below).
        QCOMPARE(ReadWholeFile(CardsPath).left(oldCardsB.size()), oldCardsB);
        const std::vector<CardRecord> cards = All<CardRecord>(CardsPath);
        QCOMPARE(int(cards.size()), 5);
        for (std::size_t i = 2; i < 5; ++i) QCOMPARE(cards[i].CardDeckId, Integer(2));

        // The spread took the place of B's, with a fresh id, the deck chosen,
        // a fresh background and A's locations.
        const std::vector<SpreadRecord> spreads = All<SpreadRecord>(SpreadsPath);
        QCOMPARE(int(spreads.size()), 1);
        SpreadRecord expectedSpread = spreadInA;
        expectedSpread.SpreadId = 2;
        expectedSpread.AllowedDeckCount = 1;
        expectedSpread.AllowedDeckId.fill(-1);
        expectedSpread.AllowedDeckId[0] = 2;
        expectedSpread.SpreadLocked = True16;
        expectedSpread.SpreadPassword = QStringLiteral("secret");
        expectedSpread.BackgroundFile = spreads[0].BackgroundFile;
        QCOMPARE(EncodeRecord(spreads[0]), EncodeRecord(expectedSpread));
        QCOMPARE(ReadWholeFile(CardsDir + spreads[0].BackgroundFile.Trimmed()),
                 ReadWholeFile(cardsDirA + QStringLiteral("S000001.bmp")));
        std::vector<LocationRecord> newLocations;
        for (const LocationRecord& l : All<LocationRecord>(LocationsPath))
            if (l.LocationSpreadId == 2) newLocations.push_back(l);
        QCOMPARE(int(newLocations.size()), 2);
        for (std::size_t i = 0; i < 2; ++i) {
            LocationRecord expected = locationsInA[i];
            expected.LocationSpreadId = 2;
            QCOMPARE(EncodeRecord(newLocations[i]), EncodeRecord(expected));
        }

    }

    // Each package contradicts itself in one place, and is refused with
    // nothing written; or it stops part-way on a kept limit, and leaves
    // every file as it was; or, last, it installs as it stands.
    void packagesThatDisagreeOrStopPartWayWriteNothing_data() {
        QTest::addColumn<QString>("member");
        QTest::addColumn<int>("at");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("refusal");
        QTest::addColumn<int>("error");
        const auto deck = [](int n, int field) { return (n - 1) * DeckRecord::Length + field; };
        const auto card = [](int n, int field) { return (n - 1) * CardRecord::Length + field; };
        const auto spread = [](int n, int field) { return (n - 1) * SpreadRecord::Length + field; };
        const auto location = [](int n, int field) { return (n - 1) * LocationRecord::Length + field; };
        const QString damaged = QStringLiteral("Unable to install: Damaged Cartomar Package.\n");
        QTest::newRow("a deck claiming 32767 cards") << "Temp.dck" << deck(1, 981) << Int16s({32767})
            << damaged + "The deck 'Tarot' claims 32767 cards, which no deck can hold." << 0;
        QTest::newRow("a deck claiming a card it lacks") << "Temp.dck" << deck(1, 981) << Int16s({3})
            << damaged + "The deck 'Tarot' claims 3 cards, but the package holds 2 of them." << 0;
        QTest::newRow("two decks of one id") << "Temp.dck" << deck(2, 985) << Int16s({1})
            << damaged + "The decks 'Tarot' and 'Lenormand' would share their cards." << 0;
        QTest::newRow("a deck of id 0 with cards") << "Temp.dck" << deck(1, 985) << Int16s({0})
            << damaged + "The deck 'Tarot' would be installed without its cards." << 0;
        QTest::newRow("a card of no deck") << "Temp.crd" << card(3, 5100) << Int16s({9})
            << damaged + "A card of the package belongs to none of its decks." << 0;
        QTest::newRow("a card type past 3") << "Temp.crd" << card(1, 0) << Int16s({4})
            << damaged + "The card 'Card 1' has an unknown card type." << 0;
        QTest::newRow("a picture the package lacks") << "Temp.crd" << card(2, 5052) << FixedText<12>("CU09999.bmp").Raw()
            << damaged + "The card 'Card 2' names the file 'CU09999.bmp', which the package does not hold." << 0;
        QTest::newRow("a picture outside Temp") << "Temp.crd" << card(1, 5064) << FixedText<12>("../x.bmp").Raw()
            << damaged + "The card 'Card 1' names the file '../x.bmp', which the package does not hold." << 0;
        QTest::newRow("a spread of 33 locations") << "Temp.spr" << spread(1, 2501) << Int16s({33})
            << damaged + "The spread 'Cross' claims 33 locations, which no spread can hold." << 0;
        QTest::newRow("a spread naming 11 decks") << "Temp.spr" << spread(1, 122) << Int16s({11})
            << damaged + "The spread 'Cross' names 11 decks, which no spread can." << 0;
        QTest::newRow("two spreads of one id") << "Temp.spr" << spread(2, 100) << Int16s({1})
            << damaged + "The spreads 'Cross' and 'Line' would share their locations." << 0;
        QTest::newRow("a background the package lacks") << "Temp.spr" << spread(1, 2507) << FixedText<11>("S000009.bmp").Raw()
            << damaged + "The spread 'Cross' names the file 'S000009.bmp', which the package does not hold." << 0;
        QTest::newRow("a location of no spread") << "Temp.loc" << location(3, 50) << Int16s({9})
            << damaged + "A location of the package belongs to none of its spreads." << 0;
        QTest::newRow("a location past the count") << "Temp.loc" << location(2, 52) << Int16s({3})
            << damaged + "The locations of the spread 'Cross' do not agree with its count of 2." << 0;
        // The compaction of a spread's mapped deck list: unmapped decks alone,
        // or one behind a mapped one, go quietly; two behind it run it off.
        QTest::newRow("two unmapped decks") << "Temp.spr" << spread(1, 102)
            << Int16s({8, 9, -1, -1, -1, -1, -1, -1, -1, -1, 2}) << QString() << 0;
        QTest::newRow("an unmapped deck behind a mapped one") << "Temp.spr" << spread(1, 102)
            << Int16s({1, 8, -1, -1, -1, -1, -1, -1, -1, -1, 2}) << QString() << 0;
        QTest::newRow("a deck list the compaction runs off") << "Temp.spr" << spread(1, 102)
            << Int16s({1, 8, 9, -1, -1, -1, -1, -1, -1, -1, 3}) << QString() << int(errSubscriptOutOfRange);
        DeckRecord extra;
        extra.DeckId = 4;
        QByteArray twoMore = EncodeRecord(extra);
        extra.DeckId = 5;
        twoMore += EncodeRecord(extra);
        QTest::newRow("five decks filling the id list") << "Temp.dck" << deck(4, 0) << twoMore << QString()
                                                        << int(errSubscriptOutOfRange);
        QTest::newRow("a last deck of id 0 without cards") << "Temp.dck" << deck(3, 985) << Int16s({0}) << QString() << 0;
    }

    void packagesThatDisagreeOrStopPartWayWriteNothing() {
        QFETCH(QString, member);
        QFETCH(int, at);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, refusal);
        QFETCH(int, error);
        QTemporaryDir a, b;
        StagePackage(a.path(), b.path());
        const QByteArray staged = ReadWholeFile(TempDir + member);
        WriteWholeFile(TempDir + member, staged.left(at) + bytes + staged.mid(at + bytes.size()));
        WriteWholeFile(AppPath + QStringLiteral("x.bmp"), "not the package's to take");
        const QByteArray before = Stored();
        InstallAnswers answers;
        PackageInstallation installation(answers, QString());
        int raised = 0;
        try {
            installation.Install();
        } catch (const RuntimeError& e) {
            raised = e.Number();
        }
        QCOMPARE(installation.Refusal, refusal);
        QCOMPARE(raised, error);
        QCOMPARE(Stored() != before, refusal.isEmpty() && error == 0);
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
    // Temp/ emptied and the designs as they were: one that stops part-way
    // (five decks fill the id list exactly) with the error box, a damaged
    // one with its refusal, one deleted after the listing with the box that
    // says it cannot be opened; one of a foreign format after its attachment.
    void theScreenStaysOnAPackageItCannotInstall() {
        QTemporaryDir a, b;
        FreshRun(a.path());
        PackageStaging five;
        for (int i = 1; i <= 5; ++i) {
            five.DeckNames << QStringLiteral("Deck %1").arg(i);
            Fixtures::MakeDeck(five.DeckNames.last(), 1, false);
        }
        five.StageDecks();
        five.StageCards();
        const QString packages = PackagesDir;
        QVERIFY(CreatePackageFile(TempDir, packages + QStringLiteral("five.pck")));
        DeckRecord claims;
        claims.CardCount = 5;
        WriteWholeFile(packages + QStringLiteral("damaged.pck"), Member("C:\\Temp\\Temp.dck", EncodeRecord(claims)));
        WriteWholeFile(packages + QStringLiteral("gone.pck"), QByteArray("anything"));

        FreshRun(b.path());
        Fixtures::MakeDeck(QStringLiteral("Mine"), 1, false);
        const QByteArray before = Stored();
        frmInstallPackage& install = Get<frmInstallPackage>();
        const std::pair<const char*, int> cases[] = {
            {"five.pck", vbCritical}, {"damaged.pck", vbExclamation}, {"gone.pck", vbCritical}};
        for (const auto& [package, style] : cases) {
            MsgBoxScript::Clear();
            Chosen(packages, QString::fromLatin1(package));
            QVERIFY(install.cmdInstall->isEnabled());
            if (package == std::string_view("gone.pck")) Kill(packages + QStringLiteral("gone.pck"));
            install.cmdInstall_Click();
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
