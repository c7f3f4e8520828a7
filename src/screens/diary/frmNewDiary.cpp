#include "screens/diary/frmNewDiary.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/platform/Palette.h"
#include "core/readings/DiaryCards.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/diary/frmDiaryCards.h"
#include "screens/diary/frmDiaryHelp.h"
#include "screens/diary/frmDiaryInterpretLocation.h"
#include "screens/diary/frmDiaryNotes.h"
#include "screens/diary/frmSaveDiary.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/ShellHooks.h"
#include "screens/widgets/ClickLabel.h"
#include "screens/widgets/ImageBox.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {

void SetBoxColours(QCheckBox* box, const QColor& back, const QColor& fore) {
    QPalette palette = box->palette();
    palette.setColor(QPalette::Window, back);
    palette.setColor(QPalette::WindowText, fore);
    box->setPalette(palette);
    box->setAutoFillBackground(true);
}

}  // namespace

frmNewDiary::frmNewDiary() : EntryScreen(tr("Diary")), cmdCardTitle(1, MaxLocations), chkReversed(1, MaxLocations) {
    setObjectName(QStringLiteral("frmNewDiary"));
    cmdContinue = AddPanelButton(QStringLiteral("cmdContinue"), tr("C&ontinue"), 120, true);
    cmdInterpret = AddPanelButton(QStringLiteral("cmdInterpret"), tr("&Interpret"), 600, false);
    cmdNotes = AddPanelButton(QStringLiteral("cmdNotes"), tr("S&ummary"), 1060, false);
    cmdPrint = AddPanelButton(QStringLiteral("cmdPrint"), tr("&Print"), 1525, false);
    cmdSave = AddPanelButton(QStringLiteral("cmdSave"), tr("&Save"), 2000, false);
    cmdQuickHelp = AddPanelButton(QStringLiteral("cmdQuickHelp"), tr("&Quick Help"), 2475, false);
    cmdClose = AddPanelButton(QStringLiteral("cmdClose"), tr("&Close"), 5280, true);

    for (int i = 1; i <= MaxLocations; ++i) {
        lblCardNumber(i)->setText(tr("Loc."));
        // The button stands under the location's title, where a reading shows
        // the card's name.
        auto* button = new QPushButton(tr("Select Card"), picLocation(i));
        button->setObjectName(QStringLiteral("cmdCardTitle"));
        button->setProperty("Index", i);
        button->setAutoDefault(false);
        PlaceControl(button, 720, 525, 975, 435);
        cmdCardTitle(i) = button;
        auto* box = new QCheckBox(tr("Reversed"), picLocation(i));
        box->setObjectName(QStringLiteral("chkReversed"));
        box->setProperty("Index", i);
        PlaceControl(box, 720, 435, 975, 255);
        box->hide();
        chkReversed(i) = box;

        connect(button, &QPushButton::clicked, this, Handler([this, i] { cmdCardTitle_Click(i); }));
        connect(box, &QCheckBox::clicked, this, Handler([this, i] { chkReversed_Click(i); }));
    }

    connect(cmdContinue, &QPushButton::clicked, this, Handler([this] { cmdContinue_Click(); }));
    connect(cmdInterpret, &QPushButton::clicked, this, Handler([this] { cmdInterpret_Click(); }));
    connect(cmdNotes, &QPushButton::clicked, this, Handler([this] { cmdNotes_Click(); }));
    connect(cmdPrint, &QPushButton::clicked, this, Handler([this] { cmdPrint_Click(); }));
    connect(cmdSave, &QPushButton::clicked, this, Handler([this] { cmdSave_Click(); }));
    connect(cmdQuickHelp, &QPushButton::clicked, this, Handler([this] { cmdQuickHelp_Click(); }));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
}

void frmNewDiary::Form_Load() {
    CaptureCardFrame();
    CentreInFrame(*this);
    Initialize();
    FitBackgroundToPage();
}

void frmNewDiary::Initialize() {
    LoadSpreadLocations(TheRun.CurrentSpread.SpreadId, TheRun.CurrentSpread.LocationCount);
    ShowSpreadTexts();
    ResetOrientation();

    const bool issue = TheRun.CurrentDiary.IssueAsked != 0;
    lblIssue->setVisible(issue);
    txtIssue->setVisible(issue);
    lblTheIssue->setVisible(issue);
    if (issue) txtIssue->setText(TheRun.CurrentDiary.Issue.Trimmed());

    const QString title = TheRun.CurrentSpread.SpreadTitle.Trimmed();
    if (!title.isEmpty()) setCaption(tr("Diary - %1").arg(title));
    FocusLocation = 1;
    // Every location stands on its row of no card, without marking anything
    // changed: the focus stays on location 1 and the entry's cards as read.
    FillCardLists(TheRun.DiaryLists, TheRun.CurrentDeck, TheRun.CurrentSpread.LocationCount, TheRun.CardTypeSelected);

    const QColor current = QBColor(TheRun.CurrentLocationColour);
    const QColor other = QBColor(TheRun.OtherLocationColour);
    for (int i = 1; i <= TheRun.CurrentSpread.LocationCount; ++i) {
        PlaceLocation(i);
        SetBoxColours(chkReversed(i), current, other);
        cmdCardTitle(i)->setText(SelectedText(TheRun.DiaryLists, i));
        cmdCardTitle(i)->show();
        ClearLocationCard(i);
        lblCardNumber(i)->show();
    }
    ShowBackground();
    DiaryChanged = false;
}

