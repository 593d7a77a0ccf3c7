// vireo-tool make, text, info and pages and the Create ebook dialog as separate programs, with
// the built reader as the stub; given paths and files meant to hurt, the tool and the reader
// end in time with a message naming the cause, and destroy nothing.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <regex>
#include <sstream>
#include <string>

#include "book/ebook_stub.h"
#include "book/load_file.h"
#include "book/replace_known_char_reference.h"
#include "e2e/program_runner.h"
#include "sample_text.h"

namespace vireo {
namespace {

using test::ShellWord;
using testing::HasSubstr;

std::string Tool() { return ShellWord(test::BinFolder() + "/vireo-tool"); }

std::string Flags(const FormattingOptions& options) {
  std::string flags;
  if (!options.reformat) flags += " --no-reformat";
  if (options.underscores) flags += " --underscores";
  if (options.extra_line) flags += " --extra-line";
  return flags;
}

TEST(BookTools, MakeThenTextGivesTheReformattedTextInEveryCombination) {
  test::TempFolder folder;
  const std::string sample = test::BinFolder() + "/samples/genesis.txt";
  std::mt19937 random(77);  // prose-like text when the build made no sample
  const std::string text = std::filesystem::exists(sample) ? test::ReadFile(sample)
                                                           : samples::ProseLikeText(random, 200000);
  test::WriteFile(folder.File("sample.txt"), text);
  const std::string book = folder.File("Sample Book");
  const auto made =
      test::Run(Tool() + " make " + ShellWord(folder.File("sample.txt")) + " -o " + ShellWord(book),
                {}, folder);
  ASSERT_EQ(made.status, 0) << made.err;
  for (const FormattingOptions& options : test::AllFormattingOptions()) {
    std::string expected = text;
    test::ReplaceKnownCharStepByStep(expected, options);
    const auto run = test::Run(Tool() + " text " + ShellWord(book) + Flags(options), {}, folder);
    ASSERT_EQ(run.status, 0) << Flags(options) << run.err;
    ASSERT_EQ(run.out, expected) << Flags(options);
  }
  const std::string ebook = test::ReadFile(book);  // the reader, stripped, then the book
  EXPECT_EQ(ebook.substr(0, 4), std::string("\x7f") + "ELF");
  EXPECT_FALSE(HasSymbolTable(ebook));
}

TEST(BookTools, TheProgramsDoNotCarryTheMarkers) {
  for (const char* program : {"Vireo", "vireo-tool"}) {
    const std::string bytes = test::ReadFile(test::BinFolder() + "/" + program);
    ASSERT_FALSE(bytes.empty()) << program;
    EXPECT_EQ(bytes.find(HeaderMarker()), std::string::npos) << program;
    EXPECT_EQ(bytes.find(BookMarker()), std::string::npos) << program;
  }
}

constexpr int kSeconds = 30;
const std::string kText = "Hello world. This is a text.\n";

class HostileMaker : public ::testing::Test {
 protected:
  HostileMaker() {
    test::WriteFile(File("T"), kText);
    test::WriteFile(File("notes.txt"), "not a program\n");
    test::WriteFile(File("empty.txt"), "");
    std::filesystem::create_directory(File("D"));
    std::filesystem::create_hard_link(File("T"), File("hard"));
    std::filesystem::create_symlink("T", File("soft"));
  }

  std::string File(const std::string& name) const { return program_.Path(name); }

  // Runs vireo-tool from inside the program folder (paths relative to it).
  test::RunResult Tool(const std::string& arguments) {
    return test::RunWithin(
        kSeconds,
        "sh -c 'cd \"" + program_.folder().str() + "\" && ./vireo-tool " + arguments + "'", {},
        program_.folder());
  }

