#include "screens/journal/frmJournal.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
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
#include "screens/platform/CommonDialog.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/QtPrinter.h"
#include "screens/readings/frmOpenReading.h"
#include "screens/shell/ScreenPlacement.h"
#include "screens/shell/frmMainScreen.h"

namespace {

constexpr int TopCards = 20;        // cards in the bar chart
constexpr int TopPerLocation = 3;   // cards named for each location
constexpr int SearchDelay = 150;    // ms of quiet typing before the search runs
const QSize PrintedChart(1200, 600);

QTableView* MakeTable(QStandardItemModel* model, const QStringList& headings, QWidget* parent) {
    model->setHorizontalHeaderLabels(headings);
    auto* view = new QTableView(parent);
    view->setModel(model);
    view->setSortingEnabled(true);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->verticalHeader()->hide();
    view->horizontalHeader()->setStretchLastSection(true);
    return view;
}

QStandardItem* Cell(const QString& text) { return new QStandardItem(text); }

// A figure that sorts as a number.
QStandardItem* Cell(int figure) {
    auto* item = new QStandardItem;
    item->setData(figure, Qt::DisplayRole);
    return item;
}

QString CardLabel(const CardTally& card) { return card.Title + QStringLiteral(" (") + card.DeckName + QLatin1Char(')'); }

// One row a card choice: its deck id and number.
QVariant CardChoice(Integer deckId, int number) { return QPoint(deckId, number); }

}  // namespace

