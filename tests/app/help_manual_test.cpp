// The manual shipped beside the program: every link of every page leads to a page and, where
// it names one, to an anchor of that page; the contents list follows the contents page.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "app/help_manual.h"
#include "test_support.h"

namespace vireo {
namespace {

const std::filesystem::path kManual = std::filesystem::path(VIREO_SOURCE_DIR) / "data" / "manual";

// The first group of every match of pattern in html, in order.
std::vector<std::string> Captured(const std::string& html, const std::regex& pattern) {
  std::vector<std::string> found;
  for (std::sregex_iterator it(html.begin(), html.end(), pattern), end; it != end; ++it) {
    found.push_back((*it)[1]);
  }
  return found;
}

TEST(Manual, EveryLinkOfEveryPageResolves) {
  const std::regex link(R"re((?:href|src)="([^"]+)")re");
  const std::regex anchor(R"re(id="([^"]+)")re");
  int links = 0;
  for (const auto& entry : std::filesystem::directory_iterator(kManual)) {
    if (entry.path().extension() != ".html") continue;
    for (const std::string& target : Captured(test::ReadFile(entry.path().string()), link)) {
      if (target.find("://") != std::string::npos) continue;
      const size_t hash = target.find('#');
      const std::string file = target.substr(0, hash);
      const std::filesystem::path page = file.empty() ? entry.path() : kManual / file;
      ++links;
      ASSERT_TRUE(std::filesystem::exists(page)) << entry.path().filename() << ": " << target;
      if (hash == std::string::npos) continue;
      EXPECT_THAT(Captured(test::ReadFile(page.string()), anchor),
                  testing::Contains(target.substr(hash + 1)))
          << entry.path().filename() << ": " << target;
    }
  }
  EXPECT_GT(links, 30);
}

TEST(Manual, TheContentsListFollowsTheContentsPage) {
  const auto entries = ManualContents(
      R"(<ul><li><a href="reading.html">Reading <b>a</b> book</a>: turning</li>
         <li><a href="https://example.org">out</a></li><li><a href="keys.html#f1">Keys</a></li>)");
  ASSERT_EQ(entries.size(), 2u);
  EXPECT_EQ(entries[0].target, "reading.html");
  EXPECT_EQ(entries[0].title, "Reading a book");
  EXPECT_EQ(entries[1].target, "keys.html#f1");  // the shipped list is the help window's test
}

}  // namespace
}  // namespace vireo
