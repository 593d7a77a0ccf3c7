#include "support/language_files.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <string_view>

#include "support/error_trap.h"
#include "support/file_io.h"
#include "support/logging.h"
#include "support/platform.h"
#include "support/translation.h"
#include "support/windows1252.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "mSharedLocalise";
constexpr std::string_view kNameLine = "Language:";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string Trimmed(std::string_view text) {
  const size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(" \t") - first + 1));
}

std::vector<std::string_view> Lines(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return lines;
}

void LogSkipped(const std::string& path, size_t number, std::string_view why) {
  LogAction("Language file " + path + " line " + std::to_string(number) +
            " skipped: " + std::string(why));
}

// Adds the line to text, or logs why it is skipped.
void ReadLine(std::string_view raw, const std::string& path, size_t number, LanguageText& text,
              std::set<std::string>& keys) {
  const std::string line = Trimmed(raw);
  if (line.empty() || line.starts_with('#')) return;
  const std::optional<std::string> bytes = Windows1252FromUtf8(line);
  if (!bytes) {
    LogSkipped(path, number, "not UTF-8, or a character Windows-1252 lacks");
    return;
  }
  if (bytes->find("||") == std::string::npos && bytes->starts_with(kNameLine)) {
    text.name = Trimmed(std::string_view(*bytes).substr(kNameLine.size()));
    return;
  }
  if (bytes->find("||") == std::string::npos) {
    LogSkipped(path, number, "no \"||\" between the English text and its translation");
    return;
  }
  const std::string english = BeforeBreak(*bytes);
  if (english.empty()) {
    LogSkipped(path, number, "no English text before \"||\"");
    return;
  }
  if (!keys.insert(LowerCase(english)).second) {
    LogSkipped(path, number, "a second translation of \"" + english + "\"");
    return;
  }
  text.entries.push_back(*bytes);
}

}  // namespace

std::string LanguagesFolder(const std::string& program_folder) {
  return JoinPath(program_folder, "languages");
}

LanguageText ReadLanguageFile(const std::string& path) {
  LanguageText text;
  Trap("function readlanguagefile", kModule, [&] {
    const std::string content = ReadWholeFile(path);
    std::set<std::string> keys;
    const std::vector<std::string_view> lines = Lines(content);
    for (size_t i = 0; i < lines.size(); ++i) ReadLine(lines[i], path, i + 1, text, keys);
  });
  return text;
}

std::vector<LanguageFile> FindLanguages(const std::string& folder) {
  std::vector<LanguageFile> found;
  Trap("sub findlanguages", kModule, [&] {
    std::error_code error;
    for (const auto& item : std::filesystem::directory_iterator(folder, error)) {
      if (item.path().extension() != ".lng") continue;
      LanguageFile file{item.path().stem().string(), "", item.path().string()};
      file.name = ReadLanguageFile(file.path).name;
      if (file.name.empty()) file.name = file.code;
      found.push_back(std::move(file));
    }
  });
  std::sort(found.begin(), found.end(),
            [](const LanguageFile& a, const LanguageFile& b) { return a.name < b.name; });
  return found;
}

}  // namespace vireo
