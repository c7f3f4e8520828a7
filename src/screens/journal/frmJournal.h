#pragma once
// "Journal": every saved reading and diary entry searched as the user types,
// and counted: which cards came up, in which locations, how the card types
// and the orientations balance, how many entries a month. Results open as
// the Past screens open them; the results go to CSV, the charts to PNG, the
// statistics to the printer.
#include <vector>

#include "core/journal/Journal.h"
#include "screens/platform/Form.h"

class JournalCardsModel;
class JournalChart;
class JournalLocationsModel;
class JournalResultsModel;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QTableView;
class QTimer;

class frmJournal : public Form {
    Q_OBJECT
public:
    frmJournal();

    QLineEdit* txtWords = nullptr;
    QComboBox* cboCard = nullptr;
    QComboBox* cboOrientation = nullptr;
    QComboBox* cboSpread = nullptr;
    QComboBox* cboDeck = nullptr;
    QComboBox* cboKind = nullptr;
    QCheckBox* chkFrom = nullptr;
    QDateEdit* dtpFrom = nullptr;
    QCheckBox* chkTo = nullptr;
    QDateEdit* dtpTo = nullptr;
    QTabWidget* tabJournal = nullptr;
    QTableView* grdResults = nullptr;
    JournalChart* chtCards = nullptr;
    QTableView* grdCards = nullptr;
    JournalChart* chtTypes = nullptr;
    JournalChart* chtFacing = nullptr;
    QComboBox* cboLocationSpread = nullptr;
    QTableView* grdLocations = nullptr;
    JournalChart* chtMonths = nullptr;
    QLabel* lblSummary = nullptr;
    QPushButton* cmdOpen = nullptr;
    QPushButton* cmdExport = nullptr;
    QPushButton* cmdSaveChart = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdClose = nullptr;

    // Runs the search of the controls and shows its results and statistics.
    void Search();
    void cmdOpen_Click();
    void cmdExport_Click();
    void cmdSaveChart_Click();
    void cmdPrint_Click();
    void cmdClose_Click();

protected:
    void Form_Load() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    JournalQuery QueryOfControls() const;
    void FillChoices();
    void ShowResults();
    void ShowStatistics();
    void ShowLocations();
    JournalChart* ChartOnShow() const;

    JournalCatalogue catalogue_;
    Journal journal_;
    std::vector<int> selected_;
    JournalStatistics statistics_;
    QTimer* tmrSearch = nullptr;
    JournalResultsModel* mdlResults = nullptr;
    JournalCardsModel* mdlCards = nullptr;
    JournalLocationsModel* mdlLocations = nullptr;
};
