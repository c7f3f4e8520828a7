#pragma once
// The program's application object: catches a run-time error that escapes an
// event handler, shows the error box, and keeps the program running.
#include <QApplication>
#include <QLocale>
#include <QStringList>

class CartomarApplication : public QApplication {
public:
    // languages: the user's, best first, as the system gives them; the
    // screenshot tool passes the language it photographs.
    CartomarApplication(int& argc, char** argv, const QStringList& languages = QLocale::system().uiLanguages());
    bool notify(QObject* receiver, QEvent* event) override;
};

// The languages the program speaks besides English, its source language.
QStringList TranslatedLanguages();

// Which of the user's languages (best first, "de-AT", "es_ES", "en-GB") the
// program speaks in: the first that has a translation or is English, given
// as the translation's name ("de", "es"); "" for English, also when none
// matches. A name is matched whole first, then by its language alone.
QString ChooseLanguage(const QStringList& languages, const QStringList& translated);

// Speaks the first of the languages that the program can: its own texts and
// Qt's (standard buttons, file and print dialogues) from their catalogues,
// and the journal's dates and numbers in that language's manner. Replaces
// what an earlier call put in place, so a test can switch languages. Returns
// the language chosen, "" for English.
QString UseLanguages(const QStringList& languages);

// The folder of the executable, with a trailing '/'.
QString ExecutableFolder();
// The executable's own file name, without its folder.
QString ExecutableName();
