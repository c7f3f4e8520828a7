#include "screens/spreads/frmDeckChooser.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "core/platform/Twips.h"
#include "core/spreads/SpreadStore.h"
#include "core/store/RunState.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/spreads/frmSpreads.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {
QPushButton* Button(QWidget* parent, const QString& name, const QString& caption, const QRect& where) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setGeometry(where);
    return button;
}
}  // namespace

frmDeckChooser::frmDeckChooser() {
    setObjectName(QStringLiteral("frmDeckChooser"));
    setCaption(tr("Decks Available"));
    resize(TwipsToPixels(9000), TwipsToPixels(5700));

    chkAnyDeck = new QCheckBox(tr("&Allow this spread to use all available decks"), this);
    chkAnyDeck->setObjectName(QStringLiteral("chkAnyDeck"));
    chkAnyDeck->setGeometry(At(120, 120, 6000, 330));
    lblAvailable = new QLabel(tr("Available Decks:"), this);
    lblAvailable->setObjectName(QStringLiteral("lblAvailable"));
    lblAvailable->setGeometry(At(120, 600, 3400, 300));
    lstAvailableDecks = new ListBox(this);
    lstAvailableDecks->setSorted(true);
    lstAvailableDecks->setObjectName(QStringLiteral("lstAvailableDecks"));
    lstAvailableDecks->setGeometry(At(120, 900, 3400, 3480));
    lblDecks = new QLabel(tr("Spread works on the following Decks:"), this);
    lblDecks->setObjectName(QStringLiteral("lblDecks"));
    lblDecks->setGeometry(At(5400, 600, 3480, 300));
    lstDecks = new ListBox(this);
    lstDecks->setSorted(true);
    lstDecks->setObjectName(QStringLiteral("lstDecks"));
    lstDecks->setGeometry(At(5400, 900, 3480, 3480));
    cmdAddDeck = Button(this, QStringLiteral("cmdAddDeck"), tr("Add &>>"), At(3720, 1800, 1480, 420));
    cmdDeleteDeck = Button(this, QStringLiteral("cmdDeleteDeck"), tr("&<< Delete"), At(3720, 2400, 1480, 420));
    chkInstallAll = new QCheckBox(tr("&Install all spreads in the package with selected decks"), this);
    chkInstallAll->setObjectName(QStringLiteral("chkInstallAll"));
    chkInstallAll->setGeometry(At(120, 4560, 5400, 330));
    cmdLink = Button(this, QStringLiteral("cmdLink"), tr("&Save"), At(5760, 5040, 1440, 420));
    cmdClose = Button(this, QStringLiteral("cmdClose"), tr("&Close"), At(7440, 5040, 1440, 420));

    decks_.lstAvailableDecks = lstAvailableDecks;
    decks_.lstDecks = lstDecks;
    decks_.chkAnyDeck = chkAnyDeck;
    decks_.cmdAddDeck = cmdAddDeck;
    decks_.cmdDeleteDeck = cmdDeleteDeck;
    decks_.NamedDeckControls = {lstDecks, lblDecks, lstAvailableDecks, lblAvailable, cmdAddDeck, cmdDeleteDeck};
    decks_.MarkDirty = [this] { ChooserDirty = true; };

    connect(cmdAddDeck, &QPushButton::clicked, this, Handler([this] { cmdAddDeck_Click(); }));
    connect(cmdDeleteDeck, &QPushButton::clicked, this, Handler([this] { cmdDeleteDeck_Click(); }));
    connect(cmdLink, &QPushButton::clicked, this, Handler([this] { cmdLink_Click(); }));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
    setWayOut([this] { UnloadThisForm(); });
    connect(chkAnyDeck, &QCheckBox::toggled, this, Handler([this] { chkAnyDeck_Click(); }));
    connect(chkInstallAll, &QCheckBox::toggled, this, Handler([this] { chkInstallAll_Click(); }));
    connect(lstAvailableDecks, &ListBox::Click, this, Handler([this] { UpdateDeckButtons(); }));
    connect(lstDecks, &ListBox::Click, this, Handler([this] { UpdateDeckButtons(); }));
}

