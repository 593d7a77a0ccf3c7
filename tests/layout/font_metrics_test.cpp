#include "layout/font_metrics.h"

#include <gtest/gtest.h>

#include "fake_surface.h"
#include "support/logging.h"

namespace vireo {
namespace {

// A fake whose characters differ: code c is c twips wide in plain, and bold
// adds 20, italic 10 (FakeSurface's extras) per character.
class CodeWidthSurface : public test::FakeSurface {
 public:
  double TextWidth(std::string_view text) const override {
    ++width_queries;
    double total = 0;
    for (char c : text) {
      total +=
          static_cast<unsigned char>(c) + (bold ? bold_extra : 0) + (italic ? italic_extra : 0);
    }
    return total;
  }
};

TEST(FontMetrics, MakeArraysMeasuresEveryCodeButLineFeedInFourStyles) {
  CodeWidthSurface surface;
  surface.SetFontUnderline(true);
  clsFontMetrics metrics;
  metrics.MakeArrays(surface);
  EXPECT_EQ(surface.width_queries, 4 * 254);
  EXPECT_EQ(metrics.CharWidth(false, false, "A"), 65);
  EXPECT_EQ(metrics.CharWidth(true, false, "A"), 85);
  EXPECT_EQ(metrics.CharWidth(false, true, "A"), 75);
  EXPECT_EQ(metrics.CharWidth(true, true, "\n"), 0);
  // Underline, on while measuring, is left off with bold and italic on.
  EXPECT_TRUE(surface.FontBold() && surface.FontItalic());
  EXPECT_FALSE(surface.FontUnderline());
  EXPECT_EQ(metrics.widest(), 255) << "from the plain table only (bold-italic 255 is 285 wide)";
  EXPECT_EQ(metrics.WordWidth(true, true, "AB\n"), 95 + 96);
  // Code 0 is logged and counts nothing.
  ClearActions();
  EXPECT_EQ(metrics.WordWidth(false, false, std::string_view("A\0B", 3)), 65 + 66);
  EXPECT_EQ(Actions().text[1],
            "Subscript out of range in function charwidth(9) of module clsFontMetrics");
}

}  // namespace
}  // namespace vireo
