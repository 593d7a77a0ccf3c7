#include "app/help_manual.h"

#include "support/platform.h"

namespace vireo {
namespace {

constexpr std::string_view kLinkStart = "<a href=\"";

std::string WithoutTags(std::string_view html) {
  std::string text;
  bool in_tag = false;
  for (const char c : html) {
    if (c == '<') in_tag = true;
    if (!in_tag) text += c;
    if (c == '>') in_tag = false;
  }
  return text;
}

bool LeavesManual(std::string_view target) {
  return target.find("://") != std::string_view::npos || target.substr(0, 7) == "mailto:";
}

}  // namespace

std::string ManualFolder(std::string_view program_folder) {
  return JoinPath(program_folder, "manual");
}

std::vector<ManualEntry> ManualContents(std::string_view contents_html) {
  std::vector<ManualEntry> entries;
  size_t at = contents_html.find(kLinkStart);
  while (at != std::string_view::npos) {
    const size_t target_start = at + kLinkStart.size();
    const size_t target_end = contents_html.find('"', target_start);
    const size_t text_start = contents_html.find('>', target_end);
    const size_t text_end = contents_html.find("</a>", text_start);
    if (target_end == std::string_view::npos || text_end == std::string_view::npos) break;
    const std::string_view target = contents_html.substr(target_start, target_end - target_start);
    if (!LeavesManual(target)) {
      entries.push_back({std::string(target), WithoutTags(contents_html.substr(
                                                  text_start + 1, text_end - text_start - 1))});
    }
    at = contents_html.find(kLinkStart, text_end);
  }
  return entries;
}

}  // namespace vireo
