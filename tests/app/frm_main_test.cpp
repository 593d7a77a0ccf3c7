#include "app/frm_main.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/fake_window.h"
#include "prefs/settings_get_set.h"
#include "support/logging.h"
#include "test_support.h"

namespace vireo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// The log's texts, without their time stamps.
std::vector<std::string> LogTexts(const std::string& log) {
  std::vector<std::string> texts;
  size_t start = 0;
  while (start < log.size()) {
    const size_t end = log.find("\r\n", start);
    texts.push_back(log.substr(start + 14, end - start - 14));
    start = end + 2;
  }
  return texts;
}

class FormLoadTest : public testing::Test {
 protected:
  void SetUp() override {
    ResetGlobalSettings();
    ClearActions();
    test::WriteFile(exe_, "an executable without a book");
    setenv("XDG_DATA_HOME", folder_.File("xdg").c_str(), 1);
  }
  void TearDown() override {
    SetLogFolder("");
    ResetGlobalSettings();
  }

  test::TempFolder folder_;
  std::string exe_ = folder_.File("Vireo");
  test::FakeWindow window_;
  test::FakeUser user_;
  test::RecordingPump pump_;
  frmMain main_{window_, user_, pump_, {folder_.str(), exe_}};
};

TEST_F(FormLoadTest, StartsUpInOrderAndReportsTheMissingBook) {
  ASSERT_TRUE(main_.Form_Load());
  const auto log = LogTexts(test::ReadFile(folder_.File("log.txt")));
  ASSERT_GE(log.size(), 12u);
  EXPECT_THAT(log[0], HasSubstr("Log file created "));
  EXPECT_THAT(log[1], HasSubstr("Operating System: "));
  EXPECT_THAT(
      std::vector<std::string>(log.begin() + 2, log.end()),
      ElementsAre("Startup", "Showing splash", "Registering File Extensions", "Loading Textures",
                  "Scanning fonts", "Reading settings", "Drawing blank book",
                  "Attempting to load Vireo", "Loading from: " + exe_, "Startup complete"));
  EXPECT_THAT(window_.splash_statuses,
              ElementsAre("Loading Settings", "Setting up", "Loading Textures", "Scanning fonts...",
                          "Setting up image containers...", "Reading settings", "Loading book"));
  EXPECT_THAT(window_.events, ElementsAre("show splash", "show window", "unload splash"));
  EXPECT_THAT(user_.messages, ElementsAre("There is no ebook stored in this file."));
  EXPECT_EQ(window_.exit_caption, "Exit Vireo " + AppVersion());
  EXPECT_FALSE(main_.busy());
  EXPECT_FALSE(main_.book_loaded());
  EXPECT_EQ(main_.settings_path(), folder_.File("Vireo.ini"));
  EXPECT_TRUE(test::FileExists(folder_.File("xdg/mime/packages/vireo-books.xml")));
}

TEST_F(FormLoadTest, QuitStoresTheSettingsThenShutsDownInOrder) {
  ASSERT_TRUE(main_.Form_Load());
  window_.events.clear();
  main_.Quit();
  EXPECT_THAT(window_.events, ElementsAre("unload windows", "end 0"));
  // A first run writes every preference of the shutdown list, sorted.
  EXPECT_EQ(test::ReadFile(folder_.File("Vireo.ini")),
            "BARHIDDEN,False\r\nEXTRAPARAGRAPHLINE,False\r\nFONTNAME,Times New Roman\r\n"
            "FONTSIZE,10\r\nHLCOLOUR,45056\r\nINDENTED,True\r\nINKCOLOUR,0\r\nJUSTIFY,True\r\n"
            "PAPERCOLOUR,16777215\r\nPATH," +
                folder_.str() +
                "\r\nPNCOLOUR,8421504\r\nSINGLEPAGEMODE,False\r\nUNDERSCORES,False\r\n"
                "WINHEIGHT,6570\r\nWINWIDTH,9500\r\n");
  const auto log = LogTexts(test::ReadFile(folder_.File("log.txt")));
  ASSERT_GE(log.size(), 3u);
  EXPECT_EQ(log[log.size() - 1], "Shutdown");
  EXPECT_EQ(log[log.size() - 2], "End of actions list");
  EXPECT_THAT(log, testing::Contains("Listing last 40 actions: "));
}

TEST_F(FormLoadTest, CommandsWhileStartingAreRefused) {
  // Before start-up has finished the window counts as busy: Exit does nothing.
  main_.Quit();
  EXPECT_TRUE(window_.events.empty());
  EXPECT_FALSE(main_.Form_QueryUnload(true)) << "a close is refused only while paginating";
}

TEST(ProgramFolderString, ADrivesRootBecomesC) {
  EXPECT_EQ(frmMain::ProgramFolderString("D:\\"), "C:");
  EXPECT_EQ(frmMain::ProgramFolderString("/"), "C:");
  EXPECT_EQ(frmMain::ProgramFolderString("/opt/vireo"), "/opt/vireo");
}

}  // namespace
}  // namespace vireo
