#pragma once
// The values of a new design or entry before the user gives it any.
#include <QString>

#include "core/records/Records.h"
#include "core/store/RunState.h"

void ResetSpread(SpreadRecord& spread = TheRun.CurrentSpread);
void ResetReading(ReadingRecord& reading = TheRun.CurrentReading);
void ResetDiary(DiaryRecord& diary = TheRun.CurrentDiary);
void ResetCard(CardRecord& card = TheRun.CurrentCard);
void ResetLocation(LocationRecord& location);
void ResetDesigner(Designer& designer);
void ResetDeck();  // CurrentDeck, with an empty card array
