// The one fixture that needs the screens: kept apart from Fixtures.cpp so that
// the other fixtures serve the tests that link the core alone.
#include "core/platform/FileSys.h"
#include "core/records/Records.h"
#include "screens/shell/MDIMainForm.h"
#include "screens/store/Startup.h"
#include "support/Fixtures.h"

namespace Fixtures {

void StandUpFrame(const QString& dir) {
    WriteWholeFile(dir + QStringLiteral("/Location.loc"), QByteArray());
    WriteWholeFile(dir + QStringLiteral("/Decks.dck"), QByteArray(DeckRecord::Length, '\0'));
    MDIMainForm::SetProgramDirectory(dir);
    Get<MDIMainForm>();
}

}  // namespace Fixtures
