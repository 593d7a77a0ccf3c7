#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "render/book_display.h"
#include "render/fake_page_buffers.h"

namespace vireo::test {

// Page drawing and buffers without a screen: each box holds the page number drawn into it, a
// width, a left edge, a visibility and a place in its frame's stack.
class FakeBookDisplay : public BookDisplay, public FakePageBuffers {
 public:
  static constexpr int kBlank = 0;
  static constexpr int kTitlePage = -100;
  static constexpr int kNothing = -200;  // no visible box at that point
  static constexpr double kFrameWidth = 4500;

  // What a frame showed at its spine and outer edge when a visible box was drawn.
  struct FrameView {
    int box = 0;
    bool squeezed = false;  // drawn by StretchPage, else by CopyPage
    int at_spine = kNothing;
    int at_outer_edge = kNothing;
  };

  explicit FakeBookDisplay(int pages) : page_count(pages) { widths.fill(kFrameWidth); }

  void PlotOnPage(PageSide side, int box, int page) override {
    Record("plot", static_cast<int>(side), box, page);
    if (!book_loaded) {
      content[box] = kTitlePage;
    } else if (page >= 1 && page <= page_count) {
      content[box] = page;
    }
  }
  void ClearPage(int box) override {
    Record("clear", box);
    content[box] = kBlank;
  }
  void CopyBox(int source_box, int destination_box) override {
    Record("copy", source_box, destination_box);
    content[destination_box] = content[source_box];
    if (visible[destination_box] && destination_box < 2) {
      views.push_back(View(destination_box, false));
    }
  }
  void StretchBox(int source_box, int destination_box, double width) override {
    Record("stretch", source_box, destination_box, static_cast<int>(width));
    stretch_widths.push_back(width);
    if (width != widths[destination_box]) mismatched_stretches++;
    content[destination_box] = content[source_box];
    views.push_back(View(destination_box, true));
  }
  void DrawTitlePage() override {
    events.push_back("title page");
    content[kRightPageBox] = kTitlePage;
  }

  double FrameWidth(int) const override { return kFrameWidth; }
  void SetBoxWidth(int box, double twips) override {
    if (twips < 0) ++negative_widths;
    widths[box] = twips;
  }
  void SetBoxLeft(int box, double twips) override { lefts[box] = twips; }
  void SetBoxVisible(int box, Visibility visibility) override {
    visible[box] = visibility == Visibility::kShown;
  }
  void RaiseBox(int box) override {
    auto& stack = stacks[box % 2];
    stack.erase(std::remove(stack.begin(), stack.end(), box), stack.end());
    stack.push_back(box);
  }

  void ShowCover() override {
    cover_shown = true;
    events.push_back("show cover");
  }
  void HideCover() override {
    cover_shown = false;
    events.push_back("hide cover");
  }
  bool BookLoaded() const override { return book_loaded; }

  // The state between turns: boxes 0-3 full width at left 0, the work boxes hidden.
  bool AtRest() const {
    for (int box = 0; box < 4; ++box) {
      if (widths[box] != kFrameWidth || lefts[box] != 0) return false;
    }
    return !visible[kLeftWorkBox] && !visible[kRightWorkBox];
  }

  // The boxes on show as if the spread (left, right) were shown.
  void ShowSpread(int left, int right) {
    content[kLeftPageBox] = left;
    content[kRightPageBox] = right;
  }

  int CountEvents(const std::string& prefix) const {
    return static_cast<int>(std::count_if(events.begin(), events.end(),
                                          [&](const auto& e) { return e.rfind(prefix, 0) == 0; }));
  }

  int page_count;
  bool book_loaded = true;
  bool cover_shown = true;

  std::array<int, 8> content{};
  std::array<double, 8> widths{};
  std::array<double, 8> lefts{};
  std::array<bool, 8> visible{true, true};
  // Back to front; the work box starts on top so that the code must raise.
  std::array<std::vector<int>, 2> stacks{{{0, 2}, {1, 3}}};

  std::vector<std::string> events;  // "plot side box page", "copy from to", ...
  std::vector<double> stretch_widths;
  std::vector<FrameView> views;
  int negative_widths = 0;
  int mismatched_stretches = 0;

 private:
  template <typename... Numbers>
  void Record(std::string event, Numbers... numbers) {
    ((event += " " + std::to_string(numbers)), ...);
    events.push_back(std::move(event));
  }

  // The page seen x twips from a frame's left: the topmost visible box there.
  int ShownAt(int frame, double x) const {
    const auto& stack = stacks[frame];
    for (auto it = stack.rbegin(); it != stack.rend(); ++it) {
      const int box = *it;
      if (visible[box] && x >= lefts[box] && x < lefts[box] + widths[box]) return content[box];
    }
    return kNothing;
  }

  FrameView View(int box, bool squeezed) const {
    // The spine is the left frame's right edge and the right frame's left edge.
    const double spine = box % 2 == kLeftFrame ? kFrameWidth - 1 : 0;
    const double outer = box % 2 == kLeftFrame ? 0 : kFrameWidth - 1;
    return {box, squeezed, ShownAt(box % 2, spine), ShownAt(box % 2, outer)};
  }
};

}  // namespace vireo::test
