#include "prefs/preference_ranges.h"

#include "prefs/settings_get_set.h"
#include "prefs/shared_settings.h"
#include "support/logging.h"
#include "support/text_helpers.h"

namespace vireo {
namespace {

constexpr double kWhite = 0xFFFFFF;
// Larger than any screen in twips; a stored size at least 0.95 of the
// screen's opens the window maximised anyway.
constexpr double kLargestWindowTwips = 1'000'000;
// The sweep runs in strips of this width; a narrower strip would make one
// page turn take seconds of 5 ms steps.
constexpr double kNarrowestSweepTwips = 100;
constexpr double kWidestSweepTwips = 32767;  // a 16-bit number

std::string NumberText(double number) { return SettingValue(number).ToText(); }

}  // namespace

NumberPreference FontSizePreference() { return {"FontSize", 10, 6, 48}; }
NumberPreference PageSweepWidthPreference() {
  return {"PageSweepWidth", 2100, kNarrowestSweepTwips, kWidestSweepTwips};
}
// -1 stands for plain paper, 0 to 3 for the four paper textures.
NumberPreference TextureNumPreference() { return {"TextureNum", 1, -1, 3}; }
NumberPreference LeftBorderPreference() { return {"LeftBorder", 400, 100, 1000}; }
NumberPreference RightBorderPreference() { return {"RightBorder", 400, 100, 1000}; }
NumberPreference TopBorderPreference() { return {"TopBorder", 300, 100, 1000}; }
// The page number sits in the bottom border, which is why it starts higher.
NumberPreference BottomBorderPreference() { return {"BottomBorder", 550, 200, 1000}; }

NumberPreference ColourPreference(std::string key, uint32_t default_colour) {
  return {std::move(key), static_cast<double>(default_colour), 0, kWhite};
}

NumberPreference WindowWidthPreference(std::string key, double default_twips) {
  return {std::move(key), default_twips, kMinimumWindowWidthWithoutBar, kLargestWindowTwips};
}
NumberPreference WindowHeightPreference(std::string key, double default_twips) {
  return {std::move(key), default_twips, kMinimumWindowHeight, kLargestWindowTwips};
}

double ReadNumberPreference(const NumberPreference& preference) {
  const SettingValue stored = sget(preference.key, preference.default_value);
  const double value = stored.ToNumber();
  if (value >= preference.minimum && value <= preference.maximum) return value;
  LogAction(UpperCase(preference.key) + " " + stored.ToText() + " is outside " +
            NumberText(preference.minimum) + " to " + NumberText(preference.maximum) +
            "; the default " + NumberText(preference.default_value) + " is used");
  if (cSHAREDSettings* store = GlobalSettings()) {
    store->DeleteSettingByName(UpperCase(preference.key));
  }
  return preference.default_value;
}

}  // namespace vireo
