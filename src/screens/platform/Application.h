#pragma once
// The program's application object: catches a run-time error that escapes an
// event handler, shows the error box, and keeps the program running.
#include <QApplication>

class CartomarApplication : public QApplication {
public:
    CartomarApplication(int& argc, char** argv);
    bool notify(QObject* receiver, QEvent* event) override;
};

// Installs, once, the English forms of the texts that count ("1 entry",
// "2 entries"); the application does so when it starts.
void InstallPluralForms();

// The folder of the executable, with a trailing '/'.
QString ExecutableFolder();
// The executable's own file name, without its folder.
QString ExecutableName();
