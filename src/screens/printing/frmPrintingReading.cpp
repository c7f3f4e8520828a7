#include "screens/printing/frmPrintingReading.h"

#include <QLabel>

#include "core/platform/Twips.h"
#include "screens/readings/EntryScreen.h"
#include "screens/shell/ClickLabel.h"
#include "screens/shell/ImageBox.h"
#include "core/store/RunState.h"

namespace {

QLabel* MakeLabel(QWidget* parent, const QString& name, const QString& caption, int left, int top, int width,
                  int height, int points = 0, bool bold = false) {
    auto* label = new QLabel(caption, parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    if (points > 0 || bold) {
        QFont font = label->font();
        if (points > 0) font.setPointSize(points);
        font.setBold(bold);
        label->setFont(font);
    }
    PlaceControl(label, left, top, width, height);
    return label;
}

QString CopyrightLine(const QString& what, const Designer& designer) {
    const QString name = designer.DesignerName.Trimmed();
    if (name.isEmpty()) return QString();
    return what + QStringLiteral(" ") + QChar(169) + QStringLiteral(" Copyright 2001 By ") + name +
           QStringLiteral(".");
}

constexpr int CaptionLeft = 1680, ValueLeft = 3000, CaptionWidth = 1320, ValueWidth = 7000, LineHeight = 375;
constexpr int LabelPoints = 9, LocationPoints = 7;

}  // namespace

frmPrintingReading::frmPrintingReading()
    : picLocation(1, MaxLocations), imgCard(1, MaxLocations), lblCardTitle(1, MaxLocations),
      lblCardName(1, MaxLocations), lblCardNumber(1, MaxLocations) {
    setObjectName(QStringLiteral("frmPrintingReading"));
    resize(TwipsToPixels(PageWidth), TwipsToPixels(PageHeight));
    // The sheet is white, as paper is.
    setAutoFillBackground(true);
    QPalette paper = palette();
    paper.setColor(QPalette::Window, Qt::white);
    paper.setColor(QPalette::WindowText, Qt::black);
    setPalette(paper);

    lblTheIssue = MakeLabel(this, QStringLiteral("lblTheIssue"), QString(), 480, 240, 7215, 375, LabelPoints);
    lblPageNumber = MakeLabel(this, QStringLiteral("lblPageNumber"), QString(), 9000, 240, 2055, 375, LabelPoints);
    lblPageNumber->setAlignment(Qt::AlignRight | Qt::AlignTop);
    Label1 = MakeLabel(this, QStringLiteral("Label1"), QStringLiteral("Cartomar"), 1680, 1560, 8175, 495, 20, true);
    Label1->setAlignment(Qt::AlignHCenter | Qt::AlignTop);

    picSpread = new QWidget(this);
    picSpread->setObjectName(QStringLiteral("picSpread"));
    picSpread->setAutoFillBackground(true);
    PlaceControl(picSpread, 840, 2880, 10095, 5895);
    imgBackground = new ImageBox(picSpread);
    imgBackground->setObjectName(QStringLiteral("imgBackground"));
    imgBackground->Move(0, 0, 10095, 5895);

    Label100 = MakeLabel(this, QStringLiteral("Label100"), QStringLiteral("Spread:"), CaptionLeft, 10560, CaptionWidth,
                         LineHeight, LabelPoints);
    Label2 = MakeLabel(this, QStringLiteral("Label2"), QString(), ValueLeft, 10560, ValueWidth, LineHeight, LabelPoints);
    Label101 = MakeLabel(this, QStringLiteral("Label101"), QStringLiteral("Deck:"), CaptionLeft, 11040, CaptionWidth,
                         LineHeight, LabelPoints);
    Label3 = MakeLabel(this, QStringLiteral("Label3"), QString(), ValueLeft, 11040, ValueWidth, LineHeight, LabelPoints);
    Label102 = MakeLabel(this, QStringLiteral("Label102"), QStringLiteral("Date & Time:"), CaptionLeft, 11520,
                         CaptionWidth, LineHeight, LabelPoints);
    lblNow = MakeLabel(this, QStringLiteral("lblNow"), QString(), ValueLeft, 11520, ValueWidth, LineHeight, LabelPoints);
    Label5 = MakeLabel(this, QStringLiteral("Label5"), QStringLiteral("Title:"), CaptionLeft, 12000, CaptionWidth,
                       LineHeight, LabelPoints);
    lblTitle = MakeLabel(this, QStringLiteral("lblTitle"), QString(), ValueLeft, 12000, ValueWidth, 975, LabelPoints);
    // A caption stays on its line.
    for (QLabel* caption : {Label100, Label101, Label102, Label5}) caption->setWordWrap(false);
    lblCpyS = MakeLabel(this, QStringLiteral("lblCpyS"), QString(), 1680, 13080, 8415, 255, 8);
    lblCpyD = MakeLabel(this, QStringLiteral("lblCpyD"), QString(), 1680, 13560, 8415, 255, 8);

    for (int i = 1; i <= MaxLocations; ++i) {
        auto* location = new ClickLabel(picSpread);
        location->setObjectName(QStringLiteral("picLocation"));
        location->setProperty("Index", i);
        PlaceControl(location, 0, 0, 1695, 975);
        location->hide();
        picLocation(i) = location;
        auto* card = new ImageBox(location);
        card->setObjectName(QStringLiteral("imgCard"));
        card->setProperty("Index", i);
        card->setStretch(true);
        card->Move(0, 0, 735, 975);
        imgCard(i) = card;
        lblCardTitle(i) = MakeLabel(location, QStringLiteral("lblCardTitle"), QString(), 720, 0, 975, 435,
                                    LocationPoints);
        lblCardName(i) = MakeLabel(location, QStringLiteral("lblCardName"), QString(), 720, 525, 975, 435,
                                   LocationPoints);
        lblCardNumber(i) = MakeLabel(location, QStringLiteral("lblCardNumber"), QString(), 240, 360, 255, 255,
                                     LocationPoints);
        lblCardNumber(i)->setAlignment(Qt::AlignCenter);
        for (QLabel* label : {lblCardTitle(i), lblCardName(i), lblCardNumber(i)}) label->setProperty("Index", i);
    }
}

void frmPrintingReading::Form_Load() {
    lblCpyS->setText(CopyrightLine(QStringLiteral("Spread"), CurrentSpread.SpreadDesigner));
    lblCpyD->setText(CopyrightLine(QStringLiteral("Deck"), CurrentDeck.DeckDesigner));
}
