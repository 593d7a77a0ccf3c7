#include "support/translation.h"

#include <algorithm>
#include <cctype>

#include "support/error_trap.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "mSharedLocalise";

std::vector<std::string>& Language() {
  static std::vector<std::string> entries;
  return entries;
}

std::string TrimBlanks(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

}  // namespace

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower;
}

std::string BeforeBreak(std::string_view entry) {
  return TrimBlanks(entry.substr(0, entry.find("||")));
}

std::string AfterBreak(std::string_view entry) {
  const size_t mark = entry.find("||");
  return mark == std::string_view::npos ? "" : TrimBlanks(entry.substr(mark + 2));
}

int SeekItem(const std::vector<std::string>& entries, std::string_view key) {
  int low = 0;
  int high = static_cast<int>(entries.size()) - 1;
  while (low <= high) {
    const int mid = (low + high) / 2;
    const std::string middle = LowerCase(BeforeBreak(entries[mid]));
    if (middle == key) return mid;
    if (middle < key) {
      low = mid + 1;
    } else {
      high = mid - 1;
    }
  }
  return -1;
}

void SetLanguage(std::vector<std::string> entries) {
  std::stable_sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) {
    return LowerCase(BeforeBreak(a)) < LowerCase(BeforeBreak(b));
  });
  Language() = std::move(entries);
}

std::string GetTranslation(std::string_view text) {
  std::string result(text);
  Trap("function gettranslation", kModule, [&] {
    if (Language().empty()) return;
    const int found = SeekItem(Language(), LowerCase(text));
    if (found >= 0) result = AfterBreak(Language()[found]);
  });
  return result;
}

}  // namespace vireo
