// Reading positions on the real window: shared by copies of a book, erased on request.

#include <gtest/gtest.h>

#include "app/main_window.h"
#include "app/reader_window_fixture.h"
#include "nav/bookmarks.h"

namespace vireo {
namespace {

using test::kInstant;
using test::Press;
using test::WriteEbook;

void Turn(test::ReaderWindow& reader, int spreads) {
  for (int turn = 0; turn < spreads; ++turn) Press(reader, Qt::Key_Space);
}

TEST(BookmarksWindow, CopiesShareAPositionAndErasingKeepsOnlyTheBookOnShowAtExit) {
  test::ReaderWindow reader(test::NumberedProse(300), kInstant);
  reader.Start();
  Turn(reader, 3);
  const std::string first = reader.folder().File("first/Story.htm");
  const std::string second = reader.folder().File("second/Story.htm");
  WriteEbook(first, test::NumberedProse(300));
  WriteEbook(second, test::NumberedProse(300));
  ASSERT_TRUE(test::DropFile(reader, first));
  EXPECT_EQ(reader.window().windowTitle(), "Story.htm");
  EXPECT_EQ(reader.logic().current_page(), 2) << "a book shown for the first time";
  Turn(reader, 2);
  ASSERT_TRUE(test::DropFile(reader, second));
  EXPECT_EQ(reader.logic().book().path(), second);
  EXPECT_EQ(reader.logic().current_page(), 6) << "the copy opens where the first was left";
  const std::string book = reader.folder().File("Book");
  ASSERT_GT(RetrieveBookmark(book), 0) << "stored when the story was dropped";

  test::Trigger(reader, "mnuEraseBookmarks");
  EXPECT_EQ(reader.user().messages.back(),
            "This will erase bookmarks for all files. Are you sure?");
  EXPECT_GT(RetrieveBookmark(book), 0) << "No erases nothing";
  reader.user().yes = true;
  test::Trigger(reader, "mnuEraseBookmarks");
  EXPECT_EQ(RetrieveBookmark(book), 0);
  EXPECT_EQ(RetrieveBookmark(first), 0);

  Press(reader, Qt::Key_Q);
  const std::string saved = test::ReadFile(reader.folder().File("BookMarks.ini"));
  EXPECT_EQ(saved.find("BOOK,"), std::string::npos) << saved;
  EXPECT_NE(saved.find("STORY.HTM,"), std::string::npos) << "Exit stores the book on show";
}

}  // namespace
}  // namespace vireo
