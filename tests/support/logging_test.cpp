#include "support/logging.h"

#include <gtest/gtest.h>

#include <ctime>

#include "test_support.h"

namespace vireo {
namespace {

// 2026-03-04 05:06:07 local time, whatever the zone.
std::time_t FixedTime() {
  std::tm local{};
  strptime("2026-03-04 05:06:07", "%Y-%m-%d %H:%M:%S", &local);
  local.tm_isdst = -1;
  return std::mktime(&local);
}

class LoggingTest : public testing::Test {
 protected:
  void SetUp() override { SetLogClock(FixedTime); }
  void TearDown() override {
    SetLoggingDisabled(false);
    SetLogClock([] { return std::time(nullptr); });
    ClearActions();
  }
  std::string Log() const { return test::ReadFile(folder_.File("log.txt")); }

  test::LogCapture log_;
  const test::TempFolder& folder_ = log_.folder();
};

TEST_F(LoggingTest, NewFileStartsWithTwoHeaderLinesAndLinesAreStampedToColumn15) {
  LogAction("Startup", LogFile::kNew);
  LogAction("Reading settings");
  const std::string expected =
      "05:06:07      Log file created 2026-03-04\r\n"
      "05:06:07      Operating System: " +
      FOSName() +
      "\r\n"
      "05:06:07      Startup\r\n"
      "05:06:07      Reading settings\r\n";
  EXPECT_EQ(Log(), expected);
  LogAction("Again", LogFile::kNew);
  EXPECT_EQ(Log().find("Startup"), std::string::npos) << "a new file starts afresh";
}

TEST_F(LoggingTest, DisabledOrUnwritableLoggingStaysQuiet) {
  SetLoggingDisabled(true);
  LogAction("Startup", LogFile::kNew);
  LogProc("text", "sub a", "frmMain");
  EXPECT_FALSE(test::FileExists(folder_.File("log.txt")));
  EXPECT_EQ(Actions().position, 0);
  SetLoggingDisabled(false);
  SetLogFolder(folder_.File("no/such/folder"));
  EXPECT_NO_THROW(LogAction("Startup", LogFile::kNew));
  EXPECT_NO_THROW(ListActions());
}

// Entries name their procedure and module only when given.
TEST_F(LoggingTest, The41stEntryListsThePrevious40AndStartsAgainAtSlot1) {
  for (int i = 1; i <= 41; ++i) LogProc("entry " + std::to_string(i), "", "");
  const std::string log = Log();
  EXPECT_NE(log.find("05:06:07      Listing last 40 actions: \r\n"
                     "05:06:07       >> 1: entry 1 - 05:06:07\r\n"),
            std::string::npos);
  EXPECT_NE(log.find(" >> 40: entry 40 - 05:06:07\r\n05:06:07      End of actions list\r\n"),
            std::string::npos);
  EXPECT_EQ(log.find("entry 41"), std::string::npos);
  EXPECT_EQ(Actions().position, 1);
  EXPECT_EQ(Actions().text[1], "entry 41");
  LogDebug("Loaded 3 images", "", "clsNewImages");
  EXPECT_EQ(Actions().text[2], "DBG: Loaded 3 images of module clsNewImages");
}

TEST_F(LoggingTest, AnEntryRepeatedIsRecordedThreeTimesAndCountedOnceInTheNextListing) {
  for (int i = 0; i < 10; ++i) LogProc("Overflow", "sub a(6)", "frmMain");
  LogProc("other", "", "");
  EXPECT_EQ(Actions().position, 4);
  ListActions();
  ListActions();
  const std::string repeated =
      " >> repeated 7 more times: Overflow in sub a(6) of module frmMain\r\n";
  const std::string log = Log();
  ASSERT_NE(log.find(repeated), std::string::npos) << log;
  EXPECT_EQ(log.find(repeated), log.rfind(repeated)) << "counted once";
}

TEST_F(LoggingTest, ALogPastTheLimitBecomesTheOldCopyAndANewOneBegins) {
  test::WriteFile(folder_.File("log.txt.old"), "older");
  const auto limit = static_cast<size_t>(kLogRotateBytes);
  test::WriteFile(folder_.File("log.txt"), std::string(limit, 'x'));
  LogAction("one line more");
  EXPECT_EQ(test::ReadFile(folder_.File("log.txt.old")),
            std::string(limit, 'x') + "05:06:07      one line more\r\n");
  LogAction("Startup", LogFile::kNew);
  EXPECT_EQ(Log().find("Log file created "), 14u);
  test::WriteFile(folder_.File("log.txt"), std::string(limit + 1, 'y'));
  LogAction("Startup", LogFile::kNew);
  EXPECT_EQ(test::ReadFile(folder_.File("log.txt.old")), std::string(limit + 1, 'y'));
  EXPECT_EQ(Log().find("Log file created "), 14u);
}

}  // namespace
}  // namespace vireo
