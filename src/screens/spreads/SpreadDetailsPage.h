#pragma once
// The details page of a spread (picDesignInfo), shared by the designer, where
// every box writes through to the spread in memory, and the viewer, where the
// boxes are locked and the notes are shown as well.
#include <QList>
#include <QWidget>

#include "core/records/Records.h"

class QCheckBox;
class QLabel;
class TextBox;
class MultiLineTextBox;

class SpreadDetailsPage : public QWidget {
    Q_OBJECT
public:
    // withNotes adds the notes box that the viewer shows.
    SpreadDetailsPage(bool withNotes, QWidget* parent);

    TextBox* txtSpreadTitle = nullptr;
    MultiLineTextBox* txtSpreadDescription = nullptr;
    TextBox* txtSpreadDesigner = nullptr;
    TextBox* txtDesignerEmail = nullptr;
    TextBox* txtDesignerWebPage = nullptr;
    QCheckBox* chkQuestion = nullptr;
    QLabel* lblModifiedOnDate = nullptr;
    MultiLineTextBox* txtComments = nullptr;  // the viewer's only

    // Fills the boxes from the spread's fields, trimmed; filling raises the
    // boxes' change events as typing does.
    void Fill(const SpreadRecord& spread);
    // Locked boxes show their text and take no typing.
    void setLocked(bool locked);
};

class QPushButton;

// The three pages of the designer and the viewer lie on one another; one
// button shows each. Showing a page enables the buttons of the other pages
// and disables its own; the canvas tools work only while the canvas shows.
struct SpreadPages {
    QWidget* Details = nullptr;
    QWidget* Canvas = nullptr;
    QWidget* Decks = nullptr;
    QPushButton* DetailsButton = nullptr;
    QPushButton* CanvasButton = nullptr;
    QPushButton* DecksButton = nullptr;
    QList<QPushButton*> CanvasTools;

    enum Page { ShowDetails, ShowCanvas, ShowDecks };
    void Show(Page page) const;
};
