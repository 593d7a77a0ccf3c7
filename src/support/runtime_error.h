#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace vireo {

// The classic run-time error numbers the program reports in its log.
enum class ErrorNumber : int {
  kInvalidProcedureCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscriptOutOfRange = 9,
  kTypeMismatch = 13,
  kFileNotFound = 53,
  kBadFileMode = 54,
  kFileAlreadyOpen = 55,
  kDiskFull = 61,
  kInputPastEndOfFile = 62,
  kBadFileName = 64,
  kPermissionDenied = 70,
  kPathFileAccess = 75,
  kPathNotFound = 76,
  kObjectNotSet = 91,
  kDllNotFound = 48,
  kInternal = 51,
  kPrinterError = 482,
};

// The description the run time gives for an error number ("Overflow",
// "Type mismatch" ...); "Application-defined or object-defined error" for
// numbers it has no text for.
std::string_view ErrorDescription(int number);

// The one error type of the program. Procedures throw it; the error trap
// (error_trap.h) catches it at the procedure's boundary and logs it.
class RuntimeError : public std::runtime_error {
 public:
  explicit RuntimeError(ErrorNumber number);
  RuntimeError(ErrorNumber number, const std::string& description);

  int number() const { return number_; }
  const std::string& description() const { return description_; }

 private:
  int number_;
  std::string description_;
};

// Throws RuntimeError(number) unless condition holds.
inline void Require(bool condition, ErrorNumber number) {
  if (!condition) throw RuntimeError(number);
}

}  // namespace vireo
