// Packages between two program directories: the screens' walk, every state a
// design can be in installed whole, the installation's rules and refusals.
#include <set>
#include "core/packages/PackageFile.h"
#include "core/packages/PackageStaging.h"

#include "core/store/DeckLoading.h"
#include "core/store/DeletePasses.h"
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
std::vector<R> All(const QString& path) {
    return ReadAllRecords<R>(path);
}

void GiveSounds(const QString& cardsPath, Integer deckId) {
    int n = 0;
    for (int r = 1; r <= CountCards(cardsPath); ++r)
        ChangeRecord<CardRecord>(cardsPath, r, [&n, deckId](CardRecord& c) {
            if (c.CardDeckId != deckId) return;
            ++n;
            for (int side = 0; side < 2; ++side) {
                const QString name = QStringLiteral("MC%1%2.wav").arg(side ? 'R' : 'U').arg(n, 5, 10, QLatin1Char('0'));
                c.CardSound[static_cast<std::size_t>(side)] = name;
                WriteWholeFile(TheRun.Paths.CardsDir + name, "RIFF sound " + name.toLatin1());
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

// The named designs staged in Temp/ as the creation screen stages them.
void Stage(const QStringList& decks, const QStringList& spreads) {
    PackageStaging staging;
    staging.DeckNames = decks;
    staging.SpreadNames = spreads;
    staging.StageAll();
}

// Designs staged in `from` as the creation screen stages them, laid in Temp/
// of `to` (which holds a deck and a spread "Mine") as an extraction leaves
// them: decks "Tarot" (two cards, reversed sides, sounds), "Lenormand" (one
// card) and "Empty"; spreads "Cross" (two locations, on Tarot, a background)
// and "Line".
void StagePackage(const QString& from, const QString& to) {
    FreshRun(from);
    const Integer tarot = Fixtures::MakeDeck(QStringLiteral("Tarot"), 2, true);
    GiveSounds(TheRun.Paths.CardsPath, tarot);
    Fixtures::MakeDeck(QStringLiteral("Lenormand"), 1, false);
    Fixtures::MakeDeck(QStringLiteral("Empty"), 0, false);
    Fixtures::MakeSpread(QStringLiteral("Cross"), 2, {tarot});
    Fixtures::MakeSpread(QStringLiteral("Line"), 1);
    ChangeRecord<SpreadRecord>(TheRun.Paths.SpreadsPath, 1,
                               [](SpreadRecord& s) { s.BackgroundFile = QStringLiteral("S000001.bmp"); });
    Fixtures::WritePicture(TheRun.Paths.CardsDir + QStringLiteral("S000001.bmp"));
    Stage({QStringLiteral("Tarot"), QStringLiteral("Lenormand"), QStringLiteral("Empty")},
          {QStringLiteral("Cross"), QStringLiteral("Line")});
    const QString staged = TheRun.Paths.TempDir;
    FreshRun(to);
    Fixtures::MakeDeck(QStringLiteral("Mine"), 1, false);
    Fixtures::MakeSpread(QStringLiteral("Mine"), 1);
    for (const QString& name : Dir(staged + QStringLiteral("*.*")))
        FileCopy(staged + name, TheRun.Paths.TempDir + name);
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
    GiveSounds(TheRun.Paths.CardsPath, tarot);
    Fixtures::MakeSpread(QStringLiteral("Cross"), 2, {tarot});
    ChangeRecord<SpreadRecord>(TheRun.Paths.SpreadsPath, 1,
                               [](SpreadRecord& s) { s.BackgroundFile = QStringLiteral("S000001.bmp"); });
    Fixtures::WritePicture(TheRun.Paths.CardsDir + QStringLiteral("S000001.bmp"), Qt::darkGreen);
    return {{QStringLiteral("Tarot")}, {QStringLiteral("Cross")}};
}

// TarotAndCross with these files of Cards/ gone.
DesignState TarotAndCrossWithout(const QStringList& gone) {
    return [gone] {
        const Packed packed = TarotAndCross();
        for (const QString& name : gone) Kill(TheRun.Paths.CardsDir + name);
        return packed;
    };
}

// The named designs as a user meets them, names, ids and file names aside:
// decks with their cards as a load takes them, spreads with their locations
// and the places of their decks among those named, files by their bytes. A
// missing picture shows as the default one, any other file as none; only an
// attachment, which an installation never takes over, counts by its name
// where it is missing, unless `attachmentsMustBeThere`.
QList<QByteArray> AsShown(const Packed& designs, bool attachmentsMustBeThere) {
    QList<QByteArray> shown;
    const auto file = [](const auto& field, bool picture) {
        const QString path = TheRun.Paths.CardsDir + field.Trimmed();
        if (!field.IsBlank() && FileExists(path)) return ReadWholeFile(path);
        return picture ? ReadWholeFile(TheRun.Paths.DefaultPicturePath) : QByteArray();
    };
    const auto attachment = [attachmentsMustBeThere](auto& field) {
        if (attachmentsMustBeThere && !FileExists(TheRun.Paths.CardsDir + field.Trimmed())) field = QString();
    };
    QMap<Integer, int> places;
    for (const QString& name : designs.Decks) {
        DeckRecord deck;
        GetRecord(TheRun.Paths.DecksPath, FindDeckByName(name), deck);
        places[deck.DeckId] = places.size();
        int taken = 0;
        for (CardRecord card : All<CardRecord>(TheRun.Paths.CardsPath)) {
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
        GetRecord(TheRun.Paths.SpreadsPath, FindSpreadByName(name), spread);
        LoadSpreadLocations(spread.SpreadId, spread.LocationCount);
        for (LocationRecord location : TheRun.SpreadLocations) {
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
    QMap<QString, QStringList> Ties;  // "*" for any deck
    void ChooseDecks(const std::vector<DeckRecord>& decks) override {
        TheRun.InstallAllSpreads = false;
        Chosen = Ties.value(TheRun.CurrentSpread.SpreadName.Trimmed());
        InstallAnswers::ChooseDecks(decks);
        if (Chosen == QStringList{QStringLiteral("*")}) TheRun.CurrentSpread.AllowedDeckCount = -1;
    }
};

// The files of Cards/ that no card or spread names, the default picture aside.
QStringList Unnamed() {
    QSet<QString> named{NativePath(TheRun.Paths.DefaultPicturePath)};
    for (const CardRecord& card : All<CardRecord>(TheRun.Paths.CardsPath))
        for (const QString& path : CardFilesOf(card)) named << path;
    for (const SpreadRecord& spread : All<SpreadRecord>(TheRun.Paths.SpreadsPath))
        named << DesignFilePath(spread.BackgroundFile.Value());
    QStringList unnamed;
    for (const QString& name : Dir(TheRun.Paths.CardsDir + QStringLiteral("*.*")))
        if (!named.contains(NativePath(TheRun.Paths.CardsDir + name))) unnamed << name;
    return unnamed;
}

// Everything an installation may write: the design record files and the
// names in Cards/.
QByteArray Stored() {
    QByteArray all;
    for (const QString* path :
         {&TheRun.Paths.DecksPath, &TheRun.Paths.CardsPath, &TheRun.Paths.SpreadsPath, &TheRun.Paths.LocationsPath})
        all += ReadWholeFile(*path) + '|';
    return all + Dir(TheRun.Paths.CardsDir + QStringLiteral("*.*")).join(QLatin1Char('|')).toLatin1();
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
        FreshRun(a.path());
        const QList<QByteArray> made = AsShown(TarotAndCross(), true);
        WriteWholeFile(a.path() + QStringLiteral("/notes.txt"), "Read me first.");

        Get<frmMainScreen>().lblButton_Click(8);
        frmCreatePackage& create = Get<frmCreatePackage>();
        create.lstAvailableSpreads->item(0)->setCheckState(Qt::Checked);  // picks its deck as well
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
            QCOMPARE(s.txtAttachment->text(), QStringLiteral("notes.txt"));
            s.cmdCancel->click();
        });
        create.cmdCreate->click();
        QVERIFY(summaryScript.Done());
        Settle();
        QVERIFY(!IsLoaded<frmCreatePackage>() && Get<frmMainScreen>().Visible());
        QCOMPARE(All<DeckRecord>(TheRun.Paths.DecksPath)[0].DeckLocked,
                 Integer(0));  // the live designs keep no password
        const QString package = TheRun.Paths.PackagesDir + QStringLiteral("Cartomar Package - 1.pck");

        // Directory B: a deck and a spread of the same names already.
        FreshRun(b.path());
        FileCopy(package, TheRun.Paths.PackagesDir + QStringLiteral("Cartomar Package - 1.pck"));
        const Integer oldDeckB = Fixtures::MakeDeck(QStringLiteral("Tarot"), 2, false);
        Fixtures::MakeSpread(QStringLiteral("Cross"), 1, {oldDeckB});
        const QByteArray oldDeckRecordB = ReadWholeFile(TheRun.Paths.DecksPath);

        Get<frmMainScreen>().lblButton_Click(7);
        Get<frmInstallPackage>().filSelection->setListIndex(0);
        CommonDialogScript::Answer(TheRun.Paths.AttachmentsDir + QStringLiteral("notes.txt"));
        ModalScript installScript;
        installScript
            .On<frmDesignExists>([](frmDesignExists& f) {
                f.cmdRename->click();
                f.cmdOK->click();
            })
            .On<frmDesignExists>([](frmDesignExists& f) { f.cmdOverwrite->click(); })
            .On<frmDeckChooser>([](frmDeckChooser& f) {
                for (int i = 0; i < f.lstAvailableDecks->ListCount(); ++i)
                    if (f.lstAvailableDecks->List(i).trimmed() == QStringLiteral("Tarot (Copy)"))
                        f.lstAvailableDecks->setListIndex(i);
                f.cmdAddDeck_Click();
                f.cmdClose_Click();
            })
            .On<frmPackageSummary>([](frmPackageSummary& s) {
                QCOMPARE(s.Label1->text(), QStringLiteral("The package was successfully installed."));
                s.cmdCancel->click();
            });
        Get<frmInstallPackage>().cmdInstall->click();
        QVERIFY(installScript.Done());
        Settle();
        QVERIFY(!IsLoaded<frmInstallPackage>() && Get<frmMainScreen>().Visible());
        QVERIFY(Dir(TheRun.Paths.TempDir + QStringLiteral("*.*")).isEmpty());
        // The attachment is saved with its extension added once more.
        QCOMPARE(ReadWholeFile(TheRun.Paths.AttachmentsDir + QStringLiteral("notes.txt.txt")),
                 QByteArray("Read me first."));

        // B's own deck stays as it was; the renamed deck and the spread that
        // took the place of B's carry the package's password, and are
        // otherwise as they were in A.
        QCOMPARE(ReadWholeFile(TheRun.Paths.DecksPath).left(DeckRecord::Length), oldDeckRecordB);
        ChangeRecord<DeckRecord>(TheRun.Paths.DecksPath, 2, [](DeckRecord& d) {
            QVERIFY(d.DeckLocked && d.DeckPassword.Trimmed() == QLatin1String("secret"));
            d.DeckLocked = 0;
            d.DeckPassword = QString();
        });
        ChangeRecord<SpreadRecord>(TheRun.Paths.SpreadsPath, 1, [](SpreadRecord& s) {
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
        QTest::newRow("pictures and a sound gone") << TarotAndCrossWithout(
            {QStringLiteral("CU00001.bmp"), QStringLiteral("CR00002.bmp"), QStringLiteral("MCU00003.wav")});
        QTest::newRow("a card blanked by a load") << DesignState([] {
            const Packed packed = TarotAndCrossWithout({QStringLiteral("CU00002.bmp")})();
            GetRecord(TheRun.Paths.DecksPath, 1, TheRun.ListDeck);
            LoadDeckCards();
            return packed;
        });
        QTest::newRow("attachments, two of them gone") << DesignState([] {
            const Packed packed = TarotAndCross();
            for (const char* name : {"deck.txt", "place.txt"})
                WriteWholeFile(TheRun.Paths.CardsDir + QLatin1String(name), name);
            ChangeRecord<DeckRecord>(TheRun.Paths.DecksPath, 1,
                                     [](DeckRecord& d) { d.DeckAttachment = QStringLiteral("deck.txt"); });
            ChangeRecord<SpreadRecord>(TheRun.Paths.SpreadsPath, 1,
                                       [](SpreadRecord& s) { s.SpreadAttachment = QStringLiteral("gone.txt"); });
            for (int n = 1; n <= 2; ++n)
                ChangeRecord<LocationRecord>(TheRun.Paths.LocationsPath, n, [n](LocationRecord& l) {
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
            GetRecord(TheRun.Paths.SpreadsPath, FindSpreadByName(name), spread);
            QStringList& ties = answers.Ties[name];
            if (spread.AllowedDeckCount < 0) ties << QStringLiteral("*");
            for (int k = 0; k < spread.AllowedDeckCount; ++k)
                if (const QString deck = DeckNameById(spread.AllowedDeckId[std::size_t(k)]).trimmed();
                    packed.Decks.contains(deck))
                    ties << deck;
        }
        Stage(packed.Decks, packed.Spreads);
        const QString package = a.path() + QStringLiteral("/p.pck");
        QVERIFY(CreatePackageFile(TheRun.Paths.TempDir, package));

        FreshRun(b.path());
        QVERIFY(ExtractPackageFile(package, TheRun.Paths.TempDir));
        PackageInstallation installation(answers, QString());
        QCOMPARE(installation.Install(), InstallOutcome::Installed);
        QCOMPARE(AsShown(packed, false), made);
        QCOMPARE(Unnamed(), QStringList());
    }

    // Installed twice over its own designs (overwrite all), beside cards under
    // the id its first deck takes: every deck loads its own cards, no card or
    // file belongs to nobody, and a spread follows an overwritten deck.
    void installingOverItsOwnDesignsLeavesNothingOfNobody() {
        QTemporaryDir a, b;
        StagePackage(a.path(), b.path());
        const QString unpacked = a.path() + QStringLiteral("/Temp/");  // `a`'s Temp/ holds the package still
        CardRecord nobodys;
        nobodys.CardTitle = QStringLiteral("Nobody's");
        nobodys.CardPicture[0] = QStringLiteral("CU00009.bmp");
        nobodys.CardDeckId = 2;  // the id Tarot takes
        Fixtures::WritePicture(TheRun.Paths.CardsDir + QStringLiteral("CU00009.bmp"));
        AppendRecord(TheRun.Paths.CardsPath, nobodys);
        InstallAnswers answers;
        answers.Chosen = {QStringLiteral("Tarot")};
        answers.Exists = DesignExistsOverwriteAll;
        for (int round = 1; round <= 2; ++round) {
            // "Mine" is tied to a deck that has gone under Tarot's id, then to Tarot.
            const Integer tarot = round == 1 ? 2 : FindDeckIdByName(QStringLiteral("Tarot"));
            ChangeRecord<SpreadRecord>(TheRun.Paths.SpreadsPath, 1, [tarot](SpreadRecord& s) {
                s.AllowedDeckId[0] = tarot;
                s.AllowedDeckCount = 1;
            });
            for (const QString& name : Dir(unpacked + QStringLiteral("*.*")))
                FileCopy(unpacked + name, TheRun.Paths.TempDir + name);
            QCOMPARE(PackageInstallation(answers, QString()).Install(), InstallOutcome::Installed);
            std::set<Integer> ids;
            for (const DeckRecord& deck : All<DeckRecord>(TheRun.Paths.DecksPath)) {
                ids.insert(deck.DeckId);
                TheRun.ListDeck = deck;
                QVERIFY(LoadDeckCards());
                for (const CardRecord& card : TheRun.CurrentDeck.DeckCards)
                    QVERIFY(card.CardTitle.Trimmed() != QLatin1String("Nobody's"));
            }
            QCOMPARE(int(ids.size()), 4);
            for (const CardRecord& card : All<CardRecord>(TheRun.Paths.CardsPath)) QVERIFY(ids.count(card.CardDeckId));
            QCOMPARE(Unnamed(), QStringList());
            const SpreadRecord mine = All<SpreadRecord>(TheRun.Paths.SpreadsPath)[0];
            QCOMPARE(mine.AllowedDeckCount, Integer(round - 1));
            QCOMPARE(mine.AllowedDeckId[0], round == 1 ? Integer(-1) : FindDeckIdByName(QStringLiteral("Tarot")));
        }
    }

    // A package that contradicts itself is refused with nothing written; one
    // that an earlier version may have written installs as it stands.
    void packagesThatDisagreeWriteNothing_data() {
        QTest::addColumn<QString>("member");
        QTest::addColumn<int>("at");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("refusal");
        struct Part {
            const char* File;
            int Length;
        };
        const Part dck{"Temp.dck", DeckRecord::Length}, crd{"Temp.crd", CardRecord::Length},
            spr{"Temp.spr", SpreadRecord::Length}, loc{"Temp.loc", LocationRecord::Length};
        // The field of record n of the part set to the bytes: refused with that text, or installed.
        const auto row = [](const char* name, Part part, int n, int field, const QByteArray& bytes,
                            const QString& refusal = QString()) {
            QTest::newRow(name) << QString::fromLatin1(part.File) << (n - 1) * part.Length + field << bytes
                                << (refusal.isEmpty() ? refusal
                                                      : "Unable to install: Damaged Cartomar Package.\n" + refusal);
        };
        const auto text12 = [](const char* name) { return FixedText<12>(QString::fromLatin1(name)).Raw(); };
        row("a deck claiming 32767 cards", dck, 1, 981, Int16s({32767}),
            "The deck 'Tarot' claims 32767 cards, which no deck can hold.");
        row("two decks of one id", dck, 2, 985, Int16s({1}),
            "The decks 'Tarot' and 'Lenormand' would share their cards.");
        row("a deck of id 0 with cards", dck, 1, 985, Int16s({0}),
            "The deck 'Tarot' would be installed without its cards.");
        row("a deck attachment outside Temp", dck, 1, 54, text12("../a.txt"),
            "The deck 'Tarot' names the file '../a.txt', which the package does not hold.");
        row("a card of no deck", crd, 3, 5100, Int16s({9}), "A card of the package belongs to none of its decks.");
        row("a card type past 3", crd, 1, 0, Int16s({4}), "The card 'Card 1' has an unknown card type.");
        row("a picture the package lacks", crd, 2, 5052, text12("CU09999.bmp"),
            "The card 'Card 2' names the file 'CU09999.bmp', which the package does not hold.");
        row("a picture outside Temp", crd, 1, 5064, text12("../x.bmp"),
            "The card 'Card 1' names the file '../x.bmp', which the package does not hold.");
        row("a spread of 33 locations", spr, 1, 2501, Int16s({33}),
            "The spread 'Cross' claims 33 locations, which no spread can hold.");
        row("a spread naming 11 decks", spr, 1, 122, Int16s({11}),
            "The spread 'Cross' names 11 decks, which no spread can.");
        row("two spreads of one id", spr, 2, 100, Int16s({1}),
            "The spreads 'Cross' and 'Line' would share their locations.");
        row("a background the package lacks", spr, 1, 2507, FixedText<11>(QStringLiteral("S000009.bmp")).Raw(),
            "The spread 'Cross' names the file 'S000009.bmp', which the package does not hold.");
        row("a location of no spread", loc, 3, 50, Int16s({9}),
            "A location of the package belongs to none of its spreads.");
        row("a location past the count", loc, 2, 52, Int16s({3}),
            "The locations of the spread 'Cross' do not agree with its count of 2.");
        row("a location attachment outside Temp", loc, 1, 1083, text12("/etc/x"),
            "The location 'Position 1' names the file '/etc/x', which the package does not hold.");
        row("a deck short of a card", dck, 1, 981, Int16s({3}));
        row("an attachment the package lacks", spr, 1, 2518, text12("gone.txt"));
        row("a spread short of a location", spr, 1, 2501, Int16s({3}));
        row("a last deck of id 0 without cards", dck, 3, 985, Int16s({0}));
    }

    void packagesThatDisagreeWriteNothing() {
        QFETCH(QString, member);
        QFETCH(int, at);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, refusal);
        QTemporaryDir a, b;
        StagePackage(a.path(), b.path());
        const QByteArray staged = ReadWholeFile(TheRun.Paths.TempDir + member);
        WriteWholeFile(TheRun.Paths.TempDir + member, staged.left(at) + bytes + staged.mid(at + bytes.size()));
        WriteWholeFile(TheRun.Paths.AppPath + QStringLiteral("x.bmp"), "not the package's to take");
        const QByteArray before = Stored();
        InstallAnswers answers;
        PackageInstallation installation(answers, QString());
        QCOMPARE(installation.Install(), refusal.isEmpty() ? InstallOutcome::Installed : InstallOutcome::Refused);
        QCOMPARE(installation.Refusal, refusal);
        QCOMPARE(Stored() != before, refusal.isEmpty());
        // A location the package lacks is put in its place as a fresh one.
        if (QTest::currentDataTag() == QByteArray("a spread short of a location")) {
            LoadSpreadLocations(All<SpreadRecord>(TheRun.Paths.SpreadsPath)[1].SpreadId, 3);
            QCOMPARE(TheRun.SpreadLocations(3).LocationLeft, Integer(6480));
        }
    }

    // Card files take numbers whose four names (both pictures, both sounds)
    // no file in Cards/ takes, a ".jpeg" picture's "CU00002jpeg" included;
    // two cards on one picture get a copy each; the chooser offers the decks
    // being installed with the others, and its choice holds for every spread.
    void aPackageTakesFreeNamesAndOffersItsOwnDecks() {
        QTemporaryDir a, b;
        StagePackage(a.path(), b.path());
        ChangeRecord<CardRecord>(TheRun.Paths.TempDir + QStringLiteral("Temp.crd"), 2,
                                 [](CardRecord& c) { c.CardPicture[0] = QStringLiteral("CU00001.bmp"); });
        WriteWholeFile(TheRun.Paths.CardsDir + QStringLiteral("CU00002jpeg"), "photo.jpeg");
        WriteWholeFile(TheRun.Paths.CardsDir + QStringLiteral("cr00003.bmp"),
                       "a reversed picture whose upright one went");
        InstallAnswers answers;
        answers.Chosen = {QStringLiteral("Tarot")};
        QCOMPARE(PackageInstallation(answers, QString()).Install(), InstallOutcome::Installed);
        QCOMPARE(answers.Offered, (QStringList{"Mine", "Tarot", "Lenormand", "Empty"}));
        QStringList names;
        for (const CardRecord& c : All<CardRecord>(TheRun.Paths.CardsPath))
            names << c.CardPicture[0].Trimmed() << c.CardPicture[1].Trimmed() << c.CardSound[0].Trimmed()
                  << c.CardSound[1].Trimmed();
        QCOMPARE(names, (QStringList{"CU00001.bmp", "C000000.bmp", "", "",                          // Mine
                                     "CU00000.bmp", "CR00000.bmp", "CU00000M.WAV", "CR00000M.WAV",  // Tarot
                                     "CU00004.bmp", "CR00004.bmp", "CU00004M.WAV", "CR00004M.WAV", "CU00005.bmp",
                                     "C000000.bmp", "", ""}));  // Lenormand
        QCOMPARE(ReadWholeFile(TheRun.Paths.CardsDir + QStringLiteral("CU00004.bmp")),
                 ReadWholeFile(TheRun.Paths.CardsDir + QStringLiteral("CU00000.bmp")));
        for (const SpreadRecord& s : All<SpreadRecord>(TheRun.Paths.SpreadsPath))
            if (s.SpreadName.Trimmed() != QStringLiteral("Mine")) QCOMPARE(s.AllowedDeckId[0], Integer(2));
    }

    // A package the installation cannot take leaves the screen open on it,
    // Temp/ emptied and the designs as they were: a damaged one with its
    // refusal, one deleted after the listing with the box that says it
    // cannot be opened; one of a foreign format after its attachment.
    void theScreenStaysOnAPackageItCannotInstall() {
        QTemporaryDir b;
        FreshRun(b.path());
        const QString packages = TheRun.Paths.PackagesDir;
        DeckRecord claims;
        claims.CardCount = 5;
        WriteWholeFile(packages + QStringLiteral("damaged.pck"), Member("C:\\Temp\\Temp.dck", EncodeRecord(claims)));
        WriteWholeFile(packages + QStringLiteral("gone.pck"), QByteArray("anything"));
        Fixtures::MakeDeck(QStringLiteral("Mine"), 1, false);
        const QByteArray before = Stored();
        frmInstallPackage& install = Get<frmInstallPackage>();
        const std::pair<const char*, int> cases[] = {{"damaged.pck", vbExclamation}, {"gone.pck", vbCritical}};
        for (const auto& [package, style] : cases) {
            MsgBoxScript::Clear();
            Chosen(packages, QString::fromLatin1(package));
            if (package == std::string_view("gone.pck")) Kill(packages + QStringLiteral("gone.pck"));
            install.cmdInstall_Click();
            QCOMPARE(MsgBoxScript::History().size(), 1);
            QCOMPARE(MsgBoxScript::History()[0].style & style, style);
            QCOMPARE(Stored(), before);
            QVERIFY(Dir(TheRun.Paths.TempDir + QStringLiteral("*.*")).isEmpty());
            QVERIFY(IsLoaded<frmInstallPackage>());
        }

        // A package whose record file is of a foreign length is refused
        // whole, after its attachment is saved.
        WriteWholeFile(packages + QStringLiteral("bad.pck"),
                       Member("C:\\Temp\\Temp.spr", "garbage") + Member("ATT - a.txt", "hi"));
        Chosen(packages, QStringLiteral("bad.pck"));
        MsgBoxScript::Clear();
        CommonDialogScript::Answer(TheRun.Paths.AttachmentsDir + QStringLiteral("a"));
        ModalScript summary;
        summary.On<frmPackageSummary>([](frmPackageSummary& s) {
            QCOMPARE(s.Label1->text(), QStringLiteral("No elements of this package were installed."));
            QCOMPARE(s.txtAttachment->text(), TheRun.Paths.AttachmentsDir + QStringLiteral("a.txt"));
            s.cmdCancel->click();
        });
        install.cmdInstall_Click();
        QVERIFY(summary.Done());
        QCOMPARE(Prompts(), QStringList{QStringLiteral("Unable to install: Incompatible Cartomar Package.")});
        QCOMPARE(ReadWholeFile(TheRun.Paths.AttachmentsDir + QStringLiteral("a.txt")), QByteArray("hi"));
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
        Get<frmInstallPackage>().close();  // the close box leaves as Close does
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
