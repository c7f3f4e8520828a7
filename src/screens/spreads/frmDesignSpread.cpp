#include "screens/spreads/frmDesignSpread.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <cmath>

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/platform/Picture.h"
#include "core/platform/Twips.h"
#include "core/spreads/AllowedDecks.h"
#include "core/spreads/SpreadStore.h"
#include "core/store/Housekeeping.h"
#include "core/store/Lookups.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "screens/decks/frmBrowseDeck.h"
#include "screens/platform/ErrorReport.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/spreads/SpreadCanvas.h"
#include "screens/spreads/SpreadDetailsPage.h"
#include "screens/spreads/TextBoxes.h"
#include "screens/spreads/frmGetSpreadBackground.h"
#include "screens/spreads/frmLocationAttributes.h"
#include "screens/spreads/frmSaveSpread.h"
#include "screens/spreads/frmSpreadComments.h"
#include "screens/spreads/frmSpreads.h"
#include "screens/widgets/ImageBox.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {
constexpr int PageLeft = 120;
constexpr int PageTop = 120;
constexpr int CanvasWidth = 9495;
constexpr int CanvasHeight = 5895;
// A new location comes in at the top right, this far from the right edge.
constexpr int NewLocationMargin = 350;
// Half a drawing step: the keyboard moves a rectangle by this, one more while
// snapping.
constexpr int KeyStep = 240 / 2;

QPushButton* Button(QWidget* parent, const QString& name, const QString& caption, const QRect& where) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setGeometry(where);
    return button;
}

Integer Whole(double twips) { return static_cast<Integer>(std::lrint(twips)); }

bool IsEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }
}  // namespace

