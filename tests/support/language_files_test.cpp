// Reading translation files and looking texts up in them.

#include "support/language_files.h"

#include <gtest/gtest.h>

#include "support/translation.h"
#include "test_support.h"

namespace vireo {
namespace {

class LanguageFilesTest : public testing::Test {
 protected:
  void TearDown() override { SetLanguage({}); }
  std::string Write(const std::string& name, const std::string& content) {
    test::WriteFile(folder.File(name), content);
    return folder.File(name);
  }
  test::LogCapture log_capture;
  const test::TempFolder& folder = log_capture.folder();
};

TEST_F(LanguageFilesTest, AFileWithFaultyLinesLoadsTheRestAndLogsTheFaults) {
  const std::string path = Write("es.lng",
                                 "\xEF\xBB\xBF# Spanish\r\n"
                                 "Language: Espa\xC3\xB1ol\r\n"
                                 "\r\n"
                                 "Enter the font size || Introduzca el tama\xC3\xB1o de letra\r\n"
                                 "a line without the separator\r\n"
                                 "ENTER THE FONT SIZE || a second entry for the same text\r\n"
                                 " || no English text\r\n"
                                 "Pages || \xFF not UTF-8\r\n"
                                 "Left empty ||\r\n"
                                 "Hints||Consejos");
  const LanguageText text = ReadLanguageFile(path);
  EXPECT_EQ(text.name, "Espa\xF1ol") << "Windows-1252, as the program holds text";
  EXPECT_EQ(text.entries,
            (std::vector<std::string>{"Enter the font size || Introduzca el tama\xF1o de letra",
                                      "Left empty ||", "Hints||Consejos"}));
  const std::string log = test::ReadFile(folder.File("log.txt"));
  for (const char* line : {"line 5 ", "line 6 ", "line 7 ", "line 8 "}) {
    EXPECT_NE(log.find(line), std::string::npos) << line;
  }

  SetLanguage(text.entries);
  EXPECT_EQ(GetTranslation("Enter The Font Size"), "Introduzca el tama\xF1o de letra");
  EXPECT_EQ(GetTranslation("hints"), "Consejos");
  EXPECT_EQ(GetTranslation("Left empty"), "") << "an entry without a translation";
  EXPECT_EQ(GetTranslation("Not in the file"), "Not in the file");
  SetLanguage({});
  EXPECT_EQ(GetTranslation("Enter the font size"), "Enter the font size");
}

}  // namespace
}  // namespace vireo
