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

TEST_F(BookmarksTest, AnEmptyPathStoresNothing) {
  StoreBookmark("", 55);
  SaveBookmarks();
  EXPECT_EQ(test::ReadFile(File()), "");
}

TEST_F(BookmarksTest, PositionsReachTheFileOnlyWhenSavedAndSurviveARestart) {
  StoreBookmark("/a/Genesis", 120001);
  EXPECT_FALSE(test::FileExists(File()));
  SaveBookmarks();
  EXPECT_EQ(test::ReadFile(File()), "GENESIS,120001\r\n");
  SetBookmarksFolder(folder_.str());  // as after a restart
  EXPECT_EQ(RetrieveBookmark("/b/Genesis"), 120001);
}

TEST_F(BookmarksTest, ErasingEmptiesTheStoreAndTheFileAtTheNextSave) {
  StoreBookmark("/a/One", 1);
  StoreBookmark("/a/Two", 2);
  SaveBookmarks();
  EraseAllBookmarks();
  EXPECT_EQ(RetrieveBookmark("/a/One"), 0);
  EXPECT_EQ(test::ReadFile(File()), "ONE,1\r\nTWO,2\r\n");
  SaveBookmarks();
  EXPECT_EQ(test::ReadFile(File()), "");
}

TEST_F(BookmarksTest, AnUnreadableFileGivesAnEmptyStore) {
  test::WriteFile(File(), "GENESIS,not a number\r\n");
  EXPECT_EQ(RetrieveBookmark("Genesis"), 0);
}

}  // namespace
}  // namespace vireo
