// Printing to PDF in the real reader run unattended.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "e2e/program_runner.h"

namespace vireo {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

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
