// The reader's language chosen, remembered and shown, through the fake window.

#include "app/language_commands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "app/fake_window.h"
#include "support/translation.h"

namespace vireo {
namespace {

bool Printed(const test::FakeSurface& box, const std::string& text) {
  const std::vector<std::string> texts = box.RunTexts();
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// A remembered language kept across runs is the whole program's test.
TEST(LanguageCommands, AChosenLanguageIsShownAndLeftAgainAndOneWhoseFileIsGoneGivesEnglish) {
  test::FakeReader reader("");
  const std::filesystem::path languages = reader.folder.path() / "languages";
  std::filesystem::create_directory(languages);
  test::WriteFile((languages / "es.lng").string(), "Language: Espa\xC3\xB1ol\nHints || Consejos\n");
  test::WriteFile((languages / "de.lng").string(), "Language: Deutsch\nHints || Hinweise\n");
  std::filesystem::remove(reader.book_path);  // no book: the title page is on show
  reader.Start();
  EXPECT_EQ(reader.view.languages, (std::vector<std::string>{"English", "Deutsch", "Espa\xF1ol"}));
  EXPECT_EQ(reader.view.chosen_language, 0);

  reader.logic.languages().ChooseLanguage(2);
  EXPECT_EQ(reader.view.chosen_language, 2);
  EXPECT_EQ(reader.view.language_code, "es");
  EXPECT_EQ(GetTranslation("Hints"), "Consejos");
  EXPECT_TRUE(Printed(reader.buffers.boxes[kLeftPageBox], "Consejos:"))
      << "the title page drawn again";

  reader.logic.languages().ChooseLanguage(7);
  EXPECT_EQ(reader.view.chosen_language, 2) << "an index out of range changes nothing";
  reader.logic.languages().ChooseLanguage(0);
  EXPECT_EQ(GetTranslation("Hints"), "Hints");
  EXPECT_EQ(reader.view.language_code, "");

  test::FakeReader gone("", "LANGUAGE,es\r\n");
  gone.Start();
  EXPECT_EQ(gone.view.languages, std::vector<std::string>{"English"});
  EXPECT_EQ(gone.view.chosen_language, 0);
  EXPECT_EQ(GetTranslation("Hints"), "Hints");
}

}  // namespace
}  // namespace vireo
