#include "screens/readings/EntryScreen.h"

#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>

#include "core/platform/Errors.h"
#include "core/platform/Palette.h"
#include "core/platform/Picture.h"
#include "core/platform/Twips.h"
#include "core/spreads/LocationTitle.h"
#include "core/store/RunState.h"
#include "screens/platform/ErrorReport.h"
#include "screens/platform/ListBox.h"
#include "screens/platform/MsgBox.h"
#include "screens/printing/PrintEntry.h"
#include "screens/widgets/ClickLabel.h"
#include "screens/widgets/DecorativePictures.h"
#include "screens/widgets/FitPicture.h"
#include "screens/widgets/ImageBox.h"
#include "screens/widgets/ScreenPlacement.h"

void PlaceControl(QWidget* control, int left, int top, int width, int height) {
    control->setGeometry(At(left, top, width, height));
}
int ControlTop(const QWidget* control) { return PixelsToTwips(control->y()); }
int ControlLeft(const QWidget* control) { return PixelsToTwips(control->x()); }
int ControlWidth(const QWidget* control) { return PixelsToTwips(control->width()); }
int ControlHeight(const QWidget* control) { return PixelsToTwips(control->height()); }

QLabel* MakeCaption(QWidget* parent, const QString& caption, int left, int top, int width) {
    auto* label = new QLabel(caption, parent);
    PlaceControl(label, left, top, width, 255);
    return label;
}

ListBox* MakeList(QWidget* parent, const QString& name, int left, int top, int width, int height) {
    auto* list = new ListBox(parent);
    list->setObjectName(name);
    PlaceControl(list, left, top, width, height);
    return list;
}

QString CardPicturePath(const CardRecord& card, bool upright) {
    return TheRun.Paths.CardsDir + card.CardPicture[upright ? 0 : 1].Trimmed();
}

const CardRecord& DeckCard(int cardNumber) { return TheRun.CurrentDeck.DeckCards(cardNumber); }

