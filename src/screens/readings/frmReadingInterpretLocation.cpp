#include "screens/readings/frmReadingInterpretLocation.h"

#include "core/readings/Deal.h"
#include "core/store/RunState.h"
#include "screens/readings/frmNewReading.h"

frmReadingInterpretLocation::frmReadingInterpretLocation() : InterpretLocationScreen(true) {
    setObjectName(QStringLiteral("frmReadingInterpretLocation"));
}

int frmReadingInterpretLocation::Location() const { return Get<frmNewReading>().QueryLocation; }

bool frmReadingInterpretLocation::CardLiesThere() const { return CardLiesAt(TheRun.ReadingDeal, Location()); }

int frmReadingInterpretLocation::CardNumber() const { return TheRun.ReadingDeal.DealtCard(Location()); }

bool frmReadingInterpretLocation::CardUpright() const { return TheRun.ReadingDeal.DealtUpright(Location()) != 0; }

void frmReadingInterpretLocation::MarkLocation(int location, bool marked) {
    if (frmNewReading* reading = ScreenSlot<frmNewReading>()) reading->MarkLocation(location, marked);
}
