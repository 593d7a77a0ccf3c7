#include "support/logging.h"

#include <cstdio>
#include <unordered_map>

#include "support/version.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <sys/utsname.h>
#endif

namespace vireo {
namespace {

// How often one entry (text, procedure and module) was recorded this run,
// and how many of its repeats the next listing still has to count.
struct Repeats {
  int64_t recorded = 0;
  int64_t unlisted = 0;
};

// Distinct entries followed for their repeats; beyond this many, new
// entries are recorded without counting.
constexpr size_t kFollowedEntries = 1000;

struct LogState {
  std::string folder;
  bool disabled = false;
  ActionRing ring;
  std::unordered_map<std::string, Repeats> repeats;
  std::function<std::time_t()> clock = [] { return std::time(nullptr); };
};

thread_local HeldBackLog* held_back_here = nullptr;

LogState& State() {
  static LogState state;
  return state;
}

std::tm LocalNow() {
  std::time_t now = State().clock();
  std::tm local{};
#if defined(_WIN32)
  localtime_s(&local, &now);
#else
  localtime_r(&now, &local);
#endif
  return local;
}

std::string Format(const char* pattern) {
  std::tm local = LocalNow();
  char text[32] = {};
  std::strftime(text, sizeof text, pattern, &local);
  return text;
}

// The time, then blanks up to the next 14-column print zone (column 15).
std::string Stamped(std::string_view text) {
  std::string line = Format("%H:%M:%S");
  line.resize(14, ' ');
  line += text;
  line += "\r\n";
  return line;
}

// A log that has grown past the limit becomes "log.txt.old", replacing the
// older copy, so that the two never hold much more than twice the limit.
void RotateWhenLarge(const std::string& path, long size) {
  if (size <= kLogRotateBytes) return;
  const std::string old = path + ".old";
  std::remove(old.c_str());
  std::rename(path.c_str(), old.c_str());
}

long FileSize(const std::string& path) {
  FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) return 0;
  std::fseek(file, 0, SEEK_END);
  const long size = std::ftell(file);
  std::fclose(file);
  return size;
}

void WriteLines(const std::string& lines, LogFile mode) {
  const std::string path = LogFilePath(State().folder);
  if (mode == LogFile::kNew) RotateWhenLarge(path, FileSize(path));
  FILE* file = std::fopen(path.c_str(), mode == LogFile::kNew ? "wb" : "ab");
  if (file == nullptr) return;
  std::fwrite(lines.data(), 1, lines.size(), file);
  const long size = std::ftell(file);
  std::fclose(file);
  RotateWhenLarge(path, size);
}

}  // namespace

std::string ActionEntry(std::string text, std::string_view procedure, std::string_view module) {
  if (!procedure.empty()) (text += " in ") += procedure;
  if (!module.empty()) (text += " of module ") += module;
  return text;
}

namespace {

// Counts entry; false when it has been recorded often enough this run.
bool Recordable(const std::string& entry) {
  auto& repeats = State().repeats;
  auto found = repeats.find(entry);
  if (found == repeats.end()) {
    if (repeats.size() < kFollowedEntries) repeats.emplace(entry, Repeats{1, 0});
    return true;
  }
  if (found->second.recorded < kRepeatsRecorded) {
    ++found->second.recorded;
    return true;
  }
  ++found->second.unlisted;
  return false;
}

// One line per entry whose repeats were left out since the last listing.
void ListRepeats() {
  for (auto& [entry, repeats] : State().repeats) {
    if (repeats.unlisted == 0) continue;
    LogAction(" >> repeated " + std::to_string(repeats.unlisted) + " more times: " + entry);
    repeats.unlisted = 0;
  }
}

void Record(std::string entry) {
  ActionRing& ring = State().ring;
  ring.text[ring.position] = std::move(entry);
  ring.stamp[ring.position] = Format("%H:%M:%S");
}

}  // namespace

std::string LogFilePath(std::string_view folder) {
  std::string path(folder);
  if (!path.empty() && (path.back() == '/' || path.back() == '\\')) return path + "log.txt";
  return path + "/log.txt";
}

void SetLogFolder(std::string_view folder) { State().folder = folder; }
const std::string& LogFolder() { return State().folder; }
void SetLoggingDisabled(bool disabled) { State().disabled = disabled; }
bool LoggingDisabled() { return State().disabled; }
void SetLogClock(std::function<std::time_t()> clock) { State().clock = std::move(clock); }
const ActionRing& Actions() { return State().ring; }
void ClearActions() {
  State().ring = ActionRing{};
  State().repeats.clear();
}

void HeldBackLog::WriteOut() {
  std::vector<std::function<void()>> writes;
  writes.swap(writes_);
  for (const auto& write : writes) write();
}