frmDesignSpread::frmDesignSpread() {
    setObjectName(QStringLiteral("frmDesignSpread"));
    setCaption(tr("Spread Design"));
    resize(TwipsToPixels(11400), TwipsToPixels(6300));

    picDesignInfo = new SpreadDetailsPage(false, this);
    picDesignInfo->setGeometry(At(PageLeft, PageTop, CanvasWidth, CanvasHeight));
    picDesignLocations = new SpreadCanvas(CanvasWidth, CanvasHeight, PageLeft, PageTop, this);

    // ---- The deck page ----
    picDecks = new QWidget(this);
    picDecks->setObjectName(QStringLiteral("picDecks"));
    picDecks->setGeometry(At(PageLeft, PageTop, CanvasWidth, CanvasHeight));
    Label1 = new QLabel(tr("Available Decks:"), picDecks);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setGeometry(At(240, 600, 3600, 300));
    lstAvailableDecks = new ListBox(picDecks);
    lstAvailableDecks->setSorted(true);
    lstAvailableDecks->setObjectName(QStringLiteral("lstAvailableDecks"));
    lstAvailableDecks->setGeometry(At(240, 900, 3600, 3600));
    lblDecks = new QLabel(tr("Spread works on the following Decks:"), picDecks);
    lblDecks->setObjectName(QStringLiteral("lblDecks"));
    lblDecks->setGeometry(At(5640, 600, 3600, 300));
    lstDecks = new ListBox(picDecks);
    lstDecks->setSorted(true);
    lstDecks->setObjectName(QStringLiteral("lstDecks"));
    lstDecks->setGeometry(At(5640, 900, 3600, 3600));
    chkAnyDeck = new QCheckBox(tr("&Allow this spread to use all available decks"), picDecks);
    chkAnyDeck->setObjectName(QStringLiteral("chkAnyDeck"));
    chkAnyDeck->setGeometry(At(240, 180, 6000, 330));
    cmdAddDeck = Button(picDecks, QStringLiteral("cmdAddDeck"), tr("Add &>>"), At(4020, 1800, 1440, 420));
    cmdDeleteDeck = Button(picDecks, QStringLiteral("cmdDeleteDeck"), tr("&<< Delete"), At(4020, 2400, 1440, 420));
    cmdRemoveDeck = Button(picDecks, QStringLiteral("cmdRemoveDeck"), tr("&Remove"), At(5640, 4680, 1500, 420));
    cmdBrowseDeck = Button(picDecks, QStringLiteral("cmdBrowseDeck"), tr("&Browse..."), At(7740, 4680, 1500, 420));
    // Decks are tied to a spread on the deck chooser; these two stay hidden.
    cmdRemoveDeck->hide();
    cmdBrowseDeck->hide();

    decks_.lstAvailableDecks = lstAvailableDecks;
    decks_.lstDecks = lstDecks;
    decks_.chkAnyDeck = chkAnyDeck;
    decks_.cmdAddDeck = cmdAddDeck;
    decks_.cmdDeleteDeck = cmdDeleteDeck;
    decks_.NamedDeckControls = {lstDecks,          lblDecks, cmdRemoveDeck, cmdBrowseDeck,
                                lstAvailableDecks, Label1,   cmdAddDeck,    cmdDeleteDeck};
    decks_.MarkDirty = [this] { SpreadDirty = true; };

    // ---- The column of buttons ----
    const int column = PageLeft + CanvasWidth + 150;
    int top = PageTop;
    auto next = [&top, column](int gap = 480) {
        const QRect where = At(column, top, 1440, 420);
        top += gap;
        return where;
    };
    cmdDesignInfo = Button(this, QStringLiteral("cmdDesignInfo"), tr("&Details"), next());
    cmdSpread = Button(this, QStringLiteral("cmdSpread"), tr("Sp&read"), next());
    cmdDecks = Button(this, QStringLiteral("cmdDecks"), tr("Dec&ks"), next(600));
    cmdAddCard = Button(this, QStringLiteral("cmdAddCard"), tr("&Add"), next());
    cmdRemoveCard = Button(this, QStringLiteral("cmdRemoveCard"), tr("Re&move"), next());
    cmdGrid = Button(this, QStringLiteral("cmdGrid"), tr("Show &Grid"), next());
    cmdSnap = Button(this, QStringLiteral("cmdSnap"), tr("S&nap"), next(600));
    cmdPicture = Button(this, QStringLiteral("cmdPicture"), tr("&Picture"), next());
    cmdComments = Button(this, QStringLiteral("cmdComments"), tr("No&tes"), next(600));
    cmdSave = Button(this, QStringLiteral("cmdSave"), tr("&Save"), next());
    cmdBack = Button(this, QStringLiteral("cmdBack"), tr("&Close"), next());
    cmdDecks->hide();

    // ---- Events ----
    auto click = [this](QPushButton* button, void (frmDesignSpread::*handler)()) {
        connect(button, &QPushButton::clicked, this, Handler([this, handler] { (this->*handler)(); }));
    };
    click(cmdDesignInfo, &frmDesignSpread::cmdDesignInfo_Click);
    click(cmdSpread, &frmDesignSpread::cmdSpread_Click);
    click(cmdDecks, &frmDesignSpread::cmdDecks_Click);
    click(cmdAddCard, &frmDesignSpread::cmdAddCard_Click);
    click(cmdRemoveCard, &frmDesignSpread::cmdRemoveCard_Click);
    click(cmdGrid, &frmDesignSpread::cmdGrid_Click);
    click(cmdSnap, &frmDesignSpread::cmdSnap_Click);
    click(cmdPicture, &frmDesignSpread::cmdPicture_Click);
    click(cmdComments, &frmDesignSpread::cmdComments_Click);
    click(cmdSave, &frmDesignSpread::cmdSave_Click);
    click(cmdBack, &frmDesignSpread::cmdBack_Click);
    setWayOut([this] { cmdBack_Click(); });
    click(cmdAddDeck, &frmDesignSpread::cmdAddDeck_Click);
    click(cmdDeleteDeck, &frmDesignSpread::cmdDeleteDeck_Click);
    click(cmdRemoveDeck, &frmDesignSpread::cmdRemoveDeck_Click);
    click(cmdBrowseDeck, &frmDesignSpread::cmdBrowseDeck_Click);
    connect(chkAnyDeck, &QCheckBox::toggled, this, Handler([this] { chkAnyDeck_Click(); }));
    connect(lstAvailableDecks, &ListBox::Click, this, Handler([this] { UpdateDeckButtons(); }));
    connect(lstDecks, &ListBox::Click, this, Handler([this] { UpdateDeckButtons(); }));

    // Each box of the details writes its field at every change.
    connect(txtSpreadTitle(), &TextBox::Change, this, Handler([this] { txtSpreadTitle_Change(); }));
    connect(txtSpreadDescription(), &MultiLineTextBox::Change, this, Handler([this] {
                SpreadDirty = true;
                TheRun.CurrentSpread.SpreadDescription = txtSpreadDescription()->Text();
            }));
    connect(txtSpreadDesigner(), &TextBox::Change, this, Handler([this] {
                SpreadDirty = true;
                TheRun.CurrentSpread.SpreadDesigner.DesignerName = txtSpreadDesigner()->Text();
            }));
    connect(txtDesignerEmail(), &TextBox::Change, this, Handler([this] {
                SpreadDirty = true;
                TheRun.CurrentSpread.SpreadDesigner.DesignerEmail = txtDesignerEmail()->Text();
            }));
    connect(txtDesignerWebPage(), &TextBox::Change, this, Handler([this] {
                SpreadDirty = true;
                TheRun.CurrentSpread.SpreadDesigner.DesignerWebPage = txtDesignerWebPage()->Text();
            }));
    connect(chkQuestion(), &QCheckBox::toggled, this, Handler([this] {
                SpreadDirty = true;
                TheRun.CurrentSpread.AskQuestion = Flag(chkQuestion()->isChecked());
            }));

    // The canvas. The number and title labels pass the mouse to their
    // rectangle, so a press on them gives it the focus and starts its drag.
    SpreadCanvas* canvas = picDesignLocations;
    connect(canvas, &SpreadCanvas::MouseDown, this, [this](int i, int b, int s, double x, double y) {
        Guarded([&] { picLocation_MouseDown(i, b, s, x, y); });
    });
    connect(canvas, &SpreadCanvas::MouseMove, this, [this](int i, int b, int s, double x, double y) {
        Guarded([&] { picLocation_MouseMove(i, b, s, x, y); });
    });
    connect(canvas, &SpreadCanvas::MouseUp, this,
            [this](int i, int b, int s, double x, double y) { Guarded([&] { picLocation_MouseUp(i, b, s, x, y); }); });
    connect(canvas, &SpreadCanvas::GotFocus, this,
            [this](int i, LocationPart) { Guarded([&] { picLocation_GotFocus(i); }); });
    connect(canvas, &SpreadCanvas::KeyDown, this, [this](int i, LocationPart, int k, int s, bool& handled) {
        Guarded([&] { picLocation_KeyDown(i, k, s, handled); });
    });
    connect(canvas, &SpreadCanvas::KeyUp, this,
            [this](int i, LocationPart, int k, int s) { Guarded([&] { picLocation_KeyUp(i, k, s); }); });
    connect(canvas, &SpreadCanvas::AttributesClick, this,
            [this](int i) { Guarded([&] { cmdCardAttributes_Click(i); }); });
}

