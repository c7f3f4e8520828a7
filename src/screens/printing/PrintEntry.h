#pragma once
// Printing the reading or diary entry in hand, as cmdPrint_Click of both
// screens does: the printer dialogue, then the pages the core prints from the
// entry, then what the user is to be told. Cancel in the printer dialogue
// prints nothing and says nothing.
#include "core/printing/EntryPrintout.h"

void PrintEntry(const EntryPrintout& entry);
