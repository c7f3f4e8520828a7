#include "screens/platform/Application.h"

#include <QFileInfo>
#include <QIcon>
#include <QTranslator>

#include "core/platform/Errors.h"
#include "screens/platform/ErrorReport.h"

CartomarApplication::CartomarApplication(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("Cartomar"));
    // The desktop matches the windows to the menu entry by this name, and
    // shows the icon in the window list and the task switcher.
    setDesktopFileName(QStringLiteral("com.ondinesoftware.Cartomar"));
    Q_INIT_RESOURCE(cartomar);
    setWindowIcon(QIcon(QStringLiteral(":/cartomar/cartomar-icon.png")));
    InstallPluralForms();
}

void InstallPluralForms() {
    QCoreApplication* app = QCoreApplication::instance();
    if (app->findChild<QTranslator*>(QStringLiteral("PluralForms"), Qt::FindDirectChildrenOnly)) return;
    auto* forms = new QTranslator(app);
    forms->setObjectName(QStringLiteral("PluralForms"));
    if (forms->load(QStringLiteral(":/i18n/cartomar_en.qm"))) QCoreApplication::installTranslator(forms);
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

QString ExecutableName() { return QFileInfo(QCoreApplication::applicationFilePath()).fileName(); }
