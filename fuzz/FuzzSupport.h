#pragma once
// What every fuzz target shares: a program directory in a temporary folder
// with its paths formed as start-up forms them, a small real database written
// by the program's own encoders, and the checks that a run left nothing
// changed outside the program directory.
#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <functional>

// The record files a fuzz input can stand in for.
enum class FuzzedFile { Decks, Cards, Spreads, Locations, Readings, Diary };

namespace Fuzz {

// Makes the application object, scripts the message boxes and forms the
// paths of a program directory under a fresh temporary folder.
void Initialize(int* argc, char*** argv);

QByteArray Bytes(const std::uint8_t* data, std::size_t size);

// The path of a record file under the program directory.
QString PathOf(FuzzedFile file);

// The record files of a small database: a deck "Fuzz Deck" of three cards
// with their pictures in Cards/ (the last card's reversed side is the default
// picture), a spread "Fuzz Spread" of three locations for that deck, a saved
// reading and a diary entry dealt from them.
QByteArray BaselineFile(FuzzedFile file);

// The three files of a database of the old format, written by the old
// layouts' encoders: a deck of two cards and a spread of two locations.
enum class OldFile { Decks, Cards, Spreads };
QByteArray OldBaselineFile(OldFile file);

// Holds every record file of the database afresh in memory, the fuzzed one
// with the input's bytes (see RecordFilesInMemory), and puts back on the disk
// the pictures its cards name and the default picture.
void LayDatabase(FuzzedFile fuzzed, const QByteArray& input);

// Runs one operation; a RuntimeError is how the program reports a failure it
// has no answer for (an error box, and the program carries on), so it ends
// the operation and nothing more. Any other exception escapes and stops the
// run as a crash.
void Handled(const std::function<void()>& operation);

// Aborts unless the file beside the program directory is still there, with
// its bytes: a run must write nothing outside its program directory.
void CheckNothingOutsideTouched();

// Aborts with the message on stderr: the fuzzer reports it as a crash.
[[noreturn]] void Fail(const char* what);
inline void Expect(bool condition, const char* what) {
    if (!condition) Fail(what);
}

}  // namespace Fuzz
