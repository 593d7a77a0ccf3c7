#include "layout/metrics_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace vireo {
namespace {

constexpr int kStyles = 4;
constexpr const char* kStyleNames[kStyles] = {"plain", "bold", "italic", "bold-italic"};

bool IsSeparator(char c) { return c == ' ' || c == '\t' || c == ',' || c == '\r'; }

// The numbers of one line, or an error naming the first bad field.
bool ParseLine(std::string_view line, std::vector<double>& numbers, std::string& error) {
  numbers.clear();
  size_t i = 0;
  while (i < line.size()) {
    while (i < line.size() && IsSeparator(line[i])) ++i;
    if (i == line.size()) break;
    size_t end = i;
    while (end < line.size() && !IsSeparator(line[end])) ++end;
    const std::string field(line.substr(i, end - i));
    char* stop = nullptr;
    const double value = std::strtod(field.c_str(), &stop);
    if (stop != field.c_str() + field.size() || !std::isfinite(value)) {
      error = "\"" + field + "\" is not a width";
      return false;
    }
    numbers.push_back(value);
    i = end;
  }
  return true;
}

}  // namespace

std::optional<clsFontMetrics> ParseMetricsFile(std::string_view content, std::string& error) {
  clsFontMetrics metrics;
  int style = 0;
  std::vector<double> numbers;
  size_t start = 0;
  while (start <= content.size()) {
    size_t end = content.find('\n', start);
    if (end == std::string_view::npos) end = content.size();
    const std::string_view line = content.substr(start, end - start);
    start = end + 1;
    if (!ParseLine(line, numbers, error)) return std::nullopt;
    if (numbers.empty()) continue;
    if (style == kStyles) {
      error = "more than four lines of widths";
      return std::nullopt;
    }
    if (numbers.size() != clsFontMetrics::kTableSize) {
      error = fmt::format("the {} line has {} widths, not 255", kStyleNames[style], numbers.size());
      return std::nullopt;
    }
    std::array<double, clsFontMetrics::kTableSize> table;
    std::copy(numbers.begin(), numbers.end(), table.begin());
    metrics.SetTable((style & 1) != 0, (style & 2) != 0, table);
    ++style;
  }
  if (style != kStyles) {
    error = fmt::format("{} lines of widths, not four", style);
    return std::nullopt;
  }
  return metrics;
}

std::string FormatMetricsFile(const clsFontMetrics& metrics) {
  std::string out;
  for (int style = 0; style < kStyles; ++style) {
    const auto& table = metrics.Table((style & 1) != 0, (style & 2) != 0);
    for (size_t i = 0; i < table.size(); ++i) {
      if (i > 0) out += ' ';
      out += fmt::format("{}", table[i]);
    }
    out += '\n';
  }
  return out;
}

}  // namespace vireo
