#pragma once
// What the two location attribute screens share: the title, the description
// and the three questions of SpreadLocations(SelectedLocation), the placing
// low in the frame, and the ways out (Close, Esc, or losing the focus), after
// which the location's Attributes button on the screen beneath takes the
// focus back. frmLocationAttributes edits the fields; the viewer's
// frmSpreadInfo_LocationAttributes only shows them.
#include <array>

#include "screens/platform/Form.h"

class QPushButton;
class TextBox;
class MultiLineTextBox;

class LocationAttributesForm : public Form {
    Q_OBJECT
public:
    TextBox* txtTitle;
    MultiLineTextBox* txtDescription;
    TextBox* txtQuestion(int Index) const;  // 1 to 3
    QPushButton* cmdClose;

    void cmdClose_Click();

protected:
    // descriptionLimit: what a user may type into the description.
    LocationAttributesForm(bool locked, int descriptionLimit);
    void Form_Load() override;
    void Form_Deactivate() override;
    void Form_Unload(bool& cancel) override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;
    // Gives the focus back to the selected location's Attributes button on
    // the screen beneath, if that screen is still there.
    virtual void FocusAttributesButtonBeneath() const = 0;

private:
    std::array<TextBox*, 3> question_{};
};
