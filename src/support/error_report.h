#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vireo {

// The error report a person can send to the maker: the error, the program
// log and the person's own note, as a text file in the program's folder
// ("fulllog.txt") or as a mail link. Texts are Windows-1252 bytes with CR LF
// line ends.

// A mail program cuts a body after this many characters; the report marks
// the place so that the maker knows where a mailed copy ends.
inline constexpr size_t kMailBodyLimit = 400;
inline constexpr std::string_view kMailTruncationMark = " *Email will truncate here* ";

struct ErrorReport {
  std::string error;  // the error as the person saw it
  std::string log;    // the program log, or "No log file"
  std::string note;   // what the person typed; may be empty
};

// The contents of "log.txt" in folder, or the translated "No log file" when
// there is none or it cannot be read.
std::string ReportLogText(std::string_view folder);

// The report: the instruction line naming the bug-report address, the
// program's name, version and system, the error, the note when there is
// one, and the log. A text longer than kMailBodyLimit characters gets
// kMailTruncationMark after its kMailBodyLimit-th character.
std::string ReportText(const ErrorReport& report);

// Writes ReportText to "fulllog.txt" in folder, replacing it atomically, and
// returns the file's path. Throws RuntimeError 61 (disk full) or 75 when it
// cannot be written.
std::string WriteReportFile(std::string_view folder, const ErrorReport& report);

// "mailto:" the bug-report address with the subject "Bug Report (Vireo -
// version)" and ReportText as the body; line ends are written "%0D%0A" and
// the characters a mail link gives a meaning to are percent-encoded.
std::string ReportMailLink(const ErrorReport& report);

}  // namespace vireo
