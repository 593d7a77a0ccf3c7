#include "book/cls_strip_cr.h"

#include <gtest/gtest.h>

#include "sample_text.h"
#include "book/replace_known_char_reference.h"

namespace vireo {
namespace {

constexpr FormattingOptions kJoin{true, false, false};
constexpr FormattingOptions kLines{false, false, false};

std::string Reformat(std::string text, const FormattingOptions& options) {
  clsStripCR::ReplaceKnownChar(text, options);
  return text;
}

// Each case holds for the fast passes and for the literal steps alike.
TEST(ReplaceKnownChar, HandWorkedCases) {
  const struct {
    const char* what;
    std::string input;
    FormattingOptions options;
    std::string expected;
  } cases[] = {
      {"quote, five blanks, line end", "\"Hi\"     \rNext", kJoin, "\"Hi\" \n Next"},
      {"quote, six blanks: joined", "\"Hi\"      \rNext", kJoin, "\"Hi\"       Next"},
      {"five blanks on a line end a paragraph", "a\r     \rb", kJoin, "a \n b"},
      {"six blanks on a line do not", "a\r      \rb", kJoin, "a        b"},
      {"CR LF and LF", "a\r\nb\nc", kJoin, "a b c"},
      {"tab", "a\tb", kJoin, "a   b"},
      {"quotes folded", "`x' \x91y\x92 \x93z\x94", kJoin, "'x' 'y' \"z\""},
      {"apostrophe pairs", "''a'''", kJoin, "\"a\"'"},
      {"two quotes split", "\"\"", kJoin, "\" \n \""},
      {"italic off before a line end", "\x83  \rx", kJoin, "\x83 \n x"},
      {"sentence ends", "a!\rb?\rc.\rd", kJoin, "a! \n b? \n c. \n d"},
      {"ellipsis at a line end", "wait...\rmore", kJoin, "wait\x85 \n more"},
      {"dashes and dots", "a---b....c", kJoin, "a\x97-b\x85.c"},
      {"underscores",
       "_word_ a_b",
       {true, true, false},
       "\x82word\x83 a\x82"
       "b"},
      {"extra line doubles every mark",
       "one.\rtwo\r\rthree",
       {true, false, true},
       "one. \n  \n two \n  \n three"},
      {"scene break inside a line", "a\x84* * *b", kJoin, "ab"},
      {"scene break between empty lines, lines kept", "one\r\r\x84* * *\r\rtwo", kLines,
       "one \n  \n  \n two"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Reformat(c.input, c.options), c.expected) << c.what;
    std::string literal = c.input;
    test::ReplaceKnownCharStepByStep(literal, c.options);
    EXPECT_EQ(literal, c.expected) << c.what << " (step by step)";
  }
}

TEST(ReplaceKnownChar, FastPassesMatchTheStepsOnRandomTexts) {
  std::mt19937 random(20240611);
  std::uniform_int_distribution<size_t> pieces(0, 60);
  for (int round = 0; round < 1200; ++round) {
    const std::string input =
        round % 4 == 0 ? samples::RandomBytes(random, pieces(random) * 3)
                       : samples::RandomFromPieces(random, samples::ReformattingPieces(), pieces(random));
    for (const FormattingOptions& options : test::AllFormattingOptions()) {
      std::string expected = input;
      test::ReplaceKnownCharStepByStep(expected, options);
      ASSERT_EQ(Reformat(input, options), expected)
          << "round " << round << " options " << options.reformat << options.underscores
          << options.extra_line;
    }
  }
}

}  // namespace
}  // namespace vireo
