// Makes the starter package "Cartomar Starter.pck" from the source files in
// tools/starter/: it lays out a program folder of its own, saves the deck,
// its cards with their drawn pictures, and the spreads with their locations
// into that folder's record files through the program's own store, and packs
// them as the package creation does.
//
//   make_starter <source folder> <package file> <work folder>
//
// The work folder is the tool's own: the program folder inside it is made
// afresh at every run. Nothing depends on the clock or on chance, and the
// program folder is named relative to the work folder, so that two runs give
// the same bytes wherever the build stands.
#include <QApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <cstdio>

#include "StarterPackage.h"
#include "StarterPictures.h"
#include "StarterSource.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/records/RecordFile.h"
#include "core/store/DeckLoading.h"
#include "core/store/DeletePasses.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "screens/platform/MsgBox.h"
#include "screens/shell/Startup.h"

namespace {

// The day every starter design says it was saved on.
const QDate StarterDate(2025, 3, 1);

// The program folder inside the work folder, and its name as the program
// sees it once the work folder is the current one.
const QString ProgramFolderName = QStringLiteral("Cartomar");

void Fail(const QString& message) { std::fprintf(stderr, "make_starter: %s\n", qPrintable(message)); }

// A fresh program folder with the record files and folders of a first
// start, Location.loc included (an installed program ships it empty).
void LayOutProgramFolder(const QString& workFolder) {
    QDir work(workFolder);
    if (!work.exists() && !QDir().mkpath(workFolder)) RaiseError(errPathNotFound, workFolder);
    QDir(work.filePath(ProgramFolderName)).removeRecursively();
    if (!work.mkdir(ProgramFolderName)) RaiseError(errPathFileAccess, work.filePath(ProgramFolderName));
    if (!QDir::setCurrent(workFolder)) RaiseError(errPathNotFound, workFolder);
    FormPaths(ProgramFolderName);
    InitDatabase();
    WriteWholeFile(TheRun.Paths.LocationsPath, QByteArray());
}

void FillDesigner(Designer& designer, const StarterDeck& deck) {
    ResetDesigner(designer);
    designer.DesignerName = deck.Designer;
    designer.DesignerEmail = deck.Email;
    designer.DesignerWebPage = deck.WebPage;
}

// One card's record, its pictures saved in Cards/ under the first free CU
// and CR names, as a deck's save names them.
CardRecord SaveCard(const StarterCard& card, const StarterDeck& deck, Integer deckId) {
    CardRecord record;
    ResetCard(record);
    record.CardType = static_cast<Integer>(deck.CardTypes.indexOf(card.Type));
    record.CardTitle = card.Title;
    record.CardDescription[0] = card.Upright;
    record.CardDescription[1] = card.Reversed;
    record.CardKeywords[0] = card.UprightKeywords;
    record.CardKeywords[1] = card.ReversedKeywords;
    const QImage upright = DrawCardFace(card);
    const QString uprightName = CardPictureStem(0, FreeCardNumber(0, {TheRun.Paths.CardsDir})) + QStringLiteral(".jpg");
    WriteWholeFile(TheRun.Paths.CardsDir + uprightName, FaceFileBytes(upright));
    record.CardPicture[0] = uprightName;
    if (deck.IncludesReversed) {
        const QString reversedName =
            CardPictureStem(1, FreeCardNumber(1, {TheRun.Paths.CardsDir})) + QStringLiteral(".jpg");
        WriteWholeFile(TheRun.Paths.CardsDir + reversedName, FaceFileBytes(ReversedFace(upright)));
        record.CardPicture[1] = reversedName;
    }
    record.CardDeckId = deckId;
    return record;
}

Integer SaveDeck(const StarterDeck& deck) {
    ResetDeck();
    DeckRecord& record = TheRun.CurrentDeck;
    record.DeckId = NextDeckId();
    record.DeckName = deck.Name;
    record.DeckTitle = deck.Title;
    record.DeckDescription = deck.Description;
    record.DeckComments = deck.Notes;
    FillDesigner(record.DeckDesigner, deck);
    record.IncludesReversed = Flag(deck.IncludesReversed);
    record.DisplayCardTitles = Flag(deck.DisplayCardTitles);
    record.ModifiedOn = ToOleDate(StarterDate);
    record.CardCount = static_cast<Integer>(deck.Cards.size());
    record.DeckRevision = 1;
    for (int i = 0; i < 4; ++i) {
        record.CardTypeName[i] = i < deck.CardTypes.size() ? deck.CardTypes[i] : QString();
        record.CardTypeUsed[i] = Flag(i < deck.CardTypes.size());
    }
    // The cards first, in one run, then the deck that counts them.
    for (const StarterCard& card : deck.Cards)
        AppendRecord(TheRun.Paths.CardsPath, SaveCard(card, deck, record.DeckId));
    AppendRecord(TheRun.Paths.DecksPath, record);
    return record.DeckId;
}

void SaveSpread(const StarterSpread& spread, const StarterDeck& deck, Integer deckId) {
    ResetSpread(TheRun.CurrentSpread);
    SpreadRecord& record = TheRun.CurrentSpread;
    record.SpreadId = NextSpreadId();
    record.SpreadName = spread.Name;
    record.SpreadTitle = spread.Title;
    record.SpreadDescription = spread.Description;
    record.SpreadComments = spread.Notes;
    FillDesigner(record.SpreadDesigner, deck);
    record.AskQuestion = Flag(spread.AskQuestion);
    record.ModifiedOn = ToOleDate(StarterDate);
    record.SpreadRevision = 1;
    // Made for the starter deck alone.
    record.AllowedDeckCount = 1;
    record.AllowedDeckId[0] = deckId;
    const int count = static_cast<int>(spread.Locations.size());
    record.LocationCount = static_cast<Integer>(count);
    TheRun.SpreadLocations.Redim(1, count);
    for (int n = 1; n <= count; ++n) {
        const StarterLocation& source = spread.Locations[static_cast<std::size_t>(n - 1)];
        LocationRecord& location = TheRun.SpreadLocations(n);
        ResetLocation(location);
        location.LocationTitle = source.Title;
        location.LocationDescription = source.Description;
        for (int q = 0; q < 3; ++q)
            location.LocationQuestion[q] = q < source.Questions.size() ? source.Questions[q] : QString();
        location.LocationLeft = static_cast<Integer>(source.Left);
        location.LocationTop = static_cast<Integer>(source.Top);
    }
    ReplaceSpreadLocations(record.SpreadId, count);
    AppendRecord(TheRun.Paths.SpreadsPath, record);
}

int Run(const QString& sourceFolder, const QString& packagePath, const QString& workFolder) {
    QStringList problems;
    const StarterDesigns designs = ReadStarterDesigns(sourceFolder, problems);
    problems << CheckStarterDesigns(designs);
    if (!problems.isEmpty()) {
        for (const QString& problem : problems) Fail(problem);
        return 1;
    }
    // Whatever asks for today's date gets the starter's day.
    SetClockForTests(QDateTime(StarterDate, QTime(12, 0)));
    const QString absolutePackage = QFileInfo(packagePath).absoluteFilePath();
    LayOutProgramFolder(workFolder);
    const Integer deckId = SaveDeck(designs.Deck);
    for (const StarterSpread& spread : designs.Spreads) SaveSpread(spread, designs.Deck, deckId);
    QStringList spreadNames;
    for (const StarterSpread& spread : designs.Spreads) spreadNames << spread.Name;
    if (!PackStarterPackage(QStringList{designs.Deck.Name}, spreadNames, absolutePackage)) {
        Fail(QStringLiteral("the package could not be written"));
        return 1;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    // The pictures are drawn off screen; a build has no display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: make_starter <source folder> <package file> <work folder>\n");
        return 2;
    }
    // A build must never wait on a message box: any box is a failure.
    MsgBoxScript::Enable();
    int result = 1;
    try {
        result = Run(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    } catch (const RuntimeError& error) {
        Fail(QStringLiteral("error %1: %2").arg(error.Number()).arg(error.Description()));
        result = 1;
    }
    for (const MsgBoxScript::Shown& shown : MsgBoxScript::History()) {
        Fail(QStringLiteral("message: ") + shown.prompt);
        result = 1;
    }
    return result;
}
