// Composing one page of prose into a page surface: the composer's word loop,
// line drawing in runs, justification and search highlighting.

#include <benchmark/benchmark.h>

#include <array>
#include <string>

#include "layout/font_metrics.h"
#include "render/print_page.h"
#include "render/surface.h"
#include "support/user_interaction.h"

namespace vireo {
namespace {

// Widths in twips of a 10-point serif face, roughly: narrow i, l, t and
// punctuation, wide m and w, capitals wider than small letters.
std::array<double, clsFontMetrics::kTableSize> SerifWidths(double scale) {
  std::array<double, clsFontMetrics::kTableSize> widths{};
  for (int code = 1; code <= clsFontMetrics::kTableSize; ++code) {
    double width = 100;
    if (code == ' ') width = 50;
    if (code >= 'a' && code <= 'z') width = 88;
    if (code >= 'A' && code <= 'Z') width = 130;
    if (std::string_view("iljt.,;:'!").find(static_cast<char>(code)) != std::string_view::npos) {
      width = 55;
    }
    if (code == 'm' || code == 'w' || code == 'M' || code == 'W') width = 150;
    widths[code - 1] = code == '\n' ? 0 : width * scale;
  }
  return widths;
}

// A page buffer stand-in: measures like a real surface (one table sum per
// call) and draws nothing.
class MeasuringSurface : public Surface {
 public:
  explicit MeasuringSurface(const clsFontMetrics& metrics) : metrics_(metrics) {}
  void SetFontName(std::string_view) override {}
  void SetFontSize(double points) override { size_ = points; }
  double FontSize() const override { return size_; }
  void SetFontBold(bool on) override { bold_ = on; }
  void SetFontItalic(bool on) override { italic_ = on; }
  void SetFontUnderline(bool on) override { underline_ = on; }
  bool FontBold() const override { return bold_; }
  bool FontItalic() const override { return italic_; }
  bool FontUnderline() const override { return underline_; }
  double TextWidth(std::string_view text) const override {
    double width = 0;
    for (const char c : text)
      width += metrics_.Width(bold_, italic_, static_cast<unsigned char>(c));
    return width;
  }
  double TextHeight(std::string_view) const override { return 270; }
  double ScaleWidth() const override { return 6000; }
  double ScaleHeight() const override { return 9000; }
  void DrawText(std::string_view text) override {
    benchmark::DoNotOptimize(text.data());
    ++runs_;
    SetCurrentX(CurrentX() + TextWidth(text));
  }
  void Clear() override {}
  int runs() const { return runs_; }

 private:
  const clsFontMetrics& metrics_;
  double size_ = 10;
  bool bold_ = false;
  bool italic_ = false;
  bool underline_ = false;
  int runs_ = 0;
};

class NoPump : public MessagePump {
 public:
  void Yield() override {}
  void SleepMilliseconds(int) override {}
};

// About 2 KB of prose in the book's own form: paragraph marks, an indent,
// italics, a hyphenated word and an em dash.
std::string PageOfProse() {
  const std::string paragraph =
      "It was the best of times, it was the worst of times, it was the age of wisdom, it "
      "was the age of foolishness, it was the epoch of belief, it was the epoch of "
      "incredulity, it was the season of \x82Light\x83, it was the season of Darkness \x97 "
      "it was the spring of hope, it was the winter of despair; a well-known story of "
      "two cities and the people who lived in them.";
  std::string text;
  while (text.size() < 2000) text += paragraph + " \n ";
  return text;
}

clsFontMetrics SerifMetrics() {
  clsFontMetrics metrics;
  metrics.SetTable(false, false, SerifWidths(1.0));
  metrics.SetTable(true, false, SerifWidths(1.1));
  metrics.SetTable(false, true, SerifWidths(0.95));
  metrics.SetTable(true, true, SerifWidths(1.05));
  return metrics;
}

void BM_ComposeOnePage(benchmark::State& state) {
  const clsFontMetrics metrics = SerifMetrics();
  MeasuringSurface surface(metrics);
  NoPump pump;
  clsPrintPage composer(pump);

  PageSettings settings;
  settings.page_text = PageOfProse();
  settings.justify = state.range(0) != 0;
  settings.line_width = 5200;
  settings.left = 400;
  settings.top = 300;
  settings.lines_per_page = 40;
  settings.line_step = 18;
  settings.search_term = state.range(1) != 0 ? "season" : "";

  for (auto _ : state) {
    composer.DisplayPage(settings, surface, metrics);
    benchmark::DoNotOptimize(surface.CurrentY());
  }
  state.counters["lines"] = static_cast<double>(composer.lines().size());
  state.counters["bytes"] = static_cast<double>(settings.page_text.size());
}
BENCHMARK(BM_ComposeOnePage)
    ->ArgNames({"justify", "search"})
    ->Args({0, 0})
    ->Args({1, 0})
    ->Args({1, 1})
    ->Unit(benchmark::kMicrosecond);

// A page whose text is one word without a blank of range(0) characters (as
// the last page of a book made of one long run is): the page fills with
// pieces of it, each cut off the rest in one pass over the piece.
void BM_ComposeLongWord(benchmark::State& state) {
  const clsFontMetrics metrics = SerifMetrics();
  MeasuringSurface surface(metrics);
  NoPump pump;
  clsPrintPage composer(pump);

  PageSettings settings;
  settings.page_text = std::string(static_cast<size_t>(state.range(0)), 'a');
  settings.line_width = 5200;
  settings.lines_per_page = 40;
  for (auto _ : state) {
    composer.DisplayPage(settings, surface, metrics);
    benchmark::DoNotOptimize(surface.CurrentY());
  }
  state.SetBytesProcessed(state.iterations() * state.range(0));
  state.counters["lines"] = static_cast<double>(composer.lines().size());
}
BENCHMARK(BM_ComposeLongWord)
    ->ArgName("characters")
    ->Arg(64 << 10)
    ->Arg(256 << 10)
    ->Arg(1 << 20)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vireo
