// vireo-tool make, text and info as separate programs, with the built
// reader as the stub.

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <random>

#include "book/ebook_stub.h"
#include "book/load_file.h"
#include "book/random_text.h"
#include "book/replace_known_char_reference.h"
#include "test_support.h"

namespace vireo {
namespace {

struct ShellRun {
  int status = -1;
  std::string out;
};

// Runs a shell command line, capturing standard output byte for byte.
ShellRun Shell(const std::string& command) {
  ShellRun run;
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return run;
  char buffer[1 << 16];
  for (size_t got; (got = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) run.out.append(buffer, got);
  const int status = pclose(pipe);
  run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return run;
}

std::string Quoted(const std::string& path) { return "'" + path + "'"; }
std::string Tool() { return Quoted(test::BinFolder() + "/vireo-tool"); }

std::string Flags(const FormattingOptions& options) {
  std::string flags;
  if (!options.reformat) flags += " --no-reformat";
  if (options.underscores) flags += " --underscores";
  if (options.extra_line) flags += " --extra-line";
  return flags;
}

// vireo-tool text in all eight option combinations gives the reformatted text.
void ExpectTextOfBook(const std::string& book, const std::string& text) {
  for (const FormattingOptions& options : test::AllFormattingOptions()) {
    std::string expected = text;
    test::ReplaceKnownCharStepByStep(expected, options);
    const ShellRun run = Shell(Tool() + " text " + Quoted(book) + Flags(options));
    ASSERT_EQ(run.status, 0) << Flags(options);
    ASSERT_EQ(run.out, expected) << Flags(options);
  }
}

TEST(BookTools, MakeThenTextGivesTheReformattedText) {
  test::TempFolder folder;
  std::mt19937 random(77);
  const std::string text = test::ProseLikeText(random, 200000);
  test::WriteFile(folder.File("prose.txt"), text);
  const std::string book = folder.File("Prose Book");
  const ShellRun made = Shell(Tool() + " make " + Quoted(folder.File("prose.txt")) + " -o " +
                         Quoted(book) + " --author 'Some One' --title 'Some Title'");
  ASSERT_EQ(made.status, 0);
  EXPECT_NE(made.out.find("made"), std::string::npos);
  ExpectTextOfBook(book, text);
  const ShellRun info = Shell(Tool() + " info " + Quoted(book));
  EXPECT_EQ(info.status, 0);
  EXPECT_NE(info.out.find("author: Some One\n"), std::string::npos) << info.out;
  EXPECT_NE(info.out.find("title: Some Title\n"), std::string::npos) << info.out;
  // The stub is the reader, stripped before the book was appended.
  const std::string ebook = test::ReadFile(book);
  EXPECT_EQ(ebook.substr(0, 4), "\x7f" "ELF");
  EXPECT_FALSE(HasSymbolTable(ebook));
}

TEST(BookTools, TheSampleBookGivesTheReformattedSampleText) {
  const std::string samples = test::BinFolder() + "/samples";
  if (!std::filesystem::exists(samples + "/Genesis")) GTEST_SKIP() << "no sample book built";
  ExpectTextOfBook(samples + "/Genesis", test::ReadFile(samples + "/genesis.txt"));
}

TEST(BookTools, BadInputFailsWithAMessageAndNoFile) {
  test::TempFolder folder;
  const std::string out = folder.File("out");
  EXPECT_EQ(Shell(Tool() + " make " + Quoted(folder.File("missing.txt")) + " -o " + Quoted(out) +
                  " 2>/dev/null")
                .status,
            1);
  test::WriteFile(folder.File("empty.txt"), "");
  EXPECT_EQ(Shell(Tool() + " make " + Quoted(folder.File("empty.txt")) + " -o " + Quoted(out) +
                  " 2>/dev/null")
                .status,
            1);
  EXPECT_FALSE(std::filesystem::exists(out));
  test::WriteFile(folder.File("plain.txt"), "no book here");
  const ShellRun text = Shell(Tool() + " text " + Quoted(folder.File("plain.txt")) + " 2>&1");
  EXPECT_EQ(text.status, 1);
  EXPECT_NE(text.out.find("There is no ebook stored in this file."), std::string::npos);
}

TEST(BookTools, TheProgramsDoNotCarryTheMarkers) {
  for (const char* program : {"Vireo", "vireo-tool"}) {
    const std::string bytes = test::ReadFile(test::BinFolder() + "/" + program);
    ASSERT_FALSE(bytes.empty()) << program;
    EXPECT_EQ(bytes.find(HeaderMarker()), std::string::npos) << program;
    EXPECT_EQ(bytes.find(BookMarker()), std::string::npos) << program;
  }
}

}  // namespace
}  // namespace vireo
