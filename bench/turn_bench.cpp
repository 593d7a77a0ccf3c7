// A forward page turn in instant mode served from the cache, on the book
// canvas (offscreen) driven by the reader's logic: two copies out of the
// higher cache, the spread painted on screen, then the refill of that cache
// with the next spread, as a reader sees it.

#include <benchmark/benchmark.h>

#if defined(VIREO_BENCH_HAS_QT)
#include <filesystem>
#include <fstream>

#include "app/book_canvas_widget.h"
#include "app/control_bar_widget.h"
#include "app/frm_main.h"
#include "app/headless_window.h"
#include "app/interaction_qt.h"
#include "bench_qt.h"
#include "book/book_maker.h"
#include "support/logging.h"
#include "support/vhtml_library.h"

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
  bench::EnsureApplication();
  TheVHtml().Load(VIREO_BIN_DIR);
  SetLoggingDisabled(true);
  const auto folder = std::filesystem::temp_directory_path() / "vireo-turn-bench";
  std::filesystem::create_directories(folder);
  qputenv("XDG_DATA_HOME", (folder / "xdg").string().c_str());
  {
    std::ofstream settings(folder / "Vireo.ini", std::ios::binary);
    settings << "INSTANTPAGETURN,True\r\n";
    std::ofstream book(folder / "Book", std::ios::binary);
    book << EbookFile(
        "stub", PackBody(PackableText(Prose(3000), TextEncoding::kWindows1252), "Author", "Title"));
  }
  StderrInteraction user;
  QtMessagePump pump;
  HeadlessWindowView view;
  BookCanvasWidget canvas;
  // The lamp repaints itself at every change, as on the window's control bar.
  ControlBarWidget bar(&canvas);
  canvas.SetLampWidget(bar.Shape1);
  frmMain reader(view, canvas, user, pump,
                 ProgramLocation{folder.string(), (folder / "Book").string()});
  reader.lifecycle().Form_Load();
  canvas.resize(static_cast<int>(view.size.width / BookCanvasWidget::kTwipsPerPixel),
                static_cast<int>(view.size.height / BookCanvasWidget::kTwipsPerPixel));
  canvas.show();
  QCoreApplication::processEvents();
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
  std::filesystem::remove_all(folder);
}
BENCHMARK(BM_InstantTurnFromCache)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vireo
#endif
