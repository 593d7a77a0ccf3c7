// Books made of one character run with no blank: the reader loads, paginates
// and composes them in time, quits cleanly and keeps its log small.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "e2e/program_runner.h"

namespace vireo {
namespace {

using testing::HasSubstr;

// Big enough that a step quadratic in the run takes hours; linear steps
// take seconds, also under the sanitizers.
constexpr size_t kRunBytes = 1'000'000;
constexpr int kSecondsAllowed = 90;
constexpr size_t kLogBytesAllowed = 64 * 1024;

std::string Repeated(std::string_view unit) {
  std::string text;
  text.reserve(kRunBytes + unit.size());
  while (text.size() < kRunBytes) text += unit;
  return text;
}

struct HostileBook {
  const char* name;
  std::function<std::string()> text;
  // Every picture reference the reader cannot place is an error: the log
  // counts the repeats instead of listing each.
  bool floods_errors = false;
};

const HostileBook kBooks[] = {
    {"OneLongWord", [] { return Repeated("a"); }},
    {"HyphenatedRun", [] { return Repeated("ab-"); }},
    {"PictureReferences", [] { return Repeated("[IMG="); }, true},
    {"NumericReferenceOpenings", [] { return Repeated("&#"); }},
    {"Windows1252HighBytes", [] { return Repeated("\xFF"); }},
    {"PageBreakCodes", [] { return Repeated("\x86"); }},
    {"StyleCodesInAWord", [] { return Repeated("x\x80y\x82z\x81\x83"); }},
    {"PictureNumberAfterALongRun",
     [] { return std::string(kRunBytes, 'x') + "=" + std::string(kRunBytes, '0') + "[IMG="; },
     true},
};

void PrintTo(const HostileBook& book, std::ostream* out) { *out << book.name; }

class HostileBooks : public testing::TestWithParam<HostileBook> {};

TEST_P(HostileBooks, OpenInTimeQuitCleanlyAndKeepTheLogSmall) {
  const HostileBook& book = GetParam();
  test::ProgramFolder program;
  test::WriteFile(program.Path("book.txt"), book.text());
  const auto made = test::Run(program.Path("vireo-tool") + " make " + program.Path("book.txt") +
                                  " -o " + program.Path("Book"),
                              {}, program.folder());
  ASSERT_EQ(made.status, 0) << made.err;

  const auto run = test::RunWithin(kSecondsAllowed, program.Path("Book"),
                                   test::Unattended(program.folder(), {"VIREO_QUIT_AFTER_MS=0"}),
                                   program.folder());
  EXPECT_EQ(run.status, 0) << run.err;
  const std::string log = program.Log();
  EXPECT_THAT(log, HasSubstr("Startup complete\r\n"));
  EXPECT_THAT(log, HasSubstr("End of actions list\r\n"));
  EXPECT_THAT(log, testing::EndsWith("Shutdown\r\n"));
  EXPECT_LT(log.size(), kLogBytesAllowed);
  if (book.floods_errors) {
    EXPECT_THAT(log, HasSubstr(" >> repeated "));
  }
}

INSTANTIATE_TEST_SUITE_P(Runs, HostileBooks, testing::ValuesIn(kBooks),
                         [](const testing::TestParamInfo<HostileBook>& run) {
                           return std::string(run.param.name);
                         });

}  // namespace
}  // namespace vireo
