// vireo-tool make, text and info as separate programs, with the built
// reader as the stub.

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "book/ebook_stub.h"
#include "book/load_file.h"
#include "sample_text.h"
#include "book/replace_known_char_reference.h"
#include "e2e/program_runner.h"

namespace vireo {
namespace {

std::string Quoted(const std::string& path) { return "'" + path + "'"; }
std::string Tool() { return Quoted(test::BinFolder() + "/vireo-tool"); }

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
  const auto made = test::Run(Tool() + " make " + Quoted(folder.File("sample.txt")) + " -o " +
                                  Quoted(book),
                              {}, folder);
  ASSERT_EQ(made.status, 0) << made.err;
  for (const FormattingOptions& options : test::AllFormattingOptions()) {
    std::string expected = text;
    test::ReplaceKnownCharStepByStep(expected, options);
    const auto run = test::Run(Tool() + " text " + Quoted(book) + Flags(options), {}, folder);
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

}  // namespace
}  // namespace vireo
