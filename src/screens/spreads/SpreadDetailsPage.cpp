#include "screens/spreads/SpreadDetailsPage.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "core/platform/OleDate.h"
#include "core/platform/Twips.h"
#include "core/store/RunState.h"
#include "screens/spreads/TextBoxes.h"

namespace {
QRect At(int left, int top, int width, int height) {
    return QRect(TwipsToPixels(left), TwipsToPixels(top), TwipsToPixels(width), TwipsToPixels(height));
}

QLabel* Caption(QWidget* parent, const QString& name, const QString& text, const QRect& where) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setGeometry(where);
    return label;
}

TextBox* Line(QWidget* parent, const QString& name, int limit, const QRect& where) {
    auto* box = new TextBox(parent);
    box->setObjectName(name);
    box->setMaxLength(limit);
    box->setGeometry(where);
    return box;
}
}  // namespace

SpreadDetailsPage::SpreadDetailsPage(bool withNotes, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picDesignInfo"));
    const int labelLeft = 240, boxLeft = 1800, boxWidth = 7400;

    Caption(this, QStringLiteral("lblTitle"), tr("Title:"), At(labelLeft, 240, 1500, 300));
    txtSpreadTitle = Line(this, QStringLiteral("txtSpreadTitle"), 50, At(boxLeft, 200, boxWidth, 330));

    Caption(this, QStringLiteral("lblDescription"), tr("Description:"), At(labelLeft, 660, 1500, 300));
    txtSpreadDescription = new MultiLineTextBox(this);
    txtSpreadDescription->setObjectName(QStringLiteral("txtSpreadDescription"));
    txtSpreadDescription->setMaxLength(1500);
    const int descriptionHeight = withNotes ? 1500 : 2400;
    txtSpreadDescription->setGeometry(At(boxLeft, 640, boxWidth, descriptionHeight));

    int top = 640 + descriptionHeight + 120;
    if (withNotes) {
        Caption(this, QStringLiteral("lblComments"), tr("Notes:"), At(labelLeft, top + 20, 1500, 300));
        txtComments = new MultiLineTextBox(this);
        txtComments->setObjectName(QStringLiteral("txtComments"));
        txtComments->setMaxLength(650);
        txtComments->setGeometry(At(boxLeft, top, boxWidth, 900));
        top += 1020;
    }

    Caption(this, QStringLiteral("lblDesigner"), tr("Designer:"), At(labelLeft, top + 20, 1500, 300));
    txtSpreadDesigner = Line(this, QStringLiteral("txtSpreadDesigner"), 40, At(boxLeft, top, boxWidth, 330));
    top += 450;
    Caption(this, QStringLiteral("lblEmail"), tr("E-mail:"), At(labelLeft, top + 20, 1500, 300));
    txtDesignerEmail = Line(this, QStringLiteral("txtDesignerEmail"), 40, At(boxLeft, top, boxWidth, 330));
    top += 450;
    Caption(this, QStringLiteral("lblWebPage"), tr("Web Page:"), At(labelLeft, top + 20, 1500, 300));
    txtDesignerWebPage = Line(this, QStringLiteral("txtDesignerWebPage"), 50, At(boxLeft, top, boxWidth, 330));
    top += 480;

    chkQuestion = new QCheckBox(tr("Question or Query"), this);
    chkQuestion->setObjectName(QStringLiteral("chkQuestion"));
    chkQuestion->setGeometry(At(boxLeft, top, 3000, 330));
    Caption(this, QStringLiteral("lblModifiedOn"), tr("Modified On:"), At(5400, top + 20, 1500, 300));
    lblModifiedOnDate = Caption(this, QStringLiteral("lblModifiedOnDate"), QString(), At(6900, top + 20, 2000, 300));
}

void SpreadDetailsPage::Fill(const SpreadRecord& spread) {
    txtSpreadDescription->setText(spread.SpreadDescription.Trimmed());
    lblModifiedOnDate->setText(FormatLongDate(spread.ModifiedOn));
    txtDesignerEmail->setText(spread.SpreadDesigner.DesignerEmail.Trimmed());
    txtSpreadDesigner->setText(spread.SpreadDesigner.DesignerName.Trimmed());
    txtDesignerWebPage->setText(spread.SpreadDesigner.DesignerWebPage.Trimmed());
    chkQuestion->setChecked(spread.AskQuestion != 0);
    txtSpreadTitle->setText(spread.SpreadTitle.Trimmed());
    if (txtComments) txtComments->setText(spread.SpreadComments.Trimmed());
}

void SpreadDetailsPage::setLocked(bool locked) {
    for (TextBox* box : {txtSpreadTitle, txtSpreadDesigner, txtDesignerEmail, txtDesignerWebPage})
        box->setReadOnly(locked);
    txtSpreadDescription->setLocked(locked);
    if (txtComments) txtComments->setLocked(locked);
}

void SpreadPages::Show(Page page) const {
    Details->setVisible(page == ShowDetails);
    Canvas->setVisible(page == ShowCanvas);
    Decks->setVisible(page == ShowDecks);
    DetailsButton->setEnabled(page != ShowDetails);
    CanvasButton->setEnabled(page != ShowCanvas);
    DecksButton->setEnabled(page != ShowDecks);
    for (QPushButton* tool : CanvasTools) tool->setEnabled(page == ShowCanvas);
}
