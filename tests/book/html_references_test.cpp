#include "book/html_references.h"

#include <gtest/gtest.h>

namespace vireo {
namespace {

TEST(HtmlReferences, NumericTakeTheirWindows1252CodeNamedTheirHtml4OneAndMalformedOnesStay) {
  const struct {
    void (*convert)(std::string&);
    std::string text, expected;
  } cases[] = {
      {HtmlToChar, "A&#66;C&#x44;&#X45;", "ABCDE"},
      {HtmlToChar, "&#0;&#255;", std::string("\0\xFF", 2)},
      // 128 to 159 are read as Windows-1252; beyond 255 the character's code.
      {HtmlToChar, "&#150;&#129;&#8364;&#x201C;", "\x96\x81\x80\x93"},
      {HtmlToChar, "&#945;&#x10FFFF;&#55296;&#99999999999999999999;", "????"},
      {HtmlToChar, "&#12&#65;", "&#12A"},
      {HtmlConstToChar, "caf&eacute; &mdash; &euro;&nbsp;&lt;&gt;&quot;&amp;",
       "caf\xE9 \x97 \x80\xA0<>\"&"},
      {HtmlConstToChar, "&OElig;&alpha;", "\x8C?"},
      // Never rescans what it wrote.
      {HtmlConstToChar, "&amp;amp;", "&amp;"},
      {HtmlConstToChar, "&amp;eacute;", "&eacute;"},
  };
  for (const auto& c : cases) {
    std::string text = c.text;
    c.convert(text);
    EXPECT_EQ(text, c.expected) << c.text;
  }
  for (const char* text : {"&#;", "&#x;", "&#12", "& #12;", "&#12a;", "&#x12g;", "&", "&amp;"}) {
    std::string kept = text;
    HtmlToChar(kept);
    EXPECT_EQ(kept, text);
  }
  for (const char* text : {"&EACUTE;", "&eacute", "&nosuch;", "&;", "& amp;", "&#233;"}) {
    std::string kept = text;
    HtmlConstToChar(kept);
    EXPECT_EQ(kept, text);
  }
}

}  // namespace
}  // namespace vireo
