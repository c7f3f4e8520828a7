#include "screens/spreads/frmLocationAttributes.h"

#include <QLabel>

#include "core/store/RunState.h"
#include "screens/spreads/TextBoxes.h"
#include "screens/spreads/frmDesignSpread.h"

namespace {
void MarkDesignChanged() {
    if (IsLoaded<frmDesignSpread>()) Get<frmDesignSpread>().SpreadDirty = true;
}
}  // namespace

frmLocationAttributes::frmLocationAttributes() : LocationAttributesForm(false, 650) {
    setObjectName(QStringLiteral("frmLocationAttributes"));
    connect(txtTitle, &TextBox::Change, this, Handler([this] { txtTitle_Change(); }));
    connect(txtDescription, &MultiLineTextBox::Change, this, Handler([this] { txtDescription_Change(); }));
    for (int i = 1; i <= 3; ++i)
        connect(txtQuestion(i), &TextBox::Change, this, Handler([this, i] { txtQuestion_Change(i); }));
}

void frmLocationAttributes::txtTitle_Change() {
    MarkDesignChanged();
    TheRun.SpreadLocations(TheRun.SelectedLocation).LocationTitle = txtTitle->Text();
    if (IsLoaded<frmDesignSpread>())
        Get<frmDesignSpread>().ShowLocationTitle(TheRun.SelectedLocation, txtTitle->Text());
}

void frmLocationAttributes::txtDescription_Change() {
    MarkDesignChanged();
    TheRun.SpreadLocations(TheRun.SelectedLocation).LocationDescription = txtDescription->Text();
}

void frmLocationAttributes::txtQuestion_Change(int Index) {
    MarkDesignChanged();
    TheRun.SpreadLocations(TheRun.SelectedLocation).LocationQuestion[static_cast<std::size_t>(Index - 1)] =
        txtQuestion(Index)->Text();
}

void frmLocationAttributes::FocusAttributesButtonBeneath() const {
    if (IsLoaded<frmDesignSpread>()) Get<frmDesignSpread>().FocusAttributesButton(TheRun.SelectedLocation);
}
