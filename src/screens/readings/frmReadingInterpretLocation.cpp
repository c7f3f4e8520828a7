#include "screens/readings/frmReadingInterpretLocation.h"

#include "core/platform/Palette.h"
#include "core/store/RunState.h"
#include "screens/readings/frmNewReading.h"
#include "screens/shell/ClickLabel.h"

frmReadingInterpretLocation::frmReadingInterpretLocation() : InterpretLocationScreen(true) {
    setObjectName(QStringLiteral("frmReadingInterpretLocation"));
}

int frmReadingInterpretLocation::Location() const { return Get<frmNewReading>().QueryLocation; }

bool frmReadingInterpretLocation::CardLiesThere() const {
    return Location() < Get<frmNewReading>().ThisLocationNumber;
}

int frmReadingInterpretLocation::CardNumber() const { return Element(CurrentReading.DealtCard, Location()); }

bool frmReadingInterpretLocation::CardUpright() const { return Element(CurrentReading.DealtUpright, Location()) != 0; }

void frmReadingInterpretLocation::MarkLocation(int location, bool marked) {
    if (frmNewReading* reading = ScreenSlot<frmNewReading>()) reading->MarkLocation(location, marked);
}
