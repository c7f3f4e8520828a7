#include "screens/diary/frmNewDiary.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/platform/Palette.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/diary/frmDiaryCards.h"
#include "screens/diary/frmDiaryInterpretLocation.h"
#include "screens/diary/frmDiaryNotes.h"
#include "screens/diary/frmSaveDiary.h"
#include "screens/platform/MsgBox.h"
#include "screens/shell/ClickLabel.h"
#include "screens/shell/ImageBox.h"
#include "screens/shell/ScreenPlacement.h"
#include "screens/shell/frmDiaryHelp.h"
#include "screens/shell/frmMainScreen.h"

namespace {

const QString DiaryCaption = QStringLiteral("Diary - ");
// The key code of Delete in a location's list.
constexpr int KeyDelete = 46;

void SetBoxColours(QCheckBox* box, const QColor& back, const QColor& fore) {
    QPalette palette = box->palette();
    palette.setColor(QPalette::Window, back);
    palette.setColor(QPalette::WindowText, fore);
    box->setPalette(palette);
    box->setAutoFillBackground(true);
}

}  // namespace

frmNewDiary::frmNewDiary()
    : EntryScreen(QStringLiteral("Diary")), cboCardName(1, MaxLocations), cmdCardTitle(1, MaxLocations),
      chkReversed(1, MaxLocations) {
    setObjectName(QStringLiteral("frmNewDiary"));
    cmdContinue = AddPanelButton(QStringLiteral("cmdContinue"), QStringLiteral("C&ontinue"), 120, true);
    cmdInterpret = AddPanelButton(QStringLiteral("cmdInterpret"), QStringLiteral("&Interpret"), 600, false);
    cmdNotes = AddPanelButton(QStringLiteral("cmdNotes"), QStringLiteral("S&ummary"), 1060, false);
    cmdPrint = AddPanelButton(QStringLiteral("cmdPrint"), QStringLiteral("&Print"), 1525, false);
    cmdSave = AddPanelButton(QStringLiteral("cmdSave"), QStringLiteral("&Save"), 2000, false);
    cmdQuickHelp = AddPanelButton(QStringLiteral("cmdQuickHelp"), QStringLiteral("&Quick Help"), 2475, false);
    cmdClose = AddPanelButton(QStringLiteral("cmdClose"), QStringLiteral("&Close"), 5280, true);

    for (int i = 1; i <= MaxLocations; ++i) {
        lblCardNumber(i)->setText(QStringLiteral("Loc."));
        // The list is the location's memory of what it may take; the keeper
        // chooses through the button and the card choice, so it stays hidden.
        auto* list = new QComboBox(picLocation(i));
        list->setObjectName(QStringLiteral("cboCardName"));
        list->setProperty("Index", i);
        PlaceControl(list, 0, 975 - 315, 1695, 315);
        list->hide();
        cboCardName(i) = list;
        // The button stands under the location's title, where a reading shows
        // the card's name.
        auto* button = new QPushButton(QStringLiteral("Select Card"), picLocation(i));
        button->setObjectName(QStringLiteral("cmdCardTitle"));
        button->setProperty("Index", i);
        button->setAutoDefault(false);
        PlaceControl(button, 720, 525, 975, 435);
        cmdCardTitle(i) = button;
        auto* box = new QCheckBox(QStringLiteral("Reversed"), picLocation(i));
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
    SelectPrompt = QStringLiteral(" [Select]");
    Initialize();
    FitBackgroundToPage();
}

void frmNewDiary::Initialize() {
    LoadSpreadLocations(CurrentSpread.SpreadId, CurrentSpread.LocationCount);
    Initializing = true;
    ShowSpreadTexts();
    ResetOrientation();

    const bool issue = CurrentDiary.IssueAsked != 0;
    lblIssue->setVisible(issue);
    txtIssue->setVisible(issue);
    lblTheIssue->setVisible(issue);
    if (issue) txtIssue->setText(CurrentDiary.Issue.Trimmed());

    const QString title = CurrentSpread.SpreadTitle.Trimmed();
    if (!title.isEmpty()) setCaption(DiaryCaption + title);
    FocusLocation = 1;
    FillCardLists();

    const QColor current = QBColor(CurrentLocationColour);
    const QColor other = QBColor(OtherLocationColour);
    for (int i = 1; i <= CurrentSpread.LocationCount; ++i) {
        PlaceLocation(i);
        SetBoxColours(chkReversed(i), current, other);
        // A fresh list stands on its row of no card; the location is empty.
        cboCardName(i)->setCurrentIndex(getIndexOfNONE(i));
        cmdCardTitle(i)->setText(cboCardName(i)->currentText());
        cmdCardTitle(i)->show();
        ClearLocationCard(i);
        lblCardNumber(i)->show();
    }
    ShowBackground();
    DiaryChanged = false;
    Initializing = false;
}

void frmNewDiary::ResetOrientation() {
    for (int i = 1; i <= MaxLocations; ++i) {
        chkReversed(i)->setChecked(Element(CurrentDiary.DealtUpright, i) == 0);
        chkReversed(i)->hide();
    }
}

void frmNewDiary::FillCardLists() {
    for (int i = 1; i <= CurrentSpread.LocationCount; ++i) {
        QComboBox* list = cboCardName(i);
        const QSignalBlocker quiet(list);
        list->clear();
        list->addItem(SelectPrompt, 0);
        for (int n = 1; n <= CurrentDeck.CardCount; ++n) {
            const CardRecord& card = DeckCard(n);
            const int type = card.CardType;
            // Cards of the types left out never appear.
            if (type >= 0 && type <= 3 && CardTypeSelected[static_cast<std::size_t>(type)])
                list->addItem(card.CardTitle.Trimmed(), n);
        }
    }
}

int frmNewDiary::getIndexOfNONE(int index) const { return cboCardName(index)->findText(SelectPrompt); }

bool frmNewDiary::HasCardIn(int location) const {
    const int row = cboCardName(location)->currentIndex();
    return row >= 0 && row != getIndexOfNONE(location);
}

QString frmNewDiary::LocationTitle(int location) const { return lblCardTitle(location)->text(); }

QList<QPair<QString, int>> frmNewDiary::CardRows(int location) const {
    const QComboBox* box = cboCardName(location);
    QList<QPair<QString, int>> rows;
    for (int r = 0; r < box->count(); ++r) rows.append({box->itemText(r), box->itemData(r).toInt()});
    return rows;
}

void frmNewDiary::GiveFocusToCard(int index) {
    cboCardName(FocusLocation)->hide();
    cmdCardTitle(FocusLocation)->show();
    FocusLocation = static_cast<Integer>(index);
    QPushButton* button = cmdCardTitle(FocusLocation);
    button->show();
    button->raise();
    button->setFocus();
    SelectedCardText = cmdCardTitle(index)->text();
}

void frmNewDiary::cmdContinue_Click() {
    CurrentDiary.ReadingSpreadId = CurrentSpread.SpreadId;
    CurrentDiary.ReadingDeckId = CurrentDeck.DeckId;
    if (IntroductionShown()) {
        txtIssue->setText(txtIssue->text().trimmed());
        CurrentDiary.Issue = txtIssue->text();
        lblTheIssue->setText(txtIssue->text());
    }
    const bool Forward = IntroductionShown();
    ShowPage(Forward);
    lblTheIssue->setText(IssueForSaving(CurrentDiary.Issue.Trimmed()));
    lblTheIssue->hide();
    for (QPushButton* button : {cmdNotes, cmdInterpret, cmdSave, cmdQuickHelp, cmdPrint}) button->setEnabled(Forward);
    cmdContinue->setText(Forward ? QStringLiteral("&Back") : QStringLiteral("C&ontinue"));
}

void frmNewDiary::txtIssue_LostFocus() { txtIssue->setText(txtIssue->text().trimmed()); }

void frmNewDiary::cmdCardTitle_Click(int Index) {
    GiveFocusToCard(Index);
    cboCardName_DropDown(Index);
}

void frmNewDiary::picLocation_Click(int Index) {
    cboCardName(FocusLocation)->resize(picLocation(Index)->width(), cboCardName(FocusLocation)->height());
    if (Index == FocusLocation) cmdInterpret_Click();
    cmdCardTitle(Index)->show();
    if (Index != FocusLocation) GiveFocusToCard(Index);
}

void frmNewDiary::imgCard_Click(int Index) { picLocation_Click(Index); }

void frmNewDiary::imgCard_DblClick(int Index) {
    (void)Index;
    cmdInterpret_Click();
}

void frmNewDiary::cboCardName_DropDown(int Index) {
    PickLocation = FocusLocation;
    Get<frmDiaryCards>().Show(true);
    // The card choice has written the location's card and orientation.
    const int pick = PickLocation;
    const int dealt = Element(CurrentDiary.DealtCard, pick);
    const bool upright = Element(CurrentDiary.DealtUpright, pick) != 0;
    const int selected = cboCardName(Index)->currentData().toInt();
    if (selected != dealt || chkReversed(Index)->isChecked() == upright) {
        const int row = cboCardName(pick)->findData(dealt);
        if (row != cboCardName(pick)->currentIndex()) SelectRow(pick, row < 0 ? getIndexOfNONE(pick) : row);
        cmdCardTitle(pick)->setText(cboCardName(pick)->currentText());
        SetReversed(pick, !upright);
    }
    picLocation(pick)->setFocus();
}

void frmNewDiary::SelectRow(int index, int row) {
    {
        const QSignalBlocker quiet(cboCardName(index));
        cboCardName(index)->setCurrentIndex(row);
    }
    cboCardName_Click(index);
}

void frmNewDiary::SetReversed(int index, bool reversed) {
    if (chkReversed(index)->isChecked() == reversed) return;
    chkReversed(index)->setChecked(reversed);
    chkReversed_Click(index);
}

void frmNewDiary::cboCardName_Click(int Index) {
    cboCardName(Index)->resize(picLocation(Index)->width(), cboCardName(Index)->height());
    DiaryChanged = true;
    if (OpeningDiary && !FillingLocation) return;
    if (!AllowDuplicateCards && !Initializing && !FillingLocation) ReturnCardToLists(Index, SelectedCardText);
    const int n = CardNumberOfRow(Index);
    if (FocusLocation != Index) GiveFocusToCard(Index);
    if (n > 0) {
        Element(CurrentDiary.DealtCard, Index) = static_cast<Integer>(n);
        ShowCardInLocation(Index, n, !chkReversed(Index)->isChecked());
        lblCardNumber(Index)->hide();
    } else {
        lblCardNumber(Index)->show();
        Element(CurrentDiary.DealtCard, Index) = 0;
        ClearLocationCard(Index);
    }
    if (!AllowDuplicateCards && !Initializing) TakeCardFromLists(Index);
    SelectedCardText = cboCardName(Index)->currentText();
}

int frmNewDiary::CardNumberOfRow(int index) const {
    const QComboBox* list = cboCardName(index);
    const QString text = list->currentText();
    if (text == SelectPrompt) return getIndexOfNONE(index);
    // Found by title: two cards of one title count as the first of them.
    const QString title = text.trimmed();
    for (int n = 1; n <= CurrentDeck.CardCount; ++n)
        if (DeckCard(n).CardTitle.Trimmed() == title) return n;
    return getIndexOfNONE(index);
}

void frmNewDiary::ReturnCardToLists(int index, const QString& text) {
    if (text == SelectPrompt) return;
    // The card comes back by its title only: its row carries no card number
    // any more, as the lists always did.
    for (int i = 1; i <= CurrentSpread.LocationCount; ++i) {
        if (i == index) continue;
        const QSignalBlocker quiet(cboCardName(i));
        cboCardName(i)->addItem(text, 0);
    }
}

void frmNewDiary::TakeCardFromLists(int index) {
    const QString text = cboCardName(index)->currentText();
    if (text == SelectPrompt) return;
    for (int i = 1; i <= CurrentSpread.LocationCount; ++i) {
        if (i == index) continue;
        QComboBox* list = cboCardName(i);
        const int row = list->findText(text, Qt::MatchExactly);
        // A card missing from a list it should still be in is a broken entry.
        if (row < 0) RaiseError(5, QStringLiteral("Invalid procedure call or argument"));
        const QSignalBlocker quiet(list);
        list->removeItem(row);
    }
}

void frmNewDiary::cboCardName_KeyUp(int Index, int KeyCode) {
    if (KeyCode != KeyDelete) return;
    // The list in hand is the focused location's, and the card it gives back
    // is the one that location held.
    if (Index != FocusLocation) GiveFocusToCard(Index);
    SelectRow(Index, getIndexOfNONE(Index));
    cmdCardTitle(Index)->setText(cboCardName(Index)->currentText());
}

void frmNewDiary::chkReversed_Click(int Index) {
    DiaryChanged = true;
    Element(CurrentDiary.DealtUpright, Index) = Flag(!chkReversed(Index)->isChecked());
    if (cboCardName(Index)->currentIndex() != getIndexOfNONE(Index))
        ShowCardInLocation(Index, Element(CurrentDiary.DealtCard, Index), !chkReversed(Index)->isChecked());
    else
        ClearLocationCard(Index);
    cmdCardTitle(Index)->show();
    if (Index != FocusLocation) GiveFocusToCard(Index);
}

void frmNewDiary::MarkLocation(int location, bool marked) {
    if (location < 1 || location > MaxLocations) return;
    EntryScreen::MarkLocation(location, marked);
    SetBoxColours(chkReversed(location), picLocation(location)->BackColor(), QBColor(OtherLocationColour));
}

void frmNewDiary::cmdInterpret_Click() {
    PickLocation = FocusLocation;
    // One location at a time: a page still open for another location goes.
    UnloadScreen<frmDiaryInterpretLocation>();
    Get<frmDiaryInterpretLocation>().Show();
}

void frmNewDiary::cmdNotes_Click() { Get<frmDiaryNotes>().Show(); }

void frmNewDiary::cmdPrint_Click() { PrintEntry(DiaryPrintout()); }

void frmNewDiary::cmdQuickHelp_Click() { Get<frmDiaryHelp>().Show(); }

void frmNewDiary::cmdSave_Click() {
    CurrentDiary.ReadingDeckId = CurrentDeck.DeckId;
    CurrentDiary.ReadingDeckRevision = CurrentDeck.DeckRevision;
    CurrentDiary.Issue = txtIssue->text().trimmed();
    CurrentDiary.ReadingSpreadId = CurrentSpread.SpreadId;
    CurrentDiary.ReadingSpreadRevision = CurrentSpread.SpreadRevision;
    CurrentDiary.DiaryChoice = FocusLocation;
    Get<frmSaveDiary>().Show(true);
}

void frmNewDiary::cmdClose_Click() {
    if (!ConfirmClose(DiaryChanged, QStringLiteral("Save changes to diary before exit?"))) return;
    Unload();
    Get<frmMainScreen>().Show();
}

void frmNewDiary::FillFields() {
    Initialize();
    txtIssue->setText(CurrentDiary.Issue.Trimmed());
    lblTheIssue->setText(CurrentDiary.Issue.Trimmed());
    for (int i = 1; i <= CurrentSpread.LocationCount; ++i) {
        FillingLocation = true;
        ShowRowOfLocation(i);
        FillingLocation = false;
    }
    DiaryChanged = false;
    if (IntroductionShown()) cmdContinue_Click();
    OpeningDiary = false;
    const int choice = CurrentDiary.DiaryChoice;
    GiveFocusToCard(choice >= 1 && choice <= CurrentSpread.LocationCount ? choice : 1);
}

void frmNewDiary::ShowRowOfLocation(int i) {
    const int n = Element(CurrentDiary.DealtCard, i);
    {
        const QSignalBlocker quiet(chkReversed(i));
        chkReversed(i)->setChecked(Element(CurrentDiary.DealtUpright, i) == 0);
    }
    // A card the deck no longer holds leaves the location empty, with its
    // number showing, rather than ending the program.
    int row = getIndexOfNONE(i);
    if (n >= 1 && n <= CurrentDeck.CardCount) {
        const int found = cboCardName(i)->findText(DeckCard(n).CardTitle.Trimmed(), Qt::MatchExactly);
        if (found >= 0) row = found;
    }
    SelectRow(i, row);
    cmdCardTitle(i)->setText(cboCardName(i)->currentText());
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
        for (int i = 1; i <= CurrentSpread.LocationCount; ++i) {
            if (focusWidget() != cmdCardTitle(i)) continue;
            handled = true;
            cboCardName_KeyUp(i, KeyDelete);
            return;
        }
    }
}
