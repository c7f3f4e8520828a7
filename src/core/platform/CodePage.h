#pragma once
// The single-byte code page of record text: Windows-1252. Each of the 256
// bytes decodes to one character and encodes back to the same byte, so text
// read from a record and written again comes out identical. Characters the
// code page cannot hold are written as '?'.
#include <QByteArray>
#include <QString>

QString FromAnsi(const char* bytes, int length);
QString FromAnsi(const QByteArray& bytes);
QByteArray ToAnsi(const QString& text);
// True if every character of the text has a byte in the code page.
bool AnsiRepresentable(const QString& text);
