#pragma once

// The reader's logic on the book canvas, offscreen, in a folder of its own
// holding one ebook: what the turn and re-layout benchmarks drive. The lamp
// sits on a control bar and repaints itself at every change, as in the window.

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

#include "app/book_canvas_widget.h"
#include "app/control_bar_widget.h"
#include "app/frm_main.h"
#include "app/headless_window.h"
#include "app/interaction_qt.h"
#include "bench_qt.h"
#include "support/logging.h"
#include "support/vhtml_library.h"

namespace vireo::bench {

using Clock = std::chrono::steady_clock;

// Notes when the milestones are reached.
class TimedWindowView : public HeadlessWindowView {
 public:
  void Milestone(std::string_view what) override {
    if (what == "first spread") first_spread = Clock::now();
    if (what == "pagination finished") pagination_finished = Clock::now();
  }
  Clock::time_point first_spread, pagination_finished;
};

// Notes the longest stretch without a look at the event queue: how long
// input could wait.
class TimedPump : public QtMessagePump {
 public:
  void Yield() override {
    const Clock::time_point now = Clock::now();
    longest_gap = std::max(longest_gap, now - last_yield);
    last_yield = now;
    QtMessagePump::Yield();
  }
  void Restart() {
    last_yield = Clock::now();
    longest_gap = {};
  }
  Clock::time_point last_yield = Clock::now();
  Clock::duration longest_gap{};
};

class ReaderOnCanvas {
 public:
  // settings: the lines of "Vireo.ini"; ebook: the bytes of the book file.
  ReaderOnCanvas(const std::string& name, const std::string& settings, const std::string& ebook)
      : folder_(std::filesystem::temp_directory_path() / name) {
    TheVHtml().Load(VIREO_BIN_DIR);
    SetLoggingDisabled(true);
    std::filesystem::create_directories(folder_);
    qputenv("XDG_DATA_HOME", (folder_ / "xdg").string().c_str());
    std::ofstream(folder_ / "Vireo.ini", std::ios::binary) << settings;
    std::ofstream(folder_ / "Book", std::ios::binary) << ebook;
    canvas.SetLampWidget(bar.Shape1);
    reader.lifecycle().Form_Load();
    canvas.resize(static_cast<int>(view.size.width / BookCanvasWidget::kTwipsPerPixel),
                  static_cast<int>(view.size.height / BookCanvasWidget::kTwipsPerPixel));
    canvas.show();
    QCoreApplication::processEvents();
  }
  ~ReaderOnCanvas() { std::filesystem::remove_all(folder_); }

 private:
  // Widgets need the application before they are made.
  bool application_ready_ = (EnsureApplication(), true);
  std::filesystem::path folder_;

 public:
  StderrInteraction user;
  TimedPump pump;
  TimedWindowView view;
  BookCanvasWidget canvas;
  ControlBarWidget bar{&canvas};
  frmMain reader{view, canvas, user, pump,
                 ProgramLocation{folder_.string(), (folder_ / "Book").string()}};
};

inline std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

}  // namespace vireo::bench
