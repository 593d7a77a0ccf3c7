#include "prefs/settings_get_set.h"

#include <memory>

#include "prefs/shared_settings.h"

namespace vireo {
namespace {

std::unique_ptr<cSHAREDSettings>& Store() {
  static std::unique_ptr<cSHAREDSettings> store;
  return store;
}

}  // namespace

void LoadSettings(const std::string& path) {
  if (!Store()) Store() = std::make_unique<cSHAREDSettings>();
  Store()->LoadSettings(path);
}

void savesettings(const std::string& path) {
  if (Store()) Store()->SaveSettings(path);
}

SettingValue sget(const std::string& key, const SettingValue& default_value) {
  if (!Store()) return default_value;
  return Store()->RetrieveSetting(key, default_value);
}

void sset(const std::string& key, const SettingValue& value) {
  if (!Store()) Store() = std::make_unique<cSHAREDSettings>();
  Store()->StoreSetting(key, value);
}

cSHAREDSettings* GlobalSettings() { return Store().get(); }
void ResetGlobalSettings() { Store().reset(); }

}  // namespace vireo
