#pragma once

#include <exception>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "support/runtime_error.h"

namespace vireo {

// Records a run-time error the way every procedure reports its own:
// LogProc(description, "<procedure>(<number>)", module), for example
// "Type mismatch in sub readsettings(13) of module frmMain".
void RecordError(const RuntimeError& error, std::string_view procedure, std::string_view module);

// Logs the error as RecordError does without offering an error report: for
// an error the program explains to the person itself.
void LogError(const RuntimeError& error, std::string_view procedure, std::string_view module);

// Called with every error recorded by RecordError, as its action entry, so
// that the program can offer the person an error report. Empty: none.
void SetErrorObserver(std::function<void(const std::string& entry)> observer);

// Maps any exception escaping a procedure body to a RuntimeError
// (std::bad_alloc -> 7, std::out_of_range -> 9, other -> 5) and records it.
void RecordCurrentException(std::string_view procedure, std::string_view module) noexcept;

// The per-procedure error trap: runs body; an error leaves the body, is logged
// under the procedure's logged name and module, and never reaches the caller.
// Returns true when the body ran to its end.
//
//   Trap("sub readbin", "clsBIN", [&] { ... });
//
// Procedures whose design resumes with the next statement guard each step
// with its own Trap call.
template <typename Body>
bool Trap(std::string_view procedure, std::string_view module, Body&& body) noexcept {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (...) {
    RecordCurrentException(procedure, module);
    return false;
  }
}

}  // namespace vireo