// ---- Accessors --------------------------------------------------------------------------

void frmDesignSpread::ShowLocationTitle(int location, const QString& title) { lblCardTitle(location)->setText(title); }

void frmDesignSpread::SpreadSaved() {
    lblModifiedOnDate()->setText(FormatLongDate(TheRun.CurrentSpread.ModifiedOn));
    SpreadDirty = false;
    RememberedSpreadName = TheRun.CurrentSpread.SpreadName.Value();
}

TextBox* frmDesignSpread::txtSpreadTitle() const { return picDesignInfo->txtSpreadTitle; }
MultiLineTextBox* frmDesignSpread::txtSpreadDescription() const { return picDesignInfo->txtSpreadDescription; }
TextBox* frmDesignSpread::txtSpreadDesigner() const { return picDesignInfo->txtSpreadDesigner; }
TextBox* frmDesignSpread::txtDesignerEmail() const { return picDesignInfo->txtDesignerEmail; }
TextBox* frmDesignSpread::txtDesignerWebPage() const { return picDesignInfo->txtDesignerWebPage; }
QCheckBox* frmDesignSpread::chkQuestion() const { return picDesignInfo->chkQuestion; }
QLabel* frmDesignSpread::lblModifiedOnDate() const { return picDesignInfo->lblModifiedOnDate; }
LocationBox* frmDesignSpread::picLocation(int Index) const { return picDesignLocations->picLocation(Index); }
QLabel* frmDesignSpread::lblCardNumber(int Index) const { return picDesignLocations->lblCardNumber(Index); }
QLabel* frmDesignSpread::lblCardTitle(int Index) const { return picDesignLocations->lblCardTitle(Index); }
void frmDesignSpread::FocusAttributesButton(int Index) const {
    if (QPushButton* button = cmdCardAttributes(Index)) button->setFocus();
}

