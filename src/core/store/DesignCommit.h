#pragma once
// A design saved over the disk in one step that a crash cannot cut in half.
//
// A save first prepares everything beside the real files: each picture,
// sound or background it brings is copied into Cards/ under a name of its own
// (the final name and ".staged"), and each record file it changes is written
// whole beside the real one ("<file>.new"); all of it reaches the disk. Then
// it writes down, in one file put in place whole, what is left to do: which
// prepared file takes which name, and which files of the design it replaces
// go. From that instant the save is made: the steps are carried out, and if
// the process dies before they are all done, the next start does the rest.
// A save that stops before the plan stands leaves the real files as they
// were and takes its prepared files away; the next start takes away what a
// killed process prepared without a plan. So at every instant the old design
// or the new one is on the disk, whole.
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <utility>
#include <vector>

class DesignCommit {
public:
    // Finishes first a plan that an earlier save could not carry out.
    DesignCommit();
    // Takes back what was prepared, unless the plan was written.
    ~DesignCommit();
    DesignCommit(const DesignCommit&) = delete;
    DesignCommit& operator=(const DesignCommit&) = delete;

    // The working file `source` is to become CardsDir + name.
    void AddFile(const QString& source, const QString& name);
    // The same for a working file that nothing needs afterwards: it is
    // moved, not copied.
    void MoveFile(const QString& source, const QString& name);
    // A file of Cards/ named by the design being replaced (its path, see
    // DesignFilePath; "" names none): it goes, unless a new file takes its
    // name.
    void DropFile(const QString& path);
    // A record file as it is to be: each of its whole records, with its
    // number from 1, passed to `edit`, which gives the bytes that take its
    // place (the record itself, another record, or nullptr to leave it out);
    // then the whole records of `appended`.
    using RecordEditor = std::function<const char*(const char* record, int number)>;
    void AddRecordFile(const QString& path, int recordLength, const RecordEditor& edit, const QByteArray& appended);
    // Writes the plan and carries it out. A failure after the plan is written
    // leaves the plan, which the next start or the next save finishes.
    void Commit();

private:
    std::vector<std::pair<QString, QString>> renames_;  // prepared -> real, full paths
    QStringList drops_;
    // Record files held in memory (see RecordFilesInMemory) as they are to
    // be, put in place at the commit as a file on the disk is renamed.
    std::vector<std::pair<QString, QByteArray>> heldEdits_;
    bool planned_ = false;
};

// Carries out the plan that a process killed during a save left, then takes
// away whatever a save prepared without writing its plan. Start-up runs it
// before anything reads the record files.
void FinishUnfinishedCommit();
