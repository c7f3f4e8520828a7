#include "screens/shell/frmMainScreen.h"

#include <QFont>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "core/platform/FileSys.h"
#include "core/platform/Palette.h"
#include "core/platform/Twips.h"
#include "core/store/Housekeeping.h"
#include "core/store/MakerAddresses.h"
#include "core/store/NewDesigns.h"
#include "core/store/RunState.h"
#include "screens/decks/frmDecks.h"
#include "screens/diary/frmNewDiary.h"
#include "screens/diary/frmOpenDiary.h"
#include "screens/diary/frmSelectSpreadforDiary.h"
#include "screens/journal/frmJournal.h"
#include "screens/packages/frmCreatePackage.h"
#include "screens/packages/frmInstallPackage.h"
#include "screens/platform/MsgBox.h"
#include "screens/readings/frmNewReading.h"
#include "screens/readings/frmOpenReading.h"
#include "screens/readings/frmSelectSpread.h"
#include "screens/shell/frmHelpViewer.h"
#include "screens/spreads/frmSpreads.h"
#include "screens/widgets/ClickLabel.h"
#include "screens/widgets/DecorativePictures.h"
#include "screens/widgets/ImageBox.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {

constexpr int ScreenWidth = 640;  // pixels
constexpr int ScreenHeight = 480;

const QColor Gold(222, 184, 92);
const QColor PaleGold(240, 222, 170);

struct ButtonDesign {
    int Index;
    int Column;  // 0 Readings, 1 Diary, 2 Design, 3 Package, 4 File Menu
    int Row;
    const char* Caption;
    const char* ToolTip;
    int Columns = 1;  // the journal spans the two groups whose entries it searches
};

// The diary buttons carry the tooltips of the reading buttons; their group
// heading tells what they work on.
constexpr ButtonDesign Buttons[] = {
    {1, 0, 0, QT_TRANSLATE_NOOP("frmMainScreen", "New"), QT_TRANSLATE_NOOP("frmMainScreen", "Make a New Reading")},
    {2, 0, 1, QT_TRANSLATE_NOOP("frmMainScreen", "Past"), QT_TRANSLATE_NOOP("frmMainScreen", "Open a Saved Reading")},
    {3, 1, 0, QT_TRANSLATE_NOOP("frmMainScreen", "New"), QT_TRANSLATE_NOOP("frmMainScreen", "Make a New Reading")},
    {4, 1, 1, QT_TRANSLATE_NOOP("frmMainScreen", "Past"), QT_TRANSLATE_NOOP("frmMainScreen", "Open a Saved Reading")},
    {5, 2, 0, QT_TRANSLATE_NOOP("frmMainScreen", "Decks"),
     QT_TRANSLATE_NOOP("frmMainScreen", "Create, Edit or View Decks")},
    {6, 2, 1, QT_TRANSLATE_NOOP("frmMainScreen", "Spreads"),
     QT_TRANSLATE_NOOP("frmMainScreen", "Create, Edit, View or Manage Spreads")},
    {7, 3, 0, QT_TRANSLATE_NOOP("frmMainScreen", "Install"), QT_TRANSLATE_NOOP("frmMainScreen", "Install a Package")},
    {8, 3, 1, QT_TRANSLATE_NOOP("frmMainScreen", "Create"), QT_TRANSLATE_NOOP("frmMainScreen", "Create a New Package")},
    {frmMainScreen::JournalButton, 0, 2, QT_TRANSLATE_NOOP("frmMainScreen", "Journal"),
     QT_TRANSLATE_NOOP("frmMainScreen", "Search and Count Past Readings and Diaries"), 2},
    {9, 4, 0, QT_TRANSLATE_NOOP("frmMainScreen", "Help"), QT_TRANSLATE_NOOP("frmMainScreen", "Display Help")},
    {11, 4, 1, QT_TRANSLATE_NOOP("frmMainScreen", "Exit"), QT_TRANSLATE_NOOP("frmMainScreen", "Exit Cartomar")},
};

constexpr int ColumnWidth = 112;
constexpr int ColumnGap = 12;
constexpr int FirstColumnLeft = (ScreenWidth - 5 * ColumnWidth - 4 * ColumnGap) / 2;
constexpr int HeadingTop = 256;
constexpr int FirstButtonTop = 290;
constexpr int ButtonHeight = 28;
constexpr int ButtonPitch = 38;

int ColumnLeft(int column) { return FirstColumnLeft + column * (ColumnWidth + ColumnGap); }

