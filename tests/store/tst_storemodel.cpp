// The store driven by random sequences of its operations against a small
// model of what the user saved: decks with their cards (titles and the bytes
// of their pictures and sounds), spreads with their locations, background and
// decks, readings and diary entries. A step may be killed at a write step;
// start-up's housekeeping then runs and the folder must hold the state before
// the step or the one after it. After every step each design and entry
// reopens as the model holds it, every file a record names is there, no file
// of Cards/ is left that nothing names, and every deck a spread names exists.
// CARTOMAR_MODEL_SEED and CARTOMAR_MODEL_STEPS choose the sequence; a failure
// prints its seed and the shortest sequence found that fails the same way.
#include <QElapsedTimer>
#include <QMap>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>
#include <memory>
#include <optional>

#include "core/decks/CardEditing.h"
#include "core/decks/CardStore.h"
#include "core/decks/DeckStore.h"
#include "core/decks/PictureImport.h"
#include "core/packages/PackageStaging.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/WriteFaults.h"
#include "core/readings/EntryStore.h"
#include "core/records/RecordFile.h"
#include "core/spreads/SpreadStore.h"
#include "core/store/DeckLoading.h"
#include "core/store/Housekeeping.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "support/Fixtures.h"
#include "support/InstallAnswers.h"

namespace {

// A card as a user sees it: its title and the bytes of its files (the
// reversed picture only in a deck with reversed cards).
struct Card {
    QString Title;
    QByteArray Upright, Reversed, Sound;
    bool operator==(const Card&) const = default;
};
struct Spread {
    QStringList Titles;  // of its locations
    QByteArray Background;
    bool AnyDeck = false;
    QStringList Decks;  // by name, sorted
    bool operator==(const Spread&) const = default;
};
struct Model {
    QMap<QString, QList<Card>> Decks;
    QMap<QString, Spread> Spreads;
    QMap<QString, QString> Entries[2];  // readings, diary entries: name -> the issue saved
};

// One step: the operation, the seed of its own choices (so that it still
// makes sense when earlier steps are dropped) and the write step that kills
// it, 0 for none.
struct Step {
    int Op;
    quint32 Seed;
    int KillAt;
};

// What an operation will do: the line that tells it, the model after it, the
// writes, and another state that a kill may leave.
struct Planned {
    QString Line;
    Model After;
    std::function<QString()> Write = {};  // what went wrong, or empty
    std::optional<Model> Between = {};
};

const QStringList kDecks{"Deck 1", "Deck 2", "Deck 3", "Deck 4", "Deck 5"};
const QStringList kSpreads{"Spread 1", "Spread 2", "Spread 3", "Spread 4"}, kEntries{"Entry 1", "Entry 2", "Entry 3"};
const char* const kEntryKinds[] = {"reading", "diary entry"};
const char* const kAnswers[] = {"none", "rename", "overwrite", "skip", "overwrite all", "skip all"};

QByteArray Bytes(const QString& path) { return FileExists(path) ? ReadWholeFile(path) : QByteArray("(missing)"); }

// A card as the files of a folder (Temp/ before a save, Cards/ after) hold it.
Card CardIn(const QString& folder, const CardRecord& c, bool reversed) {
    return {c.CardTitle.Trimmed(), Bytes(folder + c.CardPicture[0].Trimmed()),
            reversed ? Bytes(folder + c.CardPicture[1].Trimmed()) : QByteArray(),
            c.CardSound[0].IsBlank() ? QByteArray() : Bytes(folder + c.CardSound[0].Trimmed())};
}

QString Pick(QRandomGenerator& rng, const QStringList& from) {
    return from.isEmpty() ? QString() : from[static_cast<int>(rng.bounded(static_cast<quint32>(from.size())))];
}

// A program folder of its own, the model of what it holds and the lines told.
struct Run {
    QTemporaryDir Dir;
    Model Now;
    QStringList Lines;
    int Made = 0;  // pictures, sounds and texts made so far, each told apart by its number

    Run() {
        Fixtures::UseProgramDir(Dir.path());
        InitDatabase();
        MkDirIgnoringErrors(Pictures());
    }
    QString Pictures() const { return Dir.path() + QStringLiteral("/pictures/"); }