QPushButton* frmDesignSpread::cmdCardAttributes(int Index) const {
    return picDesignLocations->cmdCardAttributes(Index);
}

// ---- Opening ------------------------------------------------------------------------------

void frmDesignSpread::Form_Load() {
    GridStepY = GridStep(picDesignLocations->Width(), 39);
    GridStepX = GridStep(picDesignLocations->Height(), 29);
    picDesignLocations->imgBackground->Move(0, 0, picDesignLocations->Width(), picDesignLocations->Height());
    MkDirIgnoringErrors(TheRun.Paths.TempDir);
    ClearTemp();
    RememberedSpreadName = IsLoaded<frmSpreads>() ? Get<frmSpreads>().ChosenSpreadName() : QString();
    CentreInFrame(*this);
    if (TheRun.DesignMode == 1) TheRun.CurrentSpread.SpreadId = NextSpreadId();
    SnapOn = false;
    ShowPage(SpreadPages::ShowDetails);
    FillFields();
    // Filling the boxes set off their change events: the design is clean
    // only from here.
    SpreadDirty = false;
}

void frmDesignSpread::FillFields() {
    const QString name = TheRun.CurrentSpread.SpreadName.Trimmed();
    setCaption(name.isEmpty() ? tr("Spread Design") : tr("Spread Design - %1").arg(name));
    picDesignInfo->Fill(TheRun.CurrentSpread);
    if (TheRun.CurrentSpread.AllowedDeckCount < 0) chkAnyDeck->setChecked(true);
    UpdateDeckButtons();
    ShowDeckLists();
    AddDeckNames();

    picDesignLocations->ShowLocations(TheRun.SpreadLocations, TheRun.CurrentSpread.LocationCount);
    TheRun.SelectedLocation = TheRun.CurrentSpread.LocationCount;

    picDesignLocations->imgBackground->setStretch(TheRun.CurrentSpread.StretchBackground != 0);
    // The designer works on a copy in Temp/; a picture that has gone from
    // Cards/ leaves the spread without one, silently. The spread still opens
    // unchanged: nothing the user did needs saving, and the blank name
    // reaches the disk with the next save.
    const WorkingBackground working = OpenWorkingBackground(TheRun.CurrentSpread);
    TheRun.CurrentSpread = working.Spread;
    if (working.Path.isEmpty()) ClearBackground();
    else ShowBackground(working.Path, TheRun.CurrentSpread.StretchBackground != 0);
}

void frmDesignSpread::ShowBackground(const QString& path, bool stretch) {
    QImage image;
    // A file that holds no picture shows none; its name stays with the
    // spread.
    try {
        image = LoadPicture(path).Image;
    } catch (const RuntimeError&) {
    }
    picDesignLocations->SetBackground(image, stretch);
}

void frmDesignSpread::ClearBackground() {
    picDesignLocations->SetBackground(QImage(), picDesignLocations->imgBackground->Stretch());
}

// ---- Pages ---------------------------------------------------------------------------------

