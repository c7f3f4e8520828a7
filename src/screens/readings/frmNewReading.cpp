#include "screens/readings/frmNewReading.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>

#include "core/platform/Palette.h"
#include "core/readings/Deal.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/platform/ErrorReport.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/ShellHooks.h"
#include "screens/readings/frmQuickHelp.h"
#include "screens/readings/frmReadingInterpretLocation.h"
#include "screens/readings/frmReadingNotes.h"
#include "screens/readings/frmSaveReading.h"
#include "screens/widgets/ClickLabel.h"
#include "screens/widgets/ImageBox.h"
#include "screens/widgets/ScreenPlacement.h"

void ShuffleButton::mousePressEvent(QMouseEvent* e) {
    QPushButton::mousePressEvent(e);
    if (Press && isEnabled()) Press();
}

void ShuffleButton::mouseReleaseEvent(QMouseEvent* e) {
    QPushButton::mouseReleaseEvent(e);
    if (Release) Release();
}

void ShuffleButton::keyPressEvent(QKeyEvent* e) {
    QPushButton::keyPressEvent(e);
    // A held key repeats, and each repeat starts another run on top of the
    // last; one release stops them all.
    if (Press && isEnabled()) Press();
}

void ShuffleButton::keyReleaseEvent(QKeyEvent* e) {
    QPushButton::keyReleaseEvent(e);
    if (e->isAutoRepeat()) return;
    if (Release) Release();
}

TableWatcher* ReadingScreen() { return ScreenSlot<frmNewReading>(); }

frmNewReading::frmNewReading() : EntryScreen(tr("Reading")), lblCardName(1, MaxLocations) {
    setObjectName(QStringLiteral("frmNewReading"));
    cmdContinue = AddPanelButton(QStringLiteral("cmdContinue"), tr("C&ontinue"), 120, true);
    cmdDeal = AddPanelButton(QStringLiteral("cmdDeal"), tr("&Deal"), 600, false);
    cmdNextCard = AddPanelButton(QStringLiteral("cmdNextCard"), tr("&Next Card"), 1060, false);
    cmdAllCards = AddPanelButton(QStringLiteral("cmdAllCards"), tr("&All Cards"), 1525, false);
    cmdInterpret = AddPanelButton(QStringLiteral("cmdInterpret"), tr("&Interpret"), 2000, false);
    cmdNotes = AddPanelButton(QStringLiteral("cmdNotes"), tr("S&ummary"), 2475, false);
    cmdPrint = AddPanelButton(QStringLiteral("cmdPrint"), tr("&Print"), 2940, false);
    cmdSave = AddPanelButton(QStringLiteral("cmdSave"), tr("&Save"), 3420, false);
    cmdFakeShuffle = new ShuffleButton(tr("Shu&ffle"), picControlPanel);
    cmdFakeShuffle->setObjectName(QStringLiteral("cmdFakeShuffle"));
    cmdFakeShuffle->setEnabled(false);
    cmdFakeShuffle->setAutoDefault(false);
    PlaceControl(cmdFakeShuffle, 120, 3885, 975, 375);
    cmdQuickHelp = AddPanelButton(QStringLiteral("cmdQuickHelp"), tr("&Quick Help"), 4360, false);
    cmdClose = AddPanelButton(QStringLiteral("cmdClose"), tr("&Close"), 5280, true);

    for (int i = 1; i <= MaxLocations; ++i) {
        auto* name = new ClickLabel(picLocation(i));
        name->setObjectName(QStringLiteral("lblCardName"));
        name->setProperty("Index", i);
        name->setWordWrap(true);
        name->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        PlaceControl(name, 720, 525, 975, 435);
        lblCardName(i) = name;
        connect(name, &ClickLabel::Click, this, Handler([this, i] { imgCard_Click(i); }));
    }

    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(50);

    connect(cmdContinue, &QPushButton::clicked, this, Handler([this] { cmdContinue_Click(); }));
    connect(cmdDeal, &QPushButton::clicked, this, Handler([this] { cmdDeal_Click(); }));
    connect(cmdNextCard, &QPushButton::clicked, this, Handler([this] { cmdNextCard_Click(); }));
    connect(cmdAllCards, &QPushButton::clicked, this, Handler([this] { cmdAllCards_Click(); }));
    connect(cmdInterpret, &QPushButton::clicked, this, Handler([this] { cmdInterpret_Click(); }));
    connect(cmdNotes, &QPushButton::clicked, this, Handler([this] { cmdNotes_Click(); }));
    connect(cmdPrint, &QPushButton::clicked, this, Handler([this] { cmdPrint_Click(); }));
    connect(cmdSave, &QPushButton::clicked, this, Handler([this] { cmdSave_Click(); }));
    connect(cmdQuickHelp, &QPushButton::clicked, this, Handler([this] { cmdQuickHelp_Click(); }));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
    cmdFakeShuffle->Press = Handler([this] { cmdFakeShuffle_Press(); });
    cmdFakeShuffle->Release = Handler([this] { cmdFakeShuffle_Release(); });
    connect(Timer1, &QTimer::timeout, this, Handler([this] { Timer1_Timer(); }));
}

