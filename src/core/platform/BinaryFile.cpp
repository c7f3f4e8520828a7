#include "core/platform/BinaryFile.h"

#include <unistd.h>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/WriteFaults.h"

namespace {
constexpr qint64 kBlockBytes = 1 << 20;
constexpr qint64 kSmallFileBytes = 64 << 10;

void OpenOrRaise(QFile& file, QIODevice::OpenMode mode) {
    if (!file.open(mode)) RaiseError(file.exists() ? errPermissionDenied : errFileNotFound);
}

void WriteOrRaise(QFile& file, const char* bytes, qint64 length) {
    if (WriteStep(file, bytes, length) != length) RaiseError(errDiskFull);
}

// A new file that did not reach the disk must not replace the old one: a
// failed sync stops the rename.
void FlushOrRaise(QFile& file) {
    if (!file.flush() || !SyncStep(file.handle())) RaiseError(errDiskFull);
}
}  // namespace

QString NewFileBeside(const QString& path) { return NativePath(path) + QStringLiteral(".new"); }

RecordFileReader::RecordFileReader(const QString& path, int recordLength)
    : file_(std::make_unique<QFile>(NativePath(path))), length_(recordLength) {
    // A record file that is not there holds no records, as an empty one.
    if (!file_->exists()) return;
    // The reader keeps its own blocks; the device's buffer would only copy
    // every byte once more.
    OpenOrRaise(*file_, QIODevice::ReadOnly | QIODevice::Unbuffered);
    count_ = static_cast<int>(std::min<qint64>(file_->size() / length_, 0x7FFFFFFF));
}

RecordFileReader::~RecordFileReader() = default;

void RecordFileReader::Seek(int recordNumber) {
    current_ = std::max(0, recordNumber - 1);
    bufferRecords_ = 0;
}

void RecordFileReader::Fill() {
    const int first = current_ + 1;
    const int perBlock = std::max<int>(1, static_cast<int>(kBlockBytes / length_));
    const int want = std::min(perBlock, count_ - first + 1);
    bufferFirst_ = first;
    bufferRecords_ = 0;
    if (want <= 0) return;
    buffer_.resize(static_cast<qsizetype>(want) * length_);
    if (!file_->seek(static_cast<qint64>(first - 1) * length_)) RaiseError(errPathFileAccess);
    const qint64 got = file_->read(buffer_.data(), buffer_.size());
    if (got < 0) RaiseError(errPathFileAccess);
    bufferRecords_ = static_cast<int>(got / length_);
}

const char* RecordFileReader::Next() {
    if (current_ >= count_) return nullptr;
    const int wanted = current_ + 1;
    if (wanted < bufferFirst_ || wanted >= bufferFirst_ + bufferRecords_) {
        Fill();
        if (bufferRecords_ == 0) return nullptr;
    }
    current_ = wanted;
    return buffer_.constData() + static_cast<qsizetype>(wanted - bufferFirst_) * length_;
}

AtomicFileWriter::AtomicFileWriter(const QString& newPath, const QString& realPath)
    : file_(std::make_unique<QFile>(NativePath(newPath))),
      newPath_(NativePath(newPath)),
      realPath_(NativePath(realPath)) {
    if (!file_->open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) RaiseError(errPathNotFound);
}

AtomicFileWriter::~AtomicFileWriter() {
    if (!committed_) {
        file_->close();
        QFile::remove(newPath_);
    }
}

void AtomicFileWriter::Write(const char* bytes, qint64 length) {
    // The whole block is taken once a file outgrows a few records: most files
    // written are small (a plan, a spread's locations), and a block taken in
    // advance would cost each of them two megabytes.
    if (pending_.capacity() < kBlockBytes && pending_.size() + length > kSmallFileBytes)
        pending_.reserve(kBlockBytes * 2);
    pending_.append(bytes, length);
    if (pending_.size() >= kBlockBytes) Flush();
}

void AtomicFileWriter::Flush() {
    WriteOrRaise(*file_, pending_.constData(), pending_.size());
    pending_.resize(0);  // keeps the block's memory for the next one
}

void AtomicFileWriter::Finish() {
    if (finished_) return;
    Flush();
    FlushOrRaise(*file_);
    file_->close();
    finished_ = true;
}

void AtomicFileWriter::Leave() {
    Finish();
    committed_ = true;
}

void AtomicFileWriter::Commit() {
    Finish();
    RenameOver(newPath_, realPath_);
    committed_ = true;
}

int RecordCountOf(const QString& path, int recordLength) {
    QFileInfo info(NativePath(path));
    if (!info.exists()) return 0;
    return static_cast<int>(std::min<qint64>(info.size() / recordLength, 0x7FFFFFFF));
}

bool ReadRecordBytes(const QString& path, int recordLength, int recordNumber, char* out) {
    if (recordNumber < 1) RaiseError(errBadFileName, QCoreApplication::translate("Errors", "Bad record number"));
    QFile file(NativePath(path));
    if (!file.exists()) return false;
    OpenOrRaise(file, QIODevice::ReadOnly);
    const qint64 offset = static_cast<qint64>(recordNumber - 1) * recordLength;
    if (offset + recordLength > file.size()) return false;
    if (!file.seek(offset)) RaiseError(errPathFileAccess);
    return file.read(out, recordLength) == recordLength;
}

RecordFileEdit::RecordFileEdit(const QString& path, int recordLength)
    : path_(path), length_(recordLength), count_(RecordCountOf(path, recordLength)) {}

int RecordFileEdit::RecordCount() const {
    return changes_.empty() ? count_ : std::max(count_, changes_.rbegin()->first);
}

void RecordFileEdit::Put(int recordNumber, const char* bytes) {
    if (recordNumber < 1) RaiseError(errBadFileName, QCoreApplication::translate("Errors", "Bad record number"));
    changes_[recordNumber] = QByteArray(bytes, length_);
}

void RecordFileEdit::Prepare() {
    if (changes_.empty() || prepared_) return;
    auto writer = std::make_unique<AtomicFileWriter>(NewFileBeside(path_), path_);
    {
        RecordFileReader reader(path_, length_);
        const int last = std::max(reader.RecordCount(), changes_.rbegin()->first);
        const QByteArray gap(length_, '\0');
        auto change = changes_.cbegin();
        for (int n = 1; n <= last; ++n) {
            // The reader stays in step with n over the records the file has.
            const char* old = n <= reader.RecordCount() ? reader.Next() : nullptr;
            if (change != changes_.cend() && change->first == n) {
                writer->Write((change++)->second);
            } else {
                writer->Write(old ? old : gap.constData(), length_);
            }
        }
    }
    writer->Finish();
    prepared_ = std::move(writer);
}

void RecordFileEdit::Commit() {
    Prepare();
    if (!prepared_) return;
    prepared_->Commit();
    prepared_.reset();
    changes_.clear();
    count_ = RecordCountOf(path_, length_);
}

void WriteRecordBytes(const QString& path, int recordLength, int recordNumber, const char* bytes) {
    RecordFileEdit edit(path, recordLength);
    edit.Put(recordNumber, bytes);
    edit.Commit();
}

void AppendRecordBytes(const QString& path, int recordLength, const QByteArray& records) {
    RecordFileEdit edit(path, recordLength);
    const int first = edit.RecordCount() + 1;
    for (qsizetype at = 0; at + recordLength <= records.size(); at += recordLength)
        edit.Put(first + static_cast<int>(at / recordLength), records.constData() + at);
    edit.Commit();
}
