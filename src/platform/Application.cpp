#include "platform/Application.h"

#include "platform/Errors.h"

CartomarApplication::CartomarApplication(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("Cartomar"));
}

bool CartomarApplication::notify(QObject* receiver, QEvent* event) {
    bool result = false;
    // An error no handler caught ends only the operation that raised it.
    Guarded([&] { result = QApplication::notify(receiver, event); });
    return result;
}

QString ExecutableFolder() {
    QString dir = QCoreApplication::applicationDirPath();
    if (!dir.endsWith(QLatin1Char('/'))) dir += QLatin1Char('/');
    return dir;
}
