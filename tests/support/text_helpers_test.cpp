#include "support/text_helpers.h"

#include <gtest/gtest.h>

#include "support/runtime_error.h"
#include "support/vhtml_library.h"
#include "test_support.h"

namespace vireo {
namespace {

using namespace std::string_literals;

TEST(MyReplace, ReplacesLeftToRightWithoutRescanningInsertedText) {
  std::string text = "aaa";
  MyReplace(text, "a", "aa");
  EXPECT_EQ(text, "aaaaaa");
  text = "aaaa";
  EXPECT_EQ(CountOccurrences(text, "aa"), 2u);
  MyReplace(text, "aaa", "b");
  EXPECT_EQ(text, "ba");
  text = "x--y---z";
  MyReplace(text, "--", "\x97");
  EXPECT_EQ(text, "x\x97y\x97-z");
}

TEST(MyReplace, ShrinksGrowsAndLeavesTextWithoutMatchesAlone) {
  std::string text = "one\r\ntwo\r\n";
  MyReplace(text, "\r\n", "\r");
  EXPECT_EQ(text, "one\rtwo\r");
  MyReplace(text, "\r", std::string(ParaMark()));
  EXPECT_EQ(text, "one \n two \n ");
  MyReplace(text, "missing", "x");
  EXPECT_EQ(text, "one \n two \n ");
  MyReplace(text, "", "x");
  EXPECT_EQ(text, "one \n two \n ") << "an empty find never matches";
}

TEST(MyReplace, CarriesNulBytesAndHighCharacters) {
  std::string text = "a\0b\xff\0"s;
  MyReplace(text, "\0"s, "\x85");
  EXPECT_EQ(text,
            "a\x85"
            "b\xff\x85");
}

TEST(MyReplaceNoCaps, IgnoresCaseIncludingAccentedLetters) {
  std::string text = "Search SEARCH search \xe9t\xc9";
  MyReplaceNoCaps(text, "search", "x");
  EXPECT_EQ(text, "x x x \xe9t\xc9");
  MyReplaceNoCaps(text, "\xc9T\xe9", "y");
  EXPECT_EQ(text, "x x x y");
}

TEST(MyReplaceMulti, TheFirstMatchingPairWinsAtEachPosition) {
  std::string text = "ab abc c";
  MyReplaceMulti(text, {{"abc", "1"}, {"ab", "2"}, {"c", "3"}});
  EXPECT_EQ(text, "2 1 3");
  text = "ABx";
  MyReplaceMulti(text, {{"ab", "longer text"}}, Case::kIgnore);
  EXPECT_EQ(text, "longer textx");
}

TEST(UpperCase, FollowsWindows1252) {
  EXPECT_EQ(UpperCase("abc\xe0\xf7\xff\x9a"), "ABC\xc0\xf7\x9f\x8a");
}

TEST(VHtmlLibrary, AnUnloadedLibraryRaisesError48) {
  VHtmlLibrary library;
  test::TempFolder empty;
  EXPECT_FALSE(library.Load(empty.str()));
  try {
    library.count();
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), 48);
  }
}

}  // namespace
}  // namespace vireo
