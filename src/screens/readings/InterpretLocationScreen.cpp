#include "screens/readings/InterpretLocationScreen.h"

#include <QFrame>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include "core/platform/Twips.h"
#include "core/store/RunState.h"
#include "screens/platform/MediaPlayer.h"
#include "screens/readings/EntryScreen.h"
#include "screens/widgets/ClickLabel.h"
#include "screens/widgets/FitPicture.h"
#include "screens/widgets/ImageBox.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {

// Twips of the full page.
constexpr int PageWidth = 5895;
constexpr int PageHeight = 6900;
constexpr int TextWidth = 5655;

QLabel* MakeLabel(QWidget* parent, const QString& name, int left, int top, int width, int height) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    PlaceControl(label, left, top, width, height);
    return label;
}

int Bottom(const QWidget* control) { return ControlTop(control) + ControlHeight(control); }

void SetTop(QWidget* control, int top) {
    PlaceControl(control, ControlLeft(control), top, ControlWidth(control), ControlHeight(control));
}

void SetHeight(QWidget* control, int height) {
    PlaceControl(control, ControlLeft(control), ControlTop(control), ControlWidth(control), height);
}

// On the compact page a text takes the height it needs and no more, so that
// the gaps close around it.
void FitHeightToText(QLabel* label) {
    SetHeight(label, label->text().isEmpty() ? 0 : PixelsToTwips(label->heightForWidth(label->width())));
}

}  // namespace

