// Re-layout as a reader feels it, on the King James ebook: from the command
// (font size up or down, a page-mode switch, a new window width) to the new
// spread on screen. The rest of the book is paginated afterwards within the
// same command; the counters give when that finished and the longest time
// input waited in between.

#include <benchmark/benchmark.h>

#if defined(VIREO_BENCH_HAS_QT)
#include "reader_on_canvas.h"

namespace vireo {
namespace {

enum Change { kFontSize, kPageMode, kWindowWidth };

void Apply(Change change, frmMain& reader, bench::TimedWindowView& view, bool there) {
  switch (change) {
    case kFontSize:
      there ? reader.view_commands().cmdBiggerFont_Click()
            : reader.view_commands().cmdSmallerFont_Click();
      break;
    case kPageMode:
      reader.view_commands().SwitchPageMode(there);
      break;
    case kWindowWidth:
      view.SetWindowWidth(there ? 12000 : 9500);
      reader.view_commands().Form_Resize();
      break;
  }
}

double Milliseconds(bench::Clock::duration duration) {
  return std::chrono::duration<double, std::milli>(duration).count();
}

void BM_Relayout(benchmark::State& state) {
  const auto change = static_cast<Change>(state.range(0));
  bench::ReaderOnCanvas on_canvas("vireo-relayout-bench", "",
                                  bench::ReadFile(VIREO_BIN_DIR "/Bible"));
  frmMain& reader = on_canvas.reader;
  reader.spread().ShowPage(reader.pages().count / 2);  // somewhere in the middle
  bool there = true;
  double paginated = 0, longest_wait = 0;
  for (auto _ : state) {
    on_canvas.pump.Restart();
    const bench::Clock::time_point start = bench::Clock::now();
    Apply(change, reader, on_canvas.view, there);
    QCoreApplication::processEvents();
    if (on_canvas.view.first_spread < start) {
      state.SkipWithError("the change drew no new spread");
      break;
    }
    state.SetIterationTime(
        std::chrono::duration<double>(on_canvas.view.first_spread - start).count());
    paginated = std::max(paginated, Milliseconds(on_canvas.view.pagination_finished - start));
    longest_wait = std::max(longest_wait, Milliseconds(on_canvas.pump.longest_gap));
    there = !there;
  }
  state.counters["paginated_ms"] = paginated;
  state.counters["longest_wait_ms"] = longest_wait;
}
BENCHMARK(BM_Relayout)
    ->ArgName("change")
    ->Arg(kFontSize)
    ->Arg(kPageMode)
    ->Arg(kWindowWidth)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(6);

}  // namespace
}  // namespace vireo
#endif