void frmDeckChooser::Form_Load() {
    CentreInFrame(*this);
    setCaption(tr("Choose decks to work with spread: %1").arg(TheRun.CurrentSpread.SpreadName.Trimmed()));
    RememberedSpreadName = TheRun.CurrentSpread.SpreadName.Value();
    decks_.Decks = TheRun.ChooserManageMode ? nullptr : TheRun.DecksOnOffer;
    decks_.ShowDeckLists();
    if (TheRun.ChooserManageMode) {
        cmdLink->show();
        cmdClose->setText(tr("&Close"));
        chkInstallAll->hide();
        AddDeckNames();
    } else {
        cmdLink->hide();
        chkInstallAll->show();
        chkInstallAll->setChecked(TheRun.InstallAllSpreads);
        cmdClose->setText(tr("&Continue"));
        // What the package said about decks does not count here.
        TheRun.CurrentSpread.AllowedDeckCount = 0;
        TheRun.CurrentSpread.AllowedDeckId.fill(0);
    }
    ChooserDirty = false;
}

void frmDeckChooser::AddDeckNames() {
    if (TheRun.CurrentSpread.AllowedDeckCount < 0) chkAnyDeck->setChecked(true);
    decks_.AddDeckNames(TheRun.CurrentSpread);
}

void frmDeckChooser::UpdateDeckButtons() { decks_.UpdateDeckButtons(); }
void frmDeckChooser::cmdAddDeck_Click() { decks_.cmdAddDeck_Click(); }
void frmDeckChooser::cmdDeleteDeck_Click() { decks_.cmdDeleteDeck_Click(); }

void frmDeckChooser::chkAnyDeck_Click() {
    ChooserDirty = true;
    if (chkAnyDeck->isChecked()) TheRun.CurrentSpread.AllowedDeckCount = -1;
    decks_.EnableForAnyDeck();
    UpdateDeckButtons();
}

void frmDeckChooser::chkInstallAll_Click() { TheRun.InstallAllSpreads = chkInstallAll->isChecked(); }

void frmDeckChooser::cmdLink_Click() {
    decks_.WriteChoice(TheRun.CurrentSpread);
    if (!TheRun.ChooserManageMode) {
        ChooserDirty = false;
        return;
    }
    const QString problem = SaveSpreadDecks(TheRun.CurrentSpread);
    if (!problem.isEmpty()) {
        MsgBox(problem);
        return;
    }
    ChooserDirty = false;
}

void frmDeckChooser::cmdClose_Click() { UnloadThisForm(); }

void frmDeckChooser::UnloadThisForm() {
    if (!TheRun.ChooserManageMode) cmdLink_Click();
    if (ChooserDirty) {
        const int answer = MsgBox(tr("Save changes to the spread?"), vbYesNoCancel | vbQuestion);
        if (answer == vbCancel) return;
        if (answer == vbYes) cmdLink_Click();
    }
    if (!chkAnyDeck->isChecked() && lstDecks->ListCount() == 0 &&
        MsgBox(tr("No decks have been selected.  Are you sure you want to continue?"), vbYesNo) == vbNo)
        return;
    if (TheRun.ChooserManageMode) {
        SetScreenPointer(MousePointer::Hourglass);
        Get<frmSpreads>().Show();
        SetScreenPointer(MousePointer::Default);
    }
    Unload();
}

void frmDeckChooser::Form_Unload(bool&) {
    // Back on the list, the spread worked on is selected again, which reads
    // it afresh from disk.
    if (TheRun.ChooserManageMode && IsLoaded<frmSpreads>()) Get<frmSpreads>().SelectSpread(RememberedSpreadName);
}

void frmDeckChooser::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdClose_Click();
}
