#include "prefs/shared_settings.h"

#include <algorithm>
#include <string_view>

#include "support/error_trap.h"
#include "support/file_io.h"
#include "support/logging.h"
#include "support/platform.h"
#include "support/runtime_error.h"
#include "support/text_helpers.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "cSHAREDSettings";

std::string WithoutCommas(std::string key) {
  std::erase(key, ',');
  return key;
}

std::string_view TrimBlanks(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Splits one line into its comma-delimited key field and the rest: leading
// blanks are skipped, a key in double quotes is read without them.
std::pair<std::string_view, std::string_view> SplitLine(std::string_view line) {
  constexpr auto kNone = std::string_view::npos;
  size_t at = line.find_first_not_of(' ');
  if (at == kNone) return {};
  if (line[at] == '"') {
    const size_t close = line.find('"', at + 1);
    if (close == kNone) return {line.substr(at + 1), {}};
    const size_t comma = line.find(',', close);
    return {line.substr(at + 1, close - at - 1), comma == kNone ? "" : line.substr(comma + 1)};
  }
  const size_t comma = line.find(',', at);
  if (comma == kNone) return {TrimBlanks(line.substr(at)), {}};
  return {TrimBlanks(line.substr(at, comma - at)), line.substr(comma + 1)};
}

// Calls visit with each line of content, without its end (CR LF, CR or LF).
template <typename Visit>
void ForEachLine(std::string_view content, Visit&& visit) {
  size_t start = 0;
  while (start < content.size()) {
    size_t end = start;
    while (end < content.size() && content[end] != '\r' && content[end] != '\n') ++end;
    visit(content.substr(start, end - start));
    if (end + 1 < content.size() && content[end] == '\r' && content[end + 1] == '\n') ++end;
    start = end + 1;
  }
}

// Sorted by key with one item per key holding the value added last: the
// store that adding the items one by one in this order gives, in
// O(n log n) instead of one insertion into the middle per item.
std::vector<cSHAREDSetting> SortedLastValueWins(std::vector<cSHAREDSetting> items) {
  std::stable_sort(items.begin(), items.end(),
                   [](const auto& a, const auto& b) { return a.KeyName < b.KeyName; });
  std::vector<cSHAREDSetting> unique;
  unique.reserve(items.size());
  for (cSHAREDSetting& item : items) {
    if (!unique.empty() && unique.back().KeyName == item.KeyName) {
      unique.back().KeyValue = std::move(item.KeyValue);
    } else {
      unique.push_back(std::move(item));
    }
  }
  return unique;
}

bool HoldsLineEnd(const std::string& text) {
  return text.find_first_of("\r\n") != std::string::npos;
}

// The file's lines for the items; an item whose key or value holds a line end
// is left out, since its line would split into two on loading.
std::string FileContent(const std::vector<cSHAREDSetting>& items, int& left_out) {
  std::string content;
  left_out = 0;
  for (const cSHAREDSetting& item : items) {
    const std::string key = WithoutCommas(UpperCase(item.KeyName));
    const std::string value = item.KeyValue.ToText();
    if (HoldsLineEnd(key) || HoldsLineEnd(value)) {
      ++left_out;
      continue;
    }
    content += key;
    content += ',';
    content += value;
    content += "\r\n";
  }
  return content;
}

}  // namespace

int cSHAREDSettings::SettingsCount() const { return static_cast<int>(items_.size()); }

std::string cSHAREDSettings::SettingNameByIndex(int index) const {
  std::string name;
  Trap("get settingnamebyindex", kModule, [&] {
    Require(index >= 1 && index <= SettingsCount(), ErrorNumber::kSubscriptOutOfRange);
    name = items_[index - 1].KeyName;
  });
  return name;
}

cSHAREDSettings::SearchResult cSHAREDSettings::FindSetting(const std::string& raw_key) const {
  const std::string key = WithoutCommas(raw_key);
  const int count = SettingsCount();
  if (count == 0) return {-1, 0};
  auto name = [&](int i) -> const std::string& { return items_[i - 1].KeyName; };
  int low = 1;
  int high = count;
  if (name(low) == key) return {low, low + 1};
  if (name(high) == key) return {high, high + 1};
  int mid = 1;
  while (low <= high) {
    mid = (low + high) / 2;
    if (name(mid) == key) return {mid, mid + 1};
    if (name(mid) > key) {
      high = mid - 1;
    } else {
      low = mid + 1;
    }
  }
  return {-1, name(mid) > key ? mid : mid + 1};
}