void frmNewReading::Form_Load() {
    CaptureCardFrame();
    TableShown = false;
    DealWasEnabled = false;
    CentreInFrame(*this);
    Initialize();
    FitBackgroundToPage();
}

void frmNewReading::Initialize() {
    NewDeal(TheRun.ReadingDeal, TheRun.CurrentDeck.CardCount);
    LoadSpreadLocations(TheRun.CurrentSpread.SpreadId, TheRun.CurrentSpread.LocationCount);
    ShowSpreadTexts();

    const bool issue = TheRun.CurrentSpread.AskQuestion != 0 || TheRun.CurrentReading.IssueAsked != 0;
    lblIssue->setVisible(issue);
    txtIssue->setVisible(issue);
    lblTheIssue->setVisible(issue);

    const QString title = TheRun.CurrentSpread.SpreadTitle.Trimmed();
    if (!title.isEmpty()) setCaption(tr("Reading - %1").arg(title));

    for (int i = 1; i <= TheRun.CurrentSpread.LocationCount; ++i) {
        PlaceLocation(i);
        lblCardName(i)->setForeColor(QBColor(15));
        lblCardName(i)->setBackColor(QBColor(TheRun.CurrentLocationColour));
        lblCardName(i)->clear();
        lblCardName(i)->setVisible(TheRun.CurrentDeck.DisplayCardTitles != 0);
    }
    ShowBackground();
}

void frmNewReading::cmdContinue_Click() {
    if (TheRun.CurrentDeck.DisplayCardTitles == 0) {
        // Without titles a card picture takes the room of the hidden name.
        IMGHeight = static_cast<Integer>(imgCard(1)->Height() + ControlHeight(lblCardName(1)));
    }

    if (IntroductionShown() && !TableShown) {
        if (TheRun.CurrentSpread.LocationCount < 1) {
            MsgBox(tr("No locations were created for this spread."), vbInformation);
            cmdContinue->setEnabled(false);
        }
        TheRun.CurrentReading.ReadingSpreadId = TheRun.CurrentSpread.SpreadId;
        TheRun.CurrentReading.ReadingDeckId = TheRun.CurrentDeck.DeckId;
        PlaceInFrameRight(*this, false);
        Table().ShowTable();
        TableShown = true;
    }

    const bool Forward = IntroductionShown();
    if (!Forward) {
        DealWasEnabled = cmdDeal->isEnabled();
        cmdDeal->setEnabled(false);
    } else {
        cmdDeal->setEnabled(DealWasEnabled);
    }
    ShowPage(Forward);
    cmdNextCard->setEnabled(Forward);
    cmdAllCards->setEnabled(Forward);
    if (frmReadingCardsIsLoaded) {
        if (Forward) Table().ShowTable();
        else Table().HideTable();
    }
    for (QPushButton* button :
         {cmdNotes, cmdInterpret, cmdSave, cmdQuickHelp, cmdPrint, static_cast<QPushButton*>(cmdFakeShuffle)})
        button->setEnabled(Forward);
    cmdContinue->setText(Forward ? tr("&Back") : tr("C&ontinue"));

    lblTheIssue->setText(IssueForSaving(txtIssue->text()));
    lblTheIssue->hide();
    UpdateCaption();
    if (Forward && frmReadingCardsIsLoaded) Show();
}

