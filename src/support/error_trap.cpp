#include "support/error_trap.h"

#include <new>
#include <string>

#include "support/logging.h"

namespace vireo {

namespace {

std::function<void(const std::string&)>& ErrorObserver() {
  static std::function<void(const std::string&)> observer;
  return observer;
}

// "<procedure>(<number>)", as the log names the procedure an error left.
std::string LoggedName(const RuntimeError& error, std::string_view procedure) {
  std::string name(procedure);
  name += '(';
  name += std::to_string(error.number());
  name += ')';
  return name;
}

}  // namespace

void SetErrorObserver(std::function<void(const std::string& entry)> observer) {
  ErrorObserver() = std::move(observer);
}

void LogError(const RuntimeError& error, std::string_view procedure, std::string_view module) {
  LogProc(error.description(), LoggedName(error, procedure), module);
}

void RecordError(const RuntimeError& error, std::string_view procedure, std::string_view module) {
  LogError(error, procedure, module);
  std::string entry = ActionEntry(error.description(), LoggedName(error, procedure), module);
  if (HeldBackLog* held = HeldBackLogHere()) {
    held->Add([entry = std::move(entry)] {
      if (ErrorObserver()) ErrorObserver()(entry);
    });
  } else if (ErrorObserver()) {
    ErrorObserver()(entry);
  }
}

void RecordCurrentException(std::string_view procedure, std::string_view module) noexcept {
  try {
    try {
      throw;
    } catch (const RuntimeError& error) {
      RecordError(error, procedure, module);
    } catch (const std::bad_alloc&) {
      RecordError(RuntimeError(ErrorNumber::kOutOfMemory), procedure, module);
    } catch (const std::out_of_range&) {
      RecordError(RuntimeError(ErrorNumber::kSubscriptOutOfRange), procedure, module);
    } catch (...) {
      RecordError(RuntimeError(ErrorNumber::kInvalidProcedureCall), procedure, module);
    }
  } catch (...) {
    // Logging never throws; nothing more can be done here.
  }
}

}  // namespace vireo
