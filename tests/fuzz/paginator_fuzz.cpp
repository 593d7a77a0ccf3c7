// Fuzzes the paginator on random text bytes, font tables and page geometry:
// no crash, no hang, page starts within the text, the literal rules on small inputs.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "../layout/literal_paginator.h"
#include "../layout/pagination_fixtures.h"
#include "fuzz_support.h"
#include "layout/reindex.h"

namespace {

using vireo::clsFontMetrics;
using vireo::PageIndex;

struct Input {
  std::string text;
  clsFontMetrics metrics;
  bool title_page = false;
  bool insert = true;
  int16_t lines_per_page = 1;
  double line_width = 0;
  double line_height = 100;
  double image_height = 0;
  int32_t reading_position = 1;
};

using vireo::fuzz::Check;
using vireo::fuzz::TakeByte;

Input Decode(const uint8_t* data, size_t size) {
  Input in;
  const uint8_t flags = TakeByte(data, size);
  in.title_page = flags & 1;
  in.insert = (flags & 2) == 0;
  in.lines_per_page = static_cast<int16_t>(static_cast<int8_t>(TakeByte(data, size)) % 40);
  in.line_width =
      (TakeByte(data, size) << 8 | TakeByte(data, size)) * ((flags & 4) ? 1.0 : 1 / 3.0);
  static constexpr double kLineHeights[] = {100, 240, 0, 77.5};
  in.line_height = kLineHeights[TakeByte(data, size) % 4];
  in.image_height = TakeByte(data, size) * 10.0;
  in.reading_position = TakeByte(data, size) << 8 | TakeByte(data, size);
  uint32_t seed = 1;
  for (int i = 0; i < 4; ++i) seed = seed * 131 + TakeByte(data, size);
  in.metrics = vireo::fuzz::ModeTables(seed | 1, flags >> 3, 50, 150, 1, 75);
  in.text.assign(reinterpret_cast<const char*>(data), size);
  return in;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  vireo::fuzz::StartUp();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size > 20000) return 0;
  const Input in = Decode(data, size);
  const auto heights = [&in](int32_t n) -> std::optional<double> {
    if (n == 3) return std::nullopt;
    return in.image_height + n;
  };

  std::string text = in.text;
  PageIndex index;
  index.count = in.title_page ? 2 : 1;
  vireo::clsReindex reindex;
  reindex.FontMetrics() = in.metrics;
  reindex.SetImageHeights(heights);
  reindex.NewReindexFile(
      text, in.insert ? vireo::InsertMode::kAllowed : vireo::InsertMode::kNotAllowed, index,
      in.reading_position, in.line_width, in.lines_per_page, in.line_height);
  Check(!reindex.Busy(), "busy after the end");
  Check(index.count >= (in.title_page ? 2 : 1), "fewer pages than the first");
  // One past the end is allowed: a closing image may shorten the text after opening its page.
  for (int32_t p = (in.title_page ? 3 : 2); p <= index.count; ++p) {
    Check(index.PageStart(p) >= 0 && index.PageStart(p) <= static_cast<int32_t>(text.size()) + 1,
          "page start outside the text");
  }

  // The literal rules are quadratic and log each code 0 they measure: small texts without it.
  if (size <= 1200 && in.text.find('\0') == std::string::npos) {
    std::string literal_text = in.text;
    PageIndex literal_index;
    literal_index.count = in.title_page ? 2 : 1;
    vireo::test::LiteralPaginator literal;
    literal.metrics = in.metrics;
    literal.image_heights = heights;
    literal.NewReindexFile(literal_text, in.insert, literal_index, in.reading_position,
                           in.line_width, in.lines_per_page, in.line_height);
    Check(literal_text == text, "text differs from the literal rules");
    Check(vireo::test::DumpPages(literal_index) == vireo::test::DumpPages(index),
          "page index differs from the literal rules");
  }
  return 0;
}
