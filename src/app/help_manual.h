#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vireo {

// One entry of the manual's contents: a page (a file name, with an anchor
// when it points into a page) and its title as the contents page shows it.
struct ManualEntry {
  std::string target;
  std::string title;
};

// The folder of the manual beside the program.
std::string ManualFolder(std::string_view program_folder);

// The manual's first page, which holds the contents.
inline constexpr std::string_view kManualContentsPage = "index.html";

// The entries of the contents page's list: every <a href="..."> in it, in
// order, with the link's text (tags inside it removed). Links out of the
// manual (with "://" or "mailto:") are not entries.
std::vector<ManualEntry> ManualContents(std::string_view contents_html);

}  // namespace vireo
