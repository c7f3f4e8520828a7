#pragma once
// The two summaries that end a package's creation or installation: how many
// decks and spreads went in, and the attachment. They share their fields and
// their Close; the creation's summary also names the package file.
#include "screens/platform/Form.h"

class QLabel;
class QLineEdit;
class QPushButton;

class PackageSummaryScreen : public Form {
    Q_OBJECT
public:
    QLabel* Label1;
    QLineEdit* txtDecksCount;
    QLineEdit* txtSpreadsCount;
    QLineEdit* txtAttachment;
    QPushButton* cmdCancel;

    // How many decks and spreads went in.
    void ShowCounts(int decks, int spreads);
    // The attachment's name, or "NONE" in italics when there is none.
    void SetAttachment(bool present, const QString& name);
    void cmdCancel_Click();

protected:
    // The fields from `firstRow` on; the rows above are the subclass's.
    PackageSummaryScreen(const QString& caption, const QString& message, int firstRow);
    QLineEdit* AddField(const QString& label, const char* name, int row);
    void Form_Load() override;
    void Form_KeyUp(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};

// "Package Summary" after an installation.
class frmPackageSummary : public PackageSummaryScreen {
    Q_OBJECT
public:
    frmPackageSummary();
    // Nothing installed turns the message red and says so.
    void UpdateInfo();
};

// "Package Summary" after a creation.
class frmCreatePackageSummary : public PackageSummaryScreen {
    Q_OBJECT
public:
    frmCreatePackageSummary();
    // The package file made: its name, also in the caption, and its folder.
    void ShowPackageFile(const QString& fileName, const QString& folder);
    QLineEdit* txtLocation;
    QLineEdit* txtFilename;
};
