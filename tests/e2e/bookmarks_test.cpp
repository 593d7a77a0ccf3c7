// The reading position kept across runs of a real ebook: turned with keys,
// left, started again.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "e2e/program_runner.h"

namespace vireo {
namespace {

// Numbered paragraphs of prose, a few dozen pages at the default size.
std::string Chapters() {
  std::string text;
  for (int p = 1; p <= 150; ++p) {
    text += "Paragraph " + std::to_string(p) +
            " tells of a traveller who walks along the river until the light fails, "
            "counts the boats that pass and writes their names in a small book. ";
    text += "\r\n\r\n";
  }
  return text;
}

// The position stored for key in a bookmarks file, or -1 when there is none.
long long StoredPosition(const std::string& bookmarks, const std::string& key) {
  const std::string line_start = key + ",";
  for (size_t at = 0; at < bookmarks.size();) {
    const size_t end = bookmarks.find('\n', at);
    const std::string line = bookmarks.substr(at, end == std::string::npos ? end : end - at);
    if (line.rfind(line_start, 0) == 0) return std::stoll(line.substr(line_start.size()));
    if (end == std::string::npos) break;
    at = end + 1;
  }
  return -1;
}

class BookmarksAcrossRuns : public testing::Test {
 protected:
  void SetUp() override {
    // Instant turns; no control bar, so the picture shows only the pages.
    test::WriteFile(program_.Path("Vireo.ini"),
                    "INSTANTPAGETURN,True\r\nBARHIDDEN,True\r\nWINWIDTH,9500\r\n");
    test::WriteFile(program_.Path("novel.txt"), Chapters());
    const auto made =
        test::Run(program_.Path("vireo-tool") + " make " + program_.Path("novel.txt") + " -o " +
                      program_.Path("Novel") + " --stub " + program_.Path("Vireo"),
                  {}, program_.folder());
    ASSERT_EQ(made.status, 0) << made.err;
  }

  // Runs the ebook with the keys typed after start-up; with a picture name,
  // the window is then saved as that picture and the reader quits.
  test::RunResult Read(const std::string& keys, const std::string& picture = "") {
    std::vector<std::string> environment = {"VIREO_KEYS=\"" + keys + "\"",
                                            "VIREO_QUIT_AFTER_MS=20000"};
    if (!picture.empty()) environment.push_back("VIREO_SCREENSHOT=" + program_.Path(picture));
    return test::Run(program_.Path("Novel"), test::Unattended(program_.folder(), environment),
                     program_.folder());
  }

  std::string Picture(const std::string& name) const { return test::ReadFile(program_.Path(name)); }
  long long Bookmark() const {
    return StoredPosition(test::ReadFile(program_.Path("BookMarks.ini")), "NOVEL");
  }

  test::ProgramFolder program_;
};

TEST_F(BookmarksAcrossRuns, TheReaderOpensAtTheSpreadItWasLeftAt) {
  const auto first = Read("", "first.png");
  ASSERT_EQ(first.status, 0) << first.err;
  const long long at_start = Bookmark();
  EXPECT_GT(at_start, 1) << "the start of page 2, the right-hand page of the first spread";

  const auto turned = Read("    ", "turned.png");
  ASSERT_EQ(turned.status, 0) << turned.err;
  EXPECT_GT(Bookmark(), at_start);
  EXPECT_TRUE(Picture("turned.png") != Picture("first.png"));

  const auto reopened = Read("", "reopened.png");
  ASSERT_EQ(reopened.status, 0) << reopened.err;
  EXPECT_TRUE(Picture("reopened.png") == Picture("turned.png")) << "the same spread on show";

  // Back to the beginning with the keys, and Q quits as Exit does.
  const auto back = Read("ZZZZQ");
  ASSERT_EQ(back.status, 0) << back.err;
  EXPECT_EQ(Bookmark(), at_start);
  EXPECT_THAT(program_.Log(), testing::HasSubstr("Shutdown\r\n"));
  const auto start_again = Read("", "start-again.png");
  ASSERT_EQ(start_again.status, 0) << start_again.err;
  EXPECT_TRUE(Picture("start-again.png") == Picture("first.png"));
}

TEST_F(BookmarksAcrossRuns, OtherBooksPositionsAreKeptAndNotUsed) {
  test::WriteFile(program_.Path("BookMarks.ini"), "OTHER BOOK,5000\r\n");
  const auto first = Read("", "first.png");
  ASSERT_EQ(first.status, 0) << first.err;
  const std::string bookmarks = test::ReadFile(program_.Path("BookMarks.ini"));
  EXPECT_EQ(StoredPosition(bookmarks, "OTHER BOOK"), 5000);
  EXPECT_GT(StoredPosition(bookmarks, "NOVEL"), 1);

  std::filesystem::remove(program_.Path("BookMarks.ini"));
  const auto fresh = Read("", "fresh.png");
  ASSERT_EQ(fresh.status, 0) << fresh.err;
  EXPECT_TRUE(Picture("first.png") == Picture("fresh.png")) << "page 1 both times";
}

}  // namespace
}  // namespace vireo
