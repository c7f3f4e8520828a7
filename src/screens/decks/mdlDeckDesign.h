#pragma once
// What the deck screens share beyond the records: the card editor's run-wide
// file names, the working names a picked file takes in Temp/ until its card
// is stored, the deck's card limit, and the small control helpers of these
// screens.
#include <QComboBox>
#include <QRect>
#include <QString>
#include <QStringList>

#include "core/platform/Twips.h"
#include "core/records/Records.h"

class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QWidget;

// The name in Temp/ of each side's present picture and sound while a card is
// being edited: a final name (CU..., CR..., M...), a working name below, or
// for the reversed picture of a deck without reversed cards the path of the
// default picture.
extern QString UprightPictureFile;
extern QString ReversedPictureFile;
extern QString UprightSoundFile;
extern QString ReversedSoundFile;
// Whether the last file chooser ended with a pick.
extern bool ImageSelected;
extern bool SoundSelected;

// A picked file is copied into Temp/ under one of these stems followed by the
// source's last four characters.
inline const QString UprightPictureStem = QStringLiteral("TempUp");
inline const QString ReversedPictureStem = QStringLiteral("TempRev");
inline const QString UprightSoundStem = QStringLiteral("TsndUp");
inline const QString ReversedSoundStem = QStringLiteral("TsndRev");

// Where a file chooser was last left in this run: its folder and the index
// of the file picked there. One for pictures, one for sounds.
struct ChooserMemory {
    QString Folder;
    int FileIndex = -1;
};
ChooserMemory& RememberedPictureFolder();
ChooserMemory& RememberedSoundFolder();

// Forgets the card editor's values and the choosers' remembered folders, as
// a new run starts without them.
void ResetDeckDesignState();

// ---- Controls -----------------------------------------------------------------
// A rectangle given in twips, as the screens are laid out.
inline QRect At(int left, int top, int width, int height) {
    return QRect(TwipsToPixels(left), TwipsToPixels(top), TwipsToPixels(width), TwipsToPixels(height));
}
QPushButton* MakeButton(QWidget* parent, const char* name, const QString& caption, const QRect& where);
QLabel* MakeLabel(QWidget* parent, const QString& caption, const QRect& where, const char* name = nullptr);

// The line whose text, trimmed, equals the name trimmed; -1 when none.
int FindLine(const QListWidget* list, const QString& name);

// Keeps a multi-line box within its limit; true when it had to cut.
bool ClipText(QPlainTextEdit* box, int limit);

// A combo box that reports when it takes the focus, as the deck list's card
// box fills itself then.
class FocusComboBox : public QComboBox {
    Q_OBJECT
public:
    using QComboBox::QComboBox;
signals:
    void GotFocus();

protected:
    void focusInEvent(QFocusEvent* e) override;
};
