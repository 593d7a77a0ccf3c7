#pragma once

#include <string_view>

namespace vireo {

// The maker of the reader, named on the title page, in messages and menus.
inline constexpr std::string_view kMakerName = "Marrowind Software";
inline constexpr std::string_view kMakerHomePage = "https://vireo-reader.example.org";
inline constexpr std::string_view kMakerCountry = "New Zealand";
// Where readers pay an author, and where a newer version is announced.
inline constexpr std::string_view kMakerPaymentPage = "https://vireo-reader.example.org/pay";
inline constexpr std::string_view kMakerUpdatePage = "https://vireo-reader.example.org/update";

}  // namespace vireo