    // Cards made from a folder of new pictures, as the designer imports them.
    void Import(int count, QRandomGenerator& rng) {
        for (int i = 0; i < count; ++i)
            Fixtures::WritePicture(Pictures() + QStringLiteral("p%1.bmp").arg(++Made), QColor::fromRgb(rng.generate()));
        PictureImport work(Pictures(), ListFolderPictures(Pictures(), 0).Cards,
                           TheRun.CurrentDeck.IncludesReversed ? ReversedSide::Turned : ReversedSide::None);
        work.Start();
        work.Commit();
        KillIgnoringErrors(Pictures() + QStringLiteral("*.*"));
    }
};

std::optional<Planned> SaveADeck(Run& run, QRandomGenerator& rng) {
    const QString from = rng.bounded(2) ? Pick(rng, run.Now.Decks.keys()) : QString();
    QString line = QStringLiteral("a new deck");
    if (from.isEmpty()) {
        ResetDeck();
        TheRun.CurrentDeck.IncludesReversed = Flag(rng.bounded(2) == 0);
        OpenWorkingFolder(TheRun.CurrentDeck, false, false);
        if (TheRun.CurrentDeck.IncludesReversed) line += QStringLiteral(" with reversed cards");
    } else {
        GetRecord(TheRun.Paths.DecksPath, FindDeckByName(from), TheRun.ListDeck);
        if (!LoadDeckCards()) return std::nullopt;
        OpenWorkingFolder(TheRun.ListDeck, true, false);
        line = QStringLiteral("'%1' opened").arg(from);
        if (TheRun.CurrentDeck.DeckCards.Count() > 1 && rng.bounded(2)) {
            RemoveDeckCard(TheRun.CurrentDeck, 1);
            line += QStringLiteral(", its first card removed,");
        }
    }
    const int had = TheRun.CurrentDeck.DeckCards.Count();
    const int added = static_cast<int>(from.isEmpty() ? 2 + rng.bounded(3) : rng.bounded(2));
    run.Import(added, rng);
    for (int i = had + 1; i <= TheRun.CurrentDeck.DeckCards.Count(); ++i)
        if (rng.bounded(3) == 0) {
            const QString sound = QStringLiteral("TS%1.wav").arg(++run.Made);
            WriteWholeFile(TheRun.Paths.TempDir + sound, "sound " + QByteArray::number(run.Made));
            TheRun.CurrentDeck.DeckCards(i).CardSound[0] = sound;
        }
    const QString name = Pick(rng, kDecks);
    const int replacing = CheckDeckSave(name).Replacing;
    Planned p{QStringLiteral("save %1 with %2 imported card(s) as '%3'%4")
                  .arg(line)
                  .arg(added)
                  .arg(name, replacing >= 0 ? QStringLiteral(" over the deck of that name") : QString()),
              run.Now};
    QList<Card>& saved = p.After.Decks[name] = {};
    for (const CardRecord& c : TheRun.CurrentDeck.DeckCards)
        saved << CardIn(TheRun.Paths.TempDir, c, TheRun.CurrentDeck.IncludesReversed);
    p.Write = [deck = TheRun.CurrentDeck, name, replacing] {
        const DeckSaveResult result = SaveDeck(deck, name, replacing);
        return result.Failure ? result.Failure->Description() : result.Problems.join(QLatin1Char(' '));
    };
    return p;
}

std::optional<Planned> DeleteADeck(Run& run, QRandomGenerator& rng) {
    const QString name = Pick(rng, run.Now.Decks.keys());
    if (name.isEmpty()) return std::nullopt;
    Planned p{QStringLiteral("delete deck '%1'").arg(name), run.Now};
    for (Spread& s : p.After.Spreads) s.Decks.removeAll(name);
    p.Between = p.After;  // the spreads let go of the deck before it goes
    p.After.Decks.remove(name);
    p.Write = [name] { return RemoveDeck(CheckDeckDelete(name).RecordNumber), QString(); };
    return p;
}

// The installation's questions, every design answered alike: a rename takes
// the first name free in the pool of its kind.
struct Answers : InstallAnswers {
    int Choice = 0;
    QString DeckName, SpreadName;
    DesignExistsReply DesignExists(int design, const QString&, const std::function<bool(const QString&)>&) override {
        return {Choice, design == DesignSpread ? SpreadName : DeckName};
    }
};

QString FirstFree(const QStringList& pool, const QStringList& taken) {
    for (const QString& name : pool)
        if (!taken.contains(name)) return name;
    return {};
}

std::optional<Planned> InstallAPackage(Run& run, QRandomGenerator& rng) {
    const QString deck = Pick(rng, run.Now.Decks.keys()), spread = Pick(rng, run.Now.Spreads.keys());
    if (deck.isEmpty() && spread.isEmpty()) return std::nullopt;
    ClearTemp();
    PackageStaging staging;
    if (!deck.isEmpty()) staging.DeckNames = {deck};
    if (!spread.isEmpty()) staging.SpreadNames = {spread};
    staging.StageAll();
    auto answers = std::make_shared<Answers>();
    answers->Choice = static_cast<int>(rng.bounded(6));
    answers->DeckName = FirstFree(kDecks, run.Now.Decks.keys());
    answers->SpreadName = FirstFree(kSpreads, run.Now.Spreads.keys());
    if (answers->Choice == DesignExistsRename && (answers->DeckName.isEmpty() || answers->SpreadName.isEmpty()))
        answers->Choice = DesignExistsSkip;
    Planned p{QStringLiteral("install a package of deck '%1' and spread '%2', answering %3")
                  .arg(deck, spread, QLatin1String(kAnswers[answers->Choice])),
              run.Now};
    // An overwritten deck keeps its spreads, under its new id.
    const auto installedAs = [&](const QString& name, const QString& renamed) {
        if (name.isEmpty() || answers->Choice == DesignExistsRename) return name.isEmpty() ? name : renamed;
        const bool over = answers->Choice == DesignExistsOverwrite || answers->Choice == DesignExistsOverwriteAll;
        return over ? name : QString();
    };
    if (const QString as = installedAs(deck, answers->DeckName); !as.isEmpty()) p.After.Decks[as] = run.Now.Decks[deck];
    if (const QString as = installedAs(spread, answers->SpreadName); !as.isEmpty()) {
        Spread s = run.Now.Spreads[spread];
        s.AnyDeck = false;
        s.Decks.clear();
        for (const QString& name : p.After.Decks.keys())
            if (rng.bounded(2)) s.Decks << name;
        answers->Chosen = s.Decks;
        p.After.Spreads[as] = s;
        p.Line += QStringLiteral(", tied to %1").arg(s.Decks.join(QStringLiteral(", ")));
    }
    p.Write = [answers] {
        PackageInstallation installation(*answers, {});
        return installation.Install() == InstallOutcome::Installed ? QString() : installation.Refusal;
    };
    return p;
}

std::optional<Planned> SaveASpread(Run& run, QRandomGenerator& rng) {
    const QString name = Pick(rng, kSpreads);
    const int replacing = CheckSpreadName(name).Replacing;
    SpreadDesign design;
    Spread s;
    QString line;
    ClearTemp();
    // The spread of that name opened and saved as itself, or a new design
    // tied at random.
    if (replacing > 0 && rng.bounded(2)) {
        GetRecord(TheRun.Paths.SpreadsPath, replacing, design.Spread);
        LoadSpreadLocations(design.Spread.SpreadId, design.Spread.LocationCount);
        design.Locations = TheRun.SpreadLocations;
        design.Spread = OpenWorkingBackground(design.Spread).Spread;
        s = run.Now.Spreads[name];
        line = QStringLiteral("open spread '%1', retitle its first location").arg(name);
    } else {
        ResetSpread(design.Spread);
        design.Spread.SpreadId = NextSpreadId();
        design.Spread.LocationCount = static_cast<Integer>(1 + rng.bounded(4));
        design.Locations.Redim(1, design.Spread.LocationCount);
        for (LocationRecord& l : design.Locations) ResetLocation(l);
        s.Titles = QStringList(design.Spread.LocationCount, QString());
        s.AnyDeck = rng.bounded(4) == 0;
        for (const QString& deck : run.Now.Decks.keys())
            if (!s.AnyDeck && s.Decks.size() < 3 && rng.bounded(2)) {
                design.Spread.AllowedDeckId[static_cast<std::size_t>(s.Decks.size())] = FindDeckIdByName(deck);
                s.Decks << deck;
            }
        design.Spread.AllowedDeckCount = static_cast<Integer>(s.AnyDeck ? -1 : s.Decks.size());
        line = QStringLiteral("design a spread of %1 location(s) tied to %2")
                   .arg(design.Spread.LocationCount)
                   .arg(s.AnyDeck           ? QStringLiteral("any deck")
                        : s.Decks.isEmpty() ? QStringLiteral("no deck")
                                            : s.Decks.join(QStringLiteral(", ")));
    }
    for (int i = 1; i <= design.Spread.LocationCount; ++i)
        if (i == 1 || s.Titles[i - 1].isEmpty())
            design.Locations(i).LocationTitle = s.Titles[i - 1] = QStringLiteral("T%1").arg(++run.Made);
    if (const int background = static_cast<int>(rng.bounded(3)); background < 2) {
        const QString picture = run.Pictures() + QStringLiteral("b%1.bmp").arg(++run.Made);
        if (background == 0) Fixtures::WritePicture(picture, QColor::fromHsv(run.Made % 360, 255, 255));
        design.Spread = ChooseWorkingBackground(design.Spread, background ? QString() : picture, false).Spread;
        s.Background = background ? QByteArray() : ReadWholeFile(picture);
        KillIgnoringErrors(picture);
        line += background ? QStringLiteral(", no background") : QStringLiteral(", a new background");
    }
    Planned p{QStringLiteral("%1, save it as '%2'").arg(line, name), run.Now};
    p.After.Spreads[name] = s;
    p.Write = [design, name, replacing] { return SaveSpread(design, name, replacing), QString(); };
    return p;
}

std::optional<Planned> DeleteASpread(Run& run, QRandomGenerator& rng) {
    const QString name = Pick(rng, run.Now.Spreads.keys());
    if (name.isEmpty()) return std::nullopt;
    Planned p{QStringLiteral("delete spread '%1'").arg(name), run.Now};
    p.After.Spreads.remove(name);
    p.Write = [name] { return DeleteSpreadNamed(name) ? QString() : QStringLiteral("not found"); };
    return p;
}

template <class R>
QString SaveNamed(R entry, const QString& name, const QString& issue, int replacing) {
    entry.Issue = issue;
    return SaveEntry(entry, name, replacing, {}).Problem;
}

// A reading or a diary entry saved under a name of the pool, or one deleted.
std::optional<Planned> SaveOrDeleteAnEntry(Run& run, QRandomGenerator& rng, bool save) {
    const int kind = static_cast<int>(rng.bounded(2));
    const EntryKind k = kind ? EntryKind::Diary : EntryKind::Reading;
    const QString name = Pick(rng, save ? kEntries : run.Now.Entries[kind].keys());
    if (name.isEmpty()) return std::nullopt;
    const QString issue = QStringLiteral("issue %1").arg(++run.Made);
    Planned p{QStringLiteral("%1 %2 '%3'").arg(save ? "save" : "delete", kEntryKinds[kind], name), run.Now};
    if (!save) {
        p.After.Entries[kind].remove(name);
        p.Write = [k, name] { return DeleteEntry(k, name), QString(); };
        return p;
    }
    p.After.Entries[kind][name] = issue;
    p.Line += QStringLiteral(" with ") + issue;
    p.Write = [k, name, issue, replacing = CheckEntryName(k, name).Replacing] {
        return k == EntryKind::Diary ? SaveNamed(Fixtures::NamedDiary(name), name, issue, replacing)
                                     : SaveNamed(Fixtures::NamedReading(name), name, issue, replacing);
    };
    return p;
}

struct Operation {
    int Weight;
    std::function<std::optional<Planned>(Run&, QRandomGenerator&)> Plan;  // nothing when there is nothing to do it on
};
const QList<Operation> kOperations{
    {4, SaveADeck},
    {1, DeleteADeck},
    {2, InstallAPackage},
    {3, SaveASpread},
    {1, DeleteASpread},
    {2, [](Run& run, QRandomGenerator& rng) { return SaveOrDeleteAnEntry(run, rng, true); }},
    {1, [](Run& run, QRandomGenerator& rng) { return SaveOrDeleteAnEntry(run, rng, false); }},
};

QString Told(const QList<Card>& deck) {
    QStringList titles;
    for (const Card& c : deck) titles << c.Title;
    return titles.join(QLatin1Char(' '));
}
QString Told(const Spread& s) { return (s.Titles + QStringList{QStringLiteral("/")} + s.Decks).join(QLatin1Char(' ')); }
QString Told(const QString& issue) { return issue; }

// The first design or entry of a kind that reopens otherwise than saved.
template <class Map>
QString Compare(const char* kind, const Map& disk, const Map& saved) {
    for (const QString& name : disk.keys() + saved.keys())
        if (disk.value(name) != saved.value(name))
            return QStringLiteral("%1 '%2' reopens as [%3], saved as [%4]")
                .arg(QLatin1String(kind), name, Told(disk.value(name)), Told(saved.value(name)));
    return {};
}

// What the folder holds, reopened through the store's own readers, against
// the model: the first thing a user relies on that it breaks.
QString Differences(const Model& m) {
    QSet<QString> named{DefaultPictureName.trimmed()};
    for (const CardRecord& c : ReadAllRecords<CardRecord>(TheRun.Paths.CardsPath))
        for (const auto* field : {&c.CardPicture[0], &c.CardPicture[1], &c.CardSound[0], &c.CardSound[1]})
            if (!field->IsBlank()) named << field->Trimmed();
    Model disk;
    QSet<Integer> deckIds;
    for (const DeckRecord& d : ReadAllRecords<DeckRecord>(TheRun.Paths.DecksPath)) {
        deckIds << d.DeckId;
        TheRun.ListDeck = d;
        if (!LoadDeckCards()) return QStringLiteral("deck '%1' has lost cards").arg(d.DeckName.Trimmed());
        for (const CardRecord& c : TheRun.CurrentDeck.DeckCards)
            disk.Decks[d.DeckName.Trimmed()] << CardIn(TheRun.Paths.CardsDir, c, d.IncludesReversed);
    }
    for (const SpreadRecord& r : ReadAllRecords<SpreadRecord>(TheRun.Paths.SpreadsPath)) {
        Spread& s = disk.Spreads[r.SpreadName.Trimmed()];
        LoadSpreadLocations(r.SpreadId, r.LocationCount);
        for (const LocationRecord& l : TheRun.SpreadLocations) s.Titles << l.LocationTitle.Trimmed();
        if (!r.BackgroundFile.IsBlank()) {
            named << r.BackgroundFile.Trimmed();
            s.Background = Bytes(TheRun.Paths.CardsDir + r.BackgroundFile.Trimmed());
        }
        s.AnyDeck = r.AllowedDeckCount < 0;
        for (int i = 0; i < r.AllowedDeckCount; ++i) {
            const Integer id = r.AllowedDeckId[static_cast<std::size_t>(i)];
            if (!deckIds.contains(id))
                return QStringLiteral("spread '%1' is tied to deck id %2, which no deck has")
                    .arg(r.SpreadName.Trimmed())
                    .arg(id);
            s.Decks << DeckNameById(id).trimmed();
        }
        s.Decks.sort();
    }
    for (const ReadingRecord& r : ReadAllRecords<ReadingRecord>(TheRun.Paths.ReadingsPath))
        disk.Entries[0][r.ReadingName.Trimmed()] = r.Issue.Trimmed();
    for (const DiaryRecord& r : ReadAllRecords<DiaryRecord>(TheRun.Paths.DiaryPath))
        disk.Entries[1][r.DiaryName.Trimmed()] = r.Issue.Trimmed();
    for (const QString& name : named)
        if (!FileExists(TheRun.Paths.CardsDir + name))
            return QStringLiteral("a record names Cards/%1, which is not there").arg(name);
    for (const QString& file : Dir(TheRun.Paths.CardsDir + QStringLiteral("*")))
        if (!named.contains(file)) return QStringLiteral("Cards/%1 is left, and nothing names it").arg(file);
    for (const QString& problem :
         {Compare("deck", disk.Decks, m.Decks), Compare("spread", disk.Spreads, m.Spreads),
          Compare("reading", disk.Entries[0], m.Entries[0]), Compare("diary entry", disk.Entries[1], m.Entries[1])})
        if (!problem.isEmpty()) return problem;
    return {};
}

struct Failure {
    int At;  // the step that failed, from 0
    QString What;
    QStringList Lines;
};

// Runs the steps on a fresh folder; the first failure, if one comes.
std::optional<Failure> Replay(const QList<Step>& steps) {
    Run run;
    for (int i = 0; i < steps.size(); ++i) {
        QRandomGenerator rng(steps[i].Seed);
        std::optional<Planned> p = kOperations[steps[i].Op].Plan(run, rng);
        if (!p) continue;
        // The states the folder may now hold, the expected one first.
        QList<Model> states{p->After};
        QString problem;
        if (steps[i].KillAt > 0) {
            if (Fixtures::KilledAt(steps[i].KillAt, [&p] { p->Write(); })) {
                p->Line += QStringLiteral(", killed at write step %1").arg(steps[i].KillAt);
                states << run.Now << p->Between.value_or(run.Now);
            }
            InitDatabase();  // start-up follows
        } else {
            try {
                problem = p->Write();
            } catch (const RuntimeError& e) {
                problem = e.Description();
            }
        }
        run.Lines << QStringLiteral("%1. %2").arg(run.Lines.size() + 1).arg(p->Line);
        if (!problem.isEmpty()) return Failure{i, QStringLiteral("the operation failed: ") + problem, run.Lines};
        const auto held =
            std::find_if(states.begin(), states.end(), [](const Model& m) { return Differences(m).isEmpty(); });
        if (held == states.end()) return Failure{i, Differences(states.first()), run.Lines};
        run.Now = *held;
    }
    return std::nullopt;
}

// Drops steps, larger runs first, then kills, while the sequence still fails
// the same way; stops after two minutes with the shortest found so far.
Failure Shrink(QList<Step> steps, Failure failed) {
    QElapsedTimer clock;
    clock.start();
    static const QRegularExpression details(QStringLiteral("'[^']*'|\\d+"));  // names and numbers aside
    const QString kind = QString(failed.What).remove(details);
    const auto failsAlike = [&](const QList<Step>& fewer) {
        const std::optional<Failure> again = Replay(fewer);
        if (!again || QString(again->What).remove(details) != kind) return false;
        failed = *again;
        return true;
    };
    steps = steps.mid(0, failed.At + 1);
    for (int chunk = qMax(1, static_cast<int>(steps.size()) / 2); chunk >= 1; chunk /= 2)
        for (int at = static_cast<int>(steps.size()) - chunk; at >= 0 && clock.elapsed() < 120000; at -= chunk) {
            QList<Step> fewer = steps;
            fewer.remove(at, chunk);
            if (!failsAlike(fewer)) continue;
            steps = fewer.mid(0, failed.At + 1);
            at = qMin(at, static_cast<int>(steps.size()));
        }
    for (Step& step : steps) {
        const int killAt = std::exchange(step.KillAt, 0);
        if (killAt > 0 && !failsAlike(steps)) step.KillAt = killAt;
    }
    return failed;
}

}  // namespace

