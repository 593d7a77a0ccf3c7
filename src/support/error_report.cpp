#include "support/error_report.h"

#include <cstdio>

#include "support/file_io.h"
#include "support/logging.h"
#include "support/maker.h"
#include "support/platform.h"
#include "support/runtime_error.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string InstructionLine() {
  return GetTranslation("If the Send button does not work, open a new e-mail to") + " " +
         std::string(kMakerBugAddress) + " " + GetTranslation("and paste this text into it.");
}

// The mail link's own characters, and every byte outside printable ASCII.
bool NeedsEncoding(unsigned char byte) {
  return byte <= ' ' || byte >= 0x7F ||
         std::string_view("%&#?+=\"<>").find(static_cast<char>(byte)) != std::string_view::npos;
}

std::string PercentEncoded(std::string_view text) {
  std::string encoded;
  for (size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte == '\r' || byte == '\n') {
      // CR LF, a lone CR and a lone LF are each one line end.
      if (byte == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
      encoded += "%0D%0A";
    } else if (NeedsEncoding(byte)) {
      char hex[4];
      std::snprintf(hex, sizeof hex, "%%%02X", byte);
      encoded += hex;
    } else {
      encoded += static_cast<char>(byte);
    }
  }
  return encoded;
}

}  // namespace

std::string ReportLogText(std::string_view folder) {
  try {
    return ReadWholeFile(LogFilePath(folder));
  } catch (const RuntimeError&) {
    return GetTranslation("No log file");
  }
}

std::string ReportText(const ErrorReport& report) {
  std::string text = InstructionLine();
  text += kLineEnd;
  text += "Error Report: Vireo " + AppVersion() + ", " + FOSName();
  for (const std::string* part : {&report.error, &report.note, &report.log}) {
    if (part == &report.note && report.note.empty()) continue;
    text += kLineEnd;
    text += kLineEnd;
    text += *part;
  }
  if (text.size() > kMailBodyLimit) text.insert(kMailBodyLimit, kMailTruncationMark);
  return text;
}

std::string WriteReportFile(std::string_view folder, const ErrorReport& report) {
  const std::string path = JoinPath(folder, "fulllog.txt");
  WriteFileAtomically(path, ReportText(report));
  return path;
}

std::string ReportMailLink(const ErrorReport& report) {
  const std::string subject = "Bug Report (Vireo - " + AppVersion() + ")";
  return "mailto:" + std::string(kMakerBugAddress) + "?subject=" + PercentEncoded(subject) +
         "&body=" + PercentEncoded(ReportText(report));
}

}  // namespace vireo
