#include "core/records/RecordFile.h"

#include <QHash>
#include <cstring>

namespace RecordFilesInMemory {
namespace {

QHash<QString, QByteArray>& Held() {
    static QHash<QString, QByteArray> held;
    return held;
}

}  // namespace

void Hold(const QString& path, const QByteArray& bytes) { Held().insert(path, bytes); }

void ReleaseAll() { Held().clear(); }

QByteArray* Find(const QString& path) {
    // The program holds nothing: its reads pay no more than this test.
    QHash<QString, QByteArray>& held = Held();
    if (held.isEmpty()) return nullptr;
    const auto it = held.find(path);
    return it == held.end() ? nullptr : &it.value();
}

void Put(QByteArray& held, int recordLength, int recordNumber, const char* bytes) {
    const qsizetype at = static_cast<qsizetype>(recordNumber - 1) * recordLength;
    held.truncate(held.size() / recordLength * recordLength);
    if (const qsizetype old = held.size(); old < at + recordLength) {
        held.resize(at + recordLength);
        std::memset(held.data() + old, 0, static_cast<std::size_t>(at + recordLength - old));
    }
    std::memcpy(held.data() + at, bytes, static_cast<std::size_t>(recordLength));
}

}  // namespace RecordFilesInMemory
