#pragma once
// "Select Upright Sound" / "Select Reversed Sound": picks an MP3 or WAV file
// for one side of the card being edited. The player beside the list takes
// the selected file at once, without starting it.
#include "screens/decks/FileChooser.h"

class MediaPlayer;

class frmGetSoundFile : public FileChooser {
    Q_OBJECT
public:
    frmGetSoundFile();

    MediaPlayer* MediaPlayer1;

protected:
    void ShowSelectedFile(const QString& path) override;
    void ClearSelectedFile() override;
    void TakeFile(int side, const QString& source) override;
    void ReportSelected(bool selected) override;
};
