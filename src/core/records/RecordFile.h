#pragma once
// Reading and writing whole records of a record file by number (from 1).
// A partial last record is not a record: counts and reads ignore it.
#include <QByteArray>
#include <QString>
#include <algorithm>
#include <map>
#include <optional>
#include <vector>

#include "core/platform/BinaryFile.h"
#include "core/platform/Errors.h"
#include "core/records/Records.h"

// Record files held in memory in place of files on the disk. The readers and
// writers below read a path given bytes here from those bytes, and replace
// them as they would replace the file; nothing of it reaches the disk. The
// fuzz targets run the store over arbitrary bytes in this way, with no file
// written for each input. The program itself holds nothing here.
namespace RecordFilesInMemory {
void Hold(const QString& path, const QByteArray& bytes);
void ReleaseAll();
// The bytes held for a path, or nullptr when the path is a file on the disk.
QByteArray* Find(const QString& path);
// Record n (from 1) of held bytes, written in place; n past the end leaves
// the records between all zero. A partial last record is dropped first.
void Put(QByteArray& held, int recordLength, int recordNumber, const char* bytes);
}  // namespace RecordFilesInMemory

template <class R>
int CountRecords(const QString& path) {
    if (const QByteArray* held = RecordFilesInMemory::Find(path)) return static_cast<int>(held->size() / R::Length);
    return RecordCountOf(path, R::Length);
}

// Reads record n into r; false (r untouched) when there is no record n.
template <class R>
bool GetRecord(const QString& path, int recordNumber, R& r) {
    if (const QByteArray* held = RecordFilesInMemory::Find(path)) {
        if (recordNumber < 1) RaiseError(errBadFileName, QStringLiteral("Bad record number"));
        if (recordNumber > held->size() / R::Length) return false;
        DecodeRecord(held->constData() + static_cast<qsizetype>(recordNumber - 1) * R::Length, r);
        return true;
    }
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
    if (QByteArray* held = RecordFilesInMemory::Find(path)) {
        if (recordNumber < 1) RaiseError(errBadFileName, QStringLiteral("Bad record number"));
        return RecordFilesInMemory::Put(*held, R::Length, recordNumber, bytes.constData());
    }
    WriteRecordBytes(path, R::Length, recordNumber, bytes.constData());
}

template <class R>
void AppendRecord(const QString& path, const R& r) {
    if (QByteArray* held = RecordFilesInMemory::Find(path))
        return RecordFilesInMemory::Put(*held, R::Length, static_cast<int>(held->size() / R::Length) + 1,
                                        EncodeRecord(r).constData());
    AppendRecordBytes(path, R::Length, EncodeRecord(r));
}

// Sequential, block-buffered reading: while (reader.Next(r)) { ... }
template <class R>
class RecordReader {
public:
    // Held bytes are read as they stand when the reader is made, as an open
    // file is read whatever replaces it meanwhile.
    explicit RecordReader(const QString& path) {
        if (const QByteArray* held = RecordFilesInMemory::Find(path)) held_ = *held;
        else reader_.emplace(path, R::Length);
    }
    bool Next(R& r) {
        const char* bytes = NextRaw();
        if (!bytes) return false;
        DecodeRecord(bytes, r);
        return true;
    }
    // The raw bytes of the next record, or nullptr at the end.
    const char* NextRaw() {
        if (reader_) return reader_->Next();
        if (current_ >= Count()) return nullptr;
        return held_.constData() + static_cast<qsizetype>(current_++) * R::Length;
    }
    int Current() const { return reader_ ? reader_->Current() : current_; }
    int Count() const { return reader_ ? reader_->RecordCount() : static_cast<int>(held_.size() / R::Length); }
    void Seek(int recordNumber) {
        if (reader_) reader_->Seek(recordNumber);
        else current_ = std::max(0, recordNumber - 1);
    }

private:
    std::optional<RecordFileReader> reader_;
    QByteArray held_;
    int current_ = 0;  // the number of the record read last, in held bytes
};

template <class R>
std::vector<R> ReadAllRecords(const QString& path) {
    RecordReader<R> reader(path);
    std::vector<R> all;
    all.reserve(static_cast<std::size_t>(reader.Count()));
    while (const char* bytes = reader.NextRaw()) {
        all.emplace_back();
        DecodeRecord(bytes, all.back());
    }
    return all;
}

// Several records of one file written in one step: puts are held until
// Commit, which replaces the file once for all of them.
template <class R>
class RecordEdit {
public:
    explicit RecordEdit(const QString& path) : path_(path) {
        if (!RecordFilesInMemory::Find(path)) edit_.emplace(path, R::Length);
    }
    int Count() const {
        if (edit_) return edit_->RecordCount();
        const int held = CountRecords<R>(path_);
        return held_.empty() ? held : std::max(held, held_.rbegin()->first);
    }
    void Put(int recordNumber, const R& r) {
        if (edit_) return edit_->Put(recordNumber, EncodeRecord(r).constData());
        if (recordNumber < 1) RaiseError(errBadFileName, QStringLiteral("Bad record number"));
        held_[recordNumber] = EncodeRecord(r);
    }
    void Append(const R& r) { Put(Count() + 1, r); }
    bool Pending() const { return edit_ ? edit_->Pending() : !held_.empty(); }
    void Prepare() {
        if (edit_) edit_->Prepare();
    }
    void Commit() {
        if (edit_) return edit_->Commit();
        if (QByteArray* held = RecordFilesInMemory::Find(path_))
            for (const auto& [number, bytes] : held_)
                RecordFilesInMemory::Put(*held, R::Length, number, bytes.constData());
        held_.clear();
    }

private:
    QString path_;
    std::optional<RecordFileEdit> edit_;
    std::map<int, QByteArray> held_;  // the puts to held bytes
};

// Builds a replacement for a record file record by record.
template <class R>
class RecordRewriter {
public:
    RecordRewriter(const QString& newPath, const QString& realPath) : realPath_(realPath) {
        if (!RecordFilesInMemory::Find(realPath)) writer_.emplace(newPath, realPath);
    }
    void Add(const R& r) { AddRaw(EncodeRecord(r).constData()); }
    void AddRaw(const char* bytes) {
        if (writer_) writer_->Write(bytes, R::Length);
        else held_.append(bytes, R::Length);
    }
    void Prepare() {
        if (writer_) writer_->Finish();
    }
    void Commit() {
        if (writer_) return writer_->Commit();
        if (QByteArray* held = RecordFilesInMemory::Find(realPath_)) *held = held_;
    }

private:
    QString realPath_;
    std::optional<AtomicFileWriter> writer_;
    QByteArray held_;  // the replacement of held bytes
};
