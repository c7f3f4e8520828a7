#pragma once
// OLE Automation dates: days since 30 December 1899 as a double, the fraction
// being the time of day. And the date formats the screens and pages show.
#include <QDate>
#include <QDateTime>
#include <QString>

double ToOleDate(const QDateTime& when);
double ToOleDate(const QDate& day);
QDateTime FromOleDate(double value);
double OleNow();
double OleToday();  // today, a whole day without time part

// The program's fixed formats, in English whatever the locale:
QString FormatDdMmmYyyy(double oleDate);    // "dd-mmm-yyyy"      05-Mar-2026
QString FormatYyyyMmDd(double oleDate);     // "yyyy/mm/dd"       2026/03/05
QString FormatLongDayDate(double oleDate);  // "dddd, d mmm yyyy" Thursday, 5 Mar 2026
QString FormatTimeHmsAmPm(double oleDate);  // "h:m:s AMPM"       3:7:9 PM

// Tests fix "now" so that dates in records are predictable; an invalid
// QDateTime returns to the clock.
void SetClockForTests(const QDateTime& now);

QString FormatLongDate(double oleDate);  // "dd-mmm-yyyy"
QString FormatSortDate(double oleDate);  // "yyyy/mm/dd"
