#include "support/text_helpers.h"

#include <gtest/gtest.h>

#include "support/error_trap.h"
#include "support/logging.h"
#include "support/vhtml_library.h"
#include "test_support.h"

namespace vireo {
namespace {

using namespace std::string_literals;

TEST(MyReplace, ReplacesLeftToRightWithoutRescanningInsertedText) {
  const struct {
    std::string text, find, replacement, expected;
  } cases[] = {
      {"aaa", "a", "aa", "aaaaaa"},
      {"aaaa", "aaa", "b", "ba"},
      {"x--y---z", "--", "\x97", "x\x97y\x97-z"},
      {"one\rtwo", "", "x", "one\rtwo"},  // an empty find never matches
      {"a\0b\xff\0"s, "\0"s, "\x85",
       "a\x85"
       "b\xff\x85"},
  };
  for (const auto& c : cases) {
    std::string text = c.text;
    MyReplace(text, c.find, c.replacement);
    EXPECT_EQ(text, c.expected) << c.text;
  }
  EXPECT_EQ(CountOccurrences("aaaa", "aa"), 2u);
}

TEST(MyReplace, CaseInsensitiveFormsFollowWindows1252) {
  EXPECT_EQ(UpperCase("abc\xe0\xf7\xff\x9a"), "ABC\xc0\xf7\x9f\x8a");
  std::string text = "Search SEARCH search \xe9t\xc9";
  MyReplaceNoCaps(text, "search", "x");
  MyReplaceNoCaps(text, "\xc9T\xe9", "y");
  EXPECT_EQ(text, "x x x y");
  // The first matching pair wins at each position.
  text = "ab abc c ABx";
  MyReplaceMulti(text, {{"abc", "1"}, {"ab", "2"}, {"c", "3"}});
  EXPECT_EQ(text, "2 1 3 ABx");
  MyReplaceMulti(text, {{"ab", "longer text"}}, Case::kIgnore);
  EXPECT_EQ(text, "2 1 3 longer textx");
}

TEST(VHtmlLibrary, AnUnloadedLibraryRaisesError48) {
  VHtmlLibrary library;
  test::TempFolder empty;
  EXPECT_FALSE(library.Load(empty.str()));
  ClearActions();
  Trap("sub count", "m", [&] { library.count(); });
  EXPECT_NE(Actions().text[1].find(" in sub count(48) of module m"), std::string::npos);
}

}  // namespace
}  // namespace vireo
