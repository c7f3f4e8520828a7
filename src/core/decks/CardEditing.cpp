#include "core/decks/CardEditing.h"

#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"
#include "core/store/RunState.h"

CardWorkingFiles& WorkingFiles() { return TheRun.CardFiles; }
ChooserMemory& RememberedPictureFolder() { return TheRun.PictureChooser; }
ChooserMemory& RememberedSoundFolder() { return TheRun.SoundChooser; }

namespace {

QString TakePicked(const QString& stem, const QString& source, QString& working) {
    const QString name = stem + source.right(4);
    FileCopy(source, TheRun.Paths.TempDir + name);
    working = name;
    return name;
}

}  // namespace

QString TakePickedPicture(int side, const QString& source) {
    return TakePicked(side == 0 ? UprightPictureStem : ReversedPictureStem, source,
                      WorkingFiles().Picture[static_cast<std::size_t>(side)]);
}

QString TakePickedSound(int side, const QString& source) {
    return TakePicked(side == 0 ? UprightSoundStem : ReversedSoundStem, source,
                      WorkingFiles().Sound[static_cast<std::size_t>(side)]);
}

void PointReversedAtDefault(CardRecord& card) {
    WorkingFiles().Picture[1] = TheRun.Paths.DefaultPicturePath;
    card.CardPicture[1] = DefaultPictureName;
    FileCopy(TheRun.Paths.DefaultPicturePath, TheRun.Paths.TempDir + DefaultPictureName);
}

void DropUnstoredWorkingFiles() {
    for (const QString& stem : {UprightPictureStem, ReversedPictureStem, UprightSoundStem, ReversedSoundStem})
        KillIgnoringErrors(TheRun.Paths.TempDir + stem + QStringLiteral(".*"));
}

void OpenWorkingFolder(const DeckRecord& deck, bool copyIn, bool skipDefaultReversed) {
    KillIgnoringErrors(TheRun.Paths.TempDir + QStringLiteral("*.*"));
    if (copyIn) {
        RecordReader<CardRecord> reader(TheRun.Paths.CardsPath);
        CardRecord card;
        int seen = 0;
        while (seen < deck.CardCount && reader.Next(card)) {
            if (card.CardDeckId != deck.DeckId) continue;
            ++seen;
            FileCopy(TheRun.Paths.CardsDir + card.CardPicture[0].Value(),
                     TheRun.Paths.TempDir + card.CardPicture[0].Value());
            if (!skipDefaultReversed || card.CardPicture[1].Value() != DefaultPictureName)
                FileCopy(TheRun.Paths.CardsDir + card.CardPicture[1].Value(),
                         TheRun.Paths.TempDir + card.CardPicture[1].Value());
            for (const auto& sound : card.CardSound)
                if (!sound.IsBlank())
                    FileCopy(TheRun.Paths.CardsDir + sound.Value(), TheRun.Paths.TempDir + sound.Value());
        }
    }
    FileCopy(TheRun.Paths.DefaultPicturePath, TheRun.Paths.TempDir + DefaultPictureName);
}