frmJournal::frmJournal() {
    setObjectName(QStringLiteral("frmJournal"));
    setCaption(QStringLiteral("Journal"));
    resize(TwipsToPixels(12000), TwipsToPixels(8400));

    txtWords = new QLineEdit(this);
    cboCard = new QComboBox(this);
    cboOrientation = new QComboBox(this);
    cboOrientation->addItems({QStringLiteral("Either Way"), QStringLiteral("Upright"), QStringLiteral("Reversed")});
    cboSpread = new QComboBox(this);
    cboDeck = new QComboBox(this);
    cboKind = new QComboBox(this);
    cboKind->addItems({QStringLiteral("Readings and Diaries"), QStringLiteral("Readings"), QStringLiteral("Diaries")});
    chkFrom = new QCheckBox(QStringLiteral("&From:"), this);
    dtpFrom = new QDateEdit(this);
    chkTo = new QCheckBox(QStringLiteral("&To:"), this);
    dtpTo = new QDateEdit(this);
    for (QDateEdit* date : {dtpFrom, dtpTo}) {
        date->setDisplayFormat(QStringLiteral("yyyy/MM/dd"));
        date->setCalendarPopup(true);
        date->setMinimumDate(QDate(1900, 1, 1));
        date->setEnabled(false);
    }
    QComboBox* combos[] = {cboCard, cboOrientation, cboSpread, cboDeck, cboKind};
    for (QComboBox* combo : combos) combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);

    auto* filters = new QGridLayout;
    const auto labelled = [&](const QString& caption, QWidget* control, int row, int column) {
        auto* label = new QLabel(caption, this);
        label->setBuddy(control);
        filters->addWidget(label, row, column);
        filters->addWidget(control, row, column + 1);
    };
    labelled(QStringLiteral("&Words:"), txtWords, 0, 0);
    labelled(QStringLiteral("C&ard:"), cboCard, 0, 2);
    labelled(QStringLiteral("&Orientation:"), cboOrientation, 0, 4);
    labelled(QStringLiteral("&Spread:"), cboSpread, 1, 0);
    labelled(QStringLiteral("&Deck:"), cboDeck, 1, 2);
    labelled(QStringLiteral("&Kind:"), cboKind, 1, 4);
    filters->addWidget(chkFrom, 2, 0);
    filters->addWidget(dtpFrom, 2, 1);
    filters->addWidget(chkTo, 2, 2);
    filters->addWidget(dtpTo, 2, 3);
    filters->setColumnStretch(1, 2);
    filters->setColumnStretch(3, 2);
    filters->setColumnStretch(5, 1);

    tabJournal = new QTabWidget(this);
    mdlResults = new QStandardItemModel(this);
    grdResults = MakeTable(mdlResults, {QStringLiteral("Date"), QStringLiteral("Kind"), QStringLiteral("Name"),
                                        QStringLiteral("Spread"), QStringLiteral("Deck"), QStringLiteral("Cards")},
                           this);
    tabJournal->addTab(grdResults, QStringLiteral("&Results"));

    auto* cardsPage = new QWidget(this);
    auto* cardsLayout = new QHBoxLayout(cardsPage);
    chtCards = new JournalChart(JournalChart::Shape::Bars, QStringLiteral("upright"), QStringLiteral("reversed"));
    mdlCards = new QStandardItemModel(this);
    grdCards = MakeTable(mdlCards, {QStringLiteral("Card"), QStringLiteral("Deck"), QStringLiteral("Type"),
                                    QStringLiteral("Upright"), QStringLiteral("Reversed"), QStringLiteral("Total")},
                         cardsPage);
    cardsLayout->addWidget(chtCards, 3);
    cardsLayout->addWidget(grdCards, 2);
    tabJournal->addTab(cardsPage, QStringLiteral("&Cards"));

    auto* balancePage = new QWidget(this);
    auto* balanceLayout = new QVBoxLayout(balancePage);
    chtTypes = new JournalChart(JournalChart::Shape::Bars, QString(), QString());
    chtFacing = new JournalChart(JournalChart::Shape::Bars, QString(), QString());
    balanceLayout->addWidget(chtTypes, 3);
    balanceLayout->addWidget(chtFacing, 1);
    tabJournal->addTab(balancePage, QStringLiteral("&Balance"));

    auto* locationsPage = new QWidget(this);
    auto* locationsLayout = new QVBoxLayout(locationsPage);
    cboLocationSpread = new QComboBox(locationsPage);
    mdlLocations = new QStandardItemModel(this);
    grdLocations = MakeTable(mdlLocations, {QStringLiteral("Location"), QStringLiteral("Title"),
                                            QStringLiteral("Cards Most Often There")},
                             locationsPage);
    locationsLayout->addWidget(cboLocationSpread);
    locationsLayout->addWidget(grdLocations);
    tabJournal->addTab(locationsPage, QStringLiteral("&Locations"));

    chtMonths = new JournalChart(JournalChart::Shape::Columns, QString(), QString());
    tabJournal->addTab(chtMonths, QStringLiteral("&Months"));

    lblSummary = new QLabel(this);
    cmdOpen = new QPushButton(QStringLiteral("O&pen"), this);
    cmdExport = new QPushButton(QStringLiteral("&Export CSV..."), this);
    cmdSaveChart = new QPushButton(QStringLiteral("Save C&hart..."), this);
    cmdPrint = new QPushButton(QStringLiteral("Pri&nt..."), this);
    cmdClose = new QPushButton(QStringLiteral("C&lose"), this);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(lblSummary, 1);
    for (QPushButton* button : {cmdOpen, cmdExport, cmdSaveChart, cmdPrint, cmdClose}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(filters);
    layout->addWidget(tabJournal, 1);
    layout->addLayout(buttons);

    tmrSearch = new QTimer(this);
    tmrSearch->setSingleShot(true);
    tmrSearch->setInterval(SearchDelay);
    connect(tmrSearch, &QTimer::timeout, this, Handler([this] { Search(); }));
    connect(txtWords, &QLineEdit::textChanged, tmrSearch, qOverload<>(&QTimer::start));
    for (QComboBox* combo : combos)
        connect(combo, &QComboBox::currentIndexChanged, this, Handler([this] { Search(); }));
    for (QDateEdit* date : {dtpFrom, dtpTo}) connect(date, &QDateEdit::dateChanged, tmrSearch, qOverload<>(&QTimer::start));
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
    cboCard->addItem(QStringLiteral("(Any Card)"), CardChoice(-1, 0));
    cboDeck->addItem(QStringLiteral("(Any Deck)"), -1);
    for (const JournalDeck& deck : catalogue_.Decks) {
        cboDeck->addItem(deck.Name, deck.Id);
        for (std::size_t n = 0; n < deck.Cards.size(); ++n)
            cboCard->addItem(deck.Cards[n].Title + QStringLiteral(" (") + deck.Name + QLatin1Char(')'),
                             CardChoice(deck.Id, static_cast<int>(n + 1)));
    }
    cboSpread->addItem(QStringLiteral("(Any Spread)"), -1);
    for (const JournalSpread& spread : catalogue_.Spreads) {
        cboSpread->addItem(spread.Name, spread.Id);
        cboLocationSpread->addItem(spread.Name, spread.Id);
    }
    for (QComboBox* combo : {cboCard, cboDeck, cboSpread, cboLocationSpread}) combo->model()->sort(0);
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
    grdResults->setSortingEnabled(false);
    mdlResults->removeRows(0, mdlResults->rowCount());
    for (const int i : selected_) {
        const JournalEntry& e = journal_.Entries[static_cast<std::size_t>(i)];
        QList<QStandardItem*> row = {Cell(EntryDateText(e)), Cell(EntryKindText(e.Kind)), Cell(e.Name),
                                     Cell(EntrySpreadText(e, catalogue_)), Cell(EntryDeckText(e, catalogue_)),
                                     e.Locked ? Cell(QString()) : Cell(static_cast<int>(e.Cards.size()))};
        row.front()->setData(i, Qt::UserRole);
        if (e.Locked) row[2]->setToolTip(QStringLiteral("Locked: open it and give its password to see it"));
        mdlResults->appendRow(row);
    }
    grdResults->setSortingEnabled(true);
    grdResults->resizeColumnsToContents();
    cmdOpen->setEnabled(!selected_.empty());
    if (!selected_.empty()) grdResults->selectRow(0);
}

