#include "layout/metrics_file.h"

#include <gtest/gtest.h>

#include <string>

namespace vireo {
namespace {

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
