// Rules over the source files: the include order of the folders, and no Qt in the core.

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>

#include "test_support.h"
#include "ui_pattern.h"

namespace {

namespace fs = std::filesystem;

const fs::path kSource = fs::path(VIREO_SOURCE_DIR) / "src";

// The folders of src/ from the bottom up: a file may include from its own
// folder and from folders on a lower level, never from one beside or above
// it. The README's layout section describes the same order.
const std::map<std::string, int> kLevels = {
    {"vhtml", 0},  {"support", 1}, {"book", 2}, {"prefs", 2},
    {"layout", 2}, {"render", 3},  {"nav", 4},  {"app", 5},
};

TEST(IncludeOrder, EveryFolderIncludesOnlyFromItselfAndTheFoldersBelowIt) {
  const std::regex project_include(R"(#\s*include\s*"([a-z]+)/)");
  int checked = 0;
  for (const auto& [folder, level] : kLevels) {
    for (const auto& entry : fs::directory_iterator(kSource / folder)) {
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
  for (const auto& entry : fs::directory_iterator(kSource)) {
    if (entry.is_directory()) {
      EXPECT_TRUE(kLevels.contains(entry.path().filename().string())) << entry.path();
    }
  }
}

// The core library must build without Qt: no core file may include a Qt
// header. A file belongs to the front end when its name says so.
TEST(CoreLibrary, IncludesNoQtHeader) {
  const std::regex ui_file(VIREO_UI_PATTERN);
  const std::regex qt_include(R"(#\s*include\s*[<"](Q[A-Za-z]|Qt[A-Za-z]*/))");
  int checked = 0;
  for (const auto& entry : fs::recursive_directory_iterator(kSource)) {
    const std::string path = entry.path().generic_string();
    if (!entry.is_regular_file() || std::regex_search(path, ui_file)) continue;
    if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h") continue;
    ++checked;
    EXPECT_FALSE(std::regex_search(vireo::test::ReadFile(path), qt_include)) << path;
  }
  EXPECT_GT(checked, 10);
}

}  // namespace
