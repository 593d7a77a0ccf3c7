// Settings file bytes -> store: any file loads into keys in strictly
// ascending order, and saving and loading again settles after one round.
// Large inputs also catch a load that is not linear (libFuzzer's -timeout).

#include <cstdint>
#include <cstdlib>
#include <string>

#include "fuzz_support.h"
#include "prefs/shared_settings.h"
#include "support/file_io.h"

namespace {
std::string g_path;

// Loads the file at g_path into a fresh store and saves it back there.
std::string LoadAndSave() {
  vireo::cSHAREDSettings store;
  store.LoadSettings(g_path);
  for (int i = 1; i < store.SettingsCount(); ++i) {
    if (!(store.SettingNameByIndex(i) < store.SettingNameByIndex(i + 1))) std::abort();
  }
  store.SaveSettings(g_path);
  return vireo::ReadWholeFile(g_path);
}
}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  vireo::fuzz::StartUp();
  g_path = vireo::fuzz::ScratchPath("settings-load");
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (!vireo::fuzz::WriteInput(g_path, data, size)) return 0;
  LoadAndSave();
  const std::string once = LoadAndSave();
  if (LoadAndSave() != once) std::abort();
  return 0;
}