void frmJournal::ShowStatistics() {
    const JournalStatistics& s = statistics_;
    lblSummary->setText(QStringLiteral("%1 entries; %2 locked, not counted; %3 not attributable to a present card")
                            .arg(s.Entries)
                            .arg(s.Locked)
                            .arg(s.Unattributable));
    std::vector<ChartBar> top;
    for (std::size_t i = 0; i < s.Cards.size() && i < static_cast<std::size_t>(TopCards); ++i)
        top.push_back({CardLabel(s.Cards[i]), s.Cards[i].Upright, s.Cards[i].Reversed});
    chtCards->setBars(std::move(top));

    grdCards->setSortingEnabled(false);
    mdlCards->removeRows(0, mdlCards->rowCount());
    for (const CardTally& c : s.Cards)
        mdlCards->appendRow({Cell(c.Title), Cell(c.DeckName), Cell(c.TypeName), Cell(c.Upright), Cell(c.Reversed),
                             Cell(c.Total())});
    grdCards->setSortingEnabled(true);
    grdCards->sortByColumn(5, Qt::DescendingOrder);

    std::vector<ChartBar> types;
    for (const NamedCount& t : s.Types) types.push_back({t.Name, t.Count, 0});
    chtTypes->setBars(std::move(types));
    chtFacing->setBars({{QStringLiteral("Upright"), s.Upright, 0}, {QStringLiteral("Reversed"), s.Reversed, 0}});
    std::vector<ChartBar> months;
    for (const NamedCount& m : s.Months) months.push_back({m.Name, m.Count, 0});
    chtMonths->setBars(std::move(months));
}

void frmJournal::ShowLocations() {
    mdlLocations->removeRows(0, mdlLocations->rowCount());
    if (cboLocationSpread->currentIndex() < 0) return;
    const auto spreadId = static_cast<Integer>(cboLocationSpread->currentData().toInt());
    grdLocations->setSortingEnabled(false);
    for (const LocationTally& l : TallyLocations(journal_, selected_, catalogue_, spreadId, TopPerLocation)) {
        QStringList cards;
        for (const CardTally& c : l.Cards) cards << QStringLiteral("%1 %2").arg(CardLabel(c)).arg(c.Total());
        mdlLocations->appendRow({Cell(l.Location), Cell(l.Title), Cell(cards.join(QStringLiteral(", ")))});
    }
    grdLocations->setSortingEnabled(true);
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
    const int i = mdlResults->item(current.row(), 0)->data(Qt::UserRole).toInt();
    const JournalEntry& entry = journal_.Entries[static_cast<std::size_t>(i)];
    const QString name = entry.Name;
    bool opened = false;
    if (entry.Kind == EntryKind::Reading) {
        ResetSpread(CurrentSpread);
        ResetReading(CurrentReading);
        opened = Get<frmOpenReading>().OpenEntry(name);
        if (!opened) UnloadScreen<frmOpenReading>();
    } else {
        ResetSpread(CurrentSpread);
        ResetDiary(CurrentDiary);
        opened = Get<frmOpenDiary>().OpenEntry(name);
        if (!opened) UnloadScreen<frmOpenDiary>();
    }
    if (opened) Unload();
}

void frmJournal::cmdExport_Click() {
    CommonDialog dialog;
    dialog.DialogTitle = QStringLiteral("Export Results");
    dialog.Filter = QStringLiteral("CSV Files (*.csv)|*.csv|All Files (*.*)|*.*");
    dialog.FileName = QStringLiteral("Journal.csv");
    dialog.Flags = CommonDialog::cdlOFNOverwritePrompt | CommonDialog::cdlOFNPathMustExist;
    if (!dialog.ShowSave()) return;
    WriteWholeFile(dialog.FileName, JournalCsv(journal_, selected_, catalogue_));
}

void frmJournal::cmdSaveChart_Click() {
    JournalChart* chart = ChartOnShow();
    if (!chart) return;
    CommonDialog dialog;
    dialog.DialogTitle = QStringLiteral("Save Chart");
    dialog.Filter = QStringLiteral("PNG Pictures (*.png)|*.png");
    dialog.FileName = QStringLiteral("Chart.png");
    dialog.Flags = CommonDialog::cdlOFNOverwritePrompt | CommonDialog::cdlOFNPathMustExist;
    if (!dialog.ShowSave()) return;
    if (!chart->Render(chart->size()).save(dialog.FileName, "PNG"))
        MsgBox(QStringLiteral("Unable to save the chart as '") + dialog.FileName + QStringLiteral("'."),
               vbExclamation);
}

void frmJournal::cmdPrint_Click() {
    bool chosen = false;
    try {
        CommonDialog dialog;
        dialog.CancelError = true;
        dialog.Flags = cdlPDNoPageNums | cdlPDNoSelection;
        ShowPrinter(dialog);
        chosen = true;
        PrintJournalStatistics(CurrentPrinter(), statistics_, chtCards->Render(PrintedChart),
                               chtMonths->Render(PrintedChart));
        CurrentPrinter().Close();
    } catch (const RuntimeError& error) {
        if (chosen) CurrentPrinter().Close();
        if (error.Number() == errCancel) return;
        MsgBox(QStringLiteral("Unable to print! ") + QString::number(error.Number()) + QStringLiteral(" ") +
                   error.Description(),
               vbCritical);
    }
}

void frmJournal::cmdClose_Click() {
    Unload();
    Get<frmMainScreen>().Show();
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
