#include "screens/spreads/frmSpreadComments.h"

#include <QPushButton>

#include "core/platform/Twips.h"
#include "core/store/RunState.h"
#include "screens/spreads/TextBoxes.h"
#include "screens/spreads/frmDesignSpread.h"
#include "screens/widgets/ScreenPlacement.h"

frmSpreadComments::frmSpreadComments() {
    setObjectName(QStringLiteral("frmSpreadComments"));
    setCaption(tr("Spread Notes"));
    resize(TwipsToPixels(5400), TwipsToPixels(4200));
    txtComments = new MultiLineTextBox(this);
    txtComments->setObjectName(QStringLiteral("txtComments"));
    txtComments->setMaxLength(500);
    txtComments->setGeometry(TwipsToPixels(120), TwipsToPixels(120), TwipsToPixels(5160), TwipsToPixels(3360));
    cmdClose = new QPushButton(tr("&Close"), this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    cmdClose->setGeometry(TwipsToPixels(3960), TwipsToPixels(3600), TwipsToPixels(1320), TwipsToPixels(420));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
    connect(txtComments, &MultiLineTextBox::Change, this, Handler([this] { txtComments_Change(); }));
}

void frmSpreadComments::Form_Load() {
    PlaceBesideFrame(*this, false);
    txtComments->setText(TheRun.CurrentSpread.SpreadComments.Trimmed());
}

void frmSpreadComments::txtComments_Change() {
    if (IsLoaded<frmDesignSpread>()) Get<frmDesignSpread>().SpreadDirty = true;
    TheRun.CurrentSpread.SpreadComments = txtComments->Text();
}

void frmSpreadComments::cmdClose_Click() { Unload(); }

void frmSpreadComments::Form_Deactivate() { Unload(); }

void frmSpreadComments::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdClose_Click();
}
