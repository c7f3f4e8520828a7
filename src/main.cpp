// Cartomar: the frame is created first and its load runs the start-up on the
// data beside the executable.
#include "platform/Application.h"
#include "shell/MDIMainForm.h"

int main(int argc, char** argv) {
    CartomarApplication app(argc, argv);
    MDIMainForm::SetProgramDirectory(ExecutableFolder());
    // The load shows the frame with the main screen once the data files are
    // ready; should the start-up stop on an error, the frame still comes up
    // so that the exit question can end the run.
    Get<MDIMainForm>().ShowFrame();
    return app.exec();
}
