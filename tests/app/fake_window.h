#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "app/main_window_view.h"
#include "fake_pump.h"
#include "fake_surface.h"
#include "support/user_interaction.h"

namespace vireo::test {

// Records what the main window's logic asks of the window system; the page
// boxes are fixed-width fake surfaces.
class FakeWindow : public MainWindowView {
 public:
  FakeWindow() {
    for (auto& box : boxes) {
      box.width = 4000;
      box.height = 6000;
    }
  }

  void ShowSplash() override { events.push_back("show splash"); }
  void SetSplashStatus(std::string_view text) override { splash_statuses.emplace_back(text); }
  void UnloadSplash() override { events.push_back("unload splash"); }
  void UnloadAllWindows() override { events.push_back("unload windows"); }
  void EndProgram(int status) override { events.push_back("end " + std::to_string(status)); }
  void ShowMainWindow() override { events.push_back("show window"); }
  void SetCaption(std::string_view) override {}
  void SetExitCaption(std::string_view text) override { exit_caption = text; }
  uint32_t SystemWindowColour() override { return 0xFFFFFF; }
  uint32_t SystemWindowTextColour() override { return 0; }
  uint32_t SystemButtonTextColour() override { return 0x111111; }
  WindowSize ScreenSize() const override { return {1920 * 15, 1080 * 15}; }
  WindowSize WindowOuterSize() const override { return window; }
  WindowSize WindowInnerSize() const override { return window; }
  void SetWindowWidth(double twips) override { window.width = twips; }
  void SetWindowHeight(double twips) override { window.height = twips; }
  void MaximiseWindow() override { maximised = true; }
  bool IsMaximisedOrMinimised() const override { return maximised; }
  void RestoreWindow() override { maximised = false; }
  void ApplyLayout(const BookViewLayout& applied) override {
    layout = applied;
    for (auto& box : boxes) {
      box.width = applied.page_width;
      box.height = applied.page_height;
    }
  }
  Surface& Box(int box) override { return boxes[box]; }
  void SetBoxBackColour(int, uint32_t) override {}
  void SetBoxTexture(int box, std::optional<int>) override { boxes[box].Clear(); }
  bool LoadTexture(int, const std::string&) override { return true; }
  void CopyBox(int source, int destination) override {
    boxes[destination].runs = boxes[source].runs;
  }
  void StretchBox(int, int, double) override {}
  double FrameWidth(int) const override { return layout.page_width; }
  void SetBoxWidth(int, double) override {}
  void SetBoxLeft(int, double) override {}
  void SetBoxVisible(int, Visibility) override {}
  void RaiseBox(int) override {}
  void RefreshBox(int) override {}
  void SetLamp(Lamp) override {}
  void SetBarVisible(bool) override {}
  double Frame1Width() const override { return 9000; }
  double Frame1Top() const override { return window.height - 660; }
  void SetPageLabel(std::string_view, uint32_t) override {}
  void SetFontSizeLabel(std::string_view) override {}
  void SetSearchLabel(std::string_view) override {}
  PageChooser& PageDialog() override { return chooser; }
  TwipsSize LanguageListSize() const override { return {1650, 900}; }
  void PlaceLanguageList(const LanguageListPlacement&) override {}
  void SetLanguageListVisible(bool) override {}
  void SetMenuTick(std::string_view item, bool ticked) override {
    ticks[std::string(item)] = ticked;
  }
  bool MenuTick(std::string_view item) const override {
    const auto found = ticks.find(std::string(item));
    return found != ticks.end() && found->second;
  }
  void SetMenuEnabled(std::string_view, bool) override {}

  std::vector<std::string> events;
  std::vector<std::string> splash_statuses;
  std::string exit_caption;
  // The page dialog: answers with `page`, or cancels when it holds nothing.
  struct Chooser : PageChooser {
    std::optional<int> ChoosePage(int, int) override { return page; }
    std::optional<int> page;
  } chooser;
  WindowSize window{9500, 6570};
  bool maximised = false;
  BookViewLayout layout;
  std::array<FakeSurface, 8> boxes;
  std::map<std::string, bool> ticks;
};

// Answers every box with its default and keeps what was asked.
class FakeUser : public UserInteraction {
 public:
  void ShowMessage(std::string_view text, std::string_view) override {
    messages.emplace_back(text);
  }
  std::optional<std::string> AskText(std::string_view prompt, std::string_view,
                                     std::string_view default_text) override {
    messages.emplace_back(prompt);
    return answer ? answer : std::optional<std::string>(std::string(default_text));
  }
  bool AskYesNo(std::string_view question, std::string_view) override {
    messages.emplace_back(question);
    return yes;
  }

  std::vector<std::string> messages;
  std::optional<std::string> answer;
  bool yes = false;
};

}  // namespace vireo::test
