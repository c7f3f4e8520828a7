#include "screens/journal/frmJournal.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSplitter>
#include <QStyle>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/Printer.h"
#include "core/platform/Twips.h"
#include "core/store/NewDesigns.h"
#include "screens/diary/frmOpenDiary.h"
#include "screens/journal/JournalCharts.h"
#include "screens/journal/JournalModels.h"
#include "screens/platform/CommonDialog.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/QtPrinter.h"
#include "screens/platform/ShellHooks.h"
#include "screens/readings/frmOpenReading.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {

constexpr std::size_t TopCards = 20;  // cards in the bar chart
constexpr int TopPerLocation = 3;     // cards named for each location
constexpr int SearchDelay = 150;      // ms of quiet typing before the search runs
constexpr int NameLength = 20;        // characters a box of designs' names shows at the least

QTableView* MakeTable(JournalTable* model, int sortColumn, Qt::SortOrder order, QWidget* parent) {
    auto* view = new QTableView(parent);
    view->setModel(model);
    view->horizontalHeader()->setSortIndicator(sortColumn, order);
    view->setSortingEnabled(true);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setWordWrap(false);
    view->verticalHeader()->hide();
    view->horizontalHeader()->setStretchLastSection(true);
    return view;
}

// One row a card choice: its deck id and number.
QVariant CardChoice(Integer deckId, int number) { return QPoint(deckId, number); }

}  // namespace