QLabel* MakeCaption(QWidget* parent, const QString& text, const QRect& where, int pointSize, bool bold,
                    const QColor& colour) {
    auto* label = new QLabel(text, parent);
    QFont font(QStringLiteral("DejaVu Serif"));
    font.setPointSize(pointSize);
    font.setBold(bold);
    label->setFont(font);
    QPalette p = label->palette();
    p.setColor(QPalette::WindowText, colour);
    label->setPalette(p);
    label->setAlignment(Qt::AlignCenter);
    label->setGeometry(where);
    return label;
}

// The program directory as the user knows it: without the closing '/'.
QString ProgramDirectoryShown() {
    QString dir = TheRun.Paths.AppPath;
    if (dir.size() > 1 && dir.endsWith(QLatin1Char('/'))) dir.chop(1);
    return dir;
}

// How a subsystem gets back to the main screen.
void ReturnHere(int button) {
    if (button != 0) Get<frmMainScreen>().lblButton_Click(button);
    else Get<frmMainScreen>().Show();
}

// Exit asks what the frame's close box asks, its one way out; the main
// screen needs nothing of the frame but its window.
void AskTheFrameToClose() {
    if (QMdiArea* area = FrameArea()) area->window()->close();
}

}  // namespace

frmMainScreen::frmMainScreen() {
    // From now on the subsystems' screens come back here.
    SetMainScreenHook(ReturnHere);
    setCaption(tr("Cartomar"));
    setFixedSize(ScreenWidth, ScreenHeight);

    imgMainScreen = new ImageBox(this);
    imgMainScreen->Move(0, 0, PixelsToTwips(ScreenWidth), PixelsToTwips(ScreenHeight));
    imgMainScreen->setPicture(MainScreenPicture(ScreenWidth, ScreenHeight));

    lblProductName = MakeCaption(this, QString(), QRect(0, 70, ScreenWidth, 72), 40, true, Gold);

    const QStringList headings = {tr("Readings"), tr("Diary"), tr("Design"), tr("Package"), tr("File Menu")};
    QLabel** headingLabels[] = {&lblReadings, &lblDiary, &lblTools, &lblPackage, &lblFileMenu};
    for (int column = 0; column < 5; ++column)
        *headingLabels[column] = MakeCaption(
            this, headings[column], QRect(ColumnLeft(column), HeadingTop, ColumnWidth, 26), 13, true, PaleGold);

    for (const ButtonDesign& b : Buttons) {
        auto* label = new ClickLabel(this);
        label->setText(tr(b.Caption));
        label->setToolTip(tr(b.ToolTip));
        label->setAlignment(Qt::AlignCenter);
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPointSize(11);
        font.setBold(true);
        label->setFont(font);
        label->setBackColor(QBColor(0));
        label->setForeColor(Gold);
        label->setCursor(Qt::PointingHandCursor);
        label->setGeometry(ColumnLeft(b.Column), FirstButtonTop + b.Row * ButtonPitch,
                           b.Columns * ColumnWidth + (b.Columns - 1) * ColumnGap, ButtonHeight);
        const int i = b.Index;
        lblButton_[i] = label;
        connect(label, &ClickLabel::MouseDown, this, [this, i] { lblButton_MouseDown(i); });
        connect(label, &ClickLabel::MouseMove, this,
                [this, i](Qt::MouseButtons buttons, Qt::KeyboardModifiers, int x, int y) {
                    lblButton_MouseMove(i, buttons, x, y);
                });
        connect(label, &ClickLabel::MouseUp, this, [this, i] { lblButton_MouseUp(i); });
        connect(label, &ClickLabel::Click, this, Handler([this, i] { lblButton_Click(i); }));
    }

    Label2 = MakeCaption(this, MakerWebAddress, QRect(0, 404, ScreenWidth, 20), 9, false, PaleGold);
    Label1 = MakeCaption(this, SupportAddress, QRect(0, 424, ScreenWidth, 20), 9, false, PaleGold);
}

void frmMainScreen::Form_Load() {
    CentreInFrame(*this);
    ButtonDownColour_ = QBColor(15);
    lblProductName->setText(tr("Cartomar"));
    lblTools->setText(tr("Design"));
    lblButton(5)->setToolTip(tr("Create, Edit or View Decks"));
    lblButton(6)->setToolTip(tr("Create, Edit, View or Manage Spreads"));
    lblButton(8)->setVisible(true);
    lblButton(7)->setEnabled(true);
    ClearTemp();
}

void frmMainScreen::Show(bool modal) {
    Form::Show(modal);
    auto* sub = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (!sub || (sub->windowFlags() & Qt::FramelessWindowHint)) return;
    sub->setWindowFlags(Qt::SubWindow | Qt::FramelessWindowHint);
    sub->adjustSize();
    Move(Left(), Top());
    sub->show();
    if (QMdiArea* area = FrameArea()) area->setActiveSubWindow(sub);
}

