#pragma once
// The program's application object: catches a run-time error that escapes an
// event handler, shows the error box, and keeps the program running.
#include <QApplication>

class CartomarApplication : public QApplication {
public:
    CartomarApplication(int& argc, char** argv);
    bool notify(QObject* receiver, QEvent* event) override;
};

// The folder of the executable, with a trailing '/'.
QString ExecutableFolder();
// The executable's own file name, without its folder.
QString ExecutableName();
