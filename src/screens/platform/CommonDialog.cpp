#include "screens/platform/CommonDialog.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QList>
#include <QPointer>

#include "core/platform/Errors.h"

namespace {

struct Script {
    bool enabled = false;
    QList<QString> answers;
    QList<CommonDialogScript::Shown> history;
};

Script& TheScript() {
    static Script s;
    return s;
}

// "Bitmaps (*.bmp)|*.bmp|All (*.*)|*.*" becomes Qt's "Bitmaps (*.bmp);;All (*)".
QStringList QtFilters(const QString& filter) {
    QStringList out;
    const QStringList parts = filter.split(QLatin1Char('|'));
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
        patterns.replace(QStringLiteral("*.*"), QStringLiteral("*"));
        out.append(parts[i].trimmed() + QStringLiteral(" (") + patterns.simplified() + QLatin1Char(')'));
    }
    return out;
}

}  // namespace

bool CommonDialog::Finish(bool chosen, const QString& path) {
    if (!chosen) {
        if (CancelError) RaiseError(errCancel);
        return false;
    }
    FileName = path;
    FileTitle = QFileInfo(path).fileName();
    return true;
}

bool CommonDialog::ShowOpen() { return Show(Kind::Open); }

bool CommonDialog::ShowSave() { return Show(Kind::Save); }

bool CommonDialog::ShowFolder() { return Show(Kind::Folder); }

bool CommonDialog::Show(Kind kind) {
    const bool saving = kind == Kind::Save;
    Script& s = TheScript();
    if (s.enabled) {
        s.history.append({DialogTitle, Filter, FilterIndex, FileName, saving});
        const QString answer = s.answers.isEmpty() ? QString() : s.answers.takeFirst();
        return Finish(!answer.isEmpty(), answer);
    }
    QPointer<QFileDialog> owned = new QFileDialog(QApplication::activeWindow(), DialogTitle);
    QFileDialog& dialog = *owned;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    if (saving) {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        if (!(Flags & cdlOFNOverwritePrompt)) dialog.setOption(QFileDialog::DontConfirmOverwrite);
    } else if (kind == Kind::Folder) {
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
    } else {
        dialog.setFileMode(QFileDialog::ExistingFile);
        dialog.setAcceptMode(QFileDialog::AcceptOpen);
    }
    const QStringList filters = QtFilters(Filter);
    if (!filters.isEmpty()) dialog.setNameFilters(filters);
    if (FilterIndex >= 1 && FilterIndex <= filters.size()) dialog.selectNameFilter(filters[FilterIndex - 1]);
    if (kind == Kind::Folder && !FileName.isEmpty()) {
        dialog.setDirectory(FileName);
    } else if (!FileName.isEmpty()) {
        if (saving) {
            const QFileInfo proposed(FileName);
            dialog.setDirectory(proposed.absolutePath());
            dialog.selectFile(proposed.fileName());
        } else {
            dialog.selectFile(FileName);
        }
    }
    // A screen that goes while the dialogue waits takes it along: nothing
    // was chosen.
    const bool accepted = dialog.exec() == QDialog::Accepted;
    if (!owned) return Finish(false, QString());
    const bool chosen = accepted && !dialog.selectedFiles().isEmpty();
    const QString path = chosen ? dialog.selectedFiles().first() : QString();
    delete owned;
    return Finish(chosen, path);
}

namespace CommonDialogScript {
void Enable() { TheScript().enabled = true; }
void Disable() { TheScript().enabled = false; }
bool Enabled() { return TheScript().enabled; }
void Answer(const QString& path) { TheScript().answers.append(path); }
void Cancel() { TheScript().answers.append(QString()); }
void Clear() {
    TheScript().answers.clear();
    TheScript().history.clear();
}
int Pending() { return static_cast<int>(TheScript().answers.size()); }
const QList<Shown>& History() { return TheScript().history; }
}  // namespace CommonDialogScript