frmJournal::frmJournal() {
    setObjectName(QStringLiteral("frmJournal"));
    setCaption(tr("Journal"));
    resize(TwipsToPixels(12000), TwipsToPixels(8400));

    txtWords = new QLineEdit(this);
    cboCard = new QComboBox(this);
    cboOrientation = new QComboBox(this);
    cboOrientation->addItems({tr("Either Way"), tr("Upright"), tr("Reversed")});
    cboSpread = new QComboBox(this);
    cboDeck = new QComboBox(this);
    cboKind = new QComboBox(this);
    cboKind->addItems({tr("Readings and Diaries"), tr("Readings"), tr("Diaries")});
    chkFrom = new QCheckBox(tr("&From:"), this);
    dtpFrom = new QDateEdit(this);
    chkTo = new QCheckBox(tr("&To:"), this);
    dtpTo = new QDateEdit(this);
    for (QDateEdit* date : {dtpFrom, dtpTo}) {
        // The user's own way of writing a date, with the year in full.
        QString format = QLocale().dateFormat(QLocale::ShortFormat);
        if (!format.contains(QStringLiteral("yyyy"))) format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
        date->setDisplayFormat(format);
        date->setCalendarPopup(true);
        date->setMinimumDate(QDate(1900, 1, 1));
        date->setEnabled(false);
    }
    // The fixed choices show whole; the boxes of names show a fair length of
    // a name, and their lists open as wide as the longest.
    for (QComboBox* combo : {cboOrientation, cboKind}) combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (QComboBox* combo : {cboCard, cboSpread, cboDeck}) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(NameLength);
    }

    auto* filters = new QGridLayout;
    const auto labelled = [&](const QString& caption, QWidget* control, int row, int column) {
        auto* label = new QLabel(caption, this);
        label->setBuddy(control);
        filters->addWidget(label, row, column);
        filters->addWidget(control, row, column + 1);
    };
    labelled(tr("&Words:"), txtWords, 0, 0);
    labelled(tr("C&ard:"), cboCard, 0, 2);
    labelled(tr("&Orientation:"), cboOrientation, 0, 4);
    labelled(tr("&Spread:"), cboSpread, 1, 0);
    labelled(tr("&Deck:"), cboDeck, 1, 2);
    labelled(tr("&Kind:"), cboKind, 1, 4);
    filters->addWidget(chkFrom, 2, 0);
    filters->addWidget(dtpFrom, 2, 1);
    filters->addWidget(chkTo, 2, 2);
    filters->addWidget(dtpTo, 2, 3);
    filters->setColumnStretch(1, 2);
    filters->setColumnStretch(3, 2);
    filters->setColumnStretch(5, 1);

    tabJournal = new QTabWidget(this);
    mdlResults = new JournalResultsModel(journal_, catalogue_, this);
    grdResults = MakeTable(mdlResults, 0, Qt::DescendingOrder, this);
    tabJournal->addTab(grdResults, tr("&Results"));

    // The chart and the table side by side, the divide movable; the figures
    // lead the table, as in print, so that they are on show at any width.
    auto* cardsPage = new QSplitter(this);
    chtCards = new JournalChart(cardsPage);
    mdlCards = new JournalCardsModel(this);
    grdCards = MakeTable(mdlCards, 0, Qt::DescendingOrder, cardsPage);
    cardsPage->addWidget(chtCards);
    cardsPage->addWidget(grdCards);
    cardsPage->setStretchFactor(0, 1);
    cardsPage->setStretchFactor(1, 1);
    cardsPage->setChildrenCollapsible(false);
    tabJournal->addTab(cardsPage, tr("&Cards"));

    auto* balancePage = new QWidget(this);
    auto* balanceLayout = new QVBoxLayout(balancePage);
    chtTypes = new JournalChart(balancePage);
    chtFacing = new JournalChart(balancePage);
    balanceLayout->addWidget(chtTypes, 3);
    balanceLayout->addWidget(chtFacing, 1);
    tabJournal->addTab(balancePage, tr("&Balance"));

    auto* locationsPage = new QWidget(this);
    auto* locationsLayout = new QVBoxLayout(locationsPage);
    cboLocationSpread = new QComboBox(locationsPage);
    cboLocationSpread->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboLocationSpread->setMinimumContentsLength(NameLength);
    mdlLocations = new JournalLocationsModel(this);
    grdLocations = MakeTable(mdlLocations, 0, Qt::AscendingOrder, locationsPage);
    grdLocations->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    locationsLayout->addWidget(cboLocationSpread, 0, Qt::AlignLeft);
    locationsLayout->addWidget(grdLocations);
    tabJournal->addTab(locationsPage, tr("&Locations"));

    chtMonths = new JournalChart(this);
    tabJournal->addTab(chtMonths, tr("&Months"));

    // The summary on a line of its own, wrapped, so that no figure is cut.
    lblSummary = new QLabel(this);
    lblSummary->setWordWrap(true);
    cmdOpen = new QPushButton(tr("O&pen"), this);
    cmdExport = new QPushButton(tr("&Export CSV..."), this);
    cmdSaveChart = new QPushButton(tr("Save C&hart..."), this);
    cmdPrint = new QPushButton(tr("Pri&nt..."), this);
    cmdClose = new QPushButton(tr("C&lose"), this);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* button : {cmdOpen, cmdExport, cmdSaveChart, cmdPrint, cmdClose}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(filters);
    layout->addWidget(tabJournal, 1);
    layout->addWidget(lblSummary);
    layout->addLayout(buttons);

    tmrSearch = new QTimer(this);
    tmrSearch->setSingleShot(true);
    tmrSearch->setInterval(SearchDelay);
    connect(tmrSearch, &QTimer::timeout, this, Handler([this] { Search(); }));
    connect(txtWords, &QLineEdit::textChanged, tmrSearch, qOverload<>(&QTimer::start));
    for (QComboBox* combo : {cboCard, cboOrientation, cboSpread, cboDeck, cboKind})
        connect(combo, &QComboBox::currentIndexChanged, this, Handler([this] { Search(); }));
    for (QDateEdit* date : {dtpFrom, dtpTo})
        connect(date, &QDateEdit::dateChanged, tmrSearch, qOverload<>(&QTimer::start));
    connect(chkFrom, &QCheckBox::toggled, this, Handler([this] {
                dtpFrom->setEnabled(chkFrom->isChecked());
                Search();
            }));
    connect(chkTo, &QCheckBox::toggled, this, Handler([this] {
                dtpTo->setEnabled(chkTo->isChecked());
                Search();
            }));
    connect(cboLocationSpread, &QComboBox::currentIndexChanged, this, Handler([this] { ShowLocations(); }));
    connect(grdResults, &QTableView::doubleClicked, this, Handler([this] { cmdOpen_Click(); }));
    connect(tabJournal, &QTabWidget::currentChanged, this, [this] { cmdSaveChart->setEnabled(ChartOnShow()); });
    connect(cmdOpen, &QPushButton::clicked, this, Handler([this] { cmdOpen_Click(); }));
    connect(cmdExport, &QPushButton::clicked, this, Handler([this] { cmdExport_Click(); }));
    connect(cmdSaveChart, &QPushButton::clicked, this, Handler([this] { cmdSaveChart_Click(); }));
    connect(cmdPrint, &QPushButton::clicked, this, Handler([this] { cmdPrint_Click(); }));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
    setWayOut([this] { cmdClose_Click(); });
}

