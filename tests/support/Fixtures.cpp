#include "support/Fixtures.h"

#include <sys/wait.h>
#include <unistd.h>
#include <QImage>

#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/platform/Picture.h"
#include "core/platform/WriteFaults.h"
#include "core/records/RecordFile.h"
#include "core/store/DeckLoading.h"
#include "core/store/Housekeeping.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"

namespace Fixtures {

void UseProgramDir(const QString& dir) {
    ResetRun();
    FormPaths(dir);

    for (const QString& folder :
         {TheRun.Paths.CardsDir, TheRun.Paths.PackagesDir, TheRun.Paths.AttachmentsDir, TheRun.Paths.TempDir})
        MkDirIgnoringErrors(folder);
    for (const QString& file : {TheRun.Paths.ReadingsPath, TheRun.Paths.DiaryPath, TheRun.Paths.SpreadsPath,
                                TheRun.Paths.DecksPath, TheRun.Paths.CardsPath, TheRun.Paths.LocationsPath})
        WriteWholeFile(file, QByteArray());
    WritePicture(TheRun.Paths.DefaultPicturePath, QColor(Qt::white));
}

void WritePicture(const QString& path, const QColor& colour) {
    QImage image(4, 6, QImage::Format_RGB32);
    image.fill(colour);
    SavePictureAsBmp(image, path);
}

QColor CardColour(int i, bool upright) { return QColor::fromHsv((i * 37) % 360, 200, upright ? 200 : 100); }

Integer MakeDeck(const QString& name, int cardCount, bool withReversed) {
    DeckRecord deck;
    deck.IncludesReversed = Flag(withReversed);
    deck.DeckName = name;
    deck.DisplayCardTitles = True16;
    deck.DeckTitle = name;
    deck.ModifiedOn = OleToday();
    deck.CardCount = static_cast<Integer>(cardCount);
    deck.DeckRevision = 1;
    deck.DeckId = NextDeckId();
    deck.CardTypeName[0] = QStringLiteral("Major Arcana");
    deck.CardTypeName[1] = QStringLiteral("Minor Arcana");
    deck.CardTypeUsed = {True16, True16, False16, False16};

    int upright = 0;
    int reversed = 0;
    for (int i = 1; i <= cardCount; ++i) {
        CardRecord card;
        card.CardType = i <= 22 ? 0 : 1;
        card.CardTitle = QStringLiteral("Card %1").arg(i);
        card.CardDescription[0] = QStringLiteral("Upright meaning of card %1").arg(i);
        card.CardDescription[1] = QStringLiteral("Reversed meaning of card %1").arg(i);
        card.CardKeywords[0] = QStringLiteral("upright keywords %1").arg(i);
        card.CardKeywords[1] = QStringLiteral("reversed keywords %1").arg(i);
        upright = FreeCardNumber(0, {TheRun.Paths.CardsDir}, upright + 1);
        card.CardPicture[0] = CardUprightName(upright) + QStringLiteral(".bmp");
        WritePicture(TheRun.Paths.CardsDir + card.CardPicture[0].Trimmed(), CardColour(i, true));
        if (withReversed) {
            reversed = FreeCardNumber(1, {TheRun.Paths.CardsDir}, reversed + 1);
            card.CardPicture[1] = CardReversedName(reversed) + QStringLiteral(".bmp");
            WritePicture(TheRun.Paths.CardsDir + card.CardPicture[1].Trimmed(), CardColour(i, false));
        } else {
            card.CardPicture[1] = DefaultPictureName;
        }
        card.CardDeckId = deck.DeckId;
        AppendRecord(TheRun.Paths.CardsPath, card);
    }
    AppendRecord(TheRun.Paths.DecksPath, deck);
    return deck.DeckId;
}

Integer MakeSpread(const QString& name, int locationCount, const QList<Integer>& allowedDeckIds, bool anyDeck) {
    SpreadRecord spread;
    ResetSpread(spread);
    spread.SpreadName = name;
    spread.SpreadTitle = name;
    spread.SpreadId = NextSpreadId();
    spread.SpreadRevision = 1;
    spread.LocationCount = static_cast<Integer>(locationCount);
    if (anyDeck) {
        spread.AllowedDeckCount = -1;
    } else {
        const int tied = qMin(static_cast<int>(allowedDeckIds.size()), static_cast<int>(spread.AllowedDeckId.size()));
        for (int i = 0; i < tied; ++i) spread.AllowedDeckId[static_cast<std::size_t>(i)] = allowedDeckIds[i];
        spread.AllowedDeckCount = static_cast<Integer>(tied);
    }
    for (int i = 1; i <= locationCount; ++i) {
        LocationRecord location;
        ResetLocation(location);
        location.LocationTitle = QStringLiteral("Position %1").arg(i);
        location.LocationDescription = QStringLiteral("What position %1 stands for").arg(i);
        location.LocationSpreadId = spread.SpreadId;
        location.LocationNumber = static_cast<Integer>(i);
        location.LocationLeft = static_cast<Integer>(240 + ((i - 1) % 8) * 1200);
        location.LocationTop = static_cast<Integer>(240 + ((i - 1) / 8) * 1800);
        AppendRecord(TheRun.Paths.LocationsPath, location);
    }
    AppendRecord(TheRun.Paths.SpreadsPath, spread);
    return spread.SpreadId;
}

ReadingRecord NamedReading(const QString& name) {
    ReadingRecord r;
    ResetReading(r);
    r.ReadingName = name;
    r.SavedOn = 45000;
    return r;
}

DiaryRecord NamedDiary(const QString& name) {
    DiaryRecord r;
    ResetDiary(r);
    r.DiaryName = name;
    r.SavedOn = 45000;
    return r;
}

bool KilledAt(int step, const std::function<void()>& writes) {
    const pid_t child = ::fork();
    if (child == 0) {
        WriteFaults::Arm(WriteFaults::Fault::Kill, step);
        try {
            writes();
        } catch (...) {
        }
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

}  // namespace Fixtures