HoldBackLogging::HoldBackLogging(HeldBackLog& held) : before_(held_back_here) {
  held_back_here = &held;
}
HoldBackLogging::~HoldBackLogging() { held_back_here = before_; }
HeldBackLog* HeldBackLogHere() { return held_back_here; }

void LogAction(std::string_view text, LogFile file) {
  if (held_back_here != nullptr) {
    held_back_here->Add([text = std::string(text), file] { LogAction(text, file); });
    return;
  }
  if (State().disabled || State().folder.empty()) return;
  try {
    if (file == LogFile::kNew) {
      std::string header = Stamped("Log file created " + Format("%Y-%m-%d"));
      header += Stamped("Operating System: " + FOSName());
      WriteLines(header + Stamped(text), LogFile::kNew);
    } else {
      WriteLines(Stamped(text), LogFile::kAppend);
    }
  } catch (...) {
    // A log line that cannot be built is dropped.
  }
}

void LogProc(std::string_view text, std::string_view procedure, std::string_view module) {
  if (held_back_here != nullptr) {
    held_back_here->Add([text = std::string(text), procedure = std::string(procedure),
                         module = std::string(module)] { LogProc(text, procedure, module); });
    return;
  }
  if (State().disabled) return;
  try {
    std::string entry = ActionEntry(std::string(text), procedure, module);
    if (!Recordable(entry)) return;
    ActionRing& ring = State().ring;
    if (++ring.position > kActionRingSize) {
      ListActions();
      ring.position = 1;
    }
    Record(std::move(entry));
  } catch (...) {
  }
}

void LogDebug(std::string_view text, std::string_view procedure, std::string_view module) {
  if (held_back_here != nullptr) {
    held_back_here->Add([text = std::string(text), procedure = std::string(procedure),
                         module = std::string(module)] { LogDebug(text, procedure, module); });
    return;
  }
  if (State().disabled) return;
  try {
    ActionRing& ring = State().ring;
    if (++ring.position > kActionRingSize) ring.position = 1;
    Record(ActionEntry("DBG: " + std::string(text), procedure, module));
  } catch (...) {
  }
}

void ListActions() {
  if (held_back_here != nullptr) {
    held_back_here->Add([] { ListActions(); });
    return;
  }
  if (State().disabled) return;
  try {
    const ActionRing& ring = State().ring;
    LogAction("Listing last " + std::to_string(kActionRingSize) + " actions: ");
    auto list = [&](int from, int to) {
      for (int i = from; i <= to; ++i) {
        if (ring.text[i].empty()) continue;
        LogAction(" >> " + std::to_string(i) + ": " + ring.text[i] + " - " + ring.stamp[i]);
      }
    };
    list(ring.position + 1, kActionRingSize);
    list(1, ring.position - 1);
    ListRepeats();
    LogAction("End of actions list");
  } catch (...) {
  }
}

std::string FOSName(const OsVersionInfo& info) {
  using Platform = OsVersionInfo::Platform;
  switch (info.platform) {
    case Platform::kWindowsNt:
      if (info.major > 6) return "WINNT6+";
      if (info.major == 5) return info.minor == 0 ? "Win2K" : "WinXP";
      if (info.major <= 4) return "WinNT";
      return "";  // NT 6 matches no row of the table.
    case Platform::kWindows9x:
      if (info.minor == 10) return "Win98";
      if (info.minor == 0) return "Win95";
      if (info.minor == 90) return "WinME";
      return "WIN32";
    case Platform::kOther:
      return info.other_name;
    case Platform::kUnknown:
      break;
  }
  return "";
}

OsVersionInfo CurrentOsVersion() {
  OsVersionInfo info;
#if defined(_WIN32)
  OSVERSIONINFOA version{};
  version.dwOSVersionInfoSize = sizeof version;
#pragma warning(suppress : 4996)
  if (GetVersionExA(&version)) {
    info.platform = version.dwPlatformId == VER_PLATFORM_WIN32_NT
                        ? OsVersionInfo::Platform::kWindowsNt
                        : OsVersionInfo::Platform::kWindows9x;
    info.major = static_cast<int>(version.dwMajorVersion);
    info.minor = static_cast<int>(version.dwMinorVersion);
  }
#else
  utsname name{};
  if (uname(&name) == 0) {
    info.platform = OsVersionInfo::Platform::kOther;
    info.other_name = std::string(name.sysname) + " " + name.release;
  }
#endif
  return info;
}

std::string FOSName() { return FOSName(CurrentOsVersion()); }

std::string AppVersion() {
  return std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
         std::to_string(kVersionRevision);
}

}  // namespace vireo
