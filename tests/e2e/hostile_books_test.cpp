// Books made of one character run with no blank: the reader loads, paginates
// and composes them in time, quits cleanly and keeps its log small.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "e2e/program_runner.h"

namespace vireo {
namespace {

using testing::HasSubstr;

// Big enough that a step quadratic in the run takes hours; linear steps
// take seconds, also under the sanitizers.
constexpr size_t kRunBytes = 1'000'000;

std::string Repeated(std::string_view unit) {
  std::string text;
  while (text.size() < kRunBytes) text += unit;
  return text;
}

// Name, the run's unit, and whether the run floods the log with errors (a
// picture reference the reader cannot place), which the log then counts.
const std::tuple<const char*, std::string, bool> kBooks[] = {
    {"OneLongWord", "a", false},
    {"HyphenatedRun", "ab-", false},
    {"PictureReferences", "[IMG=", true},
    {"NumericReferenceOpenings", "&#", false},
    {"Windows1252HighBytes", "\xFF", false},
    {"PageBreakCodes", "\x86", false},
    {"StyleCodesInAWord", "x\x80y\x82z\x81\x83", false},
    {"PictureNumberAfterALongRun", "", true},
};

class HostileBooks : public testing::TestWithParam<std::tuple<const char*, std::string, bool>> {};

TEST_P(HostileBooks, OpenInTimeQuitCleanlyAndKeepTheLogSmall) {
  const auto& [name, unit, floods_errors] = GetParam();
  const std::string text = unit.empty() ? std::string(kRunBytes, 'x') + "=" +
                                              std::string(kRunBytes, '0') + "[IMG="
                                        : Repeated(unit);
  test::ProgramFolder program;
  const auto made = test::MakeBook(program, "Book", text);
  ASSERT_EQ(made.status, 0) << made.err;
  const auto run = test::StartAndQuit(program, "Book");
  EXPECT_EQ(run.status, 0) << run.err;
  const std::string log = program.Log();
  EXPECT_THAT(log, HasSubstr("End of actions list\r\n"));
  EXPECT_THAT(log, testing::EndsWith("Shutdown\r\n"));
  EXPECT_LT(log.size(), 64u * 1024);
  if (floods_errors) {
    EXPECT_THAT(log, HasSubstr(" >> repeated "));
  }
}

INSTANTIATE_TEST_SUITE_P(Runs, HostileBooks, testing::ValuesIn(kBooks),
                         [](const auto& run) { return std::string(std::get<0>(run.param)); });

}  // namespace
}  // namespace vireo