class TestStoreModel : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { WriteFaults::SetSyncs(false); }  // throwaway folders

    void randomOperationsKeepWhatTheUserSaved() {
        bool given = false;
        quint32 seed = static_cast<quint32>(qEnvironmentVariableIntValue("CARTOMAR_MODEL_SEED", &given));
        if (!given) seed = 2026;
        const int count = qEnvironmentVariableIsSet("CARTOMAR_MODEL_STEPS")
                              ? qEnvironmentVariableIntValue("CARTOMAR_MODEL_STEPS")
                              : 1000;
        QRandomGenerator rng(seed);
        int total = 0;
        for (const Operation& op : kOperations) total += op.Weight;
        QList<Step> steps;
        for (int i = 0; i < count; ++i) {
            int draw = static_cast<int>(rng.bounded(static_cast<quint32>(total))), op = 0;
            while (draw >= kOperations[op].Weight) draw -= kOperations[op++].Weight;
            steps << Step{op, rng.generate(), rng.bounded(6) == 0 ? 1 + static_cast<int>(rng.bounded(30)) : 0};
        }
        const std::optional<Failure> failed = Replay(steps);
        if (!failed) return;
        const Failure shortest = Shrink(steps, *failed);
        const QString at =
            QStringLiteral("seed %1 (CARTOMAR_MODEL_SEED), step %2 of %3: ").arg(seed).arg(failed->At + 1).arg(count);
        QFAIL(qPrintable(at + failed->What + QStringLiteral("\nshortest sequence:\n") +
                         shortest.Lines.join(QLatin1Char('\n')) + u'\n' + shortest.What));
    }
};

QTEST_MAIN(TestStoreModel)
#include "tst_storemodel.moc"
