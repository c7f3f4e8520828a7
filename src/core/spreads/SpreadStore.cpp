#include "core/spreads/SpreadStore.h"

#include <QCoreApplication>
#include <algorithm>

#include "core/platform/Errors.h"
#include "core/platform/FileSys.h"
#include "core/platform/OleDate.h"
#include "core/records/RecordFile.h"
#include "core/spreads/SpreadBackground.h"
#include "core/store/DeckLoading.h"
#include "core/store/DeletePasses.h"
#include "core/store/DesignCommit.h"
#include "core/store/Lookups.h"
#include "core/store/RunState.h"

namespace {
const QString WorkingStem = QStringLiteral("sprpic");
}  // namespace

SpreadNameCheck CheckSpreadName(const QString& typed) {
    SpreadNameCheck check;
    check.Name = TrimField(typed);
    // The lookups take a blank name for a name like any other: it is
    // refused here first.
    if (check.Name.isEmpty()) {
        check.Problem = QCoreApplication::translate("SpreadStore", "Please select a name to save the spread as.");
        return check;
    }
    check.Replacing = std::max(FindSpreadByName(check.Name), 0);
    if (check.Replacing > 0)
        check.Question = QCoreApplication::translate("SpreadStore", "Spread already exists. Overwrite?");
    return check;
}

SpreadDesign SaveSpread(SpreadDesign design, const QString& name, int replacing) {
    SpreadRecord& spread = design.Spread;
    const bool anew = replacing < 1;
    // A new name is a new design: saving a known spread under it makes an
    // independent copy and leaves the old record as it was. Over a record,
    // the id stays and that record's background goes, in the same step as
    // the new one comes, so that the new picture's name is drawn as if the
    // old one were gone already.
    QString going;
    if (anew) {
        spread.SpreadId = NextSpreadId();
    } else {
        SpreadRecord replaced;
        if (!GetRecord(TheRun.Paths.SpreadsPath, replacing, replaced)) RaiseError(errInputPastEndOfFile);
        going = DesignFilePath(replaced.BackgroundFile.Value());
    }

    DesignCommit commit;
    // The picture in Temp/ takes its permanent S name in Cards/ here.
    const QString working = spread.BackgroundFile.Value();
    if (!TrimField(working).isEmpty() && FileExists(TheRun.Paths.TempDir + TrimField(working))) {
        spread.BackgroundFile = NewBackgroundName(working, TakenStems({TheRun.Paths.CardsDir}, {going}));
        commit.AddFile(TheRun.Paths.TempDir + working, spread.BackgroundFile.Value());
    } else {
        spread.BackgroundFile = QString();
    }
    spread.SpreadName = name;
    spread.ModifiedOn = OleToday();
    spread.SpreadRevision = static_cast<Integer>(spread.SpreadRevision + 1);

    // Its locations go after those of every other spread, numbered 1 up.
    QByteArray locations;
    for (int i = 1; i <= spread.LocationCount; ++i) {
        LocationRecord& location = design.Locations(i);
        location.LocationSpreadId = spread.SpreadId;
        location.LocationNumber = static_cast<Integer>(i);
        locations += EncodeRecord(location);
    }
    const int idAt = OffsetOf(&LocationRecord::LocationSpreadId);
    commit.AddRecordFile(
        TheRun.Paths.LocationsPath, LocationRecord::Length,
        [&](const char* location, int) { return RawInteger(location, idAt) == spread.SpreadId ? nullptr : location; },
        locations);
    const QByteArray record = EncodeRecord(spread);
    commit.AddRecordFile(
        TheRun.Paths.SpreadsPath, SpreadRecord::Length,
        [&](const char* r, int number) { return number == replacing ? record.constData() : r; },
        anew ? record : QByteArray());
    commit.DropFile(going);
    commit.Commit();
    return design;
}

QString SaveSpreadDecks(const SpreadRecord& spread) {
    const int n = FindSpreadByName(spread.SpreadName.Trimmed());
    if (n < 0)
        return QCoreApplication::translate("SpreadStore",
                                           "Unable to find this spread. Please 'close' and select another spread.");
    PutRecord(TheRun.Paths.SpreadsPath, n, spread);
    return QString();
}

bool DeleteSpreadNamed(const QString& name) {
    const int n = FindSpreadByName(name);
    if (n < 0) return false;
    DeleteSpread(n);
    return true;
}

QString WorkingBackgroundName(const QString& fileName) { return WorkingStem + TrimField(fileName).right(4); }

WorkingBackground OpenWorkingBackground(SpreadRecord spread) {
    WorkingBackground working{QString(), spread, QString(), QImage()};
    const QString name = spread.BackgroundFile.Value();
    if (!name.contains(QLatin1Char('.'))) return working;
    try {
        FileCopy(TheRun.Paths.CardsDir + name, TheRun.Paths.TempDir + name);
        working.Path = TheRun.Paths.TempDir + name;
    } catch (const RuntimeError&) {
        working.Spread.BackgroundFile = QString();
    }
    return working;
}

QString WorkingBackgroundQuestion(const SpreadRecord& spread, const QString& typed) {
    if (!TrimField(typed).isEmpty() || !spread.BackgroundFile.Value().contains(QLatin1Char('.'))) return QString();
    return QCoreApplication::translate("SpreadStore",
                                       "Are you sure you want to remove the currently selected background picture?");
}

WorkingBackground ChooseWorkingBackground(SpreadRecord spread, const QString& typed, bool stretch) {
    WorkingBackground working{QString(), spread, QString(), QImage()};
    const QString fileName = TrimField(typed);
    if (fileName.isEmpty()) {
        // The name has no extension and so normally matches nothing: what
        // the spread had stays in Temp/ until the next opening empties it.
        KillIgnoringErrors(TheRun.Paths.TempDir + WorkingStem);
        working.Spread.StretchBackground = Flag(stretch);
        working.Spread.BackgroundFile = QString();
        return working;
    }
    working.Problem = SpreadBackgroundProblem(typed, &working.Picture);
    if (!working.Problem.isEmpty()) return working;
    // The spread takes the picture only once the copy is there: a file that
    // vanished since it was checked leaves the spread as it was.
    const QString name = WorkingBackgroundName(fileName);
    FileCopy(fileName, TheRun.Paths.TempDir + name);
    working.Spread.StretchBackground = Flag(stretch);
    working.Spread.BackgroundFile = name;
    working.Path = TheRun.Paths.TempDir + name;
    return working;
}