void frmJournal::Form_Load() {
    CentreInFrame(*this);
    setMousePointer(MousePointer::Hourglass);
    catalogue_ = LoadJournalCatalogue();
    journal_ = ReadJournal(catalogue_);
    FillChoices();
    cmdSaveChart->setEnabled(false);
    Search();
    // Columns take the width of what they first show and keep it while the
    // user types; sizing them at each search would read every row.
    for (QTableView* table : {grdResults, grdCards}) {
        table->horizontalHeader()->setResizeContentsPrecision(200);
        table->resizeColumnsToContents();
    }
    setMousePointer(MousePointer::Arrow);
}

void frmJournal::FillChoices() {
    QDate first, last;
    for (const JournalEntry& e : journal_.Entries) {
        if (!e.Date.isValid()) continue;
        if (first.isNull() || e.Date < first) first = e.Date;
        if (last.isNull() || e.Date > last) last = e.Date;
    }
    dtpFrom->setDate(first.isNull() ? QDate::currentDate() : first);
    dtpTo->setDate(last.isNull() ? QDate::currentDate() : last);

    const QSignalBlocker blockCard(cboCard), blockSpread(cboSpread), blockDeck(cboDeck);
    cboCard->addItem(tr("(Any Card)"), CardChoice(-1, 0));
    cboDeck->addItem(tr("(Any Deck)"), -1);
    for (const JournalDeck& deck : catalogue_.Decks) {
        cboDeck->addItem(deck.Name, deck.Id);
        for (std::size_t n = 0; n < deck.Cards.size(); ++n)
            cboCard->addItem(tr("%1 (%2)").arg(deck.Cards[n].Title, deck.Name),
                             CardChoice(deck.Id, static_cast<int>(n + 1)));
    }
    cboSpread->addItem(tr("(Any Spread)"), -1);
    for (const JournalSpread& spread : catalogue_.Spreads) {
        cboSpread->addItem(spread.Name, spread.Id);
        cboLocationSpread->addItem(spread.Name, spread.Id);
    }
    for (QComboBox* combo : {cboCard, cboDeck, cboSpread, cboLocationSpread}) {
        combo->model()->sort(0);
        // A name longer than the box shows whole in the open list.
        combo->view()->setMinimumWidth(combo->view()->sizeHintForColumn(0) + 2 * combo->view()->frameWidth());
    }
    cboCard->setCurrentIndex(cboCard->findData(CardChoice(-1, 0)));
    cboDeck->setCurrentIndex(cboDeck->findData(-1));
    cboSpread->setCurrentIndex(cboSpread->findData(-1));
}

JournalQuery frmJournal::QueryOfControls() const {
    JournalQuery query;
    query.Words = txtWords->text();
    query.Readings = cboKind->currentIndex() != 2;
    query.Diary = cboKind->currentIndex() != 1;
    query.SpreadId = static_cast<Integer>(cboSpread->currentData().toInt());
    query.DeckId = static_cast<Integer>(cboDeck->currentData().toInt());
    const QPoint card = cboCard->currentData().toPoint();
    query.CardDeckId = static_cast<Integer>(card.x());
    query.CardNumber = static_cast<Integer>(card.y());
    query.Orientation = static_cast<Facing>(cboOrientation->currentIndex());
    if (chkFrom->isChecked()) query.From = dtpFrom->date();
    if (chkTo->isChecked()) query.To = dtpTo->date();
    return query;
}

void frmJournal::Search() {
    tmrSearch->stop();
    const JournalQuery query = QueryOfControls();
    selected_ = SearchJournal(journal_, query);
    statistics_ = TallyJournal(journal_, selected_, catalogue_, query);
    ShowResults();
    ShowStatistics();
    ShowLocations();
}

void frmJournal::ShowResults() {
    mdlResults->SetSelection(selected_);
    cmdOpen->setEnabled(!selected_.empty());
    if (!selected_.empty()) grdResults->selectRow(0);
}

void frmJournal::ShowStatistics() {
    const JournalStatistics& s = statistics_;
    lblSummary->setText(tr("%1; %2; %3")
                            .arg(tr("%Ln entries", "", s.Entries), tr("%Ln locked, not counted", "", s.Locked),
                                 tr("%Ln not attributable to a present card", "", s.Unattributable)));
    chtCards->setChart(CardsChart(s, TopCards));
    mdlCards->SetCards(s.Cards);
    // The figure columns as wide as their heading or the largest figure,
    // worked out from the largest rather than by reading every row.
    const int largest = s.Cards.empty() ? 0 : s.Cards.front().Total();
    const int margin = 2 * (grdCards->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, grdCards) + 1);
    for (int figure = 0; figure < 3; ++figure)
        grdCards->setColumnWidth(
            figure, std::max(grdCards->horizontalHeader()->sectionSizeHint(figure),
                             grdCards->fontMetrics().horizontalAdvance(QLocale().toString(largest)) + margin));
    chtTypes->setChart(TypesChart(s));
    chtFacing->setChart(FacingChart(s));
    chtMonths->setChart(MonthsChart(s));
}

