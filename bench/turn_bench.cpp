// A forward page turn in instant mode served from the cache, on the book
// canvas (offscreen) driven by the reader's logic: two copies out of the
// higher cache, the spread painted on screen, then the refill of that cache
// with the next spread, as a reader sees it.

#include <benchmark/benchmark.h>

#if defined(VIREO_BENCH_HAS_QT)
#include "reader_on_canvas.h"
#include "book/book_maker.h"

namespace vireo {
namespace {

std::string Prose(int paragraphs) {
  std::string text;
  for (int p = 0; p < paragraphs; ++p) {
    for (int s = 0; s < 8; ++s) {
      text += "The reader turns the page and finds the story waiting where it was left. ";
    }
    text += "\r\n\r\n";
  }
  return text;
}

void BM_InstantTurnFromCache(benchmark::State& state) {
  bench::ReaderOnCanvas on_canvas(
      "vireo-turn-bench", "INSTANTPAGETURN,True\r\n",
      EbookFile("stub", PackBody(PackableText(Prose(3000), TextEncoding::kWindows1252), "Author",
                                 "Title")));
  frmMain& reader = on_canvas.reader;
  const int last = reader.pages().count - 4;
  for (auto _ : state) {
    if (reader.current_page() >= last) {
      state.PauseTiming();
      reader.spread().ShowPage(1);
      state.ResumeTiming();
    }
    reader.spread().NextPage();
    // What the turn left to paint is painted, as back in the event loop.
    QCoreApplication::processEvents();
  }
  state.counters["pages"] = reader.pages().count;
}
BENCHMARK(BM_InstantTurnFromCache)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vireo
#endif
