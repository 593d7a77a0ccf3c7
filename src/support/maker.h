#pragma once

#include <string_view>

namespace vireo {

// The maker of the reader, named on the title page, in messages and menus.
inline constexpr std::string_view kMakerName = "Marrowind Software";
inline constexpr std::string_view kMakerHomePage = "https://vireo-reader.example.org";
inline constexpr std::string_view kMakerCountry = "New Zealand";

}  // namespace vireo
