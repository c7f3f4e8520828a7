#include "screens/printing/PrintEntry.h"

#include <QCoreApplication>

#include "core/platform/Errors.h"
#include "screens/platform/CommonDialog.h"
#include "screens/platform/MsgBox.h"
#include "screens/platform/ProcessEnd.h"
#include "screens/platform/QtPrinter.h"

namespace {

QString FailureMessage(EntryKind kind) {
    return kind == EntryKind::Reading
               ? QCoreApplication::translate("PrintEntry", "Could not print the reading properly. Please make sure "
                                                           "that the selected printer is ready.")
               : QCoreApplication::translate("PrintEntry", "Could not print the diary properly. Please make sure "
                                                           "that the selected printer is ready.");
}

void TellOutcome(const EntryPrintout& entry, const PrintOutcome& outcome) {
    if (outcome.Fault == PrintFault::PrinterNotReady) {
        MsgBox(QCoreApplication::translate("PrintEntry", "Unable to initialize printer."), vbExclamation);
    } else if (outcome.Fault == PrintFault::PictureUnfit) {
        MsgBox(QCoreApplication::translate("PrintEntry", "Error. Please contact Ondine Software Inc."), vbCritical);
        FatalError();
        return;
    }
    if (!outcome.Ok) MsgBox(FailureMessage(entry.Kind), vbCritical);
}

}  // namespace

void PrintEntry(const EntryPrintout& entry) {
    bool chosen = false;
    try {
        CommonDialog CommonDialog1;
        CommonDialog1.CancelError = true;
        CommonDialog1.Flags = cdlPDNoPageNums | cdlPDNoSelection | cdlPDCollate;
        ShowPrinter(CommonDialog1);
        chosen = true;

        Printer& printer = CurrentPrinter();
        const PrintOutcome outcome = PrintEntryPages(printer, entry);
        printer.Close();
        TellOutcome(entry, outcome);
    } catch (const RuntimeError& error) {
        if (chosen) CurrentPrinter().Close();
        // Cancel in the printer dialogue: nothing was printed, nothing to say.
        if (error.Number() == errCancel) return;
        MsgBox(QCoreApplication::translate("PrintEntry", "Unable to print! %1 %2")
                   .arg(error.Number())
                   .arg(error.Description()),
               vbCritical);
    }
}
