#pragma once
// The hub of the program: a full picture with eleven label buttons under the
// headings Readings, Diary, Design, Package and File Menu. Each subsystem is
// entered from here; the main screen hides while it runs and is shown again
// when the subsystem's first screen closes. It stays loaded for the whole run.
#include <QColor>
#include <map>

#include "screens/platform/Form.h"
#include "screens/platform/ShellHooks.h"

class ClickLabel;
class ImageBox;
class QLabel;

class frmMainScreen : public Form {
    Q_OBJECT
public:
    frmMainScreen();

    // Shows the screen in the frame without a title bar: the main screen is
    // left only through its Exit button.
    void Show(bool modal = false);

    // The button of the journal, under the Readings and Diary groups.
    static constexpr int JournalButton = MainScreenJournalButton;

    // Acts as the button of that index; any other index only flashes the
    // hourglass.
    void lblButton_Click(int Index);

    ClickLabel* lblButton(int Index) const;
    QColor ButtonDownColour() const { return ButtonDownColour_; }

    ImageBox* imgMainScreen = nullptr;
    QLabel* lblProductName = nullptr;
    QLabel* lblReadings = nullptr;
    QLabel* lblDiary = nullptr;
    QLabel* lblTools = nullptr;
    QLabel* lblPackage = nullptr;
    QLabel* lblFileMenu = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Label2 = nullptr;

protected:
    void Form_Load() override;
    void Form_QueryUnload(bool& cancel, int unloadMode) override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    void lblButton_MouseDown(int Index);
    void lblButton_MouseMove(int Index, Qt::MouseButtons buttons, int x, int y);
    void lblButton_MouseUp(int Index);
    void OpenFirstLevelScreen(int Index);
    void OpenSubsystem(int Index);
    void LaunchHelp();
    void OpenJournal();

    std::map<int, ClickLabel*> lblButton_;
    QColor ButtonDownColour_;
};
