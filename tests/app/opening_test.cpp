// Opening books from the command line, Open... and a drop, and the file-type
// registration: the window's decisions through the fakes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/fake_window.h"
#include "app/file_types.h"
#include "book/load_file.h"

namespace vireo {
namespace {

using test::StartedReader;
using ::testing::HasSubstr;

using test::kInstant;

// Each way of opening keeps to its own file types; a file of the right type
// that holds no book says so, and the book on show stays.
TEST(OpeningFiles, ANamedFileOpensAsADroppedOneAndAnEbookNeedsNoBookType) {
  StartedReader reader("The reader's own book.", kInstant);
  const auto packed = [](const std::string& text) {
    return PackBody(PackableText(text, TextEncoding::kWindows1252), "Author", "Title");
  };
  test::WriteFile(reader.folder.File("story.brn"), packed("A packed story."));
  test::WriteFile(reader.folder.File("Novel"), EbookFile("\x7f"
                                                         "ELF program",
                                                         packed("Novel.")));
  reader.logic.commands().OpenNamedFile(reader.folder.File("story.brn"));
  EXPECT_EQ(reader.view.caption, "story.brn");
  EXPECT_THAT(reader.buffers.Text(kLeftPageBox), HasSubstr("A packed story."));
  reader.logic.commands().OpenNamedFile(reader.folder.File("Novel"));
  EXPECT_EQ(reader.view.caption, "Novel");

  enum class Way { kNamed, kDropped, kOpened };
  const struct {
    Way way;
    std::string name, content, message;
  } cases[] = {
      {Way::kNamed, "notes.doc", "a document", "Cannot load that type of file"},
      {Way::kNamed, "broken.brn", "no packed book at all", "holds no book that can be read"},
      {Way::kDropped, "Novel", "", "Cannot load that type of file"},  // a drop keeps to book types
      {Way::kDropped, "picture.png", "", "Cannot load that type of file"},
      {Way::kDropped, "BOOK.TXT", "Just some text.", "There is no ebook stored in this file."},
      {Way::kDropped, "notes.txt.old", "Just some text.", "There is no ebook stored in this file."},
      {Way::kDropped, "page.htm", "Just some text.", "There is no ebook stored in this file."},
      {Way::kOpened, "empty", "", "There is no ebook stored in this file."},
      {Way::kOpened, "plain", "plain text\n", "There is no ebook stored in this file."},
      {Way::kOpened, "marker", BookMarker() + "no header marker",
       "There is no ebook stored in this file."},
  };
  for (const auto& c : cases) {
    const std::string path = reader.folder.File(c.name);
    if (!c.content.empty() || c.way == Way::kOpened) test::WriteFile(path, c.content);
    if (c.way == Way::kNamed) reader.logic.commands().OpenNamedFile(path);
    if (c.way == Way::kDropped) reader.logic.commands().Page_OLEDragDrop(path);
    if (c.way == Way::kOpened) reader.logic.loader().OpenBook(path);
    EXPECT_THAT(reader.user.messages.back(), HasSubstr(c.message)) << c.name;
    EXPECT_EQ(reader.view.caption, "Novel") << c.name << ": the open book stays";
  }
}

TEST(ProgramFolderString, ADrivesRootBecomesC) {
  EXPECT_EQ(ProgramLifecycle::ProgramFolderString("D:\\"), "C:");
  EXPECT_EQ(ProgramLifecycle::ProgramFolderString("/"), "C:");
  EXPECT_EQ(ProgramLifecycle::ProgramFolderString("/opt/vireo"), "/opt/vireo");
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
