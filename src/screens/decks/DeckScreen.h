#pragma once
// What the deck designer and the deck viewer share: the deck's fields, its
// sorted card list, the working copies of the deck's pictures and sounds in
// Temp/, and the commands that open the card, the properties and the notes.
// frmDesignDeck edits through these controls; frmDeckInfo shows them
// read-only.
#include "screens/platform/Form.h"

class QLabel;
class QLineEdit;
class ListBox;
class QPlainTextEdit;
class QPushButton;

class DeckScreen : public Form {
    Q_OBJECT
public:
    QLineEdit* txtDeckTitle;
    QLineEdit* txtDeckDesigner;
    QLineEdit* txtDesignerEmail;
    QLineEdit* txtDesignerWebPage;
    QPlainTextEdit* txtDeckDescription;
    QLabel* lblModifiedOnDate;
    ListBox* lstCards;
    QPushButton* cmdEditCard;
    QPushButton* cmdProperties;
    QPushButton* cmdComments;
    QPushButton* cmdBack;

    // The name selected in the deck list when the screen opened; after a
    // save, the name saved under. The deck list comes back to it.
    QString OldDesignName;

    // Puts the deck's fields into the boxes and the caption.
    void FillDeckFields();
    // Rebuilds the card list from the titles of DeckCards, in array order.
    void RefreshCardList();
    // The position in DeckCards of the card on the selected line, found by
    // its title; 0 when no line is selected or no card has that title.
    int SelectedCardPosition() const;

protected:
    // captionStem: "Deck Design" or "Deck View". A designing screen's boxes
    // are editable; a viewing screen's are read-only.
    DeckScreen(const QString& captionStem, bool designing);

    // The opening common to both: note the deck list's line, centre, empty
    // Temp/, copy the deck's files in (for an existing deck; the designer
    // leaves a reversed side on the default picture where it is, the viewer
    // copies it like any other), put the default picture beside them, fill
    // the fields and list the cards in memory. The
    // list comes from DeckCards even when nothing was copied in, so a deck
    // viewed without its files still lists its cards, on default pictures.
    void OpenDeck(bool existingDeck, bool skipDefaultReversed);
    void Form_Unload(bool& cancel) override;
    // Enables or disables the card commands by the list's selection.
    virtual void UpdateCardButtons();

private:
    QString captionStem_;
};
