// Pagination of a ~5 MB book with real font tables, against a bare
// width-table word-wrap pass over the same text; and building the font
// tables from a real font (needs the Qt front end).
//
// Text: bin/samples/kjv.txt when the build made it, else generated prose.

#include <benchmark/benchmark.h>

#include <fstream>
#include <random>
#include <sstream>
#include <string>

#include "layout/reindex.h"

#ifdef VIREO_BENCH_HAS_QT
#include "bench_qt.h"

#include "render/qt_surface_qt.h"
#endif

namespace vireo {
namespace {

constexpr double kLineWidthTwips = 6000;  // 400 pixels
constexpr int16_t kLinesPerPage = 30;

std::string GeneratedProse(size_t size) {
  std::mt19937 random(42);
  std::string text;
  text.reserve(size + 64);
  while (text.size() < size) {
    const int length = 1 + static_cast<int>(std::geometric_distribution<int>(0.25)(random)) % 14;
    for (int i = 0; i < length; ++i) text += static_cast<char>('a' + random() % 26);
    text += random() % 40 == 0 ? " \n " : " ";
  }
  return text;
}

const std::string& BookText() {
  static const std::string text = [] {
    std::ifstream file(VIREO_BIN_DIR "/samples/kjv.txt", std::ios::binary);
    if (file) {
      std::ostringstream content;
      content << file.rdbuf();
      if (content.str().size() > 1'000'000) return content.str();
    }
    return GeneratedProse(5'000'000);
  }();
  return text;
}

#ifdef VIREO_BENCH_HAS_QT
void EnsureApplication() { bench::EnsureApplication(); }
#endif

// Tables of "Times New Roman" 12 pt when Qt is built in; otherwise a
// proportional stand-in with widths of that font's size (about 100 twips).
const clsFontMetrics& BookFont() {
  static const clsFontMetrics metrics = [] {
    clsFontMetrics tables;
#ifdef VIREO_BENCH_HAS_QT
    EnsureApplication();
    QtSurface surface(16, 16);
    surface.SetFontName("Times New Roman");
    surface.SetFontSize(12);
    tables.MakeArrays(surface);
#else
    for (int style = 0; style < 4; ++style) {
      std::array<double, clsFontMetrics::kTableSize> table;
      for (int code = 1; code <= 255; ++code) table[code - 1] = 60 + (code * 37 % 120) + style * 5;
      tables.SetTable(style & 1, style & 2, table);
    }
#endif
    return tables;
  }();
  return metrics;
}

void BM_Paginate(benchmark::State& state) {
  std::string text = BookText();
  clsReindex reindex;
  reindex.FontMetrics() = BookFont();
  int32_t pages = 0;
  for (auto _ : state) {
    PageIndex index;
    reindex.NewReindexFile(text, InsertMode::kAllowed, index, 1, kLineWidthTwips, kLinesPerPage,
                           240);
    pages = index.count;
    benchmark::DoNotOptimize(index);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
  state.counters["pages"] = pages;
}
BENCHMARK(BM_Paginate)->Unit(benchmark::kMillisecond);

// The floor: one pass, a table look-up per byte, a branch per blank; lines
// broken where the next word does not fit.
void BM_BareWordWrap(benchmark::State& state) {
  const std::string& text = BookText();
  const auto& table = BookFont().Table(false, false);
  const double space = table[' ' - 1];
  int64_t pages = 0;
  for (auto _ : state) {
    double line = 0;
    double word = 0;
    int64_t lines = 0;
    for (char c : text) {
      const auto code = static_cast<unsigned char>(c);
      if (code == ' ') {
        if (line + word + space > kLineWidthTwips) {
          ++lines;
          line = 0;
        }
        line += word + space;
        word = 0;
      } else if (code != 0) {
        word += table[code - 1];
      }
    }
    pages = lines / kLinesPerPage + 1;
    benchmark::DoNotOptimize(pages);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
  state.counters["pages"] = static_cast<double>(pages);
}
BENCHMARK(BM_BareWordWrap)->Unit(benchmark::kMillisecond);

#ifdef VIREO_BENCH_HAS_QT
// A font change: the book font at a size the process has not measured yet
// in most iterations (sizes cycle through 6 to 40 points in steps of 0.25).
void BM_MakeArraysRealFont(benchmark::State& state) {
  EnsureApplication();
  QtSurface surface(16, 16);
  surface.SetFontName("Times New Roman");
  double size = 6;
  for (auto _ : state) {
    size = size >= 40 ? 6 : size + 0.25;
    surface.SetFontSize(size);
    clsFontMetrics metrics;
    metrics.MakeArrays(surface);
    benchmark::DoNotOptimize(metrics);
  }
}
BENCHMARK(BM_MakeArraysRealFont)->Unit(benchmark::kMillisecond);
#endif

}  // namespace
}  // namespace vireo