void frmDesignSpread::ShowPage(SpreadPages::Page page) {
    const SpreadPages pages{picDesignInfo,
                            picDesignLocations,
                            picDecks,
                            cmdDesignInfo,
                            cmdSpread,
                            cmdDecks,
                            {cmdAddCard, cmdRemoveCard, cmdGrid, cmdSnap}};
    pages.Show(page);
}

void frmDesignSpread::cmdDesignInfo_Click() { ShowPage(SpreadPages::ShowDetails); }
void frmDesignSpread::cmdSpread_Click() { ShowPage(SpreadPages::ShowCanvas); }
void frmDesignSpread::cmdDecks_Click() { ShowPage(SpreadPages::ShowDecks); }

// ---- Details -------------------------------------------------------------------------------

void frmDesignSpread::txtSpreadTitle_Change() {
    const auto before = TheRun.CurrentSpread.SpreadTitle;
    TheRun.CurrentSpread.SpreadTitle = txtSpreadTitle()->Text();
    if (!(TheRun.CurrentSpread.SpreadTitle == before)) SpreadDirty = true;
}

// ---- Locations -----------------------------------------------------------------------------

void frmDesignSpread::SetFocusTo(QWidget* control, int Index) {
    control->setFocus();
    // A screen that is not the active one takes the focus only when it is
    // activated again; the location is selected now all the same.
    if (!control->hasFocus()) picLocation_GotFocus(Index);
}

void frmDesignSpread::cmdAddCard_Click() {
    if (TheRun.CurrentSpread.LocationCount >= MaxLocations) {
        MsgBox(tr("The number of locations in a spread cannot exceed %1.").arg(MaxLocations), vbCritical);
        return;
    }
    // The array is made anew one larger: the new entry is every byte zero,
    // text fields included, as a fresh allocation leaves it.
    const int count = TheRun.CurrentSpread.LocationCount;
    BoundedArray<LocationRecord> kept(1, count);
    for (int i = 1; i <= count; ++i) kept(i) = TheRun.SpreadLocations(i);
    const int n = count + 1;
    TheRun.CurrentSpread.LocationCount = static_cast<Integer>(n);
    TheRun.SpreadLocations.Redim(1, n);
    for (LocationRecord& location : TheRun.SpreadLocations) location = ZeroRecord<LocationRecord>();
    for (int i = 1; i <= count; ++i) TheRun.SpreadLocations(i) = kept(i);

    SpreadCanvas* canvas = picDesignLocations;
    canvas->picLocation(n)->Move(
        static_cast<Integer>(canvas->Width() + canvas->Left() - LocationWidth - NewLocationMargin),
        static_cast<Integer>(canvas->Top()));
    canvas->SetLocationActive(n, true);
    lblCardNumber(n)->setText(QString::number(n));
    SpreadDirty = true;
    SetFocusTo(cmdCardAttributes(n), n);
}

void frmDesignSpread::cmdRemoveCard_Click() {
    const int count = TheRun.CurrentSpread.LocationCount;
    if (count < 1) {
        MsgBox(tr("There are no locations to be removed."), vbExclamation);
        return;
    }
    if (MsgBox(tr("Are you sure you want to completely remove location number %1 ?").arg(TheRun.SelectedLocation),
               vbYesNo | vbQuestion) == vbNo)
        return;
    // Every higher location goes down one number, keeping its place and its
    // attributes; the numbers on the rectangles stay with their index.
    for (int i = TheRun.SelectedLocation; i <= count - 1; ++i) {
        picLocation(i)->Move(picLocation(i + 1)->Left(), picLocation(i + 1)->Top());
        lblCardTitle(i)->setText(lblCardTitle(i + 1)->text());
        TheRun.SpreadLocations(i) = TheRun.SpreadLocations(i + 1);
    }
    picDesignLocations->SetLocationActive(count, false);
    ResetLocation(TheRun.SpreadLocations(count));
    picLocation(count)->Move(TheRun.SpreadLocations(count).LocationLeft, TheRun.SpreadLocations(count).LocationTop);
    lblCardTitle(count)->clear();

    TheRun.CurrentSpread.LocationCount = static_cast<Integer>(count - 1);
    if (TheRun.CurrentSpread.LocationCount > 0)
        SetFocusTo(picLocation(TheRun.CurrentSpread.LocationCount), TheRun.CurrentSpread.LocationCount);
    SpreadDirty = true;
}

