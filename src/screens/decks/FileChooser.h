#pragma once
// The file chooser of the card editor: a drive list, a folder list and a
// file list filtered by patterns. Picking copies the file at once into Temp/
// under a working name for the side being edited. The folder and the file
// index are remembered for the rest of the run, per kind of file.
// frmGetImageFile previews pictures; frmGetSoundFile loads sounds into a
// player without starting them.
#include <array>

#include "screens/platform/Form.h"

class DirListBox;
class DriveListBox;
class FileListBox;
class QPushButton;
struct ChooserMemory;

class FileChooser : public Form {
    Q_OBJECT
public:
    // 1: the upright side, 2: the reversed side.
    int GetPictureCode = 1;
    // Sets the side and shows the chooser modally, captioned for that side.
    void ShowFor(int code);

    DriveListBox* drvSelection;
    DirListBox* dirSelection;
    FileListBox* filSelection;
    QPushButton* cmdSelect;
    QPushButton* cmdCancel;

    // The full path of the file selected for each side (0 upright, 1 reversed).
    QString SelectedFile(int side) const { return selected_[static_cast<std::size_t>(side)]; }

    void filSelection_Click();
    void dirSelection_Change();
    void drvSelection_Change();
    void cmdSelect_Click();
    void cmdCancel_Click();

protected:
    // captions: the screen's caption for the upright side and for the
    // reversed ("Select Upright Image"); pattern filters the file list;
    // memory is where this kind of chooser was left in the run.
    FileChooser(const std::array<QString, 2>& captions, const QString& pattern, ChooserMemory& memory);

    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

    // The selected file is shown (previewed or loaded into the player).
    virtual void ShowSelectedFile(const QString& path) = 0;
    // Nothing is selected any more.
    virtual void ClearSelectedFile() = 0;
    // The pick for a side: copies the file into Temp/ under its working name
    // and tells the card editor.
    virtual void TakeFile(int side, const QString& source) = 0;
    // Whether the pick ended with a file taken, in the run-wide flag.
    virtual void ReportSelected(bool selected) = 0;

private:
    int Side() const { return GetPictureCode == 2 ? 1 : 0; }

    std::array<QString, 2> captions_;
    ChooserMemory& memory_;
    std::array<QString, 2> selected_;
};
