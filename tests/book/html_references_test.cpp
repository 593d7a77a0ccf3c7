#include "book/html_references.h"

#include <gtest/gtest.h>

namespace vireo {
namespace {

std::string Numeric(std::string text) {
  HtmlToChar(text);
  return text;
}

std::string Named(std::string text) {
  HtmlConstToChar(text);
  return text;
}

TEST(HtmlToChar, NumericReferencesTakeTheirWindows1252Code) {
  EXPECT_EQ(Numeric("A&#66;C&#x44;&#X45;"), "ABCDE");
  EXPECT_EQ(Numeric("&#0;&#255;"), std::string("\0\xFF", 2));
  // 128 to 159 are read as Windows-1252; beyond 255 the character's code.
  EXPECT_EQ(Numeric("&#150;&#129;&#8364;&#x201C;"), "\x96\x81\x80\x93");
  EXPECT_EQ(Numeric("&#945;&#x10FFFF;&#55296;&#99999999999999999999;"), "????");
}

TEST(HtmlConstToChar, NamedReferencesOfHtml4) {
  EXPECT_EQ(Named("caf&eacute; &mdash; &euro;&nbsp;&lt;&gt;&quot;&amp;"),
            "caf\xE9 \x97 \x80\xA0<>\"&");
  EXPECT_EQ(Named("&OElig;&alpha;"), "\x8C?");
  EXPECT_EQ(Named("&amp;amp;"), "&amp;") << "never rescans what it wrote";
  EXPECT_EQ(Named("&amp;eacute;"), "&eacute;");
}

TEST(HtmlReferences, MalformedOrUnknownReferencesStay) {
  for (const char* text : {"&#;", "&#x;", "&#12", "& #12;", "&#12a;", "&#x12g;", "&", "&amp;"}) {
    EXPECT_EQ(Numeric(text), text);
  }
  for (const char* text : {"&EACUTE;", "&eacute", "&nosuch;", "&;", "& amp;", "&#233;"}) {
    EXPECT_EQ(Named(text), text);
  }
  EXPECT_EQ(Numeric("&#12&#65;"), "&#12A");
}

}  // namespace
}  // namespace vireo
