// Pictures in the open book and its cover, through the fake window seam: the
// pages make room for pictures, the composer places them, the cover comes and
// goes with the first spread.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <utility>

#include "app/fake_window.h"

namespace vireo {
namespace {

using test::FakeReader;
using test::WriteFile;
using ::testing::HasSubstr;
using ::testing::Not;

using test::kInstant;

// A test picture file of the fake decoder, height given in twips.
std::string PictureOfHeight(double twips) {
  return "PIC 10 " + std::to_string(static_cast<int>(std::lround(twips / 15)));
}

// The page whose text holds needle, or 0.
int PageHolding(const FakeReader& reader, const std::string& needle) {
  const BookPages& book = reader.logic.book_pages();
  for (int page = 1; page <= book.PageCount(); ++page) {
    if (book.Page(page).text.find(needle) != std::string::npos) return page;
  }
  return 0;
}

TEST(BookPictures, APictureFitsMovesOnOrTakesAPageOfItsOwn) {
  FakeReader reader(
      "Opening words.\r\n\r\n[IMG SRC='small.png']\r\n\r\nWords that follow it on the page.\r\n\r\n"
      "[IMG SRC='big.png']\r\n\r\nMore words that follow a picture.\r\n\r\n"
      "[IMG SRC='huge.png']\r\n\r\nClosing words of the book.\r\n",
      kInstant);
  // The pictures' sizes depend on the page: written once the page is known.
  reader.Start();
  const PageTextArea area = reader.logic.spread().text_area();
  const int lines = area.lines_per_page;
  ASSERT_GT(lines, 8);
  WriteFile(reader.folder.File("small.png"), PictureOfHeight(6 * area.line_height));
  WriteFile(reader.folder.File("big.png"), PictureOfHeight(lines / 2 * area.line_height));
  WriteFile(reader.folder.File("huge.png"), PictureOfHeight(3 * area.text_height));
  reader.logic.loader().OpenBook(reader.book_path);

  EXPECT_EQ(PageHolding(reader, "[IMG=0]"), 1);
  EXPECT_EQ(PageHolding(reader, "Words that follow"), 1);
  EXPECT_EQ(PageHolding(reader, "[IMG=1]"), 2) << "too tall for the rest of page 1";
  EXPECT_EQ(PageHolding(reader, "[IMG=2]"), 3);
  EXPECT_EQ(PageHolding(reader, "Closing"), 4) << "the tallest picture has page 3 to itself";
  EXPECT_EQ(reader.logic.book_pages().PageCount(), 4);
}

TEST(BookPictures, PicturesAreDrawnCentredIntoThePagePicture) {
  FakeReader reader("Words.\r\n\r\n[IMG SRC='pics/bird.png']\r\n\r\nMore words.\r\n", kInstant);
  std::filesystem::create_directory(reader.folder.path() / "Pics");
  WriteFile(reader.folder.File("Pics/Bird.PNG"), "PIC 20 30");
  reader.Start();
  const PageTextArea area = reader.logic.spread().text_area();
  const auto& runs = reader.buffers.boxes[kLeftPageBox].runs;
  const auto picture = std::find_if(runs.begin(), runs.end(),
                                    [](const auto& run) { return run.text == "picture 300x450"; });
  ASSERT_NE(picture, runs.end()) << reader.buffers.Text(kLeftPageBox);
  EXPECT_DOUBLE_EQ(picture->x, area.left_border + (area.text_width - 300) / 2);
  EXPECT_THAT(reader.buffers.Text(kLeftPageBox), Not(HasSubstr("IMG")));
}

TEST(BookPictures, TheCoverShowsOverTheFirstSpreadOnly) {
  FakeReader reader(test::NumberedProse(200), kInstant);
  WriteFile(reader.folder.File("book.PNG"), "PIC 40 60");  // named after the book "Book"
  reader.Start();
  ASSERT_NE(reader.buffers.cover, nullptr);
  EXPECT_EQ(reader.buffers.cover->width, 40);
  BookSpread& spread = reader.logic.spread();
  const std::pair<std::function<void()>, bool> steps[] = {
      // the step, and the cover after it
      {[&] { spread.NextPage(); }, false},
      {[&] { spread.NextPage(); }, false},
      {[&] { spread.PreviousPage(); }, false},
      {[&] { spread.PreviousPage(); }, true},
      {[&] { spread.ShowPage(7); }, false},
      {[&] { spread.ShowPage(1); }, true},
      {[&] { reader.logic.book().CloseBook(); }, false},
  };
  for (size_t step = 0; step < std::size(steps); ++step) {
    steps[step].first();
    EXPECT_EQ(reader.buffers.cover != nullptr, steps[step].second) << "after step " << step;
  }
}

}  // namespace
}  // namespace vireo
