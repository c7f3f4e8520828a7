#include "screens/readings/frmNewReading.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>

#include "core/platform/Palette.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "screens/platform/ErrorReport.h"
#include "screens/platform/MsgBox.h"
#include "screens/readings/frmReadingCards.h"
#include "screens/readings/frmReadingInterpretLocation.h"
#include "screens/readings/frmReadingNotes.h"
#include "screens/readings/frmSaveReading.h"
#include "screens/shell/ClickLabel.h"
#include "screens/shell/ImageBox.h"
#include "screens/shell/ScreenPlacement.h"
#include "screens/shell/frmMainScreen.h"
#include "screens/shell/frmQuickHelp.h"

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

namespace {

frmReadingCards& Table() { return Get<frmReadingCards>(); }

const QString ReadingCaption = QStringLiteral("Reading - ");

}  // namespace

frmNewReading::frmNewReading() : EntryScreen(QStringLiteral("Reading")), lblCardName(1, MaxLocations) {
    setObjectName(QStringLiteral("frmNewReading"));
    cmdContinue = AddPanelButton(QStringLiteral("cmdContinue"), QStringLiteral("C&ontinue"), 120, true);
    cmdDeal = AddPanelButton(QStringLiteral("cmdDeal"), QStringLiteral("&Deal"), 600, false);
    cmdNextCard = AddPanelButton(QStringLiteral("cmdNextCard"), QStringLiteral("&Next Card"), 1060, false);
    cmdAllCards = AddPanelButton(QStringLiteral("cmdAllCards"), QStringLiteral("&All Cards"), 1525, false);
    cmdInterpret = AddPanelButton(QStringLiteral("cmdInterpret"), QStringLiteral("&Interpret"), 2000, false);
    cmdNotes = AddPanelButton(QStringLiteral("cmdNotes"), QStringLiteral("S&ummary"), 2475, false);
    cmdPrint = AddPanelButton(QStringLiteral("cmdPrint"), QStringLiteral("&Print"), 2940, false);
    cmdSave = AddPanelButton(QStringLiteral("cmdSave"), QStringLiteral("&Save"), 3420, false);
    cmdFakeShuffle = new ShuffleButton(QStringLiteral("Shu&ffle"), picControlPanel);
    cmdFakeShuffle->setObjectName(QStringLiteral("cmdFakeShuffle"));
    cmdFakeShuffle->setEnabled(false);
    cmdFakeShuffle->setAutoDefault(false);
    PlaceControl(cmdFakeShuffle, 120, 3885, 975, 375);
    cmdQuickHelp = AddPanelButton(QStringLiteral("cmdQuickHelp"), QStringLiteral("&Quick Help"), 4360, false);
    cmdClose = AddPanelButton(QStringLiteral("cmdClose"), QStringLiteral("&Close"), 5280, true);

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
    DeckCardsLeft = CurrentDeck.CardCount;
    LoadSpreadLocations(CurrentSpread.SpreadId, CurrentSpread.LocationCount);
    ShowSpreadTexts();

    const bool issue = CurrentSpread.AskQuestion != 0 || CurrentReading.IssueAsked != 0;
    lblIssue->setVisible(issue);
    txtIssue->setVisible(issue);
    lblTheIssue->setVisible(issue);

    const QString title = CurrentSpread.SpreadTitle.Trimmed();
    if (!title.isEmpty()) setCaption(ReadingCaption + title);
    ThisLocationNumber = 1;

    for (int i = 1; i <= CurrentSpread.LocationCount; ++i) {
        PlaceLocation(i);
        lblCardName(i)->setForeColor(QBColor(15));
        lblCardName(i)->setBackColor(QBColor(CurrentLocationColour));
        lblCardName(i)->clear();
        lblCardName(i)->setVisible(CurrentDeck.DisplayCardTitles != 0);
    }
    ShowBackground();
}

void frmNewReading::cmdContinue_Click() {
    if (CurrentDeck.DisplayCardTitles == 0) {
        // Without titles a card picture takes the room of the hidden name.
        IMGHeight = static_cast<Integer>(imgCard(1)->Height() + ControlHeight(lblCardName(1)));
    }

    if (IntroductionShown() && !TableShown) {
        if (CurrentSpread.LocationCount < 1) {
            MsgBox(QStringLiteral("No locations were created for this spread."), vbInformation);
            cmdContinue->setEnabled(false);
        }
        CurrentReading.ReadingSpreadId = CurrentSpread.SpreadId;
        CurrentReading.ReadingDeckId = CurrentDeck.DeckId;
        PlaceInFrameRight(*this, false);
        Table().Show();
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
        if (Forward) Table().Show();
        else Table().Hide();
    }
    for (QPushButton* button : {cmdNotes, cmdInterpret, cmdSave, cmdQuickHelp, cmdPrint,
                                static_cast<QPushButton*>(cmdFakeShuffle)})
        button->setEnabled(Forward);
    cmdContinue->setText(Forward ? QStringLiteral("&Back") : QStringLiteral("C&ontinue"));

    lblTheIssue->setText(IssueForSaving(txtIssue->text()));
    lblTheIssue->hide();
    UpdateCaption();
    if (Forward && frmReadingCardsIsLoaded) Show();
}

