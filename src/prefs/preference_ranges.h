#pragma once

#include <cstdint>
#include <string>

namespace vireo {

// A numeric preference read from the settings store together with the values
// the reader accepts for it: the same limits its setter, command or settings
// dialog apply to a value typed by the user.
struct NumberPreference {
  std::string key;
  double default_value;
  double minimum;  // inclusive
  double maximum;  // inclusive
};

// The window's smallest size in twips: the resize handler keeps it at least
// this big, and a reader without stored sizes opens at it.
inline constexpr double kMinimumWindowWidthWithBar = 9500;
inline constexpr double kMinimumWindowWidthWithoutBar = 3500;
inline constexpr double kMinimumWindowHeight = 6570;

NumberPreference FontSizePreference();
NumberPreference PageSweepWidthPreference();
NumberPreference TextureNumPreference();
NumberPreference LeftBorderPreference();
NumberPreference RightBorderPreference();
NumberPreference TopBorderPreference();
NumberPreference BottomBorderPreference();
// A colour 0x00BBGGRR under key.
NumberPreference ColourPreference(std::string key, uint32_t default_colour);
// The window's width or height in twips under key, from the smallest size
// the resize handler lets the window take (with the control bar hidden) to
// far beyond any screen.
NumberPreference WindowWidthPreference(std::string key, double default_twips);
NumberPreference WindowHeightPreference(std::string key, double default_twips);

// The preference's stored value, or its default when absent. A value outside
// the preference's range is logged, removed from the store so that the next
// save does not write it back, and the default is returned instead. Text that
// is not a number raises error 13 (Type mismatch), as any numeric read does.
double ReadNumberPreference(const NumberPreference& preference);

}  // namespace vireo
