#include "screens/decks/frmDeckCardProperties.h"

#include <QCheckBox>
#include <QLineEdit>

#include "core/decks/CardTypeNames.h"
#include "core/store/RunState.h"
#include "screens/decks/frmDesignDeck.h"
#include "screens/platform/MsgBox.h"

frmDeckCardProperties::frmDeckCardProperties() : DeckPropertiesScreen(true) {
    setObjectName(QStringLiteral("frmDeckCardProperties"));
    for (int i = 0; i < 4; ++i)
        connect(txtCardTypeName[static_cast<std::size_t>(i)], &QLineEdit::textChanged, this,
                Handler([this, i] { txtCardTypeName_Change(i); }));
}

bool frmDeckCardProperties::Configured() const {
    return IsLoaded<frmDesignDeck>() && Get<frmDesignDeck>().DeckCardProperties_Configured;
}

void frmDeckCardProperties::MarkModified() {
    if (!Loading && IsLoaded<frmDesignDeck>()) Get<frmDesignDeck>().DesignModified = true;
}

void frmDeckCardProperties::Form_Load() {
    Loading = true;
    if (IsLoaded<frmDesignDeck>()) Get<frmDesignDeck>().RefreshCardList();
    DeckPropertiesScreen::Form_Load();
    Loading = true;
    const bool locked = Configured();
    for (QLineEdit* name : txtCardTypeName) name->setReadOnly(locked);
    Loading = false;
}

void frmDeckCardProperties::chkUseReversed_Click() {
    if (Configured()) {
        chkUseReversed->setChecked(TheRun.CurrentDeck.IncludesReversed != 0);
        return;
    }
    MarkModified();
    if (!chkUseReversed->isChecked()) return;
    for (const CardRecord& card : TheRun.CurrentDeck.DeckCards) {
        if (card.CardPicture[1].Value() == DefaultPictureName) {
            MsgBox(tr("Note: Don't forget to supply the reversed versions of the cards.\n"
                      "Unless you do so, you will not be able to use this deck."),
                   vbInformation);
            return;
        }
    }
}

void frmDeckCardProperties::chkDisplay_Click() {
    MarkModified();
    TheRun.CurrentDeck.DisplayCardTitles = Flag(chkDisplay->isChecked());
}

void frmDeckCardProperties::chkType_Click(int Index) {
    const auto i = static_cast<std::size_t>(Index);
    if (Configured()) {
        chkType[i]->setChecked(TheRun.CurrentDeck.CardTypeUsed[i] != 0);
        return;
    }
    MarkModified();
    // A type without a name can't be used.
    if (txtCardTypeName[i]->text().trimmed().isEmpty()) chkType[i]->setChecked(false);
}

void frmDeckCardProperties::txtCardTypeName_Change(int Index) {
    const auto i = static_cast<std::size_t>(Index);
    chkType[i]->setChecked(!TrimField(txtCardTypeName[i]->text()).isEmpty());
    MarkModified();
}

void frmDeckCardProperties::cmdClose_Click() {
    QStringList names;
    for (const auto* name : txtCardTypeName) names.append(name->text());
    const QString problem = CardTypeNamesProblem(names);
    if (!problem.isEmpty()) {
        MsgBox(problem, vbInformation);
        return;
    }
    TheRun.CurrentDeck.IncludesReversed = Flag(chkUseReversed->isChecked());
    TheRun.CurrentDeck.DisplayCardTitles = Flag(chkDisplay->isChecked());
    for (std::size_t i = 0; i < 4; ++i) {
        TheRun.CurrentDeck.CardTypeName[i] = TrimField(txtCardTypeName[i]->text());
        TheRun.CurrentDeck.CardTypeUsed[i] = Flag(chkType[i]->isChecked());
    }
    Unload();
}

void frmDeckCardProperties::Form_Unload(bool&) {
    if (IsLoaded<frmDesignDeck>()) Get<frmDesignDeck>().DeckCardProperties_Configured = true;
}
