#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "e2e/program_runner.h"

namespace vireo {
namespace {

// A pages report: lines "page start bold italic underline" from page 1, starts growing, then
// "passed".
void ExpectReport(const std::string& report, int minimum_pages) {
  std::istringstream lines(report);
  std::string line;
  const std::regex page_line(R"((\d+) (\d+) ([01]) ([01]) ([01]))");
  int expected_page = 1;
  long previous_start = 0;
  while (std::getline(lines, line) && line.rfind("passed", 0) != 0) {
    std::smatch match;
    ASSERT_TRUE(std::regex_match(line, match, page_line)) << line;
    EXPECT_EQ(std::stoi(match[1]), expected_page++);
    EXPECT_GT(std::stol(match[2]), previous_start) << line;
    previous_start = std::stol(match[2]);
  }
  EXPECT_GT(expected_page - 1, minimum_pages);
  EXPECT_TRUE(std::regex_match(line, std::regex("passed (\\d+|end)"))) << line;
}

TEST(PaginationReport, TheSampleBookWithAMetricsFileAndWithARealFont) {
  const std::string book = test::BinFolder() + "/Genesis";
  if (!std::filesystem::exists(book)) GTEST_SKIP() << "no sample book built";
  test::TempFolder scratch;
  std::string metrics;
  for (int style = 0; style < 4; ++style) {
    for (int code = 1; code <= 255; ++code) metrics += (code == 10 ? "0" : "95") + std::string(" ");
    metrics += "\n";
  }
  test::WriteFile(scratch.File("metrics.txt"), metrics);
  const std::string tool = test::BinFolder() + "/vireo-tool pages " + book +
                           " --line-width 6000 --lines-per-page 30 --position 20000 ";
  std::string with_metrics;
  for (const std::string& measure : {"--metrics " + scratch.File("metrics.txt"),
                                     std::string("--font 'Times New Roman' --size 10")}) {
    const auto run = test::Run(
        tool + measure, {"QT_QPA_PLATFORM=offscreen", "XDG_RUNTIME_DIR=" + scratch.str()}, scratch);
    ASSERT_EQ(run.status, 0) << measure << run.err;
    ExpectReport(run.out, 50);
    EXPECT_THAT(run.out, testing::Not(testing::HasSubstr("passed end")))
        << "a reader well inside a long book is passed before the end";
    EXPECT_NE(run.out, with_metrics) << "a real font measures differently";
    with_metrics = run.out;
  }
}

}  // namespace
}  // namespace vireo
