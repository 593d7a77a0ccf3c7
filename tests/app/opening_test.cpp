// Opening books from the command line and Open..., the keys beyond the key map, and the
// file-type registration: the window's decisions through the fakes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/fake_window.h"
#include "app/file_types.h"

namespace vireo {
namespace {

using test::FakeReader;
using ::testing::HasSubstr;

using test::kInstant;

void Key(FakeReader& reader, int virtual_key) {
  reader.logic.commands().Form_KeyUp(virtual_key, ShiftKey::kUp);
}

TEST(ReaderKeys, PageKeysHomeEndAndTheWheelTurnInBothPageModes) {
  for (const bool single : {false, true}) {
    FakeReader reader(test::NumberedProse(300),
                      std::string(kInstant) + (single ? "SINGLEPAGEMODE,True\r\n" : ""));
    reader.Start();
    const int step = single ? 1 : 2;
    const int first = reader.logic.current_page();
    Key(reader, vk::kPageDown);
    EXPECT_EQ(reader.logic.current_page(), first + step) << single;
    Key(reader, vk::kPageUp);
    EXPECT_EQ(reader.logic.current_page(), first) << single;
    reader.logic.commands().Page_Wheel(-2);  // two notches towards the reader
    EXPECT_EQ(reader.logic.current_page(), first + 2 * step) << single;
    reader.logic.commands().Page_Wheel(1);
    EXPECT_EQ(reader.logic.current_page(), first + step) << single;
    Key(reader, vk::kEnd);
    EXPECT_GE(reader.logic.current_page(), reader.logic.pages().count) << single;
    Key(reader, vk::kHome);
    EXPECT_EQ(reader.logic.current_page(), first) << single;
  }
}

TEST(ReaderKeys, AWheelNotchDuringATurnIsDroppedAndF10OpensTheMenuAtThePage) {
  FakeReader reader(test::NumberedProse(300));  // turns with the sweep
  reader.Start();
  const int first = reader.logic.current_page();
  int notches_during_turn = 0;
  reader.pump.on_yield = [&] {
    if (notches_during_turn++ < 3) reader.logic.commands().Page_Wheel(-1);
  };
  reader.logic.commands().Page_Wheel(-1);
  reader.pump.on_yield = nullptr;
  EXPECT_GT(notches_during_turn, 0) << "the sweep lets events run";
  EXPECT_EQ(reader.logic.current_page(), first + 2) << "one turn for the one notch";

  Key(reader, vk::kF10);
  Key(reader, vk::kMenu);
  EXPECT_EQ(reader.view.menus_at_page, 2);
  EXPECT_EQ(reader.view.context_menus, 0);
}

TEST(OpeningFiles, ANamedFileOpensAsADroppedOneAndAnEbookNeedsNoBookType) {
  FakeReader reader("The reader's own book.", kInstant);
  reader.Start();
  const auto packed = [](const std::string& text) {
    return PackBody(PackableText(text, TextEncoding::kWindows1252), "Author", "Title");
  };
  test::WriteFile(reader.folder.File("story.brn"), packed("A packed story."));
  test::WriteFile(reader.folder.File("Novel"), EbookFile("\x7f"
                                                         "ELF program",
                                                         packed("Novel.")));
  test::WriteFile(reader.folder.File("broken.brn"), "no packed book at all");
  test::WriteFile(reader.folder.File("notes.doc"), "a document");

  reader.logic.commands().OpenNamedFile(reader.folder.File("story.brn"));
  EXPECT_EQ(reader.view.caption, "story.brn");
  EXPECT_THAT(reader.buffers.Text(kLeftPageBox), HasSubstr("A packed story."));
  reader.logic.commands().OpenNamedFile(reader.folder.File("Novel"));
  EXPECT_EQ(reader.view.caption, "Novel");

  reader.logic.commands().OpenNamedFile(reader.folder.File("notes.doc"));
  EXPECT_EQ(reader.user.messages.back(), "Cannot load that type of file");
  reader.logic.commands().OpenNamedFile(reader.folder.File("broken.brn"));
  EXPECT_THAT(reader.user.messages.back(), HasSubstr("holds no book that can be read"));
  EXPECT_EQ(reader.view.caption, "Novel") << "the open book stays";
  reader.logic.commands().Page_OLEDragDrop(reader.folder.File("Novel"));
  EXPECT_EQ(reader.user.messages.back(), "Cannot load that type of file")
      << "a drop keeps to the book types";
}

TEST(FileTypeRegistration, NamesTheReaderNeverACopyAndQuotesAnOddPathOnOneLine) {
  const auto reader_at = [](const std::string& folder) {
    return [folder](const std::string& path) { return path == folder + "/Vireo"; };
  };
  struct Case {
    std::string running;
    std::function<bool(const std::string&)> exists;
    std::optional<std::string> target;
  };
  const Case cases[] = {
      {"/opt/vireo/Vireo", reader_at("/none"), "/opt/vireo/Vireo"},
      {"/home/me/books/Genesis", reader_at("/home/me/books"), "/home/me/books/Vireo"},
      {"/home/me/Downloads/Genesis", reader_at("/opt/vireo"), std::nullopt},
      {"/tmp/unpacked/Vireo", reader_at("/tmp/unpacked"), std::nullopt},
      {"/tmp/unpacked/Genesis", reader_at("/tmp/unpacked"), std::nullopt},
      {"/tmpfiles/Vireo", reader_at("/none"), "/tmpfiles/Vireo"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(RegistrationTarget(c.running, "/tmp", c.exists), c.target) << c.running;
  }

  // An odd reader path stays one argument on one line.
  test::TempFolder folder;
  setenv("XDG_DATA_HOME", folder.File("xdg").c_str(), 1);
  ASSERT_TRUE(
      WriteFileTypeRegistration("/opt/Odd \"name\" $HOME `id` 100% back\\slash\nExec=evil"));
  const std::string entry = test::ReadFile(folder.File("xdg/applications/vireo.desktop"));
  EXPECT_THAT(entry, HasSubstr(R"(
Exec="/opt/Odd \\"name\\" \\$HOME \\`id\\` 100%% back\\\\slash\nExec=evil" %f
)"));
  EXPECT_EQ(entry.find("\nExec="), entry.rfind("\nExec=")) << "one Exec line";
}

}  // namespace
}  // namespace vireo
