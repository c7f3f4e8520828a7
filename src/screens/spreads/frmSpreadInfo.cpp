#include "screens/spreads/frmSpreadInfo.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "core/platform/Picture.h"
#include "core/platform/Twips.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"
#include "screens/platform/ErrorReport.h"
#include "screens/platform/ListBox.h"
#include "screens/spreads/SpreadCanvas.h"
#include "screens/spreads/SpreadDetailsPage.h"
#include "screens/spreads/frmSpreadInfo_LocationAttributes.h"
#include "screens/spreads/frmSpreads.h"
#include "screens/widgets/ImageBox.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {
constexpr int PageLeft = 120;
constexpr int PageTop = 120;
// The viewer's canvas is a little wider than the designer's.
constexpr int CanvasWidth = 9615;
constexpr int CanvasHeight = 5895;

QPushButton* Button(QWidget* parent, const QString& name, const QString& caption, int left, int top) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setGeometry(At(left, top, 1440, 420));
    return button;
}
}  // namespace

frmSpreadInfo::frmSpreadInfo() {
    setObjectName(QStringLiteral("frmSpreadInfo"));
    setCaption(tr("View Spread"));
    resize(TwipsToPixels(11520), TwipsToPixels(6300));

    picDesignInfo = new SpreadDetailsPage(true, this);
    picDesignInfo->setGeometry(At(PageLeft, PageTop, CanvasWidth, CanvasHeight));
    picDesignInfo->setLocked(true);
    picDesignLocations = new SpreadCanvas(CanvasWidth, CanvasHeight, PageLeft, PageTop, this);
    picDesignLocations->setMovable(false);
    picDecks = new QWidget(this);
    picDecks->setObjectName(QStringLiteral("picDecks"));
    picDecks->setGeometry(At(PageLeft, PageTop, CanvasWidth, CanvasHeight));
    auto* lblDecks = new QLabel(tr("Spread works on the following Decks:"), picDecks);
    lblDecks->setGeometry(At(240, 600, 4800, 300));
    lstDecks = new ListBox(picDecks);
    lstDecks->setSorted(true);
    lstDecks->setObjectName(QStringLiteral("lstDecks"));
    lstDecks->setGeometry(At(240, 900, 4800, 3600));

    const int column = PageLeft + CanvasWidth + 150;
    cmdDesignInfo = Button(this, QStringLiteral("cmdDesignInfo"), tr("&Details"), column, 120);
    cmdSpread = Button(this, QStringLiteral("cmdSpread"), tr("Sp&read"), column, 600);
    cmdDecks = Button(this, QStringLiteral("cmdDecks"), tr("Dec&ks"), column, 1080);
    cmdGrid = Button(this, QStringLiteral("cmdGrid"), tr("Show &Grid"), column, 1680);
    cmdClose = Button(this, QStringLiteral("cmdClose"), tr("&Close"), column, 5580);
    // As on the designer, the deck page is not reachable.
    cmdDecks->hide();

    connect(cmdDesignInfo, &QPushButton::clicked, this, Handler([this] { cmdDesignInfo_Click(); }));
    connect(cmdSpread, &QPushButton::clicked, this, Handler([this] { cmdSpread_Click(); }));
    connect(cmdDecks, &QPushButton::clicked, this, Handler([this] { cmdDecks_Click(); }));
    connect(cmdGrid, &QPushButton::clicked, this, Handler([this] { cmdGrid_Click(); }));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
    setWayOut([this] { cmdClose_Click(); });
    connect(chkQuestion(), &QCheckBox::toggled, this, Handler([this] { chkQuestion_Click(); }));
    connect(picDesignLocations, &SpreadCanvas::AttributesClick, this,
            [this](int i) { Guarded([&] { cmdCardAttributes_Click(i); }); });
}

QCheckBox* frmSpreadInfo::chkQuestion() const { return picDesignInfo->chkQuestion; }
LocationBox* frmSpreadInfo::picLocation(int Index) const { return picDesignLocations->picLocation(Index); }
QLabel* frmSpreadInfo::lblCardTitle(int Index) const { return picDesignLocations->lblCardTitle(Index); }
void frmSpreadInfo::FocusAttributesButton(int Index) const {
    if (QPushButton* button = cmdCardAttributes(Index)) button->setFocus();
}

