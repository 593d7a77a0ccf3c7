// The linear paginator against the literal one on random texts, tables and
// geometries: page starts, carried styles, the text, the events and the yields;
// and the block marks that drive its runs of ordinary words against the class
// table, for every byte.

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <tuple>

#include "fake_pump.h"
#include "layout/reindex.h"
#include "layout/word_run.h"
#include "literal_paginator.h"
#include "pagination_fixtures.h"

namespace vireo {
namespace {

using test::EventRecorder;
using test::LiteralPaginator;

struct Case {
  std::string text;
  clsFontMetrics metrics;
  InsertMode insert = InsertMode::kAllowed;
  int32_t first_page = 1;
  int32_t reading_position = 1;
  double line_width = 0;
  int16_t lines_per_page = 1;
  double line_height = 100;
  ImageHeightFunction heights;
};

struct Outcome {
  std::string text;
  PageIndex index;
  std::vector<std::string> events;
  int yields = 0;
};

Outcome RunFast(const Case& c) {
  Outcome out;
  out.text = c.text;
  out.index.count = c.first_page;
  clsReindex reindex;
  reindex.FontMetrics() = c.metrics;
  EventRecorder recorder(out.index, [&] { return reindex.Busy(); });
  test::RecordingPump pump;
  reindex.SetEvents(&recorder);
  reindex.SetMessagePump(&pump);
  reindex.SetImageHeights(c.heights);
  reindex.NewReindexFile(out.text, c.insert, out.index, c.reading_position, c.line_width,
                         c.lines_per_page, c.line_height);
  out.events = recorder.events;
  out.yields = pump.yields;
  return out;
}

Outcome RunLiteral(const Case& c) {
  Outcome out;
  out.text = c.text;
  out.index.count = c.first_page;
  LiteralPaginator literal;
  literal.metrics = c.metrics;
  EventRecorder recorder(out.index, [&] { return literal.busy; });
  literal.events = &recorder;
  literal.image_heights = c.heights;
  literal.NewReindexFile(out.text, c.insert == InsertMode::kAllowed, out.index, c.reading_position,
                         c.line_width, c.lines_per_page, c.line_height);
  out.events = recorder.events;
  out.yields = literal.yields;
  return out;
}

class Generator {
 public:
  explicit Generator(uint32_t seed) : random_(seed) {}

  int Int(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
  bool Chance(int percent) { return Int(1, 100) <= percent; }

  std::string Letters(int length) {
    std::string word;
    for (int i = 0; i < length; ++i) word += static_cast<char>('a' + Int(0, 25));
    return word;
  }

  // Prose with every kind of code the paginator reads.
  std::string AnyText() {
    std::string text;
    const int tokens = Int(0, 120);
    for (int i = 0; i < tokens; ++i) {
      if (!text.empty()) text += Chance(90) ? " " : "  ";
      const int kind = Int(0, 99);
      if (kind < 50) {
        text += Letters(Int(1, 8));
      } else if (kind < 58) {
        text += Letters(Int(15, 50));
      } else if (kind < 64) {
        text += Letters(Int(0, 4)) + "-" + Letters(Int(0, 4)) + (Chance(30) ? "-" : "");
      } else if (kind < 72) {
        text += "\n";
      } else if (kind < 84) {
        text += static_cast<char>(Int(128, 136)) + Letters(Int(0, 5));
        if (Chance(40)) text += static_cast<char>(Int(128, 136));
      } else if (kind < 88) {
        text += "\x86";
      } else if (kind < 94) {
        text += Letters(Int(0, 2)) + "[IMG=" + std::to_string(Int(0, 4)) + (Chance(80) ? "]" : "");
      } else if (kind < 96) {
        text += Letters(1) + std::string(1, '\0') + Letters(1);
      } else {
        text += Letters(Int(2, 6)) + "\n" + Letters(Int(0, 30));
      }
    }
    if (Chance(10) && !text.empty()) text.insert(0, " ");
    return text;
  }

  clsFontMetrics Metrics(bool allow_negative) {
    const int mode = Int(0, 2);
    return test::MetricsOf([&](int, bool) {
      // Whole numbers fit exactly; fractions make sums depend on their order.
      double width = mode == 0   ? Int(5, 20) * 10.0
                     : mode == 1 ? Int(0, 3000) / 7.0
                                 : Int(0, 2) * 75.0;
      if (allow_negative && Chance(5)) width = -width - 1;
      return width;
    });
  }

  Case AnyCase() {
    Case c;
    c.text = AnyText();
    c.metrics = Metrics(Chance(10));
    c.insert = Chance(80) ? InsertMode::kAllowed : InsertMode::kNotAllowed;
    c.first_page = Chance(30) ? 2 : 1;
    c.reading_position = Int(0, static_cast<int>(c.text.size()) + 2);
    c.line_width = Chance(50) ? Int(0, 40) * 100.0 : Int(0, 400000) / 97.0;
    static constexpr int16_t kLines[] = {-1, 0, 1, 1, 2, 3, 3, 5, 8, 30};
    c.lines_per_page = kLines[Int(0, 9)];
    static constexpr double kLineHeights[] = {100, 100, 240, 0};
    c.line_height = kLineHeights[Int(0, 3)];
    static constexpr double kHeights[] = {0, 50, 150, 250, 290, 1000, 5000};
    const int missing = Int(0, 4);
    const double height = kHeights[Int(0, 6)];
    c.heights = [missing, height](int32_t n) -> std::optional<double> {
      if (n == missing) return std::nullopt;
      return height + n * 100;
    };
    return c;
  }

 private:
  std::mt19937 random_;
};

void ExpectSame(const Outcome& fast, const Outcome& literal, int case_number) {
  SCOPED_TRACE("case " + std::to_string(case_number));
  ASSERT_EQ(fast.index.count, literal.index.count);
  ASSERT_EQ(fast.index.UpperBound(), literal.index.UpperBound());
  const auto page = [](const PageIndex& index, int32_t p) {
    return std::tuple(index.PageStart(p), index.Bold(p), index.Italic(p), index.Underline(p));
  };
  for (int32_t p = 1; p <= fast.index.UpperBound(); ++p) {
    ASSERT_EQ(page(fast.index, p), page(literal.index, p)) << "page " << p;
  }
  ASSERT_EQ(fast.text, literal.text);
  ASSERT_EQ(fast.events, literal.events);
  ASSERT_EQ(fast.yields, literal.yields);
}

TEST(ReindexProperties, LinearPaginatorMatchesTheLiteralRules) {
  Generator generator(20240611);
  for (int i = 0; i < 1500; ++i) {
    const Case c = generator.AnyCase();
    ExpectSame(RunFast(c), RunLiteral(c), i);
    if (HasFatalFailure()) return;
  }
}

TEST(WordRun, BlockMarksAgreeWithTheClassTableForEveryByte) {
  std::array<unsigned char, kRunBlock> block{};
  for (int base = 0; base < 256; base += kRunBlock) {
    for (size_t i = 0; i < kRunBlock; ++i) block[i] = static_cast<unsigned char>(base + i);
    EXPECT_EQ(MarkBlock(block.data()), MarkBlockBytewise(block.data())) << "bytes from " << base;
  }
  std::mt19937 random(5);
  for (int round = 0; round < 2000; ++round) {
    for (auto& byte : block) byte = static_cast<unsigned char>(random());
    ASSERT_EQ(MarkBlock(block.data()), MarkBlockBytewise(block.data()));
  }
}

}  // namespace
}  // namespace vireo