void frmNewDiary::ResetOrientation() {
    for (int i = 1; i <= MaxLocations; ++i) {
        chkReversed(i)->setChecked(Element(TheRun.CurrentDiary.DealtUpright, i) == 0);
        chkReversed(i)->hide();
    }
}

QString frmNewDiary::LocationTitle(int location) const { return lblCardTitle(location)->text(); }

void frmNewDiary::GiveFocusToCard(int index) {
    cmdCardTitle(FocusLocation)->show();
    FocusLocation = static_cast<Integer>(index);
    QPushButton* button = cmdCardTitle(FocusLocation);
    button->show();
    button->raise();
    button->setFocus();
    SelectedCardText = cmdCardTitle(index)->text();
}

void frmNewDiary::cmdContinue_Click() {
    TheRun.CurrentDiary.ReadingSpreadId = TheRun.CurrentSpread.SpreadId;
    TheRun.CurrentDiary.ReadingDeckId = TheRun.CurrentDeck.DeckId;
    if (IntroductionShown()) {
        txtIssue->setText(txtIssue->text().trimmed());
        TheRun.CurrentDiary.Issue = txtIssue->text();
        lblTheIssue->setText(txtIssue->text());
    }
    const bool Forward = IntroductionShown();
    ShowPage(Forward);
    lblTheIssue->setText(IssueForSaving(TheRun.CurrentDiary.Issue.Trimmed()));
    lblTheIssue->hide();
    for (QPushButton* button : {cmdNotes, cmdInterpret, cmdSave, cmdQuickHelp, cmdPrint}) button->setEnabled(Forward);
    cmdContinue->setText(Forward ? tr("&Back") : tr("C&ontinue"));
}

void frmNewDiary::txtIssue_LostFocus() { txtIssue->setText(txtIssue->text().trimmed()); }

void frmNewDiary::cmdCardTitle_Click(int Index) {
    GiveFocusToCard(Index);
    ChooseCard(Index);
}

void frmNewDiary::picLocation_Click(int Index) {
    if (Index == FocusLocation) cmdInterpret_Click();
    cmdCardTitle(Index)->show();
    if (Index != FocusLocation) GiveFocusToCard(Index);
}

void frmNewDiary::imgCard_Click(int Index) { picLocation_Click(Index); }

void frmNewDiary::imgCard_DblClick(int Index) {
    (void)Index;
    cmdInterpret_Click();
}

void frmNewDiary::ChooseCard(int Index) {
    PickLocation = FocusLocation;
    Get<frmDiaryCards>().Show(true);
    // The card choice has written the location's card and orientation.
    const int pick = PickLocation;
    const Integer dealt = Element(TheRun.CurrentDiary.DealtCard, pick);
    const bool upright = Element(TheRun.CurrentDiary.DealtUpright, pick) != 0;
    if (SelectedCard(TheRun.DiaryLists, Index) != dealt || chkReversed(Index)->isChecked() == upright) {
        const int row = RowOfCard(TheRun.DiaryLists, pick, dealt);
        if (row != TheRun.DiaryLists.Selected(pick)) SelectRow(pick, row);
        cmdCardTitle(pick)->setText(SelectedText(TheRun.DiaryLists, pick));
        SetReversed(pick, !upright);
    }
    picLocation(pick)->setFocus();
}

void frmNewDiary::SelectRow(int index, int row) {
    DiaryChanged = true;
    if (OpeningDiary && !FillingLocation) {
        TheRun.DiaryLists.Selected(index) = row;
        return;
    }
    const int n =
        ChooseRow(TheRun.DiaryLists, TheRun.CurrentDiary, index, row, SelectedCardText, TheRun.AllowDuplicateCards,
                  FillingLocation, TheRun.CurrentDeck, TheRun.CurrentSpread.LocationCount);
    if (FocusLocation != index) GiveFocusToCard(index);
    if (n > 0) {
        ShowCardInLocation(index, n, !chkReversed(index)->isChecked());
        lblCardNumber(index)->hide();
    } else {
        lblCardNumber(index)->show();
        ClearLocationCard(index);
    }
    SelectedCardText = SelectedText(TheRun.DiaryLists, index);
}