void frmNewReading::UpdateCaption() {
    const QString title = TheRun.CurrentSpread.SpreadTitle.Trimmed();
    if (lblTheIssue->text().trimmed().isEmpty()) setCaption(tr("Reading - %1").arg(title));
    else setCaption(tr("Reading - %1: %2").arg(title, lblTheIssue->text()));
}

void frmNewReading::txtIssue_LostFocus() {
    txtIssue->setText(txtIssue->text().trimmed());
    lblTheIssue->setText(txtIssue->text());
    TheRun.CurrentReading.Issue = txtIssue->text();
}

void frmNewReading::cmdDeal_Click() {
    const int count = TheRun.CurrentSpread.LocationCount;
    if (DealAgain(TheRun.ReadingDeal, TheRun.CurrentReading, TheRun.CurrentDeck.CardCount, count, RunDealOptions())) {
        cmdNextCard->setEnabled(true);
        cmdAllCards->setEnabled(true);
        cmdContinue->setEnabled(true);
        cmdDeal->setEnabled(false);
        for (int i = 1; i <= count; ++i) {
            ClearLocationCard(i);
            lblCardName(i)->clear();
            lblCardNumber(i)->show();
        }
    }
    Table().ShowTable();
}

void frmNewReading::TableLoaded(bool loaded) {
    frmReadingCardsIsLoaded = loaded;
    if (loaded) Timer1->start();
    else Timer1->stop();
}

void frmNewReading::TableUp() {
    cmdAllCards->setEnabled(true);
    cmdNextCard->setEnabled(true);
    cmdDeal->setEnabled(false);
    if (ShuffleAllowed(TheRun.ReadingDeal)) cmdFakeShuffle->setEnabled(true);
}

void frmNewReading::TableGone() {
    cmdAllCards->setEnabled(false);
    cmdNextCard->setEnabled(false);
    cmdDeal->setEnabled(true);
    cmdFakeShuffle->setEnabled(false);
}

void frmNewReading::EnableShuffle(bool enabled) { cmdFakeShuffle->setEnabled(enabled); }

void frmNewReading::ShowDealtCard(int location) {
    const int card = TheRun.ReadingDeal.DealtCard(location);
    ShowCardInLocation(location, card, TheRun.ReadingDeal.DealtUpright(location) == True16);
    lblCardNumber(location)->hide();
    lblCardName(location)->setText(DeckCard(card).CardTitle.Trimmed());
}

void frmNewReading::CardDealt(int location) {
    ReadingChanged = true;
    cmdContinue->setEnabled(false);
    ShowDealtCard(location);
    cmdInterpret->setEnabled(true);
    Show();
}

void frmNewReading::cmdNextCard_Click() { Table().PickRandomCard(); }

void frmNewReading::cmdAllCards_Click() {
    QPointer<frmNewReading> self(this);
    const Deal& deal = TheRun.ReadingDeal;
    do {
        // An empty table is laid afresh: the loaded one anew, or a new one.
        if (deal.DeckCardsLeft == 0) {
            if (ReadingTable* table = LoadedTable()) table->LayAgain();
            else Table();
        }
        const Integer before = deal.ThisLocationNumber;
        Table().PickRandomCard();
        // The reading may have closed while a shuffle ran between two cards.
        if (!self || ScreenSlot<frmNewReading>() != self.data()) return;
        if (deal.ThisLocationNumber == before) return;
    } while (deal.ThisLocationNumber <= TheRun.CurrentSpread.LocationCount);
}

void frmNewReading::cmdFakeShuffle_Press() { Table().FakeShuffle(); }

void frmNewReading::cmdFakeShuffle_Release() {
    if (ReadingTable* table = LoadedTable()) table->StopShuffle();
}

