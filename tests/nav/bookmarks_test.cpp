#include "nav/bookmarks.h"

#include <gtest/gtest.h>

#include "test_support.h"

namespace vireo {
namespace {

class BookmarksTest : public testing::Test {
 protected:
  void SetUp() override { SetBookmarksFolder(folder_.str()); }
  void TearDown() override { SetBookmarksFolder(""); }
  std::string File() const { return folder_.File("BookMarks.ini"); }

  test::TempFolder folder_;
};

TEST_F(BookmarksTest, PositionsReachTheFileOnlyWhenSavedAndSurviveARestartUntilErased) {
  StoreBookmark("", 55);
  StoreBookmark("/a/Genesis", 120001);
  StoreBookmark("/a/Exodus", 2);
  EXPECT_FALSE(test::FileExists(File()));
  SaveBookmarks();
  const std::string saved = "EXODUS,2\r\nGENESIS,120001\r\n";
  EXPECT_EQ(test::ReadFile(File()), saved) << "an empty path stores nothing";
  SetBookmarksFolder(folder_.str());  // as after a restart
  EXPECT_EQ(RetrieveBookmark("/b/Genesis"), 120001);

  EraseAllBookmarks();
  EXPECT_EQ(RetrieveBookmark("/a/Genesis"), 0);
  EXPECT_EQ(RetrieveBookmark("/a/Exodus"), 0);
  EXPECT_EQ(test::ReadFile(File()), saved) << "the file changes at the next save";
  SaveBookmarks();
  EXPECT_EQ(test::ReadFile(File()), "");
}

TEST_F(BookmarksTest, AnUnreadableFileGivesAnEmptyStore) {
  test::WriteFile(File(), "GENESIS,not a number\r\n");
  EXPECT_EQ(RetrieveBookmark("Genesis"), 0);
}

}  // namespace
}  // namespace vireo
