// Fuzzes the paginator: random text bytes, font tables and page geometry.
// No crash, no hang; the page index stays within the text; on small inputs
// it equals the literal rules (tests/layout/literal_paginator.h); on
// ordinary prose the page starts strictly increase on delimiters.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "../layout/literal_paginator.h"
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

uint8_t Byte(const uint8_t*& data, size_t& size) {
  if (size == 0) return 0;
  --size;
  return *data++;
}

// Tables from a seed: whole, fractional or partly zero and negative widths.
clsFontMetrics Tables(uint32_t seed, uint8_t mode) {
  clsFontMetrics metrics;
  for (int style = 0; style < 4; ++style) {
    std::array<double, clsFontMetrics::kTableSize> table;
    for (double& width : table) {
      seed ^= seed << 13;
      seed ^= seed >> 17;
      seed ^= seed << 5;
      switch (mode % 4) {
        case 0:
          width = 50 + seed % 150;
          break;
        case 1:
          width = (seed % 3000) / 7.0;
          break;
        case 2:
          width = (seed % 3) * 75.0;
          break;
        default:
          width = static_cast<double>(seed % 400) - 40;
          break;
      }
    }
    metrics.SetTable(style & 1, style & 2, table);
  }
  return metrics;
}

Input Decode(const uint8_t* data, size_t size) {
  Input in;
  const uint8_t flags = Byte(data, size);
  in.title_page = flags & 1;
  in.insert = (flags & 2) == 0;
  in.lines_per_page = static_cast<int16_t>(static_cast<int8_t>(Byte(data, size)) % 40);
  in.line_width = (Byte(data, size) << 8 | Byte(data, size)) * ((flags & 4) ? 1.0 : 1 / 3.0);
  static constexpr double kLineHeights[] = {100, 240, 0, 77.5};
  in.line_height = kLineHeights[Byte(data, size) % 4];
  in.image_height = Byte(data, size) * 10.0;
  in.reading_position = Byte(data, size) << 8 | Byte(data, size);
  uint32_t seed = 1;
  for (int i = 0; i < 4; ++i) seed = seed * 131 + Byte(data, size);
  in.metrics = Tables(seed | 1, flags >> 3);
  in.text.assign(reinterpret_cast<const char*>(data), size);
  return in;
}

// Prose for which page starts must strictly increase: no hyphen, image or
// page break, no delimiter at the start, and every word fits a line in any
// style (so none is split and the first one never opens a page).
bool Ordinary(const Input& in) {
  const std::string& text = in.text;
  if (text.size() < 2 || in.lines_per_page < 1 || text[0] == ' ' || text[0] == '\n') return false;
  if (text.find_first_of("-[\x86") != std::string::npos) return false;
  double widest_space = 0;
  std::array<double, 256> widest{};
  for (int style = 0; style < 4; ++style) {
    const auto& table = in.metrics.Table(style & 1, style & 2);
    for (int code = 1; code < 256; ++code) {
      widest[code] = std::max(widest[code], table[code - 1]);
    }
  }
  widest_space = widest[' '];
  double word = 0;
  for (char c : text) {
    if (c == ' ') {
      word = 0;
      continue;
    }
    word += widest[static_cast<unsigned char>(c)];
    if (word + widest_space > in.line_width) return false;
  }
  return true;
}

void Check(bool condition, const char* what) {
  if (!condition) {
    fprintf(stderr, "paginator_fuzz: %s\n", what);
    abort();
  }
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
  // The first text page starts at 1 even in an empty text; the others lie
  // within the text, except that an image ending the text opens its page at
  // the length before its second insertion, which removes a character when
  // the page has no lines (a count below 1 replaces it with nothing).
  for (int32_t p = (in.title_page ? 3 : 2); p <= index.count; ++p) {
    Check(index.PageStart(p) >= 0 && index.PageStart(p) <= static_cast<int32_t>(text.size()) + 1,
          "page start outside the text");
  }

  // The literal rules are quadratic, and log every code 0 they measure (an
  // exception each): compared on small texts without code 0 only.
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
    Check(literal_index.count == index.count, "page count differs from the literal rules");
    for (int32_t p = 1; p <= index.count; ++p) {
      Check(literal_index.PageStart(p) == index.PageStart(p) &&
                literal_index.Bold(p) == index.Bold(p) &&
                literal_index.Italic(p) == index.Italic(p) &&
                literal_index.Underline(p) == index.Underline(p),
            "page differs from the literal rules");
    }
  }

  if (Ordinary(in)) {
    const int32_t first = in.title_page ? 2 : 1;
    const auto length = static_cast<int32_t>(text.size());
    Check(index.PageStart(first) == 1, "first text page does not start at 1");
    for (int32_t p = first + 1; p <= index.count; ++p) {
      const int32_t start = index.PageStart(p);
      Check(start > index.PageStart(p - 1), "page starts do not increase");
      if (p < index.count || start < length) {
        const char at = text[static_cast<size_t>(start - 1)];
        Check(at == ' ' || at == '\n', "page starts inside a word");
      }
    }
  }
  return 0;
}