namespace {

// Twips of the pages and of one location; the column of buttons stands right
// of the pages.
constexpr int PageLeft = 120, PageTop = 120, PageWidth = 9615, PageHeight = 5895;
constexpr int PanelLeft = 9840, PanelTop = 120, PanelWidth = 1260, PanelHeight = 5895;
constexpr int LocationWidth = 1695, LocationHeight = 975;

QLabel* MakeLabel(QWidget* parent, const QString& name, const QString& caption, int left, int top, int width,
                  int height) {
    auto* label = new QLabel(caption, parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    PlaceControl(label, left, top, width, height);
    return label;
}

ClickLabel* MakeClickLabel(QWidget* parent, const QString& name, int left, int top, int width, int height) {
    auto* label = new ClickLabel(parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    PlaceControl(label, left, top, width, height);
    return label;
}

}  // namespace

EntryScreen::EntryScreen(const QString& caption)
    : picLocation(1, MaxLocations),
      imgCard(1, MaxLocations),
      lblCardTitle(1, MaxLocations),
      lblCardNumber(1, MaxLocations) {
    setCaption(caption);
    resize(TwipsToPixels(PanelLeft + PanelWidth + 120), TwipsToPixels(PageTop + PageHeight + 120));

    picControlPanel = new QWidget(this);
    picControlPanel->setObjectName(QStringLiteral("picControlPanel"));
    PlaceControl(picControlPanel, PanelLeft, PanelTop, PanelWidth, PanelHeight);

    picIntroduction = new QWidget(this);
    picIntroduction->setObjectName(QStringLiteral("picIntroduction"));
    PlaceControl(picIntroduction, PageLeft, PageTop, PageWidth, PageHeight);
    imgSide = new ImageBox(picIntroduction);
    imgSide->setObjectName(QStringLiteral("imgSide"));
    imgSide->Move(120, 120, 2295, 5655);
    imgSide->setPicture(IntroductionSidePicture(TwipsToPixels(2295), TwipsToPixels(5655)));
    lblSpreadTitle = MakeLabel(picIntroduction, QStringLiteral("lblSpreadTitle"), QString(), 2640, 240, 6735, 495);
    QFont titleFont = lblSpreadTitle->font();
    titleFont.setPointSize(titleFont.pointSize() + 4);
    titleFont.setBold(true);
    lblSpreadTitle->setFont(titleFont);
    lblSpreadDescription =
        MakeLabel(picIntroduction, QStringLiteral("lblSpreadDescription"), QString(), 2640, 840, 6735, 3135);
    lblIssue = MakeLabel(picIntroduction, QStringLiteral("lblIssue"), tr("Issue Addressed by this Spread:"), 2640, 4200,
                         6735, 285);
    txtIssue = new QLineEdit(picIntroduction);
    txtIssue->setObjectName(QStringLiteral("txtIssue"));
    txtIssue->setMaxLength(125);
    PlaceControl(txtIssue, 2640, 4560, 6735, 375);
    lblTheIssue = MakeLabel(picIntroduction, QStringLiteral("lblTheIssue"), QString(), 2640, 5040, 6735, 285);
    lblTheIssue->hide();
    connect(txtIssue, &QLineEdit::returnPressed, this, Handler([this] { txtIssue_Enter(); }));
    setWayOut([this] { cmdClose_Click(); });

    picSpread = new QWidget(this);
    picSpread->setObjectName(QStringLiteral("picSpread"));
    PlaceControl(picSpread, PageLeft, PageTop, PageWidth, PageHeight);
    picSpread->hide();
    imgBackground = new ImageBox(picSpread);
    imgBackground->setObjectName(QStringLiteral("imgBackground"));
    imgBackground->Move(0, 0, PageWidth, PageHeight);

    for (int i = 1; i <= MaxLocations; ++i) {
        ClickLabel* location =
            MakeClickLabel(picSpread, QStringLiteral("picLocation"), 0, 0, LocationWidth, LocationHeight);
        location->setProperty("Index", i);
        location->hide();
        picLocation(i) = location;
        auto* card = new ImageBox(location);
        card->setObjectName(QStringLiteral("imgCard"));
        card->setProperty("Index", i);
        card->Move(0, 0, 735, 975);
        imgCard(i) = card;
        lblCardTitle(i) =
            MakeClickLabel(location, QStringLiteral("lblCardTitle"), 720, 0, LocationTitleWidth, LocationTitleHeight);
        lblCardTitle(i)->setFont(LocationTitleFont());
        lblCardNumber(i) = MakeClickLabel(location, QStringLiteral("lblCardNumber"), 240, 360, 255, 255);
        lblCardNumber(i)->setAlignment(Qt::AlignCenter);
        for (QObject* control : {static_cast<QObject*>(lblCardTitle(i)), static_cast<QObject*>(lblCardNumber(i))})
            control->setProperty("Index", i);

        connect(location, &ClickLabel::Click, this, Handler([this, i] { picLocation_Click(i); }));
        connect(card, &ImageBox::Click, this, Handler([this, i] { imgCard_Click(i); }));
        connect(card, &ImageBox::DblClick, this, Handler([this, i] { imgCard_DblClick(i); }));
        // The labels of a location answer a click as its picture does.
        connect(lblCardTitle(i), &ClickLabel::Click, this, Handler([this, i] { imgCard_Click(i); }));
        connect(lblCardNumber(i), &ClickLabel::Click, this, Handler([this, i] { imgCard_Click(i); }));
    }
}

QPushButton* EntryScreen::AddPanelButton(const QString& name, const QString& caption, int top, bool enabled) {
    auto* button = new QPushButton(caption, picControlPanel);
    button->setObjectName(name);
    button->setEnabled(enabled);
    button->setAutoDefault(false);
    PlaceControl(button, 120, top, 975, 375);
    return button;
}

bool EntryScreen::IntroductionShown() const { return !picIntroduction->isHidden(); }

int EntryScreen::OuterHeight() const {
    if (auto* sub = qobject_cast<QMdiSubWindow*>(parentWidget())) return PixelsToTwips(sub->height());
    return PixelsToTwips(frameGeometry().height());
}

void EntryScreen::CaptureCardFrame() {
    IMGTop = static_cast<Integer>(imgCard(1)->Top());
    IMGLeft = static_cast<Integer>(imgCard(1)->Left());
    IMGWidth = static_cast<Integer>(imgCard(1)->Width());
    IMGHeight = static_cast<Integer>(imgCard(1)->Height());
}

void EntryScreen::ShowSpreadTexts() {
    lblSpreadTitle->setText(TheRun.CurrentSpread.SpreadTitle.Trimmed());
    lblSpreadDescription->setText(TheRun.CurrentSpread.SpreadDescription.Trimmed());
}

void EntryScreen::PlaceLocation(int i) {
    const LocationRecord& location = TheRun.SpreadLocations(i);
    ClickLabel* box = picLocation(i);
    box->show();
    box->setEnabled(true);
    PlaceControl(box, location.LocationLeft, location.LocationTop, LocationWidth, LocationHeight);
    lblCardTitle(i)->setText(NumberedLocationTitle(i, location.LocationTitle.Value()));
    lblCardNumber(i)->setText(QString::number(i));
    box->setBackColor(QBColor(TheRun.CurrentLocationColour));
    const QColor other = QBColor(TheRun.OtherLocationColour);
    box->setForeColor(other);
    lblCardTitle(i)->setForeColor(other);
    lblCardNumber(i)->setForeColor(other);
    // The labels stand on the location's colour.
    lblCardTitle(i)->setBackColor(QBColor(TheRun.CurrentLocationColour));
    lblCardNumber(i)->setBackColor(QBColor(TheRun.CurrentLocationColour));
}

void EntryScreen::ShowBackground() {
    if (TheRun.CurrentSpread.BackgroundFile.Value().contains(QLatin1Char('.'))) {
        imgBackground->setStretch(TheRun.CurrentSpread.StretchBackground != 0);
        imgBackground->ClearPicture();
        const QString path = TheRun.Paths.CardsDir + TheRun.CurrentSpread.BackgroundFile.Trimmed();
        // A background file that has gone or cannot be read leaves the canvas
        // plain: the reading can go on without it.
        try {
            imgBackground->setPicture(LoadPicture(path).Image);
        } catch (const RuntimeError&) {
        }
    } else {
        imgBackground->ClearPicture();
    }
}

void EntryScreen::FitBackgroundToPage() {
    imgBackground->Move(0, 0, ControlWidth(picSpread), ControlHeight(picSpread));
}

void EntryScreen::ShowPage(bool spreadPage) {
    picIntroduction->setVisible(!spreadPage);
    picSpread->setVisible(spreadPage);
}

void EntryScreen::HideLocations() {
    for (int i = 1; i <= MaxLocations; ++i) {
        picLocation(i)->hide();
        lblCardTitle(i)->clear();
    }
}

QString EntryScreen::IssueForSaving(const QString& issue) {
    return QStringLiteral("  ") + issue.trimmed() + QStringLiteral("  ");
}

bool EntryScreen::ConfirmClose(bool changed, const QString& question) {
    if (!changed) return true;
    const int answer = MsgBox(question, vbYesNoCancel | vbQuestion);
    if (answer == vbCancel) return false;
    if (answer == vbYes) cmdSave_Click();
    return true;
}

// Enter in the issue box goes on as a click on Continue does: the box loses
// the focus first, then Continue runs, so that the issue comes out the same.
void EntryScreen::txtIssue_Enter() {
    enteringIssue_ = true;
    cmdContinue->setFocus();
    enteringIssue_ = false;
    txtIssue_LostFocus();
    cmdContinue_Click();
}

bool EntryScreen::eventFilter(QObject* watched, QEvent* e) {
    if (watched == txtIssue && e->type() == QEvent::FocusOut && !enteringIssue_ &&
        static_cast<QFocusEvent*>(e)->reason() != Qt::PopupFocusReason)
        Guarded([this] { txtIssue_LostFocus(); });
    return Form::eventFilter(watched, e);
}

void EntryScreen::Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) {
    (void)shift;
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdClose_Click();
}

void EntryScreen::MarkLocation(int location, bool marked) {
    if (location < 1 || location > MaxLocations) return;
    static const QColor MarkedLocationColour(192, 0, 0);  // bright red
    const QColor colour = marked ? MarkedLocationColour : QBColor(TheRun.CurrentLocationColour);
    // The labels inside stand on the location's colour, so they take it too.
    picLocation(location)->setBackColor(colour);
    for (ClickLabel* label : picLocation(location)->findChildren<ClickLabel*>()) label->setBackColor(colour);
}

void EntryScreen::TakeIssue(const QString& issue) { txtIssue->setText(issue.trimmed()); }

void EntryScreen::FocusIssue() {
    if (!txtIssue->isHidden()) txtIssue->setFocus();
}

void EntryScreen::ShowCardInLocation(int location, int cardNumber, bool upright) {
    const CardRecord& card = DeckCard(cardNumber);
    ImageBox* box = imgCard(location);
    box->ClearPicture();
    box->Move(IMGLeft, IMGTop, IMGWidth, IMGHeight);
    FitPicture(*box, CardPicturePath(card, upright), true, false);
}

void EntryScreen::ClearLocationCard(int location) { imgCard(location)->ClearPicture(); }

void EntryScreen::PrintEntry(EntryPrintout entry) const {
    entry.Issue = lblTheIssue->text();
    ::PrintEntry(entry);
}
