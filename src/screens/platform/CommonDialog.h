#pragma once
// The open, save and printer dialogues. A cancelled dialogue raises error
// 32755 ("Cancel was selected.") when CancelError is set, as callers expect.
// Tests queue the dialogues' answers so that none ever opens.
#include <QString>

class CommonDialog {
public:
    // "Description|pattern|Description|pattern...", patterns separated by ';'.
    QString Filter;
    int FilterIndex = 1;  // 1-based
    QString DialogTitle;
    QString FileName;   // in: the proposed file; out: the chosen path
    QString FileTitle;  // out: the chosen file's name without folder
    int Flags = 0;
    bool CancelError = false;
    // Printer dialogue results, noted and otherwise unused.
    int FromPage = 0;
    int ToPage = 0;
    int Copies = 1;

    // Each returns true when the user chose; false (or error 32755 when
    // CancelError is set) when cancelled.
    bool ShowOpen();
    bool ShowSave();
    // Chooses a folder; FileName is its path.
    bool ShowFolder();

    // Flag values used by the screens.
    static constexpr int cdlOFNOverwritePrompt = 2;
    static constexpr int cdlOFNHideReadOnly = 4;
    static constexpr int cdlOFNPathMustExist = 2048;

private:
    enum class Kind { Open, Save, Folder };
    bool Show(Kind kind);
    bool Finish(bool chosen, const QString& path);
};

namespace CommonDialogScript {
void Enable();
void Disable();
bool Enabled();
// The next dialogue chooses this path; an empty path cancels it.
void Answer(const QString& path);
void Cancel();
void Clear();
int Pending();
// Title and filter of the dialogues shown since Clear.
struct Shown {
    QString title;
    QString filter;
    int filterIndex;
    QString proposedFile;
    bool save;
};
const QList<Shown>& History();
}  // namespace CommonDialogScript
