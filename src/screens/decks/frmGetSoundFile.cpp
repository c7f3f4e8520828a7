#include "screens/decks/frmGetSoundFile.h"

#include "core/decks/CardEditing.h"
#include "screens/decks/DeckControls.h"
#include "screens/decks/frmAddCard.h"
#include "screens/platform/MediaPlayer.h"

frmGetSoundFile::frmGetSoundFile()
    : FileChooser({tr("Select Upright Sound"), tr("Select Reversed Sound")}, QStringLiteral("*.mp3;*.wav"),
                  RememberedSoundFolder()) {
    setObjectName(QStringLiteral("frmGetSoundFile"));
    MakeLabel(this, tr("Play Sound"), At(6000, 120, 2160, 255));
    MediaPlayer1 = new MediaPlayer(this);
    MediaPlayer1->setObjectName(QStringLiteral("MediaPlayer1"));
    MediaPlayer1->setGeometry(At(6000, 420, 2160, 480));
}

void frmGetSoundFile::ShowSelectedFile(const QString& path) { MediaPlayer1->Open(path, false); }

void frmGetSoundFile::ClearSelectedFile() { MediaPlayer1->Close(); }

void frmGetSoundFile::TakeFile(int side, const QString& source) {
    MediaPlayer1->Close();
    const QString working = TakePickedSound(side, source);
    if (IsLoaded<frmAddCard>()) Get<frmAddCard>().TakeWorkingSound(side, working);
}

void frmGetSoundFile::ReportSelected(bool selected) { WorkingFiles().SoundSelected = selected; }
