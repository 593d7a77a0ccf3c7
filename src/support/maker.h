#pragma once

#include <string_view>

#include "support/translation.h"

namespace vireo {

// The maker of the reader, named on the title page, in messages and menus.
inline constexpr std::string_view kMakerName = "Marrowind Software";
inline constexpr std::string_view kMakerHomePage = "https://vireo-reader.example.org";
inline constexpr std::string_view kMakerCountry = "New Zealand";
// Where error reports are mailed.
inline constexpr std::string_view kMakerBugAddress = "bugs@vireo-reader.example.org";
// The terms the reader is given under, as the about window states them.
inline constexpr std::string_view kLicence = Translatable(
    "Vireo is free to use and to give away in unchanged copies. It comes without any warranty.");

}  // namespace vireo
