// Packages between two program directories: made on the creation screen in
// one, installed in the other over designs of the same names, and used for a
// reading there; and the installations that stop part way.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include "platform/ListBox.h"
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <deque>

#include "packages/PackageSummary.h"
#include "packages/frmCreatePackage.h"
#include "packages/frmInstallPackage.h"
#include "packages/mdlPackages.h"
#include "platform/CommonDialog.h"
#include "platform/FileLists.h"
#include "support/ModalScript.h"
#include "readings/ReadingFixtures.h"
#include "platform/ListBox.h"
#include "spreads/frmDeckChooser.h"
#include "store/Startup.h"
#include "store/frmDesignExists.h"
#include "store/frmSetPassword.h"
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

    void aPackageTravelsWithPasswordAndAttachmentAndServesAReading() {
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
        const std::vector<CardRecord> cardsInA = All<CardRecord>(CardsPath);
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
        const QStringList oldFilesB = Dir(CardsDir + QStringLiteral("*.*"));

        Get<frmMainScreen>().lblButton_Click(7);
        frmInstallPackage& install = Get<frmInstallPackage>();
        QCOMPARE(install.filSelection->ListCount(), 1);
        install.filSelection->setListIndex(0);
        QVERIFY(install.cmdInstall->isEnabled());
        CommonDialogScript::Answer(AttachmentsDir + QStringLiteral("notes.txt"));
        ModalScript installScript;
        installScript
            .On<frmDesignExists>([](frmDesignExists& f) {
                QCOMPARE(f.Caption(), QStringLiteral("Deck 'Tarot' exists."));
                f.cmdRename->click();
                QCOMPARE(f.txtDesignName->text(), QStringLiteral("Tarot (Copy)"));
                f.cmdOK->click();
            })
            .On<frmDesignExists>([](frmDesignExists& f) {
                QCOMPARE(f.Caption(), QStringLiteral("Spread 'Cross' exists."));
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

        // Cards: B's untouched, then A's under the new id with fresh file
        // names whose files hold A's bytes; B's files are all still there.
        QCOMPARE(ReadWholeFile(CardsPath).left(oldCardsB.size()), oldCardsB);
        const std::vector<CardRecord> cards = All<CardRecord>(CardsPath);
        QCOMPARE(int(cards.size()), 5);
        QSet<QString> names;
        for (int i = 0; i < 3; ++i) {
            const CardRecord& got = cards[static_cast<std::size_t>(i + 2)];
            CardRecord expected = cardsInA[static_cast<std::size_t>(i)];
            QCOMPARE(got.CardDeckId, Integer(2));
            for (int side = 0; side < 2; ++side) {
                const auto s = static_cast<std::size_t>(side);
                for (const auto& [gotName, aName] : {std::pair{got.CardPicture[s], expected.CardPicture[s]},
                                                     std::pair{got.CardSound[s], expected.CardSound[s]}}) {
                    QVERIFY(!oldFilesB.contains(gotName.Trimmed()));
                    QCOMPARE(ReadWholeFile(CardsDir + gotName.Trimmed()), ReadWholeFile(cardsDirA + aName.Trimmed()));
                    names.insert(gotName.Trimmed());
                }
                expected.CardPicture[s] = got.CardPicture[s];
                expected.CardSound[s] = got.CardSound[s];
            }
            QVERIFY(got.CardPicture[0].Trimmed().startsWith(QStringLiteral("CU")));
            QVERIFY(got.CardSound[1].Trimmed().endsWith(QStringLiteral("M.WAV")));
            expected.CardDeckId = 2;
            QCOMPARE(EncodeRecord(got), EncodeRecord(expected));
        }
        QCOMPARE(names.size(), 12);
        for (const QString& file : oldFilesB) QVERIFY(FileExists(CardsDir + file));

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

        // Ready for a reading: the spread qualifies and the renamed deck loads whole.
        QVERIFY(IsSpreadUsable(QStringLiteral("Cross")));
        ListDeck = decks[1];
        bool removed = true;
        QVERIFY(LoadDeck(removed));
        QCOMPARE(CurrentDeck.DeckCards.Count(), 3);
    }

    void installationsThatStopPartWayLeaveWholeRecords() {
        QTemporaryDir a, b;
        FreshRun(a.path());
        // Five decks fill the package's id list exactly: the look past its
        // end stops the installation before any deck is written.
        for (int i = 1; i <= 5; ++i) Fixtures::MakeDeck(QStringLiteral("Deck %1").arg(i), 1, false);
        PackAllDecks(QStringLiteral("five.pck"));
        const QString packages = PackagesDir;

        FreshRun(b.path());
        Fixtures::MakeDeck(QStringLiteral("Mine"), 1, false);
        const QByteArray decksBefore = ReadWholeFile(DecksPath);
        frmInstallPackage& install = Chosen(packages, QStringLiteral("five.pck"));
        install.cmdInstall_Click();
        QCOMPARE(MsgBoxScript::History().size(), 1);
        QVERIFY(MsgBoxScript::History()[0].prompt.contains(ErrorDescription(errSubscriptOutOfRange)));
        QCOMPARE(ReadWholeFile(DecksPath), decksBefore);
        QCOMPARE(FileLen(CardsPath) % CardRecord::Length, 0);
        QVERIFY(Dir(TempDir + QStringLiteral("*.*")).isEmpty());
        QVERIFY(IsLoaded<frmInstallPackage>());   // the screen stays for another choice

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

    // A card record that names a file outside Temp/ names nothing the
    // package brought: the installation stops on a missing file, and the
    // file it reached for is never copied into Cards/.
    void aCardNamingAFileOutsideTempTakesNothingFromThere() {
        QTemporaryDir a;
        FreshRun(a.path());
        Fixtures::MakeDeck(QStringLiteral("Lure"), 1, false);
        DeckRecord deck;
        QVERIFY(GetRecord(DecksPath, 1, deck));
        CardRecord card = All<CardRecord>(CardsPath).front();
        card.CardPicture[0] = QStringLiteral("../x.bmp");
        DeleteDeck(1);
        const QByteArray secret("not the package's to take");
        WriteWholeFile(AppPath + QStringLiteral("x.bmp"), secret);
        WriteWholeFile(PackagesDir + QStringLiteral("lure.pck"),
                       Member("C:\\Temp\\Temp.dck", EncodeRecord(deck)) + Member("C:\\Temp\\Temp.crd", EncodeRecord(card)));

        frmInstallPackage& install = Chosen(PackagesDir, QStringLiteral("lure.pck"));
        install.cmdInstall_Click();
        QCOMPARE(MsgBoxScript::History().size(), 1);
        QVERIFY(MsgBoxScript::History()[0].prompt.contains(ErrorDescription(errFileNotFound)));
        for (const QString& name : Dir(CardsDir + QStringLiteral("*.*")))
            QVERIFY2(ReadWholeFile(CardsDir + name) != secret, qPrintable(name));
        QCOMPARE(CountCards(CardsPath), 0);
        QCOMPARE(ReadWholeFile(AppPath + QStringLiteral("x.bmp")), secret);
        QVERIFY(IsLoaded<frmInstallPackage>());
        install.cmdCancel_Click();
        Settle();
    }

    // Two cards of a package that name the same picture each get a file of
    // their own in Cards/, with the picture's bytes.
    void cardsSharingAPictureEachGetTheirOwnFile() {
        QTemporaryDir a;
        FreshRun(a.path());
        Fixtures::MakeDeck(QStringLiteral("Twins"), 2, false);
        DeckRecord deck;
        QVERIFY(GetRecord(DecksPath, 1, deck));
        QByteArray cards;
        for (CardRecord card : All<CardRecord>(CardsPath)) {
            card.CardPicture[0] = QStringLiteral("Shared.bmp");
            cards += EncodeRecord(card);
        }
        DeleteDeck(1);
        const QByteArray picture("BM the one picture");
        WriteWholeFile(PackagesDir + QStringLiteral("twins.pck"), Member("C:\\Temp\\Temp.dck", EncodeRecord(deck)) +
                                                                  Member("C:\\Temp\\Temp.crd", cards) +
                                                                  Member("C:\\Temp\\Shared.bmp", picture));

        frmInstallPackage& install = Chosen(PackagesDir, QStringLiteral("twins.pck"));
        ModalScript summary;
        summary.On<frmPackageSummary>([](frmPackageSummary& s) { s.cmdCancel->click(); });
        install.cmdInstall_Click();
        QVERIFY(summary.Done());
        const std::vector<CardRecord> installed = All<CardRecord>(CardsPath);
        QCOMPARE(installed.size(), std::size_t(2));
        const QString first = installed[0].CardPicture[0].Trimmed(), second = installed[1].CardPicture[0].Trimmed();
        QVERIFY(first != second);
        QCOMPARE(ReadWholeFile(CardsDir + first), picture);
        QCOMPARE(ReadWholeFile(CardsDir + second), picture);
        QVERIFY(Dir(TempDir + QStringLiteral("*.*")).isEmpty());
        Settle();
    }

    void compactionOfADeckListAfterMapping() {
        SpreadRecord spread;
        auto run = [&spread](std::array<Integer, 10> ids, int count) {
            spread.AllowedDeckId = ids;
            spread.AllowedDeckCount = static_cast<Integer>(count);
            CompactAllowedDecks(spread, count);
        };
        // Unmapped entries alone, or one behind a mapped one, go quietly.
        run({-1, -1}, 2);
        QCOMPARE(spread.AllowedDeckCount, Integer(0));
        run({-1, 4}, 2);
        QCOMPARE(spread.AllowedDeckCount, Integer(1));
        QCOMPARE(spread.AllowedDeckId[0], Integer(4));
        run({3, -1}, 2);
        QCOMPARE(spread.AllowedDeckId[0], Integer(3));
        // A mapped entry and two unmapped ones behind it: the second pass
        // shifts too far.
        bool raised = false;
        try {
            run({3, -1, -1}, 3);
        } catch (const RuntimeError& e) {
            raised = e.Number() == errSubscriptOutOfRange;
        }
        QVERIFY(raised);
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

private:
    // Packs every deck of the present directory on the creation screen, into
    // Packages/ under the name given.
    void PackAllDecks(const QString& fileName) {
        frmCreatePackage& create = Get<frmCreatePackage>();
        for (int row = 0; row < create.lstAvailableDecks->count(); ++row)
            create.lstAvailableDecks->item(row)->setCheckState(Qt::Checked);
        create.txtFilename->setText(fileName);
        ModalScript summaryScript;
        summaryScript.On<frmCreatePackageSummary>([](frmCreatePackageSummary& s) { s.cmdCancel->click(); });
        create.cmdCreate_Click();
        QVERIFY(summaryScript.Done());
        Settle();
    }

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