ClickLabel* frmMainScreen::lblButton(int Index) const {
    const auto found = lblButton_.find(Index);
    return found == lblButton_.end() ? nullptr : found->second;
}

void frmMainScreen::Form_QueryUnload(bool& cancel, int unloadMode) {
    // The hub stays for the whole run; only the exit question ends it.
    if (unloadMode == vbFormControlMenu) cancel = true;
}

void frmMainScreen::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    // Esc closes every other screen; here it only flashes the hourglass.
    if (key == Qt::Key_Escape) {
        lblButton_Click(12);
        handled = true;
    }
}

void frmMainScreen::lblButton_Click(int Index) {
    setMousePointer(MousePointer::Hourglass);
    if (Index >= 1 && Index <= 8) OpenFirstLevelScreen(Index);
    else if (Index == 9) LaunchHelp();
    else if (Index == JournalButton) OpenJournal();
    else if (Index == 11) AskTheFrameToClose();
    setMousePointer(MousePointer::Arrow);
}

// The first screen of each subsystem. The main screen hides before it opens
// and is shown again by that screen's Close. An opening that fails takes
// away the entry screen it opened beneath and shows the main screen again,
// so that the user is not left before an empty frame.
void frmMainScreen::OpenFirstLevelScreen(int Index) {
    try {
        OpenSubsystem(Index);
    } catch (...) {
        UnloadScreen<frmNewReading>();
        UnloadScreen<frmNewDiary>();
        Show();
        setMousePointer(MousePointer::Arrow);
        throw;
    }
}

void frmMainScreen::OpenSubsystem(int Index) {
    switch (Index) {
    case 1:  // a new reading: frmNewReading, with frmSelectSpread over it
        ResetSpread(TheRun.CurrentSpread);
        ResetReading(TheRun.CurrentReading);
        Hide();
        Get<frmNewReading>().Show();
        Get<frmSelectSpread>().Show(true);
        break;
    case 2:  // a saved reading: frmNewReading, with frmOpenReading over it
        ResetSpread(TheRun.CurrentSpread);
        ResetReading(TheRun.CurrentReading);
        Hide();
        Get<frmNewReading>().Show();
        Get<frmOpenReading>().Show(true);
        break;
    case 3:  // a new diary entry: frmNewDiary, with frmSelectSpreadforDiary over it
        ResetSpread(TheRun.CurrentSpread);
        ResetDiary(TheRun.CurrentDiary);
        Hide();
        Get<frmNewDiary>().Show();
        Get<frmSelectSpreadforDiary>().Show(true);
        break;
    case 4:  // a saved diary entry: frmNewDiary, with frmOpenDiary over it
        ResetSpread(TheRun.CurrentSpread);
        ResetDiary(TheRun.CurrentDiary);
        Hide();
        Get<frmNewDiary>().Show();
        Get<frmOpenDiary>().Show(true);
        break;
    case 5:  // frmDecks
        Hide();
        Get<frmDecks>().Show();
        break;
    case 6:  // frmSpreads
        Hide();
        Get<frmSpreads>().Show();
        break;
    case 7:  // frmInstallPackage
        Hide();
        Get<frmInstallPackage>().Show();
        break;
    case 8:  // frmCreatePackage
        Hide();
        Get<frmCreatePackage>().Show();
        break;
    default: break;
    }
}

void frmMainScreen::OpenJournal() {
    Hide();
    Get<frmJournal>().Show();
}

void frmMainScreen::LaunchHelp() {
    const QString helpFile = TheRun.Paths.AppPath + QStringLiteral("Cartomar.hlp");
    if (FileExists(helpFile)) {
        ShowHelpFile(helpFile);
        return;
    }
    MsgBox(tr("Unable to locate help file. The file is longer in the '%1' directory. Recopy the help file or "
              "reinstall Cartomar.")
               .arg(ProgramDirectoryShown()),
           vbCritical);
}

void frmMainScreen::lblButton_MouseDown(int Index) { lblButton(Index)->setBackColor(ButtonDownColour_); }

void frmMainScreen::lblButton_MouseMove(int Index, Qt::MouseButtons buttons, int x, int y) {
    if (buttons != Qt::LeftButton) return;
    ClickLabel* label = lblButton(Index);
    const bool inside = x >= 0 && x < PixelsToTwips(label->width()) && y >= 0 && y < PixelsToTwips(label->height());
    label->setBackColor(inside ? ButtonDownColour_ : QBColor(0));
}

void frmMainScreen::lblButton_MouseUp(int Index) { lblButton(Index)->setBackColor(QBColor(0)); }
