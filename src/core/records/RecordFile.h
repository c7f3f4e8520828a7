#pragma once
// Reading and writing whole records of a record file by number (from 1).
// A partial last record is not a record: counts and reads ignore it.
#include <QString>
#include <vector>

#include "core/platform/BinaryFile.h"
#include "core/records/Records.h"

template <class R>
int CountRecords(const QString& path) {
    return RecordCountOf(path, R::Length);
}

// Reads record n into r; false (r untouched) when there is no record n.
template <class R>
bool GetRecord(const QString& path, int recordNumber, R& r) {
    char buffer[R::Length];
    if (!ReadRecordBytes(path, R::Length, recordNumber, buffer)) return false;
    DecodeRecord(buffer, r);
    return true;
}

// Writes record n; n one past the end appends. The file is replaced in one
// step (see RecordFileEdit): a crash leaves the old file or the new, whole.
template <class R>
void PutRecord(const QString& path, int recordNumber, const R& r) {
    const QByteArray bytes = EncodeRecord(r);
    WriteRecordBytes(path, R::Length, recordNumber, bytes.constData());
}

template <class R>
void AppendRecord(const QString& path, const R& r) {
    AppendRecordBytes(path, R::Length, EncodeRecord(r));
}

template <class R>
std::vector<R> ReadAllRecords(const QString& path) {
    RecordFileReader reader(path, R::Length);
    std::vector<R> all;
    all.reserve(static_cast<std::size_t>(reader.RecordCount()));
    while (const char* bytes = reader.Next()) {
        all.emplace_back();
        DecodeRecord(bytes, all.back());
    }
    return all;
}

// Sequential, block-buffered reading: while (reader.Next(r)) { ... }
template <class R>
class RecordReader {
public:
    explicit RecordReader(const QString& path) : reader_(path, R::Length) {}
    bool Next(R& r) {
        const char* bytes = reader_.Next();
        if (!bytes) return false;
        DecodeRecord(bytes, r);
        return true;
    }
    // The raw bytes of the next record, or nullptr at the end.
    const char* NextRaw() { return reader_.Next(); }
    int Current() const { return reader_.Current(); }
    int Count() const { return reader_.RecordCount(); }
    void Seek(int recordNumber) { reader_.Seek(recordNumber); }

private:
    RecordFileReader reader_;
};

// Several records of one file written in one step: puts are held until
// Commit, which replaces the file once for all of them.
template <class R>
class RecordEdit {
public:
    explicit RecordEdit(const QString& path) : edit_(path, R::Length) {}
    int Count() const { return edit_.RecordCount(); }
    void Put(int recordNumber, const R& r) { edit_.Put(recordNumber, EncodeRecord(r).constData()); }
    void Append(const R& r) { Put(Count() + 1, r); }
    bool Pending() const { return edit_.Pending(); }
    void Prepare() { edit_.Prepare(); }
    void Commit() { edit_.Commit(); }

private:
    RecordFileEdit edit_;
};

// Builds a replacement for a record file record by record.
template <class R>
class RecordRewriter {
public:
    RecordRewriter(const QString& newPath, const QString& realPath) : writer_(newPath, realPath) {}
    void Add(const R& r) { writer_.Write(EncodeRecord(r)); }
    void AddRaw(const char* bytes) { writer_.Write(bytes, R::Length); }
    void Prepare() { writer_.Finish(); }
    void Commit() { writer_.Commit(); }

private:
    AtomicFileWriter writer_;
};
