#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "test_support.h"
#include "ui_pattern.h"

namespace {

// The core library must build without Qt: no core file may include a Qt
// header. A file belongs to the front end when its name says so.
TEST(CoreLibrary, IncludesNoQtHeader) {
  const std::regex ui_file(VIREO_UI_PATTERN);
  const std::regex qt_include(R"(#\s*include\s*[<"](Q[A-Za-z]|Qt[A-Za-z]*/))");
  const std::filesystem::path src = std::filesystem::path(VIREO_SOURCE_DIR) / "src";
  int checked = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(src)) {
    const std::string path = entry.path().generic_string();
    if (!entry.is_regular_file() || std::regex_search(path, ui_file)) continue;
    if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h") continue;
    ++checked;
    EXPECT_FALSE(std::regex_search(vireo::test::ReadFile(path), qt_include)) << path;
  }
  EXPECT_GT(checked, 10);
}

}  // namespace
