#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>

#include "test_support.h"

namespace {

// The folders of src/ from the bottom up: a file may include from its own
// folder and from folders on a lower level, never from one beside or above
// it. The README's layout section describes the same order.
const std::map<std::string, int> kLevels = {
    {"vhtml", 0},  {"support", 1}, {"book", 2}, {"prefs", 2},
    {"layout", 2}, {"render", 3},  {"nav", 4},  {"app", 5},
};

TEST(IncludeOrder, EveryFolderIncludesOnlyFromItselfAndTheFoldersBelowIt) {
  const std::regex project_include(R"(#\s*include\s*"([a-z]+)/)");
  const std::filesystem::path src = std::filesystem::path(VIREO_SOURCE_DIR) / "src";
  int checked = 0;
  for (const auto& [folder, level] : kLevels) {
    for (const auto& entry : std::filesystem::directory_iterator(src / folder)) {
      const std::string text = vireo::test::ReadFile(entry.path().string());
      for (std::sregex_iterator it(text.begin(), text.end(), project_include), end; it != end;
           ++it) {
        const std::string included = (*it)[1].str();
        const auto found = kLevels.find(included);
        if (found == kLevels.end() || included == folder) continue;
        ++checked;
        EXPECT_LT(found->second, level)
            << entry.path().generic_string() << " includes from " << included << "/";
      }
    }
  }
  EXPECT_GT(checked, 50);
  // A new folder needs its place in the order.
  for (const auto& entry : std::filesystem::directory_iterator(src)) {
    if (entry.is_directory()) {
      EXPECT_TRUE(kLevels.contains(entry.path().filename().string())) << entry.path();
    }
  }
}

}  // namespace
