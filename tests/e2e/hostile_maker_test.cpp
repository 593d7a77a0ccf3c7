// vireo-tool and the reader given paths and files meant to hurt: each case
// ends in time with a message naming the cause, and destroys nothing.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "book/load_file.h"
#include "e2e/program_runner.h"

namespace vireo {
namespace {

using testing::HasSubstr;

constexpr int kSeconds = 30;
const std::string kText = "Hello world. This is a text.\n";

class HostileMaker : public ::testing::Test {
 protected:
  HostileMaker() {
    test::WriteFile(File("T"), kText);
    test::WriteFile(File("notes.txt"), "not a program\n");
    std::filesystem::create_directory(File("D"));
    std::filesystem::create_hard_link(File("T"), File("hard"));
    std::filesystem::create_symlink("T", File("soft"));
  }

  std::string File(const std::string& name) const { return program_.Path(name); }

  // Runs vireo-tool from inside the program folder (paths relative to it).
  test::RunResult Tool(const std::string& arguments) {
    return test::RunWithin(kSeconds,
                           "sh -c 'cd \"" + program_.folder().str() + "\" && ./vireo-tool " +
                               arguments + "'",
                           {}, program_.folder());
  }

  // stub + markers + body: what the tools and the reader take for an ebook.
  std::string Ebook(const std::string& body, const std::string& stub = "stub") const {
    return stub + HeaderMarker() + "header" + BookMarker() + body;
  }

  test::ProgramFolder program_;
};

// The output may not be the text or the stub, however its path is spelled.
TEST_F(HostileMaker, MakeRefusesWhatWouldDestroyOrMisleadAndLeavesTheFilesAlone) {
  const std::string vireo = test::ReadFile(File("Vireo"));
  struct Case {
    std::string arguments;
    std::string phrase;
  } cases[] = {
      {"make T -o T", "it is the text itself"},
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
  };
  for (const Case& c : cases) {
    const test::RunResult run = Tool(c.arguments);
    EXPECT_EQ(run.status, 1) << c.arguments;
    EXPECT_THAT(run.err, HasSubstr(c.phrase)) << c.arguments;
    EXPECT_EQ(run.out, "") << c.arguments;
    EXPECT_EQ(test::ReadFile(File("T")), kText) << c.arguments;
    EXPECT_FALSE(std::filesystem::exists(File("out"))) << c.arguments;
  }
  EXPECT_EQ(test::ReadFile(File("Vireo")), vireo);
  EXPECT_TRUE(std::filesystem::is_symlink(File("soft")));
}

// An output folder that takes no file, or has no room, is named as such;
// these need a private mount and are skipped where none can be made.
TEST_F(HostileMaker, AnUnwritableOrFullOutputFolderIsNamedNotTheStub) {
  std::filesystem::create_directory(File("mnt"));
  const struct {
    std::string options;
    std::string phrase;
  } cases[] = {{"ro,size=1m", "Read-only file system"}, {"size=64k", "(Disk full)"}};
  for (const auto& c : cases) {
    const test::RunResult run = test::RunWithin(
        kSeconds,
        "unshare -m sh -c 'mount -t tmpfs -o " + c.options + " tmpfs \"" + File("mnt") +
            "\" || exit 99; cd \"" + program_.folder().str() + "\" && ./vireo-tool make T -o mnt/book'",
        {}, program_.folder());
    if (run.status == 99 || run.err.find("unshare") != std::string::npos) {
      GTEST_SKIP() << "no private mount here: " << run.err;
    }
    EXPECT_EQ(run.status, 1) << c.options;
    EXPECT_THAT(run.err, HasSubstr("vireo-tool: cannot write mnt/book (")) << c.options;
    EXPECT_THAT(run.err, HasSubstr(c.phrase)) << c.options;
    EXPECT_THAT(run.err, testing::Not(HasSubstr("cannot use the stub"))) << c.options;
  }
}

// Noise, an empty body and a header marker alone are no book: text and info
// fail and say why instead of printing what the unpacking left.
TEST_F(HostileMaker, TextAndInfoRefuseNoiseAndEmptyBooks) {
  std::mt19937 random(3);
  std::uniform_int_distribution<int> printable_after_descrambling(10, 240);
  std::string noise(20000, ' ');
  for (char& c : noise) c = static_cast<char>(printable_after_descrambling(random));
  test::WriteFile(File("noise"), Ebook(noise));
  test::WriteFile(File("empty"), Ebook(""));
  test::WriteFile(File("header-only"), "stub" + HeaderMarker() + "header");
  const struct {
    std::string file;
    std::string phrase;
  } cases[] = {{"noise", "noise holds a damaged book"},
               {"empty", "empty holds a damaged book: the unpacking stopped in sub brnpostextract"},
               {"header-only", "Invalid procedure call"}};
  for (const auto& c : cases) {
    for (const std::string command : {"text ", "info "}) {
      const test::RunResult run = Tool(command + c.file);
      EXPECT_EQ(run.status, 1) << command << c.file;
      EXPECT_THAT(run.err, HasSubstr(c.phrase)) << command << c.file;
      EXPECT_EQ(run.out, "") << command << c.file;
    }
  }
}

TEST_F(HostileMaker, TheReaderLogsAHeaderMarkerWithoutABook) {
  const std::string book = File("Lonely");
  test::WriteFile(book, test::ReadFile(File("Vireo")) + HeaderMarker() + "header");
  std::filesystem::permissions(book, std::filesystem::perms::owner_exec,
                               std::filesystem::perm_options::add);
  const test::RunResult run = test::RunWithin(
      kSeconds, book, test::Unattended(program_.folder(), {"VIREO_QUIT_AFTER_MS=0"}),
      program_.folder());
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(program_.Log(), HasSubstr("No book follows the header marker in " + book));
}

// Author and title outside the packed form's characters come back as typed.
TEST_F(HostileMaker, InfoShowsAccentedAuthorAndTitleAsTyped) {
  ASSERT_EQ(Tool("make T -o B --author \"José Ünal\" --title \"Café & Crème &amp; €\"").status, 0);
  const test::RunResult info = Tool("info B");
  EXPECT_EQ(info.status, 0) << info.err;
  EXPECT_THAT(info.out, HasSubstr("author: José Ünal\n"));
  EXPECT_THAT(info.out, HasSubstr("title: Café & Crème &amp; €\n"));
}

}  // namespace
}  // namespace vireo
