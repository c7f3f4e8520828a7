#include "screens/readings/SelectSpreadScreen.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/platform/Twips.h"
#include "core/readings/Deal.h"
#include "core/records/RecordFile.h"
#include "core/store/DeckLoading.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "core/store/Usability.h"
#include "screens/decks/DeckLoadQuestion.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/readings/EntryScreen.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {

QString IssueText(bool asked) {
    return asked ? QCoreApplication::translate("SelectSpreadScreen", "Spread Includes Question/Issue")
                 : QCoreApplication::translate("SelectSpreadScreen", "Spread Does NOT Includes Question/Issue");
}

QCheckBox* MakeCheck(QWidget* parent, const QString& name, const QString& caption, int left, int top) {
    auto* box = new QCheckBox(caption, parent);
    box->setObjectName(name);
    PlaceControl(box, left, top, 3255, 300);
    return box;
}

}  // namespace

SelectSpreadScreen::SelectSpreadScreen(const QString& caption) {
    setCaption(caption);
    resize(TwipsToPixels(6870), TwipsToPixels(5235));
    MakeCaption(this, tr("Spreads:"), 120, 120, 3255);
    lstSpreads = MakeList(this, QStringLiteral("lstSpreads"), 120, 420, 3255, 2415);
    lstSpreads->setSorted(true);
    MakeCaption(this, tr("Decks:"), 3495, 120, 3255);
    lstDecks = MakeList(this, QStringLiteral("lstDecks"), 3495, 420, 3255, 2415);
    lstDecks->setSorted(true);
    MakeCaption(this, tr("Card Types:"), 120, 2955, 3255);
    lstCardTypes = MakeList(this, QStringLiteral("lstCardTypes"), 120, 3255, 3255, 1215);
    lstCardTypes->setSelectionMode(QAbstractItemView::MultiSelection);

    chkIssue = MakeCheck(this, QStringLiteral("chkIssue"), tr("Issue requested"), 3495, 2955);
    lblIssue = MakeCaption(this, QString(), 3495, 3300, 3255);
    lblIssue->setObjectName(QStringLiteral("lblIssue"));
    chkUseReversed = MakeCheck(this, QStringLiteral("chkUseReversed"), tr("Allow reversed cards"), 3495, 3660);
    chkAllowDuplicateCards =
        MakeCheck(this, QStringLiteral("chkAllowDuplicateCards"), tr("Allow duplicate cards"), 3495, 4020);
    txtIssue = new QLineEdit(this);
    txtIssue->setObjectName(QStringLiteral("txtIssue"));
    txtIssue->setMaxLength(125);
    PlaceControl(txtIssue, 3495, 4380, 3255, 300);
    txtIssue->hide();

    cmdSelect = new QPushButton(tr("&Select"), this);
    cmdSelect->setObjectName(QStringLiteral("cmdSelect"));
    cmdSelect->setEnabled(false);
    cmdCancel = new QPushButton(tr("&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    for (QPushButton* button : {cmdSelect, cmdCancel}) button->setAutoDefault(false);
    PlaceControl(cmdSelect, 3975, 4740, 1215, 375);
    PlaceControl(cmdCancel, 5415, 4740, 1215, 375);

    connect(lstSpreads, &ListBox::Click, this, Handler([this] { lstSpreads_Click(); }));
    connect(lstDecks, &ListBox::Click, this, Handler([this] { lstDecks_Click(); }));
    connect(chkIssue, &QCheckBox::toggled, this, Handler([this] { chkIssue_Click(); }));
    connect(chkUseReversed, &QCheckBox::toggled, this, Handler([this] { chkUseReversed_Click(); }));
    connect(chkAllowDuplicateCards, &QCheckBox::toggled, this, Handler([this] { chkAllowDuplicateCards_Click(); }));
    connect(cmdSelect, &QPushButton::clicked, this, Handler([this] { cmdSelect_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
    setWayOut([this] { cmdCancel_Click(); });
}

void SelectSpreadScreen::Form_Load() {
    CentreInFrame(*this);
    chkAllowDuplicateCards->setChecked(TheRun.LastAllowDuplicateCards);
    {
        RecordReader<SpreadRecord> reader(TheRun.Paths.SpreadsPath);
        SpreadRecord spread;
        QStringList usable;
        while (reader.Next(spread)) usable << spread.SpreadName.Trimmed();
        // The usability test reads the files itself: ask once the list is read.
        for (const QString& name : usable)
            if (IsSpreadUsable(name)) lstSpreads->AddItem(name);
    }
    if (lstSpreads->ListCount() > 0) lstSpreads->setListIndex(0);
    if (lstDecks->ListIndex() < 0) lstCardTypes->Clear();
}

bool SelectSpreadScreen::SpreadAndDeckSelected() const {
    return lstSpreads->ListIndex() >= 0 && lstDecks->ListIndex() >= 0;
}

void SelectSpreadScreen::AddDeck(const QString& name) {
    if (!name.isEmpty()) lstDecks->AddItem(name);
}

void SelectSpreadScreen::lstSpreads_Click() {
    if (lstSpreads->ListIndex() < 0) return;
    lstDecks->Clear();
    GetRecord(TheRun.Paths.SpreadsPath, FindSpreadByName(lstSpreads->Text()), TheRun.CurrentSpread);
    const int locations = TheRun.CurrentSpread.LocationCount;
    if (TheRun.CurrentSpread.AllowedDeckCount >= 0) {
        const int tied = qMin<int>(TheRun.CurrentSpread.AllowedDeckCount,
                                   static_cast<int>(TheRun.CurrentSpread.AllowedDeckId.size()));
        for (int i = 0; i < tied; ++i) {
            const Integer id = TheRun.CurrentSpread.AllowedDeckId[static_cast<std::size_t>(i)];
            if (IsDeckUsable(id, locations)) AddDeck(DeckNameById(id).trimmed());
        }
    } else {
        QList<Integer> ids;
        QStringList names;
        RecordReader<DeckRecord> reader(TheRun.Paths.DecksPath);
        DeckRecord deck;
        while (reader.Next(deck)) {
            ids << deck.DeckId;
            names << deck.DeckName.Trimmed();
        }
        for (int i = 0; i < ids.size(); ++i)
            if (IsDeckUsable(ids[i], locations)) AddDeck(names[i]);
    }
    if (lstDecks->ListCount() > 0) lstDecks->setListIndex(0);
    ShowDeckOptions();
}

void SelectSpreadScreen::lstDecks_Click() {
    if (lstDecks->ListIndex() < 0) return;
    cmdSelect->setEnabled(true);
    GetRecord(TheRun.Paths.DecksPath, FindDeckByName(lstDecks->Text()), TheRun.ListDeck);
    ShowDeckOptions();
    const bool reversed = TheRun.ListDeck.IncludesReversed != 0;
    chkUseReversed->setEnabled(reversed);
    if (reversed) chkUseReversed->setChecked(true);
}

void SelectSpreadScreen::ShowDeckOptions() {
    if (lstDecks->ListIndex() >= 0) {
        lstCardTypes->Clear();
        for (std::size_t i = 0; i < 4; ++i)
            if (TheRun.ListDeck.CardTypeUsed[i] != 0) lstCardTypes->AddItem(TheRun.ListDeck.CardTypeName[i].Trimmed());
        lstCardTypes->selectAll();
        if (lstCardTypes->count() > 0) lstCardTypes->setCurrentRow(0, QItemSelectionModel::NoUpdate);
        chkUseReversed->setChecked(TheRun.ListDeck.IncludesReversed != 0);
    }
    if (lstSpreads->ListIndex() >= 0) {
        const bool asks = TheRun.CurrentSpread.AskQuestion != 0;
        chkIssue->setChecked(asks);
        lblIssue->setText(IssueText(asks));
    }
}

void SelectSpreadScreen::chkIssue_Click() {
    lblIssue->setText(IssueText(chkIssue->isChecked()));
    if (!SpreadAndDeckSelected()) {
        chkIssue->setChecked(false);
        txtIssue->hide();
    } else {
        // The box shows what the spread says; the user cannot change it.
        chkIssue->setChecked(TheRun.CurrentSpread.AskQuestion != 0);
    }
}

void SelectSpreadScreen::chkUseReversed_Click() {
    if (!SpreadAndDeckSelected() || TheRun.ListDeck.IncludesReversed == 0) chkUseReversed->setChecked(false);
}

void SelectSpreadScreen::chkAllowDuplicateCards_Click() {
    if (!SpreadAndDeckSelected()) chkAllowDuplicateCards->setChecked(TheRun.LastAllowDuplicateCards);
}

void SelectSpreadScreen::cmdSelect_Click() {
    if (lstDecks->ListIndex() < 0) return;
    bool removed = false;
    if (!LoadDeck(removed)) {
        if (removed) {
            lstCardTypes->Clear();
            lstDecks->RemoveItem(lstDecks->ListIndex());
        }
        return;
    }
    QList<int> chosenTypes;
    for (int row = 0; row < lstCardTypes->ListCount(); ++row)
        if (lstCardTypes->Selected(row)) chosenTypes << CardTypeIndex(lstCardTypes->List(row));
    if (!EnoughCardsSelected(TheRun.CurrentDeck, chosenTypes, TheRun.CurrentSpread.LocationCount)) {
        MsgBox(tr("The card types you have selected are not enough to run this spread.\n"
                  "Please check more type(s) or change the deck."),
               vbInformation);
        return;
    }
    TheRun.UseReversed = chkUseReversed->isChecked();
    TheRun.AllowDuplicateCards = chkAllowDuplicateCards->isChecked();
    TheRun.CardTypeSelected.fill(false);
    for (int row = 0; row < lstCardTypes->ListCount(); ++row) {
        const int type = CardTypeIndex(lstCardTypes->List(row));
        if (type < 0) RaiseError(errSubscriptOutOfRange);
        TheRun.CardTypeSelected[static_cast<std::size_t>(type)] = lstCardTypes->Selected(row);
    }
    const bool issueAsked = chkIssue->isChecked();
    const QString issue = issueAsked ? txtIssue->text().trimmed() : QString();
    StoreEntryOptions(issueAsked, issue, TheRun.UseReversed, TheRun.AllowDuplicateCards);
    TheRun.LastAllowDuplicateCards = chkAllowDuplicateCards->isChecked();

    EntryScreen& entry = Entry();
    entry.TakeIssue(issue);
    Unload();
    entry.Initialize();
    entry.FocusIssue();
}

void SelectSpreadScreen::cmdCancel_Click() {
    Unload();
    CloseEntryScreen();
}

void SelectSpreadScreen::Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) {
    (void)shift;
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
        return;
    }
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    QWidget* focus = focusWidget();
    if (enter && (focus == lstDecks || focus == lstSpreads || focus == txtIssue)) {
        handled = true;
        cmdSelect_Click();
    }
}