void frmJournal::ShowLocations() {
    const auto spreadId = static_cast<Integer>(cboLocationSpread->currentData().toInt());
    mdlLocations->SetLocations(cboLocationSpread->currentIndex() < 0
                                   ? std::vector<LocationTally>()
                                   : TallyLocations(journal_, selected_, catalogue_, spreadId, TopPerLocation));
    grdLocations->resizeColumnToContents(1);
}

JournalChart* frmJournal::ChartOnShow() const {
    switch (tabJournal->currentIndex()) {
    case 1: return chtCards;
    case 2: return chtTypes;
    case 4: return chtMonths;
    default: return nullptr;
    }
}

// Opens the entry as its Past screen would, checks and all; the journal
// gives way to the entry's screen, whose Close leads to the main screen.
void frmJournal::cmdOpen_Click() {
    const QModelIndex current = grdResults->currentIndex();
    if (!current.isValid()) return;
    const int i = mdlResults->EntryAt(current.row());
    const JournalEntry& entry = journal_.Entries[static_cast<std::size_t>(i)];
    const QString name = entry.Name;
    bool opened = false;
    if (entry.Kind == EntryKind::Reading) {
        ResetSpread(TheRun.CurrentSpread);
        ResetReading(TheRun.CurrentReading);
        opened = Get<frmOpenReading>().OpenEntry(name);
        if (!opened) UnloadScreen<frmOpenReading>();
    } else {
        ResetSpread(TheRun.CurrentSpread);
        ResetDiary(TheRun.CurrentDiary);
        opened = Get<frmOpenDiary>().OpenEntry(name);
        if (!opened) UnloadScreen<frmOpenDiary>();
    }
    if (opened) Unload();
}

void frmJournal::cmdExport_Click() {
    CommonDialog dialog;
    dialog.DialogTitle = tr("Export Results");
    dialog.Filter = tr("CSV Files (*.csv)|*.csv|All Files (*.*)|*.*");
    dialog.FileName = QStringLiteral("Journal.csv");
    dialog.Flags = CommonDialog::cdlOFNOverwritePrompt | CommonDialog::cdlOFNPathMustExist;
    if (!dialog.ShowSave()) return;
    WriteWholeFile(dialog.FileName, JournalCsv(journal_, selected_, catalogue_));
}

void frmJournal::cmdSaveChart_Click() {
    JournalChart* chart = ChartOnShow();
    if (!chart) return;
    CommonDialog dialog;
    dialog.DialogTitle = tr("Save Chart");
    dialog.Filter = tr("PNG Pictures (*.png)|*.png");
    dialog.FileName = QStringLiteral("Chart.png");
    dialog.Flags = CommonDialog::cdlOFNOverwritePrompt | CommonDialog::cdlOFNPathMustExist;
    if (!dialog.ShowSave()) return;
    if (!chart->Render(chart->size()).save(dialog.FileName, "PNG"))
        MsgBox(tr("Unable to save the chart as '%1'.").arg(dialog.FileName), vbExclamation);
}

void frmJournal::cmdPrint_Click() {
    bool chosen = false;
    try {
        CommonDialog dialog;
        dialog.CancelError = true;
        dialog.Flags = cdlPDNoPageNums | cdlPDNoSelection;
        ShowPrinter(dialog);
        chosen = true;
        PrintJournalStatistics(CurrentPrinter(), statistics_, TopCards);
        CurrentPrinter().Close();
    } catch (const RuntimeError& error) {
        if (chosen) CurrentPrinter().Close();
        if (error.Number() == errCancel) return;
        MsgBox(tr("Unable to print! %1 %2").arg(error.Number()).arg(error.Description()), vbCritical);
    }
}

void frmJournal::cmdClose_Click() {
    Unload();
    ReturnToMainScreen();
}

void frmJournal::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdClose_Click();
    } else if (focusWidget() == grdResults && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        handled = true;
        cmdOpen_Click();
    }
}
