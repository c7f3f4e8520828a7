#include "core/store/DesignCommit.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <optional>

#include "core/platform/BinaryFile.h"
#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/records/RecordFile.h"
#include "core/store/RunState.h"

namespace {

// Where a file brought by a save waits in Cards/ for its final name.
const QString StagedSuffix = QStringLiteral(".staged");

QString PlanPath() { return TheRun.Paths.AppPath + QStringLiteral("Cartomar.commit"); }

// The plan names files relative to the program folder, so that it still
// holds if the folder has moved before the next start.
QString Relative(const QString& path) {
    return QDir(NativePath(TheRun.Paths.AppPath)).relativeFilePath(NativePath(path));
}
QString Absolute(const QString& relative) { return QDir(NativePath(TheRun.Paths.AppPath)).filePath(relative); }

struct Plan {
    std::vector<std::pair<QString, QString>> renames;
    QStringList drops;
};

QByteArray EncodePlan(const Plan& plan) {
    QJsonArray renames, drops;
    for (const auto& [from, to] : plan.renames) renames.append(QJsonArray{Relative(from), Relative(to)});
    for (const QString& drop : plan.drops) drops.append(Relative(drop));
    return QJsonDocument(QJsonObject{{QStringLiteral("rename"), renames}, {QStringLiteral("drop"), drops}}).toJson();
}

// A plan that cannot be read was never put in place whole, so there is
// nothing to do.
std::optional<Plan> ReadPlan() {
    if (!FileExists(PlanPath())) return std::nullopt;
    const QJsonObject json = QJsonDocument::fromJson(ReadWholeFile(PlanPath())).object();
    if (json.isEmpty()) return std::nullopt;
    Plan plan;
    for (const QJsonValue& rename : json.value(QStringLiteral("rename")).toArray()) {
        const QJsonArray pair = rename.toArray();
        plan.renames.emplace_back(Absolute(pair.at(0).toString()), Absolute(pair.at(1).toString()));
    }
    for (const QJsonValue& drop : json.value(QStringLiteral("drop")).toArray()) plan.drops << Absolute(drop.toString());
    return plan;
}

// Every step may have been done already by a process that died after it: a
// prepared file that is gone has taken its place. The old files go only once
// every new one stands, so that no record that is still in place loses a
// file it names.
void CarryOut(const Plan& plan) {
    std::optional<RuntimeError> failed;
    for (const auto& [from, to] : plan.renames) {
        if (!FileExists(from)) continue;
        try {
            FileMoveUnsynced(from, to);
        } catch (const RuntimeError& e) {
            if (!failed) failed = e;
        }
    }
    if (failed) throw *failed;
    SyncFileSystem(TheRun.Paths.AppPath);
    for (const QString& drop : plan.drops) KillIgnoringErrors(drop);
    QFile::remove(NativePath(PlanPath()));
    SyncFileSystem(TheRun.Paths.AppPath);
}

}  // namespace

DesignCommit::DesignCommit() {
    if (const std::optional<Plan> plan = ReadPlan()) CarryOut(*plan);
}

DesignCommit::~DesignCommit() {
    if (planned_) return;
    for (const auto& prepared : renames_) QFile::remove(prepared.first);
}

void DesignCommit::AddFile(const QString& source, const QString& name) {
    const QString real = NativePath(TheRun.Paths.CardsDir + name);
    FileCopyUnsynced(source, real + StagedSuffix);
    renames_.emplace_back(real + StagedSuffix, real);
}

void DesignCommit::MoveFile(const QString& source, const QString& name) {
    const QString real = NativePath(TheRun.Paths.CardsDir + name);
    FileMoveUnsynced(source, real + StagedSuffix);
    renames_.emplace_back(real + StagedSuffix, real);
}

void DesignCommit::DropFile(const QString& path) {
    if (!path.isEmpty()) drops_ << NativePath(path);
}

void DesignCommit::AddRecordFile(const QString& path, int recordLength, const RecordEditor& edit,
                                 const QByteArray& appended) {
    // A file held in memory is edited there and put in place at the commit.
    if (const QByteArray* held = RecordFilesInMemory::Find(path)) {
        QByteArray edited;
        const qsizetype whole = held->size() / recordLength * recordLength;
        int number = 0;
        for (qsizetype at = 0; at < whole; at += recordLength)
            if (const char* bytes = edit(held->constData() + at, ++number)) edited.append(bytes, recordLength);
        edited += appended;
        heldEdits_.emplace_back(path, edited);
        return;
    }
    AtomicFileWriter writer(NewFileBeside(path), path);
    {
        RecordFileReader reader(path, recordLength);
        while (const char* record = reader.Next())
            if (const char* bytes = edit(record, reader.Current())) writer.Write(bytes, recordLength);
    }
    writer.Write(appended);
    writer.Leave();
    renames_.emplace_back(NewFileBeside(path), NativePath(path));
}

void DesignCommit::Commit() {
    // The copies into Cards/ were made without a wait each; one wait makes
    // them all durable before the plan that names them.
    SyncFileSystem(TheRun.Paths.CardsDir);
    Plan plan{renames_, {}};
    for (const QString& drop : drops_) {
        const bool retaken =
            std::any_of(renames_.begin(), renames_.end(), [&](const auto& rename) { return rename.second == drop; });
        if (!retaken && !plan.drops.contains(drop)) plan.drops << drop;
    }
    AtomicFileWriter writer(PlanPath() + QStringLiteral(".new"), PlanPath());
    writer.Write(EncodePlan(plan));
    writer.Commit();
    planned_ = true;
    CarryOut(plan);
    for (const auto& [path, bytes] : heldEdits_)
        if (QByteArray* held = RecordFilesInMemory::Find(path)) *held = bytes;
}

void FinishUnfinishedCommit() {
    if (const std::optional<Plan> plan = ReadPlan()) CarryOut(*plan);
    KillIgnoringErrors(PlanPath() + QStringLiteral(".new"));
    KillIgnoringErrors(TheRun.Paths.CardsDir + QLatin1Char('*') + StagedSuffix);
    // A plan that could not be read stays no longer.
    KillIgnoringErrors(PlanPath());
}
