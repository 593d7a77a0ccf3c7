#include "book/load_file.h"

#include <algorithm>
#include <cctype>

#include "support/error_trap.h"
#include "support/file_io.h"
#include "support/logging.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

// Narrows a UTF-16 literal of ASCII characters to bytes at run time.
std::string Narrow(std::u16string_view wide) {
  std::string bytes;
  bytes.reserve(wide.size());
  for (char16_t c : wide) bytes.push_back(static_cast<char>(c));
  return bytes;
}

std::string TrimmedLower(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return "";
  std::string result(text.substr(first, text.find_last_not_of(' ') - first + 1));
  for (char& c : result) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return result;
}

// No header marker: the stub's own message when the path is its bare name.
void ReportNoBook(const std::string& path, LoadFileHost& host) {
  if (TrimmedLower(path) == TrimmedLower("Vireo_Stub.exe")) {
    host.ShowLoadMessage(
        GetTranslation("Running Vireo_Stub.exe does nothing. Please use Vireo.exe instead."));
  } else {
    host.ShowLoadMessage(GetTranslation("There is no ebook stored in this file."));
  }
}

}  // namespace

std::string HeaderMarker() { return Narrow(u"[START][HEADER]"); }
std::string BookMarker() { return Narrow(u"[START][BOOK]"); }

void LoadFile(const std::string& path, LoadFileHost& host) {
  Trap("sub loadfile", kModule, [&] {
    LogAction("Loading from: " + path);
    std::string file = ReadWholeFile(path);
    const size_t header = file.find(HeaderMarker());
    if (header == std::string::npos) {
      ReportNoBook(path, host);
      return;
    }
    LogAction("Reading Book");
    // FIXME: unpacking the book behind the markers comes with the book sources.
    throw RuntimeError(ErrorNumber::kInvalidProcedureCall);
  });
}

}  // namespace vireo
