// Cartomar: the frame is created first and its load runs the start-up on the
// program folder: the executable's own, or the user's copy of it when the
// executable is installed for every user.
#include <QStringList>

#include "core/platform/FileSys.h"
#include "core/platform/UserFolders.h"
#include "screens/platform/Application.h"
#include "screens/shell/MDIMainForm.h"
#include "screens/shell/ProgramFolder.h"

int main(int argc, char** argv) {
    CartomarApplication app(argc, argv);
    MDIMainForm::SetProgramDirectory(FindProgramDirectory(InstalledPlaces()));
    // The desktop starts the program with the package file a user opened in
    // the file manager; anything else on the command line is passed over.
    const QStringList arguments = app.arguments();
    if (arguments.size() > 1 && FileExists(arguments.at(1)))
        MDIMainForm::SetPackageToOpen(AbsolutePath(arguments.at(1)));
    // The load shows the frame with the main screen once the data files are
    // ready; should the start-up stop on an error, the frame still comes up
    // so that the exit question can end the run.
    Get<MDIMainForm>().ShowFrame();
    return app.exec();
}
