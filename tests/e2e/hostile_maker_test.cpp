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
    test::WriteFile(File("empty.txt"), "");
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
  std::vector<std::pair<std::string, std::string>> cases = {  // arguments, message
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

}  // namespace
}  // namespace vireo
