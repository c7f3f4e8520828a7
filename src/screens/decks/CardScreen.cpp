#include "screens/decks/CardScreen.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include "core/decks/CardEditing.h"
#include "core/platform/FileSys.h"
#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/platform/MediaPlayer.h"
#include "screens/widgets/FitPicture.h"
#include "screens/widgets/ImageBox.h"
#include "screens/widgets/ScreenPlacement.h"

CardScreen::CardScreen(const QString& captionStem, bool editing) : captionStem_(captionStem) {
    resize(TwipsToPixels(9600), TwipsToPixels(6840));

    MakeLabel(this, tr("Card Title:"), At(240, 285, 1300, 285));
    txtCardTitle = new QLineEdit(this);
    txtCardTitle->setObjectName(QStringLiteral("txtCardTitle"));
    txtCardTitle->setMaxLength(50);
    txtCardTitle->setReadOnly(!editing);
    txtCardTitle->setGeometry(At(1560, 240, 4200, 360));
    MakeLabel(this, tr("Card Type:"), At(240, 765, 1300, 285));

    fraPosition = new QGroupBox(tr(" Position "), this);
    fraPosition->setObjectName(QStringLiteral("fraPosition"));
    fraPosition->setGeometry(At(240, 1740, 5520, 660));
    optUpright = new QRadioButton(tr("&Upright"), fraPosition);
    optUpright->setObjectName(QStringLiteral("optUpright"));
    optUpright->setGeometry(At(240, 270, 2000, 300));
    optUpright->setChecked(true);
    optReversed = new QRadioButton(tr("&Reversed"), fraPosition);
    optReversed->setObjectName(QStringLiteral("optReversed"));
    optReversed->setGeometry(At(2760, 270, 2000, 300));

    auto textBox = [this, editing](const char* name, const QString& caption, int top, int height) {
        MakeLabel(this, caption, At(240, top, 2000, 285));
        auto* box = new QPlainTextEdit(this);
        box->setObjectName(QLatin1String(name));
        box->setReadOnly(!editing);
        box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        box->setGeometry(At(240, top + 300, 5520, height));
        return box;
    };
    txtDescription = textBox("txtDescription", tr("Description:"), 2520, 1980);
    txtKeywords = textBox("txtKeywords", tr("Keywords:"), 4860, 1080);

    imgCard = new ImageBox(this);
    imgCard->setObjectName(QStringLiteral("imgCard"));
    imgCard->Move(6000, 240, 3360, 4680);
    MediaPlayer1 = new MediaPlayer(this);
    MediaPlayer1->setObjectName(QStringLiteral("MediaPlayer1"));
    MediaPlayer1->setGeometry(At(6000, 5040, 3360, 480));

    cmdBack = MakeButton(this, "cmdBack", tr("&Close"), At(7860, 6240, 1500, 420));

    connect(optUpright, &QRadioButton::clicked, this, Handler([this] { optPosition_Click(); }));
    connect(optReversed, &QRadioButton::clicked, this, Handler([this] { optPosition_Click(); }));
}

int CardScreen::CheckedSide() const { return optUpright->isChecked() ? 0 : 1; }

void CardScreen::OpenCard() {
    IMGTop = imgCard->Top();
    IMGLeft = imgCard->Left();
    IMGHeight = imgCard->Height();
    IMGWidth = imgCard->Width();
    WorkingFiles().Picture[0] = TheRun.CurrentCard.CardPicture[0].Value();
    if (TheRun.CurrentDeck.IncludesReversed) WorkingFiles().Picture[1] = TheRun.CurrentCard.CardPicture[1].Value();
    else TheRun.CurrentCard.CardPicture[1] = DefaultPictureName;
    UpdateSound();
}

void CardScreen::FillFields() {
    const QString title = TheRun.CurrentCard.CardTitle.Trimmed();
    setCaption(title.isEmpty() ? captionStem_ : tr("%1 - %2").arg(captionStem_, title));
    txtCardTitle->setText(title);
    ShowCardType();
    optReversed->setEnabled(TheRun.CurrentDeck.IncludesReversed != 0);
    FillSide();
}

void CardScreen::FillSide() {
    const auto side = static_cast<std::size_t>(CheckedSide());
    txtDescription->setPlainText(TheRun.CurrentCard.CardDescription[side].Trimmed());
    txtKeywords->setPlainText(TheRun.CurrentCard.CardKeywords[side].Trimmed());
    UpdatePictures();
}

void CardScreen::UpdatePictures() {
    imgCard->ClearPicture();
    imgCard->Move(IMGLeft, IMGTop, IMGWidth, IMGHeight);
    const QString& file = WorkingFiles().Picture[static_cast<std::size_t>(CheckedSide())];
    FitPicture(*imgCard, TheRun.Paths.TempDir + file, true, false);
}

void CardScreen::UpdateSound() {
    MediaPlayer1->Stop();
    const auto& sound = TheRun.CurrentCard.CardSound[static_cast<std::size_t>(CheckedSide())];
    MediaPlayer1->Open(sound.IsBlank() ? QString() : NativePath(TheRun.Paths.TempDir + sound.Value()), false);
}

void CardScreen::optPosition_Click() {
    UpdateSound();
    FillSide();
}