InterpretLocationScreen::InterpretLocationScreen(bool enlargeHidesPlayer) : enlargeHidesPlayer_(enlargeHidesPlayer) {
    setCaption(tr("Interpretation"));
    resize(TwipsToPixels(PageWidth), TwipsToPixels(PageHeight));

    lblTitle = MakeLabel(this, QStringLiteral("lblTitle"), 120, 120, TextWidth, 375);
    QFont bold = lblTitle->font();
    bold.setBold(true);
    bold.setPointSize(bold.pointSize() + 2);
    lblTitle->setFont(bold);
    lblDescription = MakeLabel(this, QStringLiteral("lblDescription"), 120, 600, TextWidth, 1215);
    lbltheQuestions = MakeLabel(this, QStringLiteral("lbltheQuestions"), 120, 1920, TextWidth, 255);
    lbltheQuestions->setText(tr("Questions:"));
    lblQuestions = MakeLabel(this, QStringLiteral("lblQuestions"), 120, 2235, TextWidth, 1095);

    linSeparator = new QFrame(this);
    linSeparator->setObjectName(QStringLiteral("linSeparator"));
    linSeparator->setFrameShape(QFrame::HLine);
    linSeparator->setFrameShadow(QFrame::Sunken);
    PlaceControl(linSeparator, 100, 3435, PageWidth - 280, 30);
    linSeparator->hide();

    imgCard = new ImageBox(this);
    imgCard->setObjectName(QStringLiteral("imgCard"));
    imgCard->Move(120, 3600, 1815, 2655);
    // Room for two lines: a long title with "(Reversed)" behind it breaks.
    lblCardTitle = MakeLabel(this, QStringLiteral("lblCardTitle"), 2100, 3600, 3675, 570);
    lblCardTitle->setFont(bold);
    optDescription = new QRadioButton(tr("Description"), this);
    optDescription->setObjectName(QStringLiteral("optDescription"));
    optDescription->setChecked(true);
    PlaceControl(optDescription, 2100, 4200, 1695, 300);
    optKeywords = new QRadioButton(tr("Keywords"), this);
    optKeywords->setObjectName(QStringLiteral("optKeywords"));
    PlaceControl(optKeywords, 3900, 4200, 1695, 300);
    lblText = new QPlainTextEdit(this);
    lblText->setObjectName(QStringLiteral("lblText"));
    lblText->setReadOnly(true);
    PlaceControl(lblText, 2100, 4530, 3675, 1725);

    MediaPlayer1 = new MediaPlayer(this);
    MediaPlayer1->setObjectName(QStringLiteral("MediaPlayer1"));
    PlaceControl(MediaPlayer1, 120, 6360, 1815, 420);
    cmdEnlargePic = new QPushButton(tr("&Enlarge Pic"), this);
    cmdEnlargePic->setObjectName(QStringLiteral("cmdEnlargePic"));
    cmdEnlargePic->setEnabled(false);
    PlaceControl(cmdEnlargePic, 2100, 6360, 1215, 375);
    cmdClose = new QPushButton(tr("&Close"), this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    PlaceControl(cmdClose, 4560, 6360, 1215, 375);

    picEnlargedBackground = new ClickLabel(this);
    picEnlargedBackground->setObjectName(QStringLiteral("picEnlargedBackground"));
    picEnlargedBackground->hide();
    imgEnlargedCard = new ImageBox(picEnlargedBackground);
    imgEnlargedCard->setObjectName(QStringLiteral("imgEnlargedCard"));

    connect(optDescription, &QRadioButton::clicked, this, Handler([this] { optDescription_Click(); }));
    connect(optKeywords, &QRadioButton::clicked, this, Handler([this] { optKeywords_Click(); }));
    connect(cmdEnlargePic, &QPushButton::clicked, this, Handler([this] { cmdEnlargePic_Click(); }));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
    // A click on either picture or on the enlarged page toggles as the button does.
    connect(imgCard, &ImageBox::Click, this, Handler([this] { cmdEnlargePic_Click(); }));
    connect(imgEnlargedCard, &ImageBox::Click, this, Handler([this] { cmdEnlargePic_Click(); }));
    connect(picEnlargedBackground, &ClickLabel::Click, this, Handler([this] { cmdEnlargePic_Click(); }));
}

const CardRecord& InterpretLocationScreen::Card() const { return DeckCard(CardNumber()); }

QString InterpretLocationScreen::CardPicture() const { return CardPicturePath(Card(), CardUpright()); }

void InterpretLocationScreen::Form_Load() {
    L = Location();
    PlaceTopLeft(*this, false);
    MarkLocation(L, true);

    const LocationRecord& location = TheRun.SpreadLocations(L);
    const QString title = location.LocationTitle.Trimmed();
    setCaption(QStringLiteral("%1 - %2 (%3)").arg(TheRun.CurrentSpread.SpreadName.Trimmed(), title).arg(L));
    lblTitle->setText(title.isEmpty() ? tr("[UNTITLED LOCATION]") : title);
    lblDescription->setText(location.LocationDescription.Trimmed());
    QString questions = location.LocationQuestion[0].Trimmed() + QLatin1Char('\n');
    if (!location.LocationQuestion[1].IsBlank())
        questions += location.LocationQuestion[1].Trimmed() + QLatin1Char('\n');
    questions += location.LocationQuestion[2].Trimmed();
    lblQuestions->setText(questions);

    const bool withCard = CardLiesThere();
    if (withCard) {
        lblCardTitle->setText(Card().CardTitle.Trimmed());
        FitPicture(*imgCard, CardPicture(), true, false);
        lblCardTitle->setText((CardUpright() ? tr("%1 (Upright)") : tr("%1 (Reversed)")).arg(lblCardTitle->text()));
        if (optDescription->isChecked()) optDescription_Click();
        else if (optKeywords->isChecked()) optKeywords_Click();
    }
    ArrangeLocationText();
    if (withCard) {
        PrepareEnlargedCard();
        linSeparator->show();
    }
    PlayCardSound();
}

void InterpretLocationScreen::optDescription_Click() {
    lblText->setPlainText(Card().CardDescription[CardUpright() ? 0 : 1].Trimmed());
}

void InterpretLocationScreen::optKeywords_Click() {
    lblText->setPlainText(Card().CardKeywords[CardUpright() ? 0 : 1].Trimmed());
}

void InterpretLocationScreen::ArrangeLocationText() {
    const LocationRecord& location = TheRun.SpreadLocations(L);
    bool hasQuestions = false;
    for (const auto& question : location.LocationQuestion) hasQuestions = hasQuestions || !question.IsBlank();
    const bool hasDescription = !location.LocationDescription.IsBlank();

    if (!hasQuestions) {
        SetHeight(lbltheQuestions, 0);
        SetHeight(lblQuestions, 0);
    }
    if (CardLiesThere()) return;

    // The compact page of the location alone.
    for (QWidget* control :
         {static_cast<QWidget*>(lblCardTitle), static_cast<QWidget*>(lblText), static_cast<QWidget*>(imgCard),
          static_cast<QWidget*>(optDescription), static_cast<QWidget*>(optKeywords)})
        control->hide();
    FitHeightToText(lblTitle);
    FitHeightToText(lblDescription);
    if (hasQuestions) FitHeightToText(lblQuestions);

    SetTop(lblTitle, 120);
    const int lineTop = ControlTop(lblTitle) - 120;
    PlaceControl(linSeparator, 100, lineTop, Width() - 180 - 100, ControlHeight(linSeparator));
    SetTop(lblDescription, Bottom(lblTitle) + (hasDescription ? 105 : 0));
    SetTop(lbltheQuestions, Bottom(lblDescription) + (hasQuestions ? 210 : 105));
    SetTop(lblQuestions, Bottom(lbltheQuestions) + (hasQuestions ? 105 : 0));
    SetTop(cmdClose, Bottom(lblQuestions) + 105);
    SetTop(cmdEnlargePic, ControlTop(cmdClose));
    SetTop(MediaPlayer1, ControlTop(cmdClose));
    Move(Left(), Top(), Width(), Bottom(cmdClose) + 450);
}

void InterpretLocationScreen::PrepareEnlargedCard() {
    PlaceControl(picEnlargedBackground, 0, 0, Width(), ControlTop(cmdClose) - 60);
    imgEnlargedCard->Move(120, 120, ControlWidth(picEnlargedBackground) - 240,
                          ControlHeight(picEnlargedBackground) - 240);
    FitPicture(*imgEnlargedCard, CardPicture(), true, false);
    cmdEnlargePic->setEnabled(true);
}

void InterpretLocationScreen::cmdEnlargePic_Click() {
    if (Enlarged_) {
        picEnlargedBackground->hide();
        lblText->show();
        cmdEnlargePic->setText(tr("&Enlarge Pic"));
        Enlarged_ = false;
        if (enlargeHidesPlayer_) MediaPlayer1->show();
    } else {
        picEnlargedBackground->show();
        picEnlargedBackground->raise();
        lblText->hide();
        cmdEnlargePic->setText(tr("&Back"));
        Enlarged_ = true;
        if (enlargeHidesPlayer_) MediaPlayer1->hide();
    }
}

void InterpretLocationScreen::PlayCardSound() {
    const QString name = CardNumber() == 0 ? QString() : Card().CardSound[CardUpright() ? 0 : 1].Trimmed();
    if (name.isEmpty()) return;
    MediaPlayer1->Open(TheRun.Paths.CardsDir + name, true);
}

void InterpretLocationScreen::cmdClose_Click() { Unload(); }

void InterpretLocationScreen::Form_Deactivate() { Unload(); }

void InterpretLocationScreen::Form_Unload(bool& cancel) {
    (void)cancel;
    MediaPlayer1->Close();
    MarkLocation(L, false);
}

void InterpretLocationScreen::Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) {
    (void)shift;
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdClose_Click();
}
