#include "screens/readings/OpenEntryScreen.h"

#include <QLabel>
#include <QPushButton>

#include "core/journal/Journal.h"
#include "core/platform/OleDate.h"
#include "core/platform/Twips.h"
#include "screens/decks/DeckLoadQuestion.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/ShellHooks.h"
#include "screens/readings/EntryScreen.h"
#include "screens/store/PasswordPrompts.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {
// Date, separator: the name begins after them.
constexpr int NameStart = 13;
}  // namespace

OpenEntryScreen::OpenEntryScreen(EntryKind kind, const OpenEntryTexts& texts) : kind_(kind), texts_(texts) {
    setCaption(texts.Caption);
    resize(TwipsToPixels(6495), TwipsToPixels(4215));
    lblEntries = new QLabel(texts.ListLabel, this);
    lblEntries->setObjectName(QStringLiteral("lblEntries"));
    PlaceControl(lblEntries, 120, 120, 4815, 255);
    lstEntries = new ListBox(this);
    lstEntries->setObjectName(texts.ListName);
    lstEntries->setSorted(true);
    PlaceControl(lstEntries, 120, 420, 4815, 3615);
    cmdOpen = new QPushButton(tr("&Open"), this);
    cmdOpen->setObjectName(QStringLiteral("cmdOpen"));
    cmdDelete = new QPushButton(tr("&Delete"), this);
    cmdDelete->setObjectName(QStringLiteral("cmdDelete"));
    cmdCancel = new QPushButton(tr("&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdJournal = new QPushButton(tr("&Journal..."), this);
    cmdJournal->setObjectName(QStringLiteral("cmdJournal"));
    int top = 420;
    for (QPushButton* button : {cmdOpen, cmdDelete, cmdCancel, cmdJournal}) {
        button->setAutoDefault(false);
        PlaceControl(button, 5115, top, 1215, 375);
        top += 480;
    }
    connect(lstEntries, &ListBox::Click, this, Handler([this] { lstEntries_Click(); }));
    connect(cmdOpen, &QPushButton::clicked, this, Handler([this] { cmdOpen_Click(); }));
    connect(cmdDelete, &QPushButton::clicked, this, Handler([this] { cmdDelete_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
    connect(cmdJournal, &QPushButton::clicked, this, Handler([this] { cmdJournal_Click(); }));
    setWayOut([this] { cmdCancel_Click(); });
}

void OpenEntryScreen::Form_Load() {
    CentreInFrame(*this);
    cmdDelete->setEnabled(false);
    cmdOpen->setEnabled(false);
    for (const auto& [savedOn, name] : SavedEntryDates(kind_))
        lstEntries->AddItem(FormatSortDate(savedOn) + QStringLiteral(" - ") + name);
    if (lstEntries->ListCount() > 0) lstEntries->setListIndex(0);
}

void OpenEntryScreen::lstEntries_Click() {
    if (lstEntries->ListIndex() < 0) return;
    cmdDelete->setEnabled(true);
    cmdOpen->setEnabled(true);
}

QString OpenEntryScreen::SelectedName() const { return lstEntries->Text().mid(NameStart); }

void OpenEntryScreen::cmdDelete_Click() {
    if (lstEntries->ListIndex() < 0) return;
    const QString question = texts_.DeleteQuestion.arg(lstEntries->Text().trimmed());
    if (MsgBox(question, vbYesNo | vbDefaultButton2 | vbQuestion) != vbYes) return;
    DeleteEntry(kind_, SelectedName());
    lstEntries->Clear();
    Form_Load();
}

void OpenEntryScreen::cmdOpen_Click() {
    if (lstEntries->ListIndex() < 0) return;
    OpenEntry(SelectedName());
}

bool OpenEntryScreen::OpenEntry(const QString& name) {
    const OpeningChecks checks = Judge(name);
    if (!checks.Found) return false;
    if (checks.Locked) {
        if (!CheckPassword(checks.Password)) return false;
        RememberEntryUnlocked(kind_, name);
    }
    for (const OpeningStep& step : checks.Steps) {
        if (step.Refusal) {
            MsgBox(step.Text, vbInformation);
            return false;
        }
        if (MsgBox(step.Text, vbYesNo | vbQuestion) != vbYes) return false;
    }

    AdoptEntry();
    bool removed = false;
    if (!LoadDeck(removed)) {
        if (removed && lstEntries->ListIndex() >= 0 && SelectedName() == name)
            lstEntries->RemoveItem(lstEntries->ListIndex());
        return false;
    }
    ShowEntry();
    return true;
}

void OpenEntryScreen::cmdCancel_Click() {
    Unload();
    CloseEntryScreen();
}

void OpenEntryScreen::cmdJournal_Click() {
    cmdCancel_Click();
    ReturnToMainScreen(MainScreenJournalButton);
}

void OpenEntryScreen::Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) {
    (void)shift;
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
    } else if (focusWidget() == lstEntries && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        handled = true;
        cmdOpen_Click();
    } else if (focusWidget() == lstEntries && key == Qt::Key_Delete) {
        handled = true;
        cmdDelete_Click();
    }
}