void frmNewReading::UpdateCaption() {
    const QString title = ReadingCaption + CurrentSpread.SpreadTitle.Trimmed();
    if (lblTheIssue->text().trimmed().isEmpty()) setCaption(title);
    else setCaption(title + QStringLiteral(": ") + lblTheIssue->text());
}

void frmNewReading::txtIssue_LostFocus() {
    txtIssue->setText(txtIssue->text().trimmed());
    lblTheIssue->setText(txtIssue->text());
    CurrentReading.Issue = txtIssue->text();
}

void frmNewReading::cmdDeal_Click() {
    if (ThisLocationNumber > CurrentSpread.LocationCount) {
        // A new deal over a complete one: the name and notes stay with the
        // reading, everything else starts again.
        cmdNextCard->setEnabled(true);
        cmdAllCards->setEnabled(true);
        cmdContinue->setEnabled(true);
        cmdDeal->setEnabled(false);
        const FixedText<2500> notes = CurrentReading.ReadingNotes;
        const FixedText<50> name = CurrentReading.ReadingName;
        ResetReading(CurrentReading);
        CurrentReading.ReadingNotes = notes;
        CurrentReading.ReadingName = name;
        CurrentReading.UseReversed = Flag(UseReversed);
        CurrentReading.AllowDuplicateCards = Flag(AllowDuplicateCards);
        for (std::size_t t = 0; t < 4; ++t) CurrentReading.CardTypeSelected[t] = Flag(CardTypeSelected[t]);
        ThisLocationNumber = 1;
        for (int i = 1; i <= CurrentSpread.LocationCount; ++i) {
            ClearLocationCard(i);
            lblCardName(i)->clear();
            lblCardNumber(i)->show();
        }
    }
    DeckCardsLeft = CurrentDeck.CardCount;
    Table().Show();
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
    if (DeckCardsLeft > 1) cmdFakeShuffle->setEnabled(true);
}

void frmNewReading::TableGone() {
    cmdAllCards->setEnabled(false);
    cmdNextCard->setEnabled(false);
    cmdDeal->setEnabled(true);
    cmdFakeShuffle->setEnabled(false);
}

void frmNewReading::EnableShuffle(bool enabled) { cmdFakeShuffle->setEnabled(enabled); }

void frmNewReading::DealCard(Integer card, Integer upright) {
    ReadingChanged = true;
    cmdContinue->setEnabled(false);
    const int L = ThisLocationNumber;
    ShowCardInLocation(L, card, upright == True16);
    lblCardNumber(L)->hide();
    lblCardName(L)->setText(DeckCard(card).CardTitle.Trimmed());
    Element(CurrentReading.DealtCard, L) = card;
    Element(CurrentReading.DealtUpright, L) = upright;
    ThisLocationNumber = static_cast<Integer>(L + 1);
    cmdInterpret->setEnabled(true);
    Show();
}

void frmNewReading::cmdNextCard_Click() { Table().PickRandomCard(); }

void frmNewReading::cmdAllCards_Click() {
    QPointer<frmNewReading> self(this);
    do {
        if (DeckCardsLeft == 0) {
            // Lay a fresh table: the loaded one anew, or a new one.
            if (frmReadingCards* table = ScreenSlot<frmReadingCards>()) table->Form_Load();
            else Table();
        }
        const Integer before = ThisLocationNumber;
        Table().PickRandomCard();
        // The reading may have closed while a shuffle ran between two cards.
        if (!self || ScreenSlot<frmNewReading>() != self.data()) return;
        if (ThisLocationNumber == before) return;
    } while (ThisLocationNumber <= CurrentSpread.LocationCount);
}

void frmNewReading::cmdFakeShuffle_Press() { Table().FakeShuffle(); }

void frmNewReading::cmdFakeShuffle_Release() {
    if (frmReadingCards* table = ScreenSlot<frmReadingCards>()) table->StopShuffle();
}

