#include "screens/platform/ProcessEnd.h"

#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>

#include "screens/platform/MsgBox.h"

namespace {

EndProcessHook& TheEndProcessHook() {
    static EndProcessHook hook;
    return hook;
}

}  // namespace

void FatalError() {
    // The text keeps the catalogue context it has always had, so that its
    // translations still find it.
    MsgBox(QCoreApplication::translate("Startup",
                                       "Cartomar Error. If this problem persists, please contact Ondine Software Inc."),
           vbCritical);
    EndProcess(1);
}

void EndProcess(int exitCode) {
    if (const EndProcessHook& hook = TheEndProcessHook()) {
        hook(exitCode);
        return;
    }
    // The toolkit's End: no further event runs and no screen gets to object.
    // Every file is closed after each operation, so nothing is left unwritten.
    std::fflush(nullptr);
    std::_Exit(exitCode);
}

EndProcessHook SetEndProcessHook(EndProcessHook hook) {
    EndProcessHook previous = std::move(TheEndProcessHook());
    TheEndProcessHook() = std::move(hook);
    return previous;
}
