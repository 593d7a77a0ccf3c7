#pragma once

#include <string>
#include <vector>

#include "prefs/setting_value.h"

namespace vireo {

// One named value of a settings store.
struct cSHAREDSetting {
  std::string KeyName;
  SettingValue KeyValue;
};

// A store of named values kept in ascending key order and written to and
// read from a file of "KEY,value" lines ended by CR LF. Keys are upper-cased
// on store and lookup and never contain a comma. Every operation traps its
// own errors (logged under module "cSHAREDSettings") and never throws.
class cSHAREDSettings {
 public:
  int SettingsCount() const;
  // The key of item index (1-based); "" when out of range (logged).
  std::string SettingNameByIndex(int index) const;

  void StoreSetting(const std::string& key, const SettingValue& value);
  void AddSetting(const std::string& key, const SettingValue& value);

  // The value ("TRUE"/"FALSE" text read as Booleans); the default when the
  // key is absent (Empty when no default is given).
  SettingValue RetrieveSetting(const std::string& key,
                               const SettingValue& default_value = {}) const;
  // RetrieveSetting(key), but the default whenever that result equals 0.
  SettingValue RetrieveWithDefault(const std::string& key, const SettingValue& default_value) const;

  bool SettingPresent(const std::string& key) const;
  void DeleteSetting(int index);
  void DeleteSettingByName(const std::string& key);
  void DeleteAllSettings();
  void SortSettings();

  // Writes every item; logs and leaves the old file as it was on failure.
  void SaveSettings(const std::string& path) const;
  // Replaces the store with the file's contents; a missing file changes
  // nothing.
  void LoadSettings(const std::string& path);

  struct SearchResult {
    int index;      // 1-based, or -1 when absent
    int insert_at;  // 1-based position a new item goes before (0: empty store)
  };
  // The binary search over the sorted keys (commas removed from key first).
  SearchResult FindSetting(const std::string& key) const;

 private:
  std::vector<cSHAREDSetting> items_;
};

}  // namespace vireo
