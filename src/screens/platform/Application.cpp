#include "screens/platform/Application.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>

#include "core/platform/Errors.h"
#include "screens/platform/ErrorReport.h"

namespace {

const QString OwnCatalogues = QStringLiteral(":/i18n/");

// The translators in place, kept so that a later choice can take them out.
std::unique_ptr<QTranslator> gOwnTexts, gQtTexts;

}  // namespace

QStringList TranslatedLanguages() {
    QStringList languages;
    for (const QString& file : QDir(OwnCatalogues).entryList({QStringLiteral("cartomar_*.qm")}, QDir::Files))
        languages << file.mid(9).chopped(3);
    return languages;
}

QString ChooseLanguage(const QStringList& languages, const QStringList& translated) {
    for (QString name : languages) {
        name.replace(QLatin1Char('-'), QLatin1Char('_'));
        const QString language = name.section(QLatin1Char('_'), 0, 0);
        // English is the program's own: a user who prefers it to the
        // languages after it gets it, translation or not.
        if (language.compare(QLatin1String("en"), Qt::CaseInsensitive) == 0) return QString();
        if (translated.contains(name)) return name;
        if (translated.contains(language)) return language;
    }
    return QString();
}

QString UseLanguages(const QStringList& languages) {
    for (auto* translator : {gOwnTexts.get(), gQtTexts.get()})
        if (translator) QCoreApplication::removeTranslator(translator);
    gOwnTexts.reset();
    gQtTexts.reset();
    const QString chosen = ChooseLanguage(languages, TranslatedLanguages());
    if (chosen.isEmpty()) {
        // English words with the user's own dates and numbers where the
        // system is English; plain English ones where the texts fell back.
        const QLocale system = QLocale::system();
        QLocale::setDefault(system.language() == QLocale::English ? system : QLocale(QLocale::English));
        return chosen;
    }
    gOwnTexts = std::make_unique<QTranslator>();
    if (gOwnTexts->load(QStringLiteral("cartomar_") + chosen, OwnCatalogues))
        QCoreApplication::installTranslator(gOwnTexts.get());
    gQtTexts = std::make_unique<QTranslator>();
    if (gQtTexts->load(QStringLiteral("qtbase_") + chosen, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(gQtTexts.get());
    // The user's own variant of the language where the system has it
    // ("de_AT"), else the language's first.
    const QLocale system = QLocale::system();
    const QLocale language(chosen);
    QLocale::setDefault(system.language() == language.language() ? system : language);
    return chosen;
}

CartomarApplication::CartomarApplication(int& argc, char** argv, const QStringList& languages)
    : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("Cartomar"));
    // The desktop matches the windows to the menu entry by this name, and
    // shows the icon in the window list and the task switcher.
    setDesktopFileName(QStringLiteral("com.ondinesoftware.Cartomar"));
    Q_INIT_RESOURCE(cartomar);
    setWindowIcon(QIcon(QStringLiteral(":/cartomar/cartomar-icon.png")));
    UseLanguages(languages);
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