  test::ProgramFolder program_;
};

// The output may not be the text or the stub, however its path is spelled;
// noise, an empty body, a header marker alone and no marker are no book, so
// text and info say why instead of printing what the unpacking left.
TEST_F(HostileMaker, ToolsRefuseWhatWouldDestroyOrMisleadAndLeaveTheFilesAlone) {
  std::mt19937 random(3);
  std::uniform_int_distribution<int> printable_after_descrambling(10, 240);
  std::string noise(20000, ' ');
  for (char& c : noise) c = static_cast<char>(printable_after_descrambling(random));
  const std::string stub_and_header = "stub" + HeaderMarker() + "header";  // then the book
  test::WriteFile(File("noise"), stub_and_header + BookMarker() + noise);
  test::WriteFile(File("empty"), stub_and_header + BookMarker());
  test::WriteFile(File("header-only"), stub_and_header);
  const std::string vireo = test::ReadFile(File("Vireo"));
  std::vector<std::pair<std::string, std::string>> cases = {
      // arguments, message
      {"make T -o ./T", "it is the text itself"},
      {"make T -o " + File("T"), "it is the text itself"},
      {"make T -o hard", "it is the text itself"},
      {"make T -o soft", "it is the text itself"},
      {"make T -o Vireo", "it is the stub itself"},
      {"make D -o out", "the text D is a folder"},
      {"make T -o out --stub notes.txt", "the stub notes.txt is not a program"},
      {"make T -o out --stub D", "the stub D is a folder"},
      {"make T -o D", "a folder is there"},
      {"make T -o missing/out", "no such folder"},
      {"make missing.txt -o out", "cannot read the text missing.txt"},
      {"make empty.txt -o out", "the text empty.txt is empty"},
  };
  for (const auto& [file, phrase] : std::vector<std::pair<std::string, std::string>>{
           {"noise", "noise holds a damaged book"},
           {"empty", "empty holds a damaged book: the unpacking stopped in sub brnpostextract"},
           {"header-only", "Invalid procedure call"},
           {"notes.txt", "There is no ebook stored in this file."}}) {
    cases.insert(cases.end(), {{"text " + file, phrase}, {"info " + file, phrase}});
  }
  for (const auto& [arguments, phrase] : cases) {
    const test::RunResult run = Tool(arguments);
    EXPECT_EQ(run.status, 1) << arguments;
    EXPECT_THAT(run.err, HasSubstr(phrase)) << arguments;
    EXPECT_EQ(run.out, "") << arguments;
    EXPECT_EQ(test::ReadFile(File("T")), kText) << arguments;
    EXPECT_FALSE(std::filesystem::exists(File("out"))) << arguments;
  }
  EXPECT_EQ(test::ReadFile(File("Vireo")), vireo);
  EXPECT_TRUE(std::filesystem::is_symlink(File("soft")));
}

TEST_F(HostileMaker, TheReaderLogsAHeaderMarkerWithoutABook) {
  test::WriteFile(File("Lonely"), test::ReadFile(File("Vireo")) + HeaderMarker() + "header");
  std::filesystem::permissions(File("Lonely"), std::filesystem::perms::owner_exec,
                               std::filesystem::perm_options::add);
  const test::RunResult run = test::StartAndQuit(program_, "Lonely", {}, kSeconds);
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(program_.Log(), HasSubstr("No book follows the header marker in " + File("Lonely")));
}

// Author and title outside the packed form's characters come back as typed; the euro sign,
// whose byte is a formatting code, as plain text.
TEST_F(HostileMaker, InfoShowsAccentedAuthorAndTitleAsTyped) {
  ASSERT_EQ(Tool("make T -o B --author \"José Ünal\" --title \"Café & Crème &amp; €\"").status, 0);
  const test::RunResult info = Tool("info B");
  EXPECT_EQ(info.status, 0) << info.err;
  EXPECT_THAT(info.out, HasSubstr("author: José Ünal\n"));
  EXPECT_THAT(info.out, HasSubstr("title: Café & Crème &amp; EUR\n"));
}

// A pages report: lines "page start bold italic underline" from page 1, starts growing, then
// "passed".
void ExpectReport(const std::string& report, int minimum_pages) {
  std::istringstream lines(report);
  std::string line;
  const std::regex page_line(R"((\d+) (\d+) ([01]) ([01]) ([01]))");
  int expected_page = 1;
  long previous_start = 0;
  while (std::getline(lines, line) && line.rfind("passed", 0) != 0) {
    std::smatch match;
    ASSERT_TRUE(std::regex_match(line, match, page_line)) << line;
    EXPECT_EQ(std::stoi(match[1]), expected_page++);
    EXPECT_GT(std::stol(match[2]), previous_start) << line;
    previous_start = std::stol(match[2]);
  }
  EXPECT_GT(expected_page - 1, minimum_pages);
  EXPECT_TRUE(std::regex_match(line, std::regex("passed (\\d+|end)"))) << line;
}

TEST(PaginationReport, TheSampleBookWithAMetricsFileAndWithARealFont) {
  const std::string book = test::BinFolder() + "/Genesis";
  if (!std::filesystem::exists(book)) GTEST_SKIP() << "no sample book built";
  test::TempFolder scratch;
  std::string metrics;
  for (int style = 0; style < 4; ++style) {
    for (int code = 1; code <= 255; ++code) metrics += (code == 10 ? "0" : "95") + std::string(" ");
    metrics += "\n";
  }
  test::WriteFile(scratch.File("metrics.txt"), metrics);
  const std::string tool = test::BinFolder() + "/vireo-tool pages " + book +
                           " --line-width 6000 --lines-per-page 30 --position 20000 ";
  std::string with_metrics;
  for (const std::string& measure : {"--metrics " + scratch.File("metrics.txt"),
                                     std::string("--font 'Times New Roman' --size 10")}) {
    const auto run = test::Run(
        tool + measure, {"QT_QPA_PLATFORM=offscreen", "XDG_RUNTIME_DIR=" + scratch.str()}, scratch);
    ASSERT_EQ(run.status, 0) << measure << run.err;
    ExpectReport(run.out, 50);
    EXPECT_THAT(run.out, testing::Not(testing::HasSubstr("passed end")))
        << "a reader well inside a long book is passed before the end";
    EXPECT_NE(run.out, with_metrics) << "a real font measures differently";
    with_metrics = run.out;
  }
}

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

// An ebook that carries its pictures and cover, made by the tool and by the Create ebook
// dialog, opened by the real reader from a folder that holds no picture files.
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
