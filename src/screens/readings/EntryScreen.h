#pragma once
// What the reading screen and the diary screen have in common: the column of
// buttons down the right, the introduction page (the spread's title and
// description and the issue the entry addresses) and the spread page (the
// background and the 32 locations into which cards are laid). Each twin adds
// its own buttons and its own controls inside a location.
#include <QString>
#include <array>

#include "core/platform/Arrays.h"
#include "core/printing/EntryPrintout.h"
#include "core/readings/Element.h"
#include "core/records/Records.h"
#include "screens/platform/Form.h"

class ClickLabel;
class ImageBox;
class QLabel;
class QLineEdit;
class ListBox;
class QPushButton;

// Places a plain control in its container, twips.
void PlaceControl(QWidget* control, int left, int top, int width, int height);
int ControlTop(const QWidget* control);
int ControlLeft(const QWidget* control);
int ControlWidth(const QWidget* control);
int ControlHeight(const QWidget* control);
// A one-line caption and a list, placed in twips, as the selection screens
// of an entry lay them out.
QLabel* MakeCaption(QWidget* parent, const QString& caption, int left, int top, int width);
ListBox* MakeList(QWidget* parent, const QString& name, int left, int top, int width, int height);

// The picture file of one side of a deck card in Cards/.
QString CardPicturePath(const CardRecord& card, bool upright);
// The card of that number in the deck in memory; a number outside the deck
// is a subscript error.
const CardRecord& DeckCard(int cardNumber);

class EntryScreen : public Form {
    Q_OBJECT
public:
    // The most locations a spread can have.
    static constexpr int MaxLocations = 32;

    QWidget* picControlPanel = nullptr;
    QPushButton* cmdContinue = nullptr;
    QPushButton* cmdInterpret = nullptr;
    QPushButton* cmdNotes = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdQuickHelp = nullptr;
    QPushButton* cmdClose = nullptr;

    QWidget* picIntroduction = nullptr;
    QLabel* lblSpreadTitle = nullptr;
    QLabel* lblSpreadDescription = nullptr;
    QLabel* lblIssue = nullptr;
    QLineEdit* txtIssue = nullptr;
    QLabel* lblTheIssue = nullptr;  // the issue as it is saved and printed; never shown
    ImageBox* imgSide = nullptr;

    QWidget* picSpread = nullptr;
    ImageBox* imgBackground = nullptr;

    // One location is the group of these controls with the same index, 1 to 32.
    BoundedArray<ClickLabel*> picLocation;
    BoundedArray<ImageBox*> imgCard;
    BoundedArray<ClickLabel*> lblCardTitle;
    BoundedArray<ClickLabel*> lblCardNumber;

    // The frame of a card picture inside its location, taken from imgCard(1)
    // when the screen loads; every picture is fitted from this frame.
    Integer IMGTop = 0;
    Integer IMGLeft = 0;
    Integer IMGWidth = 0;
    Integer IMGHeight = 0;

    // Places the locations of the spread in memory and shows its texts.
    virtual void Initialize() = 0;
    // Gathers the entry and shows its save screen.
    virtual void cmdSave_Click() = 0;
    // Asks about unsaved changes and ends the entry.
    virtual void cmdClose_Click() = 0;
    // Swaps the introduction page and the spread page.
    virtual void cmdContinue_Click() = 0;
    // The issue box has lost the focus.
    virtual void txtIssue_LostFocus() = 0;

    bool IntroductionShown() const;
    // The screen's height with its title bar, twips: where a screen that
    // stands below it begins.
    int OuterHeight() const;

    // Lays the picture of one side of a deck card into a location, in the
    // card frame, fitted.
    void ShowCardInLocation(int location, int cardNumber, bool upright);
    void ClearLocationCard(int location);
    // Marks a location while a companion screen works on it, or unmarks it.
    virtual void MarkLocation(int location, bool marked);
    // The issue the selection screen took, and the keys to its box when it
    // shows.
    void TakeIssue(const QString& issue);
    void FocusIssue();

    // Prints the entry from its record, with the issue in hand, which only
    // the screen holds.
    void PrintEntry(EntryPrintout entry) const;

protected:
    explicit EntryScreen(const QString& caption);

    // A button of the column, 975 by 375 twips, at the given top.
    QPushButton* AddPanelButton(const QString& name, const QString& caption, int top, bool enabled);
    void CaptureCardFrame();
    void ShowSpreadTexts();
    // Shows location i at its place on the canvas with its number and title.
    void PlaceLocation(int i);
    void ShowBackground();
    void FitBackgroundToPage();
    // Shows one page and hides the other.
    void ShowPage(bool spreadPage);
    // Hides every location and empties its title, as a closed screen leaves them.
    void HideLocations();
    static QString IssueForSaving(const QString& issue);
    // The question about unsaved changes before the entry closes: false if
    // the user cancels. Yes saves first, and the closing goes on whatever the
    // save screen did.
    bool ConfirmClose(bool changed, const QString& question);

    // Esc is Close.
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
    bool eventFilter(QObject* watched, QEvent* e) override;

    // A click on a location's rectangle, and on its picture or labels.
    virtual void picLocation_Click(int Index) = 0;
    virtual void imgCard_Click(int Index) = 0;
    virtual void imgCard_DblClick(int Index) { (void)Index; }

private:
    void txtIssue_Enter();
    bool enteringIssue_ = false;  // Enter is moving the focus from the issue box to Continue
};
