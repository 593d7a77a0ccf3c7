// An ebook that carries its pictures and cover, opened by the real reader
// from a folder that holds no picture files.

#include <gtest/gtest.h>

#include <cstdint>
#include <sstream>

#include "e2e/program_runner.h"

namespace vireo {
namespace {

struct Rgb {
  uint8_t r, g, b;
};

// A binary PPM picture of one colour.
std::string SolidPpm(int width, int height, Rgb colour) {
  std::string ppm = "P6\n" + std::to_string(width) + " " + std::to_string(height) + "\n255\n";
  for (int pixel = 0; pixel < width * height; ++pixel)
    ppm += {char(colour.r), char(colour.g), char(colour.b)};
  return ppm;
}

// Pixels of a binary PPM (P6) of the given colour.
int CountPixels(const std::string& ppm, Rgb colour) {
  std::istringstream in(ppm);
  std::string magic;
  int width = 0, height = 0, maximum = 0;
  in >> magic >> width >> height >> maximum;
  in.get();
  const size_t start = static_cast<size_t>(in.tellg());
  int count = 0;
  for (size_t at = start; at + 2 < ppm.size(); at += 3) {
    if (uint8_t(ppm[at]) == colour.r && uint8_t(ppm[at + 1]) == colour.g &&
        uint8_t(ppm[at + 2]) == colour.b) {
      ++count;
    }
  }
  return magic == "P6" ? count : -1;
}

constexpr Rgb kPictureColour{250, 0, 250};
constexpr Rgb kCoverColour{0, 190, 200};

TEST(BookPictures, PackedPicturesAndCoverShowWithoutFilesBesideTheBook) {
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
      test::Run(program.Path("vireo-tool") + " make " + maker.File("book.txt") + " -o " +
                    program.Path("Book") + " --stub " + program.Path("Vireo") + " --images " +
                    maker.str() + " --cover " + maker.File("cover.ppm"),
                {}, maker);
  ASSERT_EQ(made.status, 0) << made.err;

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
  const std::string held =
      test::Run(program.Path("vireo-tool") + " text " + program.Path("Book"), {}, maker).out;
  EXPECT_NE(held.find("[IMG=59]"), std::string::npos);
  EXPECT_EQ(held.find("SRC"), std::string::npos);
}

TEST(BookPictures, TheCreateEbookDialogPacksTheSampleTextWithItsPicturesAsTheToolDoes) {
  test::ProgramFolder program;
  const std::string sample = test::BinFolder() + "/samples/birdsong";
  const auto made = test::StartAndQuit(
      program, "Vireo",
      {"VIREO_MENU=mnuEbook", "VIREO_EBOOK_TEXT=" + sample + "/birdsong.txt",
       "VIREO_EBOOK_OUT=" + program.Path("Made"), "VIREO_EBOOK_IMAGES=" + sample + "/pictures",
       "VIREO_EBOOK_COVER=" + sample + "/pictures/cover.png"});
  ASSERT_EQ(made.status, 0) << made.err;
  // The book finds both pictures though its folder holds none.
  const std::string held =
      test::Run(program.Path("vireo-tool") + " text " + program.Path("Made"), {}, program.folder())
          .out;
  EXPECT_NE(held.find("[IMG=0]"), std::string::npos) << held.substr(0, 400);
  EXPECT_NE(held.find("[IMG=1]"), std::string::npos);
  EXPECT_EQ(held.find("SRC"), std::string::npos);
  // Pictures and cover are packed exactly as the tool packs them.
  const auto tool = test::Run(program.Path("vireo-tool") + " make " + sample + "/birdsong.txt -o " +
                                  program.Path("Tool") + " --stub " + program.Path("Vireo") +
                                  " --title birdsong --images " + sample + "/pictures --cover " +
                                  sample + "/pictures/cover.png",
                              {}, program.folder());
  ASSERT_EQ(tool.status, 0) << tool.err;
  EXPECT_TRUE(test::ReadFile(program.Path("Made")) == test::ReadFile(program.Path("Tool")));
}

}  // namespace
}  // namespace vireo
