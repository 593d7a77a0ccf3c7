// Books named on the reader's command line, stand-alone packed books, and the desktop
// registration a run leaves.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "e2e/program_runner.h"

namespace vireo {
namespace {

using testing::HasSubstr;

class CommandLine : public testing::Test {
 protected:
  void SetUp() override {
    test::WriteFile(program_.Path("story.txt"),
                    test::ReadFile(test::BinFolder() + "/samples/genesis.txt"));
    const std::string tool = program_.Path("vireo-tool") + " make " + program_.Path("story.txt");
    ASSERT_EQ(test::Run(tool + " -o " + program_.Path("Story"), {}, program_.folder()).status, 0);
    ASSERT_EQ(
        test::Run(tool + " --brn -o " + program_.Path("story.brn"), {}, program_.folder()).status,
        0);
  }

  // The window's picture once the reader has started with arguments, and what it said.
  test::RunResult Screenshot(const std::string& program, const std::string& arguments,
                             const std::string& picture) {
    return test::RunWithin(
        90, program_.Path(program) + " " + arguments,
        test::Unattended(program_.folder(), {"VIREO_SCREENSHOT=" + program_.Path(picture)}),
        program_.folder());
  }

  test::ProgramFolder program_;
};

TEST_F(CommandLine, APackedBookNamedOnTheCommandLineOpensAsItsOwnEbookDoes) {
  ASSERT_EQ(Screenshot("Story", "", "ebook.png").status, 0);
  const auto packed = Screenshot("Vireo", program_.Path("story.brn"), "packed.png");
  ASSERT_EQ(packed.status, 0) << packed.err;
  EXPECT_THAT(program_.Log(), HasSubstr("Loading from: " + program_.Path("story.brn")));
  EXPECT_THAT(test::ReadFile(program_.Path("BookMarks.ini")), HasSubstr("STORY.BRN,"));
  ASSERT_EQ(Screenshot("Vireo", "", "bare.png").status, 0);

  const std::string ebook = test::ReadFile(program_.Path("ebook.png"));
  EXPECT_EQ(test::ReadFile(program_.Path("packed.png")), ebook) << "the same first spread";
  EXPECT_NE(test::ReadFile(program_.Path("bare.png")), ebook);
}

TEST_F(CommandLine, OpenAsksTheCommonFileDialogWhichTheUnattendedRunAnswers) {
  const std::string book = program_.Path("story.brn");
  const auto run = test::StartAndQuit(program_, "Vireo",
                                      {"VIREO_MENU=mnuOpen", "VIREO_ANSWER_FILE=" + book});
  EXPECT_THAT(run.err, HasSubstr("[file] Open a book: " + book));
  EXPECT_THAT(program_.Log(), HasSubstr("Loading from: " + book));
}

TEST_F(CommandLine, TheRegistrationNamesTheReaderAndNeverATemporaryCopy) {
  const std::string entry = program_.folder().File("xdg/applications/vireo.desktop");
  ASSERT_EQ(test::StartAndQuit(program_, "Story").status, 0);
  EXPECT_FALSE(test::FileExists(entry)) << "the program folder is in the temporary folder";

  test::TempFolder elsewhere;  // the temporary folder is somewhere else now
  ASSERT_EQ(test::StartAndQuit(program_, "Story", {"TMPDIR=" + elsewhere.str()}).status, 0);
  EXPECT_THAT(test::ReadFile(entry), HasSubstr("\nExec=\"" + program_.Path("Vireo") + "\" %f\n"));
}

}  // namespace
}  // namespace vireo
