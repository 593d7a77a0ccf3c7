#pragma once

#include <array>
#include <cstdint>
#include <ctime>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vireo {

// The program log "log.txt" in the program's folder, and the ring of the last
// 40 actions that is written into it. Logging never throws and never blocks:
// when the file cannot be written the line is lost and the program goes on.

enum class LogFile { kAppend, kNew };

// The log file path for a program folder: folder + "log.txt" when the folder
// already ends in a separator, else folder + "/log.txt".
std::string LogFilePath(std::string_view folder);

// Where "log.txt" lives; set once at start-up. Empty: nothing is written.
void SetLogFolder(std::string_view folder);
const std::string& LogFolder();

void SetLoggingDisabled(bool disabled);
bool LoggingDisabled();

// A log longer than this many bytes is renamed "log.txt.old" (replacing an
// older one) once the line that passed the limit is written, and before a new
// log is created; the next line starts a new "log.txt".
inline constexpr long kLogRotateBytes = 4L << 20;

// Appends "HH:MM:SS" + blanks to column 15 + text + CR LF to the log. With
// LogFile::kNew the file is first created afresh with its two header lines.
void LogAction(std::string_view text, LogFile file = LogFile::kAppend);

// An entry recorded this many times in a run is not recorded again; the next
// listing of the ring says how many more times it came.
inline constexpr int64_t kRepeatsRecorded = 3;

// Records "text in procedure of module module" in the action ring; the 41st
// entry first writes the previous 40 to the log and starts again at slot 1.
// Repeats past kRepeatsRecorded are only counted.
void LogProc(std::string_view text, std::string_view procedure, std::string_view module);

// "text in procedure of module module", without the parts that are empty.
std::string ActionEntry(std::string text, std::string_view procedure, std::string_view module);

// Records "DBG: text ..." in the ring; wraps round without listing.
void LogDebug(std::string_view text, std::string_view procedure, std::string_view module);

// Writes the ring to the log between "Listing last 40 actions: " and
// "End of actions list", then, for each entry whose repeats were not
// recorded since the last listing, " >> repeated N more times: " and the
// entry.
void ListActions();

inline constexpr int kActionRingSize = 40;

struct ActionRing {
  std::array<std::string, kActionRingSize + 1> text;   // 1-based; [0] unused
  std::array<std::string, kActionRingSize + 1> stamp;  // "HH:MM:SS"
  int position = 0;                                    // slot written last
};
const ActionRing& Actions();
// Empties the ring and forgets the entries counted for repeats.
void ClearActions();

// Work done on another thread can hold back its log lines, listings and
// error reports, so that the thread taking its result writes them, in
// order, where the work would have written them had it run there.
class HeldBackLog {
 public:
  void Add(std::function<void()> write) { writes_.push_back(std::move(write)); }
  // Writes what was held back, on the calling thread, and forgets it.
  void WriteOut();

 private:
  std::vector<std::function<void()>> writes_;
};

// While one lives, the logging of the thread that made it goes to held;
// after, to where it went before.
class HoldBackLogging {
 public:
  explicit HoldBackLogging(HeldBackLog& held);
  ~HoldBackLogging();
  HoldBackLogging(const HoldBackLogging&) = delete;
  HoldBackLogging& operator=(const HoldBackLogging&) = delete;

 private:
  HeldBackLog* before_;
};

// The log this thread holds its logging back in, or nullptr.
HeldBackLog* HeldBackLogHere();

// The clock used for time stamps (tests fix it).
void SetLogClock(std::function<std::time_t()> clock);

// The operating system's version information as the name table reads it.
struct OsVersionInfo {
  enum class Platform { kUnknown, kWindows9x, kWindowsNt, kOther };
  Platform platform = Platform::kUnknown;
  int major = 0;
  int minor = 0;
  std::string other_name;  // kOther: the kernel's name and release
};

// The operating-system name for the log header: "WinXP", "WINNT6+" ...; for a
// non-Windows system its kernel's name and release; "" when unknown.
std::string FOSName(const OsVersionInfo& info);
OsVersionInfo CurrentOsVersion();
std::string FOSName();

// "major.minor.revision" of this build.
std::string AppVersion();

}  // namespace vireo
