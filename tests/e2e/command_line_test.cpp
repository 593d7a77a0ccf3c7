// The reader run unattended: books named on its command line, stand-alone packed books, the
// desktop registration a run leaves, and menus answered as a person would (Open..., Print).

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "e2e/program_runner.h"

namespace vireo {
namespace {

using testing::HasSubstr;
using testing::Not;

class CommandLine : public testing::Test {
 protected:
  void SetUp() override {
    test::WriteFile(program_.Path("story.txt"),
                    test::ReadFile(test::BinFolder() + "/samples/genesis.txt"));
    const std::string make = "make " + program_.Path("story.txt");
    ASSERT_EQ(test::Tool(program_, make + " -o " + program_.Path("Story")).status, 0);
    ASSERT_EQ(test::Tool(program_, make + " --brn -o " + program_.Path("story.brn")).status, 0);
  }

  test::ProgramFolder program_;
};

// What a packed book shows is the fake window's test (opening_test).
TEST_F(CommandLine, APackedBookNamedOnTheCommandLineOpensAndKeepsItsPlace) {
  const std::string book = program_.Path("story.brn");
  const auto run = test::RunWithin(90, program_.Path("Vireo") + " " + book,
                                   test::Unattended(program_.folder(), {"VIREO_QUIT_AFTER_MS=0"}),
                                   program_.folder());
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(program_.Log(), HasSubstr("Loading from: " + book));
  EXPECT_THAT(test::ReadFile(program_.Path("BookMarks.ini")), HasSubstr("STORY.BRN,"));
}

TEST_F(CommandLine, OpenAsksTheCommonFileDialogWhichTheUnattendedRunAnswers) {
  const std::string book = program_.Path("story.brn");
  const auto run =
      test::StartAndQuit(program_, "Vireo", {"VIREO_MENU=mnuOpen", "VIREO_ANSWER_FILE=" + book});
  EXPECT_THAT(run.err, HasSubstr("[file] Open a book: " + book));
  EXPECT_THAT(program_.Log(), HasSubstr("Loading from: " + book));
}

// Which running copies register is the registration target's table (opening_test).
TEST_F(CommandLine, TheRegistrationNamesTheReaderOutsideTheTemporaryFolder) {
  const std::string entry = program_.folder().File("xdg/applications/vireo.desktop");
  test::TempFolder elsewhere;  // the program folder is not in this temporary folder
  ASSERT_EQ(test::StartAndQuit(program_, "Story", {"TMPDIR=" + elsewhere.str()}).status, 0);
  EXPECT_THAT(test::ReadFile(entry), HasSubstr("\nExec=\"" + program_.Path("Vireo") + "\" %f\n"));
}

TEST(Printing, APdfOfABookPageHoldsThatPagesWordsAndABadPrinterSaysSo) {
  test::ProgramFolder program;
  std::string text;
  for (int p = 1; p <= 60; ++p) {
    text += "Paragraph number" + std::to_string(p) + " tells of the river and the road.\r\n\r\n";
  }
  ASSERT_EQ(test::MakeBook(program, "Book", text).status, 0);
  const std::string pdf = program.Path("pages.pdf");
  auto result = test::StartAndQuit(
      program, "Book",
      {"VIREO_MENU=mnuPrint", "VIREO_ANSWER_PRINT=" + pdf, "VIREO_ANSWER_PAGES=3-3"});
  ASSERT_EQ(result.status, 0) << result.err;
  const auto words = test::Run("pdftotext " + pdf + " -", {}, program.folder());
  // Page 3 of the default window starts some paragraphs in; page 1 is not printed.
  EXPECT_THAT(words.out, HasSubstr("tells of the river and"));
  EXPECT_THAT(words.out, Not(HasSubstr("number1 ")));
  EXPECT_THAT(words.out, HasSubstr("\n3\n")) << "the page number at its foot";

  result = test::StartAndQuit(program, "Book",
                              {"VIREO_MENU=mnuPrint", "VIREO_ANSWER_PRINT=/no/such/folder/x.pdf"});
  EXPECT_THAT(result.err, HasSubstr("[message] Printer Error!: "));
  EXPECT_THAT(result.err, HasSubstr("/no/such/folder/x.pdf"));
}

}  // namespace
}  // namespace vireo