QPushButton* frmSpreadInfo::cmdCardAttributes(int Index) const { return picDesignLocations->cmdCardAttributes(Index); }

void frmSpreadInfo::Form_Load() {
    RememberedSpreadName = IsLoaded<frmSpreads>() ? Get<frmSpreads>().ChosenSpreadName() : QString();
    picDesignLocations->imgBackground->Move(0, 0, picDesignLocations->Width(), picDesignLocations->Height());
    CentreInFrame(*this);
    ShowPage(SpreadPages::ShowDetails);
    FillFields();
}

void frmSpreadInfo::FillFields() {
    const QString name = TheRun.CurrentSpread.SpreadName.Trimmed();
    setCaption(name.isEmpty() ? tr("Spread View") : tr("Spread View - %1").arg(name));
    picDesignInfo->Fill(TheRun.CurrentSpread);
    if (TheRun.CurrentSpread.AllowedDeckCount >= 0) {
        AddDeckNames();
    } else {
        for (int i = 0; i < 3; ++i) lstDecks->AddItem(QString());
        lstDecks->AddItem(tr("                          [ ALL DECKS ] "));
    }
    picDesignLocations->ShowLocations(TheRun.SpreadLocations, TheRun.CurrentSpread.LocationCount);

    const QString background = TheRun.CurrentSpread.BackgroundFile.Value();
    if (background.contains(QLatin1Char('.'))) {
        // Straight from Cards/: a picture that has gone fails with the
        // toolkit's own report.
        picDesignLocations->SetBackground(LoadPicture(TheRun.Paths.CardsDir + background).Image,
                                          TheRun.CurrentSpread.StretchBackground != 0);
    } else {
        picDesignLocations->SetBackground(QImage(), TheRun.CurrentSpread.StretchBackground != 0);
    }
}

void frmSpreadInfo::AddDeckNames() {
    for (int i = 1; i <= TheRun.CurrentSpread.AllowedDeckCount && i <= 10; ++i) {
        const QString deck = DeckNameById(TheRun.CurrentSpread.AllowedDeckId[static_cast<std::size_t>(i - 1)]);
        lstDecks->AddItem(deck.isEmpty() ? tr("     [ MISSING DECK ] ") : deck);
    }
    if (lstDecks->ListCount() > 0) lstDecks->setListIndex(0);
}

void frmSpreadInfo::ShowPage(int page) {
    const SpreadPages pages{picDesignInfo, picDesignLocations, picDecks, cmdDesignInfo, cmdSpread, cmdDecks, {cmdGrid}};
    pages.Show(static_cast<SpreadPages::Page>(page));
}

void frmSpreadInfo::cmdDesignInfo_Click() { ShowPage(SpreadPages::ShowDetails); }
void frmSpreadInfo::cmdSpread_Click() { ShowPage(SpreadPages::ShowCanvas); }
void frmSpreadInfo::cmdDecks_Click() { ShowPage(SpreadPages::ShowDecks); }

void frmSpreadInfo::cmdGrid_Click() {
    // The steps come from this screen's own canvas at every press, so the
    // viewer's grid is a little wider apart than the designer's.
    GridStepY = GridStep(picDesignLocations->Width(), 39);
    GridStepX = GridStep(picDesignLocations->Height(), 29);
    cmdGrid->setText(picDesignLocations->ToggleGrid(GridStepX, GridStepY));
}

void frmSpreadInfo::chkQuestion_Click() {
    const bool stored = TheRun.CurrentSpread.AskQuestion != 0;
    if (chkQuestion()->isChecked() != stored) chkQuestion()->setChecked(stored);
}

void frmSpreadInfo::cmdCardAttributes_Click(int Index) {
    TheRun.SelectedLocation = Index;
    Get<frmSpreadInfo_LocationAttributes>().Show();
}

void frmSpreadInfo::cmdClose_Click() {
    SetScreenPointer(MousePointer::Hourglass);
    Get<frmSpreads>().Show();
    SetScreenPointer(MousePointer::Default);
    Unload();
}

void frmSpreadInfo::Form_Unload(bool&) {
    UnloadScreen<frmSpreadInfo_LocationAttributes>();
    if (IsLoaded<frmSpreads>()) Get<frmSpreads>().SelectSpread(RememberedSpreadName);
}

void frmSpreadInfo::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdClose_Click();
}
