// The reading position kept across runs of a real ebook: turned with keys,
// left, started again.

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "sample_text.h"
#include "e2e/program_runner.h"
#include "nav/bookmarks.h"

namespace vireo {
namespace {

class BookmarksAcrossRuns : public testing::Test {
 protected:
  void SetUp() override {
    // Instant turns; no control bar, so the picture shows only the pages.
    test::WriteFile(program_.Path("Vireo.ini"),
                    "INSTANTPAGETURN,True\r\nBARHIDDEN,True\r\nWINWIDTH,9500\r\n");
    test::WriteFile(program_.Path("BookMarks.ini"), "OTHER BOOK,5000\r\n");
    std::mt19937 random(3);
    test::WriteFile(program_.Path("novel.txt"), samples::ProseLikeText(random, 40000));
    const auto made =
        test::Run(program_.Path("vireo-tool") + " make " + program_.Path("novel.txt") + " -o " +
                      program_.Path("Novel") + " --stub " + program_.Path("Vireo"),
                  {}, program_.folder());
    ASSERT_EQ(made.status, 0) << made.err;
  }
  void TearDown() override { SetBookmarksFolder(""); }

  // Runs the ebook with the keys typed after start-up, then saves the window as
  // that picture and quits as Exit does.
  test::RunResult Read(const std::string& keys, const std::string& picture) {
    return test::Run(program_.Path("Novel"),
                     test::Unattended(program_.folder(),
                                      {"VIREO_KEYS=\"" + keys + "\"", "VIREO_QUIT_AFTER_MS=20000",
                                       "VIREO_SCREENSHOT=" + program_.Path(picture)}),
                     program_.folder());
  }

  std::string Picture(const std::string& name) const { return test::ReadFile(program_.Path(name)); }
  // The position the last run stored for a book, 0 when there is none.
  int32_t Bookmark(const std::string& book = "Novel") const {
    SetBookmarksFolder(program_.folder().str());
    return RetrieveBookmark(book);
  }

  test::ProgramFolder program_;
};

TEST_F(BookmarksAcrossRuns, TheReaderOpensAtTheSpreadItWasLeftAt) {
  const auto first = Read("", "first.png");
  ASSERT_EQ(first.status, 0) << first.err;
  const int32_t at_start = Bookmark();
  EXPECT_GT(at_start, 1) << "the start of page 2, the right-hand page of the first spread";
  EXPECT_EQ(Bookmark("Other Book"), 5000) << "other books' positions are kept";

  const auto turned = Read("    ", "turned.png");
  ASSERT_EQ(turned.status, 0) << turned.err;
  EXPECT_GT(Bookmark(), at_start);
  EXPECT_TRUE(Picture("turned.png") != Picture("first.png"));

  const auto reopened = Read("", "reopened.png");
  ASSERT_EQ(reopened.status, 0) << reopened.err;
  EXPECT_TRUE(Picture("reopened.png") == Picture("turned.png")) << "the same spread on show";
}

}  // namespace
}  // namespace vireo
