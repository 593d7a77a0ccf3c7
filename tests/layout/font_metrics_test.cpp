#include "layout/font_metrics.h"

#include <gtest/gtest.h>

#include <string>

#include "fake_surface.h"
#include "layout/metrics_file.h"
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

// A metrics file line: the width of code 1, then that of codes 2..255.
std::string Line(double first, double rest, const char* separator = " ") {
  std::string line = std::to_string(first);
  for (int i = 1; i < 255; ++i) line.append(separator).append(std::to_string(rest));
  return line + "\n";
}

TEST(MetricsFile, FourLinesOfWidthsReadBackExactly) {
  std::string error;
  auto metrics = ParseMetricsFile(
      Line(1, 10) + "\n" + Line(2, 20, ",") + Line(3, 30, "\t") + Line(4, 40.5), error);
  ASSERT_TRUE(metrics) << error;
  EXPECT_EQ(metrics->CharWidth(false, false, "\x01"), 1);
  EXPECT_EQ(metrics->CharWidth(true, false, "\x01"), 2);
  EXPECT_EQ(metrics->CharWidth(false, true, "a"), 30);
  EXPECT_EQ(metrics->CharWidth(true, true, "a"), 40.5);
  EXPECT_EQ(metrics->widest(), 10);
  std::array<double, clsFontMetrics::kTableSize> odd;
  for (size_t i = 0; i < odd.size(); ++i) odd[i] = (i + 1) / 7.0;
  metrics->SetTable(false, true, odd);
  const auto again = ParseMetricsFile(FormatMetricsFile(*metrics), error);
  ASSERT_TRUE(again) << error;
  for (int style = 0; style < 4; ++style) {
    EXPECT_EQ(again->Table(style & 1, style & 2), metrics->Table(style & 1, style & 2));
  }
}

TEST(MetricsFile, BadFilesSayWhy) {
  std::string error;
  EXPECT_FALSE(ParseMetricsFile(Line(1, 10) + Line(2, 20) + Line(3, 30), error));
  EXPECT_EQ(error, "3 lines of widths, not four");
  EXPECT_FALSE(ParseMetricsFile(Line(1, 10) + "1 2 3\n", error));
  EXPECT_FALSE(ParseMetricsFile(Line(1, 10) + "1 x2 3\n", error));
  EXPECT_EQ(error, "\"x2\" is not a width");
  EXPECT_FALSE(ParseMetricsFile(Line(1, 10) + "nan\n", error));
  EXPECT_FALSE(
      ParseMetricsFile(Line(1, 10) + Line(2, 20) + Line(3, 30) + Line(4, 40) + Line(5, 5), error));
}

}  // namespace
}  // namespace vireo
