#include "screens/spreads/LocationAttributesForm.h"

#include <QLabel>
#include <QPushButton>

#include "core/platform/Twips.h"
#include "core/store/RunState.h"
#include "screens/spreads/TextBoxes.h"
#include "screens/widgets/ScreenPlacement.h"

namespace {
void AddCaption(QWidget* parent, const QString& text, int top) {
    auto* label = new QLabel(text, parent);
    label->setGeometry(At(120, top, 6600, 270));
}

// Takes a field's text into its box and writes it back trimmed. A field still
// all zero bytes, as a new location leaves it, is left so: only a change of
// its box turns it into blanks.
template <int N>
void TakeField(FixedText<N>& field, QWidget* box, void (*set)(QWidget*, const QString&)) {
    const QString trimmed = field.Trimmed();
    set(box, trimmed);
    if (field.Raw().count('\0') != N) field = trimmed;
}

void SetLine(QWidget* box, const QString& text) { static_cast<TextBox*>(box)->setText(text); }
void SetMultiLine(QWidget* box, const QString& text) { static_cast<MultiLineTextBox*>(box)->setText(text); }
}  // namespace

LocationAttributesForm::LocationAttributesForm(bool locked, int descriptionLimit) {
    resize(TwipsToPixels(6900), TwipsToPixels(6120));
    AddCaption(this, tr("Title:"), 120);
    txtTitle = new TextBox(this);
    txtTitle->setObjectName(QStringLiteral("txtTitle"));
    txtTitle->setMaxLength(30);
    txtTitle->setGeometry(At(120, 390, 6600, 330));
    txtTitle->setReadOnly(locked);

    AddCaption(this, tr("Description:"), 840);
    txtDescription = new MultiLineTextBox(this);
    txtDescription->setObjectName(QStringLiteral("txtDescription"));
    txtDescription->setMaxLength(descriptionLimit);
    txtDescription->setGeometry(At(120, 1110, 6600, 2100));
    txtDescription->setLocked(locked);

    int top = 3330;
    for (int i = 1; i <= 3; ++i) {
        AddCaption(this, tr("Question %1:").arg(i), top);
        auto* box = new TextBox(this);
        box->setObjectName(QStringLiteral("txtQuestion%1").arg(i));
        box->setMaxLength(125);
        box->setGeometry(At(120, top + 270, 6600, 330));
        box->setReadOnly(locked);
        question_[static_cast<std::size_t>(i - 1)] = box;
        top += 720;
    }
    cmdClose = new QPushButton(tr("&Close"), this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    cmdClose->setGeometry(At(5400, top + 60, 1320, 400));
    connect(cmdClose, &QPushButton::clicked, this, Handler([this] { cmdClose_Click(); }));
}

TextBox* LocationAttributesForm::txtQuestion(int Index) const {
    if (Index < 1 || Index > 3) RaiseError(errSubscriptOutOfRange);
    return question_[static_cast<std::size_t>(Index - 1)];
}

void LocationAttributesForm::Form_Load() {
    CentreLowInFrame(*this);
    setCaption(tr("Location Attriubtes - Location number %1").arg(TheRun.SelectedLocation));
    LocationRecord& location = TheRun.SpreadLocations(TheRun.SelectedLocation);
    TakeField(location.LocationTitle, txtTitle, SetLine);
    TakeField(location.LocationDescription, txtDescription, SetMultiLine);
    for (int i = 1; i <= 3; ++i)
        TakeField(location.LocationQuestion[static_cast<std::size_t>(i - 1)], txtQuestion(i), SetLine);
}

void LocationAttributesForm::cmdClose_Click() { Unload(); }

void LocationAttributesForm::Form_Deactivate() { Unload(); }

void LocationAttributesForm::Form_Unload(bool&) { FocusAttributesButtonBeneath(); }

void LocationAttributesForm::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdClose_Click();
}
