#include "support/runtime_error.h"

namespace vireo {

std::string_view ErrorDescription(int number) {
  switch (static_cast<ErrorNumber>(number)) {
    case ErrorNumber::kInvalidProcedureCall:
      return "Invalid procedure call or argument";
    case ErrorNumber::kOverflow:
      return "Overflow";
    case ErrorNumber::kOutOfMemory:
      return "Out of memory";
    case ErrorNumber::kSubscriptOutOfRange:
      return "Subscript out of range";
    case ErrorNumber::kTypeMismatch:
      return "Type mismatch";
    case ErrorNumber::kDllNotFound:
      return "Error in loading DLL";
    case ErrorNumber::kInternal:
      return "Internal error";
    case ErrorNumber::kFileNotFound:
      return "File not found";
    case ErrorNumber::kBadFileMode:
      return "Bad file mode";
    case ErrorNumber::kFileAlreadyOpen:
      return "File already open";
    case ErrorNumber::kDiskFull:
      return "Disk full";
    case ErrorNumber::kInputPastEndOfFile:
      return "Input past end of file";
    case ErrorNumber::kBadFileName:
      return "Bad file name";
    case ErrorNumber::kPermissionDenied:
      return "Permission denied";
    case ErrorNumber::kPathFileAccess:
      return "Path/File access error";
    case ErrorNumber::kPathNotFound:
      return "Path not found";
    case ErrorNumber::kObjectNotSet:
      return "Object variable or With block variable not set";
    case ErrorNumber::kPrinterError:
      return "Printer error";
  }
  return "Application-defined or object-defined error";
}

RuntimeError::RuntimeError(ErrorNumber number)
    : RuntimeError(number, std::string(ErrorDescription(static_cast<int>(number)))) {}

RuntimeError::RuntimeError(ErrorNumber number, const std::string& description)
    : std::runtime_error(description),
      number_(static_cast<int>(number)),
      description_(description) {}

}  // namespace vireo
