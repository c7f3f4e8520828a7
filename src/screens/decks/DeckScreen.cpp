#include "screens/decks/DeckScreen.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "core/decks/CardEditing.h"
#include "core/platform/OleDate.h"
#include "core/store/RunState.h"
#include "screens/decks/DeckControls.h"
#include "screens/decks/frmDecks.h"
#include "screens/platform/ListBox.h"
#include "screens/widgets/ScreenPlacement.h"

DeckScreen::DeckScreen(const QString& captionStem, bool designing) : captionStem_(captionStem) {
    resize(TwipsToPixels(9120), TwipsToPixels(6240));

    auto box = [this, designing](const char* name, const QString& caption, int top, int limit) {
        MakeLabel(this, caption, At(240, top + 45, 1500, 285));
        auto* edit = new QLineEdit(this);
        edit->setObjectName(QLatin1String(name));
        edit->setMaxLength(limit);
        edit->setReadOnly(!designing);
        edit->setGeometry(At(1800, top, 3600, 360));
        return edit;
    };
    txtDeckTitle = box("txtDeckTitle", tr("Deck Title:"), 240, 50);
    txtDeckDesigner = box("txtDeckDesigner", tr("Designer:"), 720, 40);
    txtDesignerEmail = box("txtDesignerEmail", tr("E-mail:"), 1200, 40);
    txtDesignerWebPage = box("txtDesignerWebPage", tr("Web Page:"), 1680, 50);
    MakeLabel(this, tr("Modified On:"), At(240, 2205, 1500, 285));
    lblModifiedOnDate = MakeLabel(this, QString(), At(1800, 2205, 3600, 285), "lblModifiedOnDate");
    MakeLabel(this, tr("Description:"), At(240, 2640, 1500, 285));
    txtDeckDescription = new QPlainTextEdit(this);
    txtDeckDescription->setObjectName(QStringLiteral("txtDeckDescription"));
    txtDeckDescription->setReadOnly(!designing);
    txtDeckDescription->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    txtDeckDescription->setGeometry(At(240, 2940, 5160, 2400));

    MakeLabel(this, tr("Cards:"), At(5640, 240, 3240, 285));
    lstCards = new ListBox(this);
    lstCards->setObjectName(QStringLiteral("lstCards"));
    lstCards->setSorted(true);
    lstCards->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstCards->setGeometry(At(5640, 540, 3240, 3960));

    cmdEditCard = MakeButton(this, "cmdEditCard", designing ? tr("&Edit") : tr("&View"),
                             At(designing ? 6720 : 5640, 4620, 1020, 420));
    cmdProperties = MakeButton(this, "cmdProperties", tr("&Properties"), At(240, 5580, 1500, 420));
    cmdComments = MakeButton(this, "cmdComments", tr("No&tes"), At(1920, 5580, 1500, 420));
    cmdBack = MakeButton(this, "cmdBack", tr("&Close"), At(7380, 5580, 1500, 420));

    connect(lstCards, &ListBox::Click, this, Handler([this] { UpdateCardButtons(); }));
}

void DeckScreen::UpdateCardButtons() { cmdEditCard->setEnabled(lstCards->ListIndex() >= 0); }

void DeckScreen::OpenDeck(bool existingDeck, bool skipDefaultReversed) {
    if (IsLoaded<frmDecks>()) OldDesignName = Get<frmDecks>().ChosenDeckName();
    CentreInFrame(*this);
    OpenWorkingFolder(TheRun.CurrentDeck, existingDeck, skipDefaultReversed);
    FillDeckFields();
    RefreshCardList();
}

void DeckScreen::FillDeckFields() {
    const QString name = TheRun.CurrentDeck.DeckName.Trimmed();
    setCaption(name.isEmpty() ? captionStem_ : tr("%1 - %2").arg(captionStem_, name));
    txtDeckTitle->setText(TheRun.CurrentDeck.DeckTitle.Trimmed());
    txtDeckDesigner->setText(TheRun.CurrentDeck.DeckDesigner.DesignerName.Trimmed());
    txtDesignerEmail->setText(TheRun.CurrentDeck.DeckDesigner.DesignerEmail.Trimmed());
    txtDesignerWebPage->setText(TheRun.CurrentDeck.DeckDesigner.DesignerWebPage.Trimmed());
    txtDeckDescription->setPlainText(TheRun.CurrentDeck.DeckDescription.Trimmed());
    lblModifiedOnDate->setText(FormatLongDate(TheRun.CurrentDeck.ModifiedOn));
}

void DeckScreen::RefreshCardList() {
    lstCards->Clear();
    for (const CardRecord& card : TheRun.CurrentDeck.DeckCards) lstCards->AddItem(card.CardTitle.Value());
    UpdateCardButtons();
}

int DeckScreen::SelectedCardPosition() const {
    if (lstCards->ListIndex() < 0) return 0;
    const QString title = TrimField(lstCards->Text());
    for (int i = 1; i <= TheRun.CurrentDeck.DeckCards.UBound(); ++i)
        if (TheRun.CurrentDeck.DeckCards(i).CardTitle.Trimmed() == title) return i;
    return 0;
}

void DeckScreen::Form_Unload(bool&) {
    if (IsLoaded<frmDecks>()) Get<frmDecks>().SelectDeck(OldDesignName);
}