void frmNewDiary::SetReversed(int index, bool reversed) {
    if (chkReversed(index)->isChecked() == reversed) return;
    chkReversed(index)->setChecked(reversed);
    chkReversed_Click(index);
}

void frmNewDiary::EmptyLocation(int Index) {
    // The list in hand is the focused location's, and the card it gives back
    // is the one that location held.
    if (Index != FocusLocation) GiveFocusToCard(Index);
    SelectRow(Index, IndexOfNone(TheRun.DiaryLists, Index));
    cmdCardTitle(Index)->setText(SelectedText(TheRun.DiaryLists, Index));
}

void frmNewDiary::chkReversed_Click(int Index) {
    DiaryChanged = true;
    Element(TheRun.CurrentDiary.DealtUpright, Index) = Flag(!chkReversed(Index)->isChecked());
    if (TheRun.DiaryLists.Selected(Index) != IndexOfNone(TheRun.DiaryLists, Index))
        ShowCardInLocation(Index, Element(TheRun.CurrentDiary.DealtCard, Index), !chkReversed(Index)->isChecked());
    else ClearLocationCard(Index);
    cmdCardTitle(Index)->show();
    if (Index != FocusLocation) GiveFocusToCard(Index);
}

void frmNewDiary::MarkLocation(int location, bool marked) {
    if (location < 1 || location > MaxLocations) return;
    EntryScreen::MarkLocation(location, marked);
    SetBoxColours(chkReversed(location), picLocation(location)->BackColor(), QBColor(TheRun.OtherLocationColour));
}

void frmNewDiary::cmdInterpret_Click() {
    PickLocation = FocusLocation;
    // One location at a time: a page still open for another location goes.
    UnloadScreen<frmDiaryInterpretLocation>();
    Get<frmDiaryInterpretLocation>().Show();
}

void frmNewDiary::cmdNotes_Click() { Get<frmDiaryNotes>().Show(); }

void frmNewDiary::cmdPrint_Click() { PrintEntry(DiaryPrintout(TheRun.CurrentDiary)); }

void frmNewDiary::cmdQuickHelp_Click() { Get<frmDiaryHelp>().Show(); }

void frmNewDiary::cmdSave_Click() {
    GatherDiary(TheRun.CurrentDiary, TheRun.CurrentDeck, TheRun.CurrentSpread, txtIssue->text().trimmed(),
                FocusLocation);
    Get<frmSaveDiary>().Show(true);
}

void frmNewDiary::cmdClose_Click() {
    if (!ConfirmClose(DiaryChanged, tr("Save changes to diary before exit?"))) return;
    Unload();
    ReturnToMainScreen();
}

void frmNewDiary::FillFields() {
    Initialize();
    txtIssue->setText(TheRun.CurrentDiary.Issue.Trimmed());
    lblTheIssue->setText(TheRun.CurrentDiary.Issue.Trimmed());
    for (int i = 1; i <= TheRun.CurrentSpread.LocationCount; ++i) {
        FillingLocation = true;
        ShowRowOfLocation(i);
        FillingLocation = false;
    }
    DiaryChanged = false;
    if (IntroductionShown()) cmdContinue_Click();
    OpeningDiary = false;
    const int choice = TheRun.CurrentDiary.DiaryChoice;
    GiveFocusToCard(choice >= 1 && choice <= TheRun.CurrentSpread.LocationCount ? choice : 1);
}

void frmNewDiary::ShowRowOfLocation(int i) {
    {
        const QSignalBlocker quiet(chkReversed(i));
        chkReversed(i)->setChecked(Element(TheRun.CurrentDiary.DealtUpright, i) == 0);
    }
    // A card the deck no longer holds leaves the location empty, with its
    // number showing, rather than ending the program.
    SelectRow(i, RowToRestore(TheRun.DiaryLists, TheRun.CurrentDiary, i, TheRun.CurrentDeck));
    cmdCardTitle(i)->setText(SelectedText(TheRun.DiaryLists, i));
    cmdCardTitle(i)->show();
}

void frmNewDiary::Form_Activate() { UnloadScreen<frmDiaryInterpretLocation>(); }

void frmNewDiary::Form_Unload(bool& cancel) {
    (void)cancel;
    UnloadScreen<frmDiaryInterpretLocation>();
    UnloadScreen<frmDiaryNotes>();
    HideLocations();
}

void frmNewDiary::Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) {
    EntryScreen::Form_KeyDown(key, shift, handled);
    if (handled) return;
    // Delete on a location's button empties it, as Delete in its list does.
    if (key == Qt::Key_Delete) {
        for (int i = 1; i <= TheRun.CurrentSpread.LocationCount; ++i) {
            if (focusWidget() != cmdCardTitle(i)) continue;
            handled = true;
            EmptyLocation(i);
            return;
        }
    }
}
