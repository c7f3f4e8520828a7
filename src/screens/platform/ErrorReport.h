#pragma once
// How a screen meets a run-time error that the operation it started raised:
// the error box, and the program goes on.
#include <exception>
#include <functional>

#include "core/platform/Errors.h"

// Shows the error box for an unexpected failure: critical icon, title
// "Cartomar", text "Run-time error 'n':" and the description. The pointer
// is the ordinary one again from here.
void ReportError(const RuntimeError& error);
void ReportUnexpected(const std::exception& error);

// Runs an operation; an error it raises is reported and the operation ends
// there. Returns false when the operation failed.
bool Guarded(const std::function<void()>& operation);
