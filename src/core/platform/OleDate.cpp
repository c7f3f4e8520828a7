#include "core/platform/OleDate.h"

#include <cmath>

namespace {

const QDate kEpoch(1899, 12, 30);
// The fixed "now" belongs to the test that sets it, not to the run: a test
// keeps its dates across the runs it starts, so ResetRun leaves it alone.
QDateTime gFixedNow;

const char* const kMonths[12] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
const char* const kDays[7] = {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};

}  // namespace

double ToOleDate(const QDate& day) { return static_cast<double>(kEpoch.daysTo(day)); }

double ToOleDate(const QDateTime& when) {
    const double days = ToOleDate(when.date());
    const double fraction = when.time().msecsSinceStartOfDay() / 86400000.0;
    // Before the epoch the fraction counts away from zero as well.
    return days >= 0 ? days + fraction : days - fraction;
}

QDateTime FromOleDate(double value) {
    if (!std::isfinite(value) || std::fabs(value) > 3e6) return QDateTime(kEpoch, QTime(0, 0));
    const double whole = std::trunc(value);
    const double fraction = std::fabs(value - whole);
    const QDate day = kEpoch.addDays(static_cast<qint64>(whole));
    const int ms = static_cast<int>(std::llround(fraction * 86400000.0));
    return QDateTime(day, QTime(0, 0).addMSecs(std::min(ms, 86399999)));
}

double OleNow() { return ToOleDate(gFixedNow.isValid() ? gFixedNow : QDateTime::currentDateTime()); }

double OleToday() { return std::floor(OleNow()); }

void SetClockForTests(const QDateTime& now) { gFixedNow = now; }

QString FormatDdMmmYyyy(double oleDate) {
    const QDate d = FromOleDate(oleDate).date();
    return QStringLiteral("%1-%2-%3")
        .arg(d.day(), 2, 10, QLatin1Char('0'))
        .arg(QLatin1String(kMonths[d.month() - 1]))
        .arg(d.year(), 4, 10, QLatin1Char('0'));
}

QString FormatYyyyMmDd(double oleDate) {
    const QDate d = FromOleDate(oleDate).date();
    return QStringLiteral("%1/%2/%3")
        .arg(d.year(), 4, 10, QLatin1Char('0'))
        .arg(d.month(), 2, 10, QLatin1Char('0'))
        .arg(d.day(), 2, 10, QLatin1Char('0'));
}

QString FormatLongDayDate(double oleDate) {
    const QDate d = FromOleDate(oleDate).date();
    return QStringLiteral("%1, %2 %3 %4")
        .arg(QLatin1String(kDays[d.dayOfWeek() - 1]))
        .arg(d.day())
        .arg(QLatin1String(kMonths[d.month() - 1]))
        .arg(d.year());
}

QString FormatTimeHmsAmPm(double oleDate) {
    const QTime t = FromOleDate(oleDate).time();
    int hour = t.hour() % 12;
    if (hour == 0) hour = 12;
    return QStringLiteral("%1:%2:%3 %4")
        .arg(hour)
        .arg(t.minute())
        .arg(t.second())
        .arg(t.hour() < 12 ? QStringLiteral("AM") : QStringLiteral("PM"));
}

QString FormatLongDate(double oleDate) { return FormatDdMmmYyyy(oleDate); }

QString FormatSortDate(double oleDate) { return FormatYyyyMmDd(oleDate); }
