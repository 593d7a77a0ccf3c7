// An ebook that carries its pictures and cover, made by the tool and by the Create ebook
// dialog, opened by the real reader from a folder that holds no picture files.

#include <gtest/gtest.h>

#include <string>

#include "e2e/program_runner.h"

namespace vireo {
namespace {

// Colours as the three bytes of a binary PPM pixel.
const std::string kPictureColour("\xFA\x00\xFA", 3);
const std::string kCoverColour("\x00\xBE\xC8", 3);

// A binary PPM picture of one colour.
std::string SolidPpm(int width, int height, const std::string& colour) {
  std::string ppm = "P6\n" + std::to_string(width) + " " + std::to_string(height) + "\n255\n";
  for (int pixel = 0; pixel < width * height; ++pixel) ppm += colour;
  return ppm;
}

// Pixels of the colour in a binary PPM whose header is three lines.
int CountPixels(const std::string& ppm, const std::string& colour) {
  size_t at = 0;
  for (int line = 0; line < 3; ++line) at = ppm.find('\n', at) + 1;
  int count = 0;
  for (; at + 3 <= ppm.size(); at += 3) count += ppm.compare(at, 3, colour) == 0 ? 1 : 0;
  return count;
}

TEST(BookPictures, TheDialogPacksAsTheToolAndPackedPicturesShowWithoutFilesBesideTheBook) {
  test::ProgramFolder program;
  test::TempFolder maker;
  std::filesystem::create_directory(maker.path() / "pics");
  test::WriteFile(maker.File("pics/Dot.ppm"), SolidPpm(60, 40, kPictureColour));
  test::WriteFile(maker.File("cover.ppm"), SolidPpm(30, 40, kCoverColour));
  std::string text;
  for (int i = 1; i <= 60; ++i) {
    text += "Paragraph " + std::to_string(i) + " runs on for a line or two of words.\r\n\r\n";
    text += "[IMG SRC=\"PICS/dot.PPM\"]\r\n\r\n";
  }
  test::WriteFile(maker.File("book.txt"), text);
  const auto made =
      test::Tool(program, "make " + maker.File("book.txt") + " -o " + program.Path("Book") +
                              " --stub " + program.Path("Vireo") + " --images " + maker.str() +
                              " --cover " + maker.File("cover.ppm"));
  ASSERT_EQ(made.status, 0) << made.err;
  const auto dialog = test::StartAndQuit(
      program, "Vireo",
      {"VIREO_MENU=mnuEbook", "VIREO_EBOOK_TEXT=" + maker.File("book.txt"),
       "VIREO_EBOOK_OUT=" + program.Path("Made"), "VIREO_EBOOK_IMAGES=" + maker.str(),
       "VIREO_EBOOK_COVER=" + maker.File("cover.ppm")});
  ASSERT_EQ(dialog.status, 0) << dialog.err;
  EXPECT_TRUE(test::ReadFile(program.Path("Made")) == test::ReadFile(program.Path("Book")));

  // Hiding the cover on later spreads is tested through the fake window.
  const std::string picture = program.Path("window.ppm");
  const auto shown = test::RunWithin(
      90, program.Path("Book"), test::Unattended(program.folder(), {"VIREO_SCREENSHOT=" + picture}),
      program.folder());
  ASSERT_EQ(shown.status, 0) << shown.err;
  const std::string ppm = test::ReadFile(picture);
  EXPECT_GE(CountPixels(ppm, kPictureColour), 60 * 40);
  EXPECT_GT(CountPixels(ppm, kCoverColour), 1000);
  // The tool shows the text as the reader holds it: every reference numbered.
  const std::string held = test::Tool(program, "text " + program.Path("Book")).out;
  EXPECT_NE(held.find("[IMG=59]"), std::string::npos);
  EXPECT_EQ(held.find("SRC"), std::string::npos);
}

}  // namespace
}  // namespace vireo
