#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "app/main_window_view.h"
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
  void SetCaption(std::string_view text) override { caption = text; }
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
  bool LoadTexture(int slot, const std::string&) override {
    textures.push_back(slot);
    return true;
  }
  void CopyBox(int source, int destination) override {
    boxes[destination].runs = boxes[source].runs;
  }
  void StretchBox(int, int, double) override { ++stretches; }
  double FrameWidth(int) const override { return layout.page_width; }
  void SetBoxWidth(int, double) override {}
  void SetBoxLeft(int, double) override {}
  void SetBoxVisible(int, Visibility) override {}
  void RaiseBox(int) override {}
  void RefreshBox(int) override {}
  void SetLamp(Lamp value) override { lamp = value; }
  void SetBarVisible(bool visible) override { bar_visible = visible; }
  double Frame1Width() const override { return 9000; }
  double Frame1Top() const override { return window.height - 660; }
  void SetPageLabel(std::string_view text, uint32_t colour) override {
    page_label = text;
    page_label_colour = colour;
  }
  void SetFontSizeLabel(std::string_view text) override { font_size_label = text; }
  void SetSearchLabel(std::string_view text) override { search_label = text; }
  PageChooser& PageDialog() override { return chooser; }
  TwipsSize LanguageListSize() const override { return {1650, 900}; }
  void PlaceLanguageList(const LanguageListPlacement&) override {}
  void SetLanguageListVisible(bool visible) override { language_list_visible = visible; }
  void SetMenuTick(std::string_view item, bool ticked) override {
    ticks[std::string(item)] = ticked;
  }
  bool MenuTick(std::string_view item) const override {
    const auto found = ticks.find(std::string(item));
    return found != ticks.end() && found->second;
  }
  void SetMenuEnabled(std::string_view item, bool enabled) override {
    enabled_items[std::string(item)] = enabled;
  }

  std::vector<std::string> events;
  std::vector<std::string> splash_statuses;
  std::string caption;
  std::string exit_caption;
  std::string page_label;
  uint32_t page_label_colour = 0;
  std::string font_size_label;
  std::string search_label;
  // The page dialog: answers with `page`, or cancels when it holds nothing.
  struct Chooser : PageChooser {
    std::optional<int> ChoosePage(int, int) override { return page; }
    std::optional<int> page;
  } chooser;
  WindowSize window{9500, 6570};
  bool maximised = false;
  bool bar_visible = true;
  bool language_list_visible = true;
  Lamp lamp = Lamp::kGrey;
  int stretches = 0;
  std::vector<int> textures;
  BookViewLayout layout;
  std::array<FakeSurface, 8> boxes;
  std::map<std::string, bool> ticks;
  std::map<std::string, bool> enabled_items;
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

class FakePump : public MessagePump {
 public:
  void Yield() override { ++yields; }
  void SleepMilliseconds(int milliseconds) override { slept_ms += milliseconds; }
  int yields = 0;
  int slept_ms = 0;
};

}  // namespace vireo::test
