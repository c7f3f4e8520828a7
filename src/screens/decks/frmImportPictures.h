#pragma once
// "Import Pictures": the pictures of a folder proposed as cards of the deck
// being designed. The user edits titles in place, sets the type of the
// selected rows, leaves rows out and chooses where the reversed sides come
// from; OK works the pictures with a progress bar and adds the cards. Files
// that are not pictures stand at the end of the list, greyed.
#include <QThreadPool>

#include "core/decks/PictureImport.h"
#include "screens/platform/Form.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QStandardItemModel;
class QTableView;

class frmImportPictures : public Form {
    Q_OBJECT
public:
    frmImportPictures();
    ~frmImportPictures() override;

    QLabel* lblFolder;
    QTableView* tblPictures;
    QStandardItemModel* mdlPictures;
    QComboBox* cboType;
    QPushButton* cmdSetType;
    QGroupBox* fraReversed;
    QRadioButton* optNone;
    QRadioButton* optTurned;
    QRadioButton* optOwnFile;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

    // Lists the folder's pictures and shows the screen modally.
    void ShowFolder(const QString& folder);

    void cmdSetType_Click();
    void optReversed_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

protected:
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    enum Column { ColPicture, ColTitle, ColType, ColReversed };
    ReversedSide ChosenReversedSide() const;
    // The proposed cards as the list now stands.
    QList<ProposedCard> CardsInList() const;
    // Thumbnails are read on other threads and put in as they come.
    void LoadThumbnails();
    Q_INVOKABLE void ShowThumbnail(int row);

    QString folder_;
    QList<ProposedCard> proposed_;
    HandedOver<QImage> thumbnails_;
    QThreadPool thumbnailPool_;
};
