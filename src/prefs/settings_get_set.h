#pragma once

#include <string>

#include "prefs/setting_value.h"

namespace vireo {

class cSHAREDSettings;

// The program-wide settings store and its four entry points.

// Creates the store on first use, then loads path into it.
void LoadSettings(const std::string& path);
// Writes the store to path; nothing happens before the store exists.
void savesettings(const std::string& path);
// RetrieveSetting(key, default) on the program-wide store.
SettingValue sget(const std::string& key, const SettingValue& default_value);
// StoreSetting(key, value) on the program-wide store.
void sset(const std::string& key, const SettingValue& value);

// The store itself (nullptr before the first LoadSettings); tests reset it.
cSHAREDSettings* GlobalSettings();
void ResetGlobalSettings();

}  // namespace vireo