void cSHAREDSettings::StoreSetting(const std::string& key, const SettingValue& value) {
  Trap("storesetting", kModule, [&] { AddSetting(UpperCase(key), value); });
}

void cSHAREDSettings::AddSetting(const std::string& key, const SettingValue& value) {
  Trap("addsetting", kModule, [&] {
    const SearchResult found = FindSetting(key);
    if (found.index > 0) {
      items_[found.index - 1].KeyValue = value;
      return;
    }
    cSHAREDSetting item{WithoutCommas(key), value};
    if (found.insert_at != 0 && found.insert_at <= SettingsCount()) {
      items_.insert(items_.begin() + (found.insert_at - 1), std::move(item));
    } else {
      items_.push_back(std::move(item));
    }
  });
}

SettingValue cSHAREDSettings::RetrieveSetting(const std::string& key,
                                              const SettingValue& default_value) const {
  SettingValue result = default_value;
  Trap("retrievesetting", kModule, [&] {
    const SearchResult found = FindSetting(UpperCase(key));
    if (found.index < 0) return;
    const SettingValue& value = items_[found.index - 1].KeyValue;
    result = value.IsText() ? ParseSettingText(value.ToText()) : value;
  });
  return result;
}

SettingValue cSHAREDSettings::RetrieveWithDefault(const std::string& key,
                                                  const SettingValue& default_value) const {
  SettingValue result;
  Trap("retrievewithdefault", kModule, [&] {
    result = RetrieveSetting(key);
    if (result.EqualsZero()) result = default_value;
  });
  return result;
}

bool cSHAREDSettings::SettingPresent(const std::string& key) const {
  return FindSetting(UpperCase(key)).index > 0;
}

void cSHAREDSettings::DeleteSetting(int index) {
  Trap("deletesetting", kModule, [&] {
    Require(index >= 1 && index <= SettingsCount(), ErrorNumber::kSubscriptOutOfRange);
    items_.erase(items_.begin() + (index - 1));
  });
}

void cSHAREDSettings::DeleteSettingByName(const std::string& key) {
  Trap("deletesettingbyname", kModule, [&] {
    const SearchResult found = FindSetting(key);
    if (found.index > 0) DeleteSetting(found.index);
  });
}

void cSHAREDSettings::DeleteAllSettings() { items_.clear(); }

void cSHAREDSettings::SortSettings() {
  std::stable_sort(items_.begin(), items_.end(),
                   [](const auto& a, const auto& b) { return a.KeyName < b.KeyName; });
}

void cSHAREDSettings::SaveSettings(const std::string& path) const {
  try {
    if (!PrepareForOutput(path)) return;
    int left_out = 0;
    const std::string content = FileContent(items_, left_out);
    if (left_out > 0) {
      LogAction(std::to_string(left_out) + " setting(s) with a line end in the name or value" +
                " not written to " + path);
    }
    WriteFileAtomically(path, content);
  } catch (const RuntimeError& error) {
    LogAction("Unable to write to settings file - possibly read-only? - " + error.description() +
              " in SaveSettings");
    RecordError(error, "savesettings", kModule);
  } catch (...) {
    RecordCurrentException("savesettings", kModule);
  }
}

void cSHAREDSettings::LoadSettings(const std::string& path) {
  RemoveStaleTemporary(path);
  if (!FileExists(path)) return;
  std::string key;
  std::string value;
  std::vector<cSHAREDSetting> read;
  try {
    const std::string content = ReadWholeFile(path);
    DeleteAllSettings();
    std::string previous_key;
    ForEachLine(content, [&](std::string_view line) {
      const auto [key_field, value_field] = SplitLine(line);
      key = key_field;
      value = value_field;
      std::string normal = UpperCase(TrimBlanks(key));
      const bool skip = normal.empty() || normal == previous_key;
      previous_key = std::move(normal);
      if (!skip) read.push_back({WithoutCommas(key), ParseSettingText(value)});
    });
  } catch (const RuntimeError& error) {
    LogAction("Error " + std::to_string(error.number()) + " in line: " + key + "," + value +
              " of " + path);
    RecordError(error, "loadsettings", kModule);
  } catch (...) {
    RecordCurrentException("loadsettings", kModule);
  }
  // Lines read before a failure stay in the store.
  if (!read.empty()) items_ = SortedLastValueWins(std::move(read));
}

}  // namespace vireo
