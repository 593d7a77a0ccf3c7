#pragma once

#include <map>
#include <optional>
#include <string>

#include "app/headless_services.h"
#include "app/main_window_view.h"

namespace vireo {

// A main window without a window system, for drawing a book off screen (the
// tool's pictures, benchmarks) and for tests: the window is a size, and
// captions, labels, ticks, enabled items and the bar's state are kept as
// set. Messages and progress go nowhere; the page dialog is cancelled, and
// so is every service (HeadlessServices).
class HeadlessWindowView : public MainWindowView, public PageChooser {
 public:
  void ShowProgress(std::string_view text) override { progress = text; }
  void ShowSplash() override { splash = true; }
  void UnloadSplash() override { splash = false; }
  void UnloadAllWindows() override {}
  void EndProgram(int status) override { end_status = status; }
  void ShowMainWindow() override {}
  void SetCaption(std::string_view text) override { caption = text; }
  void SetExitCaption(std::string_view) override {}
  WindowColours SystemColours() const override { return {}; }
  WindowSize ScreenSize() const override { return screen; }
  WindowSize WindowOuterSize() const override { return size; }
  WindowSize WindowInnerSize() const override { return size; }
  void SetWindowWidth(double twips) override { size.width = twips; }
  void SetWindowHeight(double twips) override { size.height = twips; }
  WindowState State() const override { return WindowState::kNormal; }
  void SetState(WindowState) override {}
  void SetBarVisible(bool visible) override { bar_visible = visible; }
  void SetBarLabel(BarLabel label, std::string_view text, uint32_t) override {
    labels[label] = text;
  }
  void SetMenuTick(std::string_view item, bool ticked) override {
    ticks[std::string(item)] = ticked;
  }
  void SetMenuEnabled(std::string_view item, bool enabled) override {
    enabled_items[std::string(item)] = enabled;
  }
  void ShowContextMenu() override {}
  void ShowOptionsMenuAtPage() override {}
  PageChooser& PageDialog() override { return *this; }
  PeripheralServices& Services() override { return services_; }
  std::optional<int> ChoosePage(int, int) override { return chosen_page; }

  WindowSize size{kMinimumWindowWidthWithBar,
                  kMinimumWindowHeight};  // twips, inner and outer alike
  WindowSize screen{28800, 16200};        // 1920 x 1080 pixels
  bool splash = false;
  std::string progress;
  int end_status = -1;  // -1 while running
  std::string caption;
  bool bar_visible = true;
  std::map<BarLabel, std::string> labels;
  std::map<std::string, bool> ticks;
  std::map<std::string, bool> enabled_items;
  std::optional<int> chosen_page;  // what the page dialog answers (nullopt: cancelled)

 private:
  HeadlessServices services_;
};

}  // namespace vireo
