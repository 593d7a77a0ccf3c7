// The reading position kept across runs of a real ebook: turned with keys,
// left, started again.

#include <gtest/gtest.h>

#include <random>

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
    const auto made = test::MakeBook(program_, "Novel", samples::ProseLikeText(random, 40000));
    ASSERT_EQ(made.status, 0) << made.err;
  }
  void TearDown() override { SetBookmarksFolder(""); }

  // Runs the ebook with the keys typed after start-up, quitting as Exit does;
  // gives the window's picture at the end.
  std::string Read(const std::string& keys) {
    const std::string picture = program_.Path("window.png");
    const auto run = test::Run(program_.Path("Novel"),
                               test::Unattended(program_.folder(),
                                                {"VIREO_KEYS=\"" + keys + "\"",
                                                 "VIREO_QUIT_AFTER_MS=20000",
                                                 "VIREO_SCREENSHOT=" + picture}),
                               program_.folder());
    EXPECT_EQ(run.status, 0) << run.err;
    return test::ReadFile(picture);
  }

  // The position the last run stored for a book, 0 when there is none.
  int32_t Bookmark(const std::string& book = "Novel") const {
    SetBookmarksFolder(program_.folder().str());  // reloads the file
    return RetrieveBookmark(book);
  }

  test::ProgramFolder program_;
};

TEST_F(BookmarksAcrossRuns, TheReaderOpensAtTheSpreadItWasLeftAt) {
  const std::string first = Read("");
  const int32_t at_start = Bookmark();
  EXPECT_GT(at_start, 1) << "the start of page 2, the right-hand page of the first spread";
  EXPECT_EQ(Bookmark("Other Book"), 5000) << "other books' positions are kept";

  const std::string turned = Read("    ");
  EXPECT_GT(Bookmark(), at_start);
  EXPECT_TRUE(turned != first);
  EXPECT_TRUE(Read("") == turned) << "the same spread on show";
}

}  // namespace
}  // namespace vireo