void frmNewReading::cmdInterpret_Click() {
    const int t = ThisLocationNumber;
    if (t > CurrentSpread.LocationCount) {
        QueryLocation = CurrentSpread.LocationCount;
    } else if (t >= 2) {
        QueryLocation = static_cast<Integer>(t - 1);   // the last card dealt
    } else if (t == 1) {
        QueryLocation = 1;                             // the location shows without a card
    } else {
        cmdInterpret->setEnabled(false);
        return;
    }
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

void frmNewReading::cmdPrint_Click() { PrintEntry(ReadingPrintout(ThisLocationNumber)); }

void frmNewReading::cmdQuickHelp_Click() { Get<frmQuickHelp>().Show(); }

void frmNewReading::cmdSave_Click() {
    const bool onTable = DeckCardsLeft != 0 && ThisLocationNumber <= CurrentSpread.LocationCount;
    frmReadingCards* table = ScreenSlot<frmReadingCards>();
    for (int i = 1; i <= frmReadingCards::TableSize; ++i) {
        const bool visible = onTable && table && table->IsFaceDown(i);
        Element(CurrentReading.TableCardVisible, i) = Flag(visible);
    }
    CurrentReading.DealtCount = static_cast<Integer>(ThisLocationNumber - 1);
    CurrentReading.ReadingDeckId = CurrentDeck.DeckId;
    CurrentReading.ReadingDeckRevision = CurrentDeck.DeckRevision;
    CurrentReading.Issue = lblTheIssue->text();
    CurrentReading.ReadingSpreadId = CurrentSpread.SpreadId;
    CurrentReading.ReadingSpreadRevision = CurrentSpread.SpreadRevision;
    for (int i = 1; i <= frmReadingCards::TableSize; ++i) {
        Element(CurrentReading.LocationIsUpright, i) = frmReadingCards::LocationIsUpright()(i);
        Element(CurrentReading.LocationCard, i) = frmReadingCards::LocationCard()(i);
    }
    Get<frmSaveReading>().Show(true);
}

void frmNewReading::cmdClose_Click() {
    if (!ConfirmClose(ReadingChanged, QStringLiteral("Save changes to the reading?"))) return;
    CloseReading();
}

void frmNewReading::CloseReading() {
    UnloadScreen<frmReadingCards>();
    Get<frmMainScreen>().Show();
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
        frmReadingCards::LoadingReading = false;
        ReportError(error);
        CloseReading();
        return false;
    }
}

void frmNewReading::FillFields() {
    frmReadingCards::LoadingReading = true;
    Initialize();
    QueryLocation = static_cast<Integer>(CurrentReading.DealtCount + 1);

    PlaceInFrameRight(*this, false);
    Show();
    txtIssue->setText(CurrentReading.Issue.Trimmed());
    cmdContinue_Click();

    const int dealt = CurrentReading.DealtCount;
    const int locationCount = CurrentSpread.LocationCount;
    const bool open = dealt < locationCount;
    cmdNextCard->setEnabled(open);
    cmdAllCards->setEnabled(open);
    cmdDeal->setEnabled(!open);
    for (QPushButton* button : {cmdNotes, cmdSave, cmdPrint, cmdQuickHelp}) button->setEnabled(true);

    for (int i = 1; i <= dealt; ++i) {
        const int card = Element(CurrentReading.DealtCard, i);
        ShowCardInLocation(i, card, Element(CurrentReading.DealtUpright, i) != 0);
        lblCardNumber(i)->hide();
        lblCardName(i)->setText(DeckCard(card).CardTitle.Trimmed());
    }
    ThisLocationNumber = static_cast<Integer>(dealt + 1);

    if (open) {
        frmReadingCards& table = Table();
        table.Show();
        for (int i = 1; i <= CurrentDeck.CardCount; ++i)
            table.SetFaceDown(i, Element(CurrentReading.TableCardVisible, i) != 0);
    } else {
        UnloadScreen<frmReadingCards>();
    }

    for (int i = 1; i <= frmReadingCards::TableSize; ++i) {
        frmReadingCards::LocationCard()(i) = Element(CurrentReading.LocationCard, i);
        frmReadingCards::LocationIsUpright()(i) = Element(CurrentReading.LocationIsUpright, i);
    }

    // The cards still on the table are counted on top of what laying the
    // table left in DeckCardsLeft: the count stands above the true number of
    // cards, as it always has.
    frmReadingCards::MaxCardsUsed = 0;
    if (frmReadingCards* table = ScreenSlot<frmReadingCards>()) {
        for (int i = 1; i <= frmReadingCards::TableSize; ++i) {
            table->PaintBack(i);
            if (!table->IsFaceDown(i)) continue;
            ++frmReadingCards::MaxCardsUsed;
            ++DeckCardsLeft;
        }
    }
    frmReadingCards::MaxCardsUsed = static_cast<Integer>(frmReadingCards::MaxCardsUsed + dealt);

    ReadingChanged = false;
    Show();
    if (!open) UnloadScreen<frmReadingCards>();
    frmReadingCards::LoadingReading = false;
}