void frmNewReading::cmdInterpret_Click() {
    const int location = LocationToInterpret(TheRun.ReadingDeal, TheRun.CurrentSpread.LocationCount);
    if (location == 0) {
        cmdInterpret->setEnabled(false);
        return;
    }
    QueryLocation = static_cast<Integer>(location);
    ShowInterpretation();
}

void frmNewReading::picLocation_Click(int Index) {
    QueryLocation = static_cast<Integer>(Index);
    ShowInterpretation();
}

void frmNewReading::imgCard_Click(int Index) { picLocation_Click(Index); }

void frmNewReading::ShowInterpretation() {
    // One location at a time: a page still open for another location goes.
    UnloadScreen<frmReadingInterpretLocation>();
    Get<frmReadingInterpretLocation>().Show();
}

void frmNewReading::cmdNotes_Click() { Get<frmReadingNotes>().Show(); }

void frmNewReading::cmdPrint_Click() { PrintEntry(ReadingPrintout(TheRun.ReadingDeal, TheRun.CurrentReading)); }

void frmNewReading::cmdQuickHelp_Click() { Get<frmQuickHelp>().Show(); }

void frmNewReading::cmdSave_Click() {
    GatherReading(TheRun.ReadingDeal, TheRun.CurrentReading, TheRun.CurrentDeck, TheRun.CurrentSpread,
                  lblTheIssue->text());
    Get<frmSaveReading>().Show(true);
}

void frmNewReading::cmdClose_Click() {
    if (!ConfirmClose(ReadingChanged, tr("Save changes to the reading?"))) return;
    CloseReading();
}

void frmNewReading::CloseReading() {
    UnloadTable();
    ReturnToMainScreen();
    Unload();
}

void frmNewReading::Timer1_Timer() {
    if (Top() == lastTop_ && Left() == lastLeft_) return;
    lastTop_ = Top();
    lastLeft_ = Left();
    if (frmReadingCardsIsLoaded) Table().MoveForm();
}

void frmNewReading::Form_Activate() {
    if (frmReadingCardsIsLoaded) Timer1->start();
    UnloadScreen<frmReadingInterpretLocation>();
}

void frmNewReading::Form_Deactivate() { Timer1->stop(); }

void frmNewReading::Form_Unload(bool& cancel) {
    (void)cancel;
    Timer1->stop();
    UnloadScreen<frmReadingInterpretLocation>();
    UnloadScreen<frmReadingNotes>();
    HideLocations();
    for (int i = 1; i <= MaxLocations; ++i) lblCardName(i)->clear();
}

bool frmNewReading::OpenSavedReading() {
    try {
        FillFields();
        return true;
    } catch (const RuntimeError& error) {
        // A saved reading that points past its deck cannot be shown: the
        // error is reported and the reading closes, nothing written.
        TheRun.ReadingDeal.LoadingReading = false;
        ReportError(error);
        CloseReading();
        return false;
    }
}

void frmNewReading::FillFields() {
    Initialize();
    RestoreDeal(TheRun.ReadingDeal, TheRun.CurrentReading, TheRun.CurrentDeck, TheRun.CurrentSpread.LocationCount,
                RunDealOptions());
    const int dealt = TheRun.CurrentReading.DealtCount;
    QueryLocation = static_cast<Integer>(dealt + 1);

    PlaceInFrameRight(*this, false);
    Show();
    txtIssue->setText(TheRun.CurrentReading.Issue.Trimmed());
    // The first passage to the spread page shows the table the deal holds.
    cmdContinue_Click();

    const bool open = dealt < TheRun.CurrentSpread.LocationCount;
    cmdNextCard->setEnabled(open);
    cmdAllCards->setEnabled(open);
    cmdDeal->setEnabled(!open);
    for (QPushButton* button : {cmdNotes, cmdSave, cmdPrint, cmdQuickHelp}) button->setEnabled(true);
    for (int i = 1; i <= dealt; ++i) ShowDealtCard(i);
    if (!open) UnloadTable();

    ReadingChanged = false;
    Show();
    TheRun.ReadingDeal.LoadingReading = false;
}
