#include "prefs/shared_settings.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <utility>
#include <vector>

#include "support/file_io.h"
#include "support/runtime_error.h"
#include "support/text_helpers.h"
#include "test_support.h"

namespace vireo {
namespace {

class SettingsFileTest : public testing::Test {
 protected:
  void TearDown() override {
    SetBeforeRenameHook(nullptr);
    SetReadOnlyClearer(nullptr);
  }
  std::string Path() const { return folder_.File("Vireo.ini"); }

  test::LogCapture log_;
  const test::TempFolder& folder_ = log_.folder();
  cSHAREDSettings store_;
};

TEST_F(SettingsFileTest, SavesSortedUpperCaseKeysWithoutCommasAndLoadsThemBack) {
  store_.StoreSetting("FontName", "Times New Roman");
  store_.StoreSetting("Key,With,Commas", "1,2,3");
  store_.StoreSetting("Justify", true);
  store_.StoreSetting("WinWidth", 9500.0);
  store_.StoreSetting("Zoom", 0.5);
  store_.StoreSetting("barhidden", false);
  store_.SaveSettings(Path());
  const std::string expected =
      "BARHIDDEN,False\r\n"
      "FONTNAME,Times New Roman\r\n"
      "JUSTIFY,True\r\n"
      "KEYWITHCOMMAS,1,2,3\r\n"
      "WINWIDTH,9500\r\n"
      "ZOOM,0.5\r\n";
  EXPECT_EQ(test::ReadFile(Path()), expected);

  cSHAREDSettings loaded;
  loaded.LoadSettings(Path());
  EXPECT_EQ(loaded.RetrieveSetting("fontname").ToText(), "Times New Roman");
  EXPECT_EQ(loaded.RetrieveSetting("Key,With,Commas").ToText(), "1,2,3");
  loaded.SaveSettings(Path());
  EXPECT_EQ(test::ReadFile(Path()), expected) << "a load and save changes no byte";
}

// Which lines a load keeps is the property below; here, what their values become.
TEST_F(SettingsFileTest, LoadReadsTrueAndFalseWhateverTheirCaseAndUnquotesKeys) {
  test::WriteFile(Path(), "C, true \r\nD,yes\r\nE,FALSE\r\n\"Q\",quoted\r\n");
  store_.LoadSettings(Path());
  EXPECT_EQ(store_.RetrieveSetting("C"), SettingValue(true));
  EXPECT_EQ(store_.RetrieveSetting("D"), SettingValue("yes"));
  EXPECT_EQ(store_.RetrieveSetting("E"), SettingValue(false));
  EXPECT_EQ(store_.RetrieveSetting("Q").ToText(), "quoted");
}

// The file saved after adding each line's item in file order: a line whose key (blanks
// trimmed) is blank or, upper-cased, repeats the previous line's is skipped.
std::string SavedByInsertion(const std::vector<std::pair<std::string, std::string>>& lines,
                             const std::string& path) {
  cSHAREDSettings store;
  std::string previous;
  for (const auto& [field, value] : lines) {
    const size_t first = field.find_first_not_of(' ');
    const std::string key = first == std::string::npos ? "" : field.substr(first);
    const bool skip = key.empty() || UpperCase(key) == previous;
    previous = UpperCase(key);
    if (!skip) store.AddSetting(key, ParseSettingText(value));
  }
  store.SaveSettings(path);
  return test::ReadFile(path);
}

TEST_F(SettingsFileTest, LoadingKeepsTheOrderAndDuplicateRulesOfAddingLineByLine) {
  std::mt19937 random(12);
  const std::vector<std::string> keys = {"A", "a", "B", "AB", "b", "ZED", "", "  ", " C", "Ab"};
  for (int round = 0; round < 60; ++round) {
    std::vector<std::pair<std::string, std::string>> lines;
    std::string file;
    const int count = std::uniform_int_distribution<>(0, 30)(random);
    for (int i = 0; i < count; ++i) {
      const std::string& key = keys[random() % keys.size()];
      const std::string value = random() % 5 == 0 ? " true " : std::to_string(i) + ",x";
      lines.emplace_back(key, value);
      file += key + "," + value + "\r\n";
    }
    test::WriteFile(Path(), file);
    cSHAREDSettings loaded;
    loaded.LoadSettings(Path());
    loaded.SaveSettings(Path());
    ASSERT_EQ(test::ReadFile(Path()), SavedByInsertion(lines, folder_.File("model.ini"))) << file;
  }
}

TEST_F(SettingsFileTest, RetrieveWithDefaultTreatsZeroAsAbsent) {
  store_.StoreSetting("Count", "0");
  store_.StoreSetting("Off", false);
  EXPECT_EQ(store_.RetrieveWithDefault("Count", 7).ToNumber(), 7);
  EXPECT_EQ(store_.RetrieveWithDefault("Off", 7).ToNumber(), 7);
  EXPECT_EQ(store_.RetrieveWithDefault("Absent", 7).ToNumber(), 7);
  EXPECT_EQ(store_.RetrieveSetting("Count", 7).ToText(), "0");
  EXPECT_TRUE(store_.RetrieveSetting("Absent").IsEmpty());
}

TEST_F(SettingsFileTest, ASaveInterruptedBeforeItsRenameLeavesTheOldFileAndAReadOnlyOneIsSaved) {
  test::WriteFile(Path(), "OLD,1\r\n");
  store_.StoreSetting("New", 2);
  SetBeforeRenameHook([] { throw RuntimeError(ErrorNumber::kDiskFull); });
  store_.SaveSettings(Path());
  EXPECT_EQ(test::ReadFile(Path()), "OLD,1\r\n");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.path()), {}), 2)
      << "only the settings file and the log: no temporary left behind";
  EXPECT_NE(test::ReadFile(folder_.File("log.txt"))
                .find("Unable to write to settings file - possibly read-only? - Disk full in "
                      "SaveSettings"),
            std::string::npos);

  SetBeforeRenameHook(nullptr);
  std::filesystem::permissions(Path(), std::filesystem::perms::owner_read);
  store_.SaveSettings(Path());
  EXPECT_EQ(test::ReadFile(Path()), "NEW,2\r\n");
}

}  // namespace
}  // namespace vireo