void frmDesignSpread::picLocation_GotFocus(int Index) {
    if (TheRun.SelectedLocation != 0) picLocation(TheRun.SelectedLocation)->setBackColor(LocationGrey());
    picLocation(Index)->setBackColor(LocationNavy());
    TheRun.SelectedLocation = Index;
}

void frmDesignSpread::picLocation_MouseDown(int, int, int, double X, double Y) {
    Dragging = true;
    DragX = Whole(X);
    DragY = Whole(Y);
}

void frmDesignSpread::picLocation_MouseMove(int Index, int, int, double X, double Y) {
    if (!Dragging) return;
    // Nothing holds the rectangle while it is dragged: it may leave the
    // canvas until the button is released.
    LocationBox* pic = picLocation(Index);
    pic->Move(Whole(pic->Left() + X - DragX), Whole(pic->Top() + Y - DragY));
    SpreadDirty = true;
}

void frmDesignSpread::picLocation_MouseUp(int Index, int, int, double, double) {
    if (!Dragging) return;
    Dragging = false;
    KeepLocationOnCanvas(Index);
    if (SnapOn) SnapLocation(Index);
}

void frmDesignSpread::KeepLocationOnCanvas(int Index) { picDesignLocations->KeepLocationOnCanvas(Index); }

void frmDesignSpread::SnapLocation(int Index) {
    LocationBox* pic = picLocation(Index);
    Integer top = pic->Top();
    Integer left = pic->Left();
    if (SnapDown(top, GridStepY, HorizontalGridLines - 1)) SpreadDirty = true;
    if (SnapDown(left, GridStepX, VerticalGridLines - 1)) SpreadDirty = true;
    pic->Move(left, top);
}

void frmDesignSpread::picLocation_KeyDown(int Index, int KeyCode, int Shift, bool& handled) {
    // Only Shift alone moves a rectangle; with any other modifier, or none,
    // the keys keep their ordinary meaning.
    if (Shift != ShiftMask) return;
    const Integer step = static_cast<Integer>(SnapOn ? KeyStep + 1 : KeyStep);
    LocationBox* pic = picLocation(Index);
    bool arrow = true;
    switch (KeyCode) {
    case Qt::Key_Left: pic->setLeft(static_cast<Integer>(pic->Left() - step)); break;
    case Qt::Key_Right: pic->setLeft(static_cast<Integer>(pic->Left() + step)); break;
    case Qt::Key_Up: pic->setTop(static_cast<Integer>(pic->Top() - step)); break;
    case Qt::Key_Down: pic->setTop(static_cast<Integer>(pic->Top() + step)); break;
    default: arrow = false; break;
    }
    if (arrow) {
        KeepLocationOnCanvas(Index);
        handled = true;
    }
    if (SnapOn) SnapLocation(Index);
}

void frmDesignSpread::picLocation_KeyUp(int Index, int KeyCode, int) {
    if (KeyCode == Qt::Key_Delete) cmdRemoveCard_Click();
    else if (IsEnter(KeyCode)) cmdCardAttributes_Click(Index);
}

void frmDesignSpread::cmdCardAttributes_Click(int Index) {
    SetFocusTo(picLocation(Index), Index);
    Get<frmLocationAttributes>().Show();
}

void frmDesignSpread::cmdGrid_Click() { cmdGrid->setText(picDesignLocations->ToggleGrid(GridStepX, GridStepY)); }

void frmDesignSpread::cmdSnap_Click() {
    if (SnapOn) {
        SnapOn = false;
        cmdSnap->setText(tr("S&nap"));
        return;
    }
    SnapOn = true;
    cmdSnap->setText(tr("Don't S&nap"));
    for (int i = 1; i <= TheRun.CurrentSpread.LocationCount; ++i) SnapLocation(i);
}

