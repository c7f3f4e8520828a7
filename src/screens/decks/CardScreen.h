#pragma once
// What the card editor and the card viewer share: both sides of one card
// (CurrentCard) with its title, type, description, keywords, picture and
// sound, and the switch between the upright and the reversed side. The
// pictures and sounds shown are the working copies in Temp/. frmAddCard
// edits through these controls; frmViewCard shows them read-only.
#include "screens/platform/Form.h"

class ImageBox;
class MediaPlayer;
class QGroupBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

class CardScreen : public Form {
    Q_OBJECT
public:
    QLineEdit* txtCardTitle;
    QGroupBox* fraPosition;
    QRadioButton* optUpright;
    QRadioButton* optReversed;
    QPlainTextEdit* txtDescription;
    QPlainTextEdit* txtKeywords;
    ImageBox* imgCard;
    MediaPlayer* MediaPlayer1;
    QPushButton* cmdBack;

    // 0 while the upright side is shown, 1 for the reversed side.
    int CheckedSide() const;

    // Shows the checked side's picture from Temp/, fitted into the picture
    // box at its design size.
    void UpdatePictures();
    // Stops the player and loads the checked side's sound, without starting
    // it; a side without a sound loads nothing.
    void UpdateSound();

protected:
    // captionStem: "Add Card" or "View Card". An editing screen's boxes are
    // editable; a viewing screen's are read-only.
    CardScreen(const QString& captionStem, bool editing);

    // The opening common to both: the picture box's design size, the files
    // of both sides, the sound, the placement.
    void OpenCard();
    // Caption, title, type, the reversed switch, and the side-dependent part.
    void FillFields();
    // The description, keywords, picture of the checked side.
    void FillSide();
    // The card's type as the screen shows it.
    virtual void ShowCardType() = 0;
    // A click on either side's switch.
    virtual void optPosition_Click();

    int IMGTop = 0;
    int IMGLeft = 0;
    int IMGHeight = 0;
    int IMGWidth = 0;

private:
    QString captionStem_;
};
