#include "screens/widgets/HelpPanel.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/store/Housekeeping.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {

constexpr int PictureWidth = 520;
constexpr int PictureHeight = 300;

const QColor Table(36, 30, 78);
const QColor Gold(222, 184, 92);
const QColor Ink(250, 244, 225);
const QColor Marker(255, 255, 0);  // the yellow of a location not in focus

// The parts of the sample location, in pixels of the picture.
const QRect LocationBox(150, 44, 120, 200);
const QRect CardBox(170, 78, 80, 136);
const QRect CardsList(394, 70, 122, 150);

void Pointer(QPainter& p, const QString& name, const QPoint& from, const QPoint& to, Qt::Alignment side) {
    const QRect textBox = side == Qt::AlignLeft ? QRect(from.x() - 120, from.y() - 10, 116, 20)
                                                : QRect(from.x() + 4, from.y() - 10, 116, 20);
    p.setPen(Ink);
    p.drawText(textBox, Qt::AlignVCenter | (side == Qt::AlignLeft ? Qt::AlignRight : Qt::AlignLeft), name);
    p.setPen(QPen(Gold, 1));
    p.drawLine(from, to);
    p.setBrush(Gold);
    p.drawEllipse(to, 3, 3);
}

}  // namespace

HelpPicture::HelpPicture(bool withCardsList, QWidget* parent) : QWidget(parent), withCardsList_(withCardsList) {
    setFixedSize(PictureWidth, PictureHeight);
}

void HelpPicture::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), Table);

    // The sample location: its title above, its frame, the card and the
    // card's title.
    QFont font = p.font();
    font.setPointSize(9);
    p.setFont(font);
    p.setPen(Ink);
    p.drawText(QRect(LocationBox.left(), LocationBox.top() + 6, LocationBox.width(), 20), Qt::AlignCenter,
               QCoreApplication::translate("HelpPanel", "1. The Present"));
    p.setPen(QPen(Marker, 2));
    p.setBrush(Qt::NoBrush);
    p.drawRect(LocationBox);
    p.drawImage(CardBox, DefaultCardPicture());
    p.setPen(Ink);
    p.drawText(QRect(LocationBox.left(), CardBox.bottom() + 6, LocationBox.width(), 20), Qt::AlignCenter,
               QCoreApplication::translate("HelpPanel", "The Star"));

    Pointer(p, QCoreApplication::translate("HelpPanel", "Location Title"), QPoint(136, 40),
            QPoint(LocationBox.left() + 8, LocationBox.top() + 16), Qt::AlignLeft);
    Pointer(p, QCoreApplication::translate("HelpPanel", "Spread Location"), QPoint(136, 130),
            QPoint(LocationBox.left(), 130), Qt::AlignLeft);
    Pointer(p, QCoreApplication::translate("HelpPanel", "Card Image"), QPoint(300, 110),
            QPoint(CardBox.right() - 10, 110), Qt::AlignRight);
    Pointer(p, QCoreApplication::translate("HelpPanel", "Card Title"), QPoint(136, 262),
            QPoint(LocationBox.left() + 22, CardBox.bottom() + 16), Qt::AlignLeft);

    if (!withCardsList_) return;
    // The diary's list of the deck's cards, with the state check box below.
    p.setPen(QPen(Gold, 1));
    p.setBrush(QColor(250, 248, 240));
    p.drawRect(CardsList);
    p.setPen(QColor(30, 30, 30));
    const QStringList cards = {QCoreApplication::translate("HelpPanel", "The Fool"),
                               QCoreApplication::translate("HelpPanel", "The Magician"),
                               QCoreApplication::translate("HelpPanel", "The High Priestess"),
                               QCoreApplication::translate("HelpPanel", "The Empress"),
                               QCoreApplication::translate("HelpPanel", "The Emperor"),
                               QCoreApplication::translate("HelpPanel", "The Star")};
    // The last card is the one chosen.
    for (int i = 0; i < cards.size(); ++i) {
        const QRect line(CardsList.left() + 4, CardsList.top() + 4 + i * 20, CardsList.width() - 8, 20);
        if (i == cards.size() - 1) p.fillRect(line, QColor(60, 70, 160));
        p.setPen(i == cards.size() - 1 ? Ink : QColor(30, 30, 30));
        p.drawText(line.adjusted(3, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, cards[i]);
    }
    p.setPen(Ink);
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRect(CardsList.left(), CardsList.bottom() + 12, 12, 12));
    p.drawText(QRect(CardsList.left() + 18, CardsList.bottom() + 8, 100, 20), Qt::AlignVCenter | Qt::AlignLeft,
               QCoreApplication::translate("HelpPanel", "Reversed"));
    Pointer(p, QCoreApplication::translate("HelpPanel", "Cards List"), QPoint(390, 40),
            QPoint(CardsList.left() + 20, CardsList.top()), Qt::AlignLeft);
}

HelpPanelForm::HelpPanelForm(const QString& caption, const QString& helpText, bool withCardsList) {
    setCaption(caption);
    auto* picture = new HelpPicture(withCardsList, this);
    lblHelp = new QLabel(helpText, this);
    lblHelp->setWordWrap(true);
    lblHelp->setFixedWidth(PictureWidth);
    cmdEndHelp = new QPushButton(tr("&Close"), this);
    connect(cmdEndHelp, &QPushButton::clicked, this, Handler([this] { Unload(); }));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(picture);
    layout->addWidget(lblHelp);
    layout->addWidget(cmdEndHelp, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void HelpPanelForm::Form_Load() { PlaceTopLeft(*this, false); }

void HelpPanelForm::Form_Deactivate() { Unload(); }

void HelpPanelForm::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        Unload();
    }
}