// ---- Decks -----------------------------------------------------------------------------------

void frmDesignSpread::ShowDeckLists() { decks_.ShowDeckLists(); }
void frmDesignSpread::AddDeckNames() { decks_.AddDeckNames(TheRun.CurrentSpread); }
void frmDesignSpread::UpdateDeckButtons() { decks_.UpdateDeckButtons(); }
void frmDesignSpread::cmdAddDeck_Click() { decks_.cmdAddDeck_Click(); }
void frmDesignSpread::cmdDeleteDeck_Click() { decks_.cmdDeleteDeck_Click(); }

void frmDesignSpread::chkAnyDeck_Click() {
    SpreadDirty = true;
    if (chkAnyDeck->isChecked()) TheRun.CurrentSpread.AllowedDeckCount = -1;
    decks_.EnableForAnyDeck();
    UpdateDeckButtons();
}

void frmDesignSpread::cmdRemoveDeck_Click() {
    if (lstDecks->ListIndex() < 0) return;
    const QString name = TrimField(lstDecks->Text());
    if (MsgBox(tr("Are you sure you want to remove deck '%1' ?").arg(name), vbYesNo | vbQuestion) == vbNo) return;
    // The deck does not go back to the available list.
    lstDecks->RemoveItem(lstDecks->ListIndex());
    SpreadDirty = true;
}

void frmDesignSpread::cmdBrowseDeck_Click() {
    const QString problem = SpreadDeckLimitProblem(lstDecks->ListCount());
    if (!problem.isEmpty()) {
        MsgBox(problem, vbInformation);
        return;
    }
    ShowBrowseDeck();
}

void frmDesignSpread::ShowBrowseDeck() {
    // The deck browser belongs to the deck screens; it hands its choice back
    // through AddBrowsedDeck.
    auto& browse = Get<frmBrowseDeck>();
    browse.DeckChosen = [this](const QString& deckName) { AddBrowsedDeck(deckName); };
    browse.Show(true);
}

void frmDesignSpread::AddBrowsedDeck(const QString& deckName) {
    lstDecks->AddItem(deckName);
    SpreadDirty = true;
}

// ---- Companions, saving and leaving ------------------------------------------------------------

void frmDesignSpread::cmdComments_Click() { Get<frmSpreadComments>().Show(); }

void frmDesignSpread::cmdPicture_Click() { Get<frmGetSpreadBackground>().Show(true); }

void frmDesignSpread::cmdSave_Click() {
    for (int i = 1; i <= TheRun.CurrentSpread.LocationCount; ++i) {
        TheRun.SpreadLocations(i).LocationTop = picLocation(i)->Top();
        TheRun.SpreadLocations(i).LocationLeft = picLocation(i)->Left();
    }
    decks_.WriteChoice(TheRun.CurrentSpread);
    Get<frmSaveSpread>().Show(true);
}

void frmDesignSpread::cmdBack_Click() {
    if (SpreadDirty) {
        const int answer = MsgBox(tr("Save changes to the spread?"), vbYesNoCancel | vbQuestion);
        if (answer == vbCancel) return;
        // After Yes the screen closes whatever the save dialogue did.
        if (answer == vbYes) cmdSave_Click();
    }
    SetScreenPointer(MousePointer::Hourglass);
    Get<frmSpreads>().Show();
    SetScreenPointer(MousePointer::Default);
    Unload();
}

void frmDesignSpread::Form_Unload(bool&) {
    UnloadScreen<frmLocationAttributes>();
    UnloadScreen<frmSpreadComments>();
    // Selecting the spread again reloads it from disk, which is what throws
    // away whatever was left unsaved.
    if (IsLoaded<frmSpreads>()) Get<frmSpreads>().SelectSpread(RememberedSpreadName);
}

void frmDesignSpread::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdBack->setFocus();
    cmdBack_Click();
}
