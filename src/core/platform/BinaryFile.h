#pragma once
// Files of fixed-length records, read and written in large blocks. A file is
// read sequentially from a position; a rewrite goes to a new file beside the
// real one, is flushed to the disk, and then renamed over it, so that at any
// instant the real file is either the old or the new one, whole.
#include <QByteArray>
#include <QString>
#include <map>
#include <memory>

class QFile;

// Sequential reader of whole records. A partial last record is never seen.
class RecordFileReader {
public:
    // A missing file reads as empty; one that cannot be opened raises.
    RecordFileReader(const QString& path, int recordLength);
    ~RecordFileReader();
    RecordFileReader(const RecordFileReader&) = delete;
    RecordFileReader& operator=(const RecordFileReader&) = delete;

    int RecordCount() const { return count_; }
    // Record numbers are 1-based. Seek puts the next read at that record.
    void Seek(int recordNumber);
    // The next record's bytes (recordLength of them), or nullptr at the end.
    const char* Next();
    // The number of the record that Next returned last.
    int Current() const { return current_; }

private:
    void Fill();
    std::unique_ptr<QFile> file_;
    int length_;
    int count_ = 0;
    int current_ = 0;  // number of the last record returned
    QByteArray buffer_;
    int bufferFirst_ = 1;  // record number of the buffer's first record
    int bufferRecords_ = 0;
};

// Writes a new file beside the target and puts it in place on Commit.
// Destroying an uncommitted writer removes the new file and leaves the
// target as it was.
class AtomicFileWriter {
public:
    // newPath: where the new file is built (the program's ".tmp" names);
    // realPath: the file it replaces on Commit.
    AtomicFileWriter(const QString& newPath, const QString& realPath);
    ~AtomicFileWriter();
    AtomicFileWriter(const AtomicFileWriter&) = delete;
    AtomicFileWriter& operator=(const AtomicFileWriter&) = delete;

    void Write(const char* bytes, qint64 length);
    void Write(const QByteArray& bytes) { Write(bytes.constData(), bytes.size()); }
    // Flushes and syncs the new file and closes it, leaving the real one as
    // it is: several files can be made ready and then put in place together.
    void Finish();
    // Finishes the new file if need be and renames it over the real one.
    void Commit();
    // Finishes the new file and leaves it beside the real one, past the
    // writer's end, for a rename that someone else makes later (see
    // DesignCommit).
    void Leave();

private:
    void Flush();
    std::unique_ptr<QFile> file_;
    QString newPath_;
    QString realPath_;
    QByteArray pending_;
    bool finished_ = false;
    bool committed_ = false;
};

// Changes to the records of one file, made in one step. Records put by
// number are held in memory; Commit writes the whole file anew beside the old
// one (unchanged records copied, the changed ones in their places, records
// past the end added, a partial last record left out) and renames it over, so
// that a reader finds every change or none, and never a torn record.
class RecordFileEdit {
public:
    RecordFileEdit(const QString& path, int recordLength);
    // Whole records of the file as it will be after Commit.
    int RecordCount() const;
    // recordLength bytes for record n (from 1); a record far past the end
    // leaves the records between all zero.
    void Put(int recordNumber, const char* bytes);
    bool Pending() const { return !changes_.empty(); }
    // Builds the new file and waits for the disk, without putting it in
    // place; Commit then only renames. No further Put until Commit.
    void Prepare();
    // Writes the changes, if any; the edit is then empty and may go on.
    void Commit();

private:
    QString path_;
    int length_;
    int count_;
    std::map<int, QByteArray> changes_;
    std::unique_ptr<AtomicFileWriter> prepared_;
};

// Where a file's replacement is built before it is renamed over it.
QString NewFileBeside(const QString& path);

// Random access to one record: read record n, or write it (the file grows
// when n is past the end). A write is a RecordFileEdit of one record. Raises
// on failure.
bool ReadRecordBytes(const QString& path, int recordLength, int recordNumber, char* out);
void WriteRecordBytes(const QString& path, int recordLength, int recordNumber, const char* bytes);
// Appends whole records after the last whole record of a file (made if
// missing; a partial last record is dropped), in one step as above.
void AppendRecordBytes(const QString& path, int recordLength, const QByteArray& records);
// The whole records in a file (its length divided by the record length);
// 0 for a missing file.
int RecordCountOf(const QString& path, int recordLength);
