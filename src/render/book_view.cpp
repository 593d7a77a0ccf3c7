#include "render/book_view.h"

#include <algorithm>
#include <cmath>

#include "prefs/preference_ranges.h"
#include "render/surface.h"
#include "render/surface_text.h"
#include "support/error_trap.h"
#include "support/platform.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

double BottomReserve(ControlBar bar) {
  return bar == ControlBar::kHidden ? kBottomReserveBarHidden : kBottomReserveBarShown;
}

// A size the window system would refuse: a negative width or height.
void RequireSize(double twips) { Require(twips >= 0, ErrorNumber::kInvalidProcedureCall); }

void SetFrameSize(TwipsRect& frame, double width, double height) {
  RequireSize(height);
  frame.height = height;
  RequireSize(width);
  frame.width = width;
  frame.top = kPageFrameTop;
}

// Every page box takes its frame's size.
void SizePages(BookViewLayout& layout) {
  layout.page_width = layout.page_frames[0].width;
  layout.page_height = layout.page_frames[0].height;
}

// While the bar is hidden Frame1 goes centred under the pages, 50 twips below
// them and 45 twips left of the true centre.
void PlaceFrame1(const BookViewInput& input, BookViewLayout& layout) {
  if (input.bar != ControlBar::kHidden) return;
  const TwipsRect& frame = layout.page_frames[0];
  layout.frame1 =
      TwipsPoint{(input.window_width - input.frame1_width) / 2 - 45, frame.top + frame.height + 50};
}

}  // namespace

void DrawSinglePageBook(const BookViewInput& input, BookViewLayout& layout) {
  Trap("DrawSinglePageBook", kModule, [&] {
    layout.bottom_reserve = BottomReserve(input.bar);
    layout.right_frame_visible = false;
    TwipsRect& frame = layout.page_frames[0];
    SetFrameSize(frame, input.window_width - 385, input.window_height - layout.bottom_reserve);
    frame.left = 155;
    SizePages(layout);
    PlaceFrame1(input, layout);
    layout.page_visible = {true, false, false, false, false, false, false, false};
    layout.lines = DrawLines(input.window_width, input.window_height, input.bar, input.frame1_top);
  });
}

void DrawDoublePageBook(const BookViewInput& input, BookViewLayout& layout) {
  Trap("DrawDoublePageBook", kModule, [&] {
    layout.bottom_reserve = BottomReserve(input.bar);
    layout.right_frame_visible = true;
    const double width = input.window_width / 2 - 275;
    const double height = input.window_height - layout.bottom_reserve;
    SetFrameSize(layout.page_frames[0], width, height);
    SetFrameSize(layout.page_frames[1], width, height);
    // The pages meet at the middle with a gap of 45 twips.
    layout.page_frames[0].left = 185;
    layout.page_frames[1].left = input.window_width / 2 - 45;
    SizePages(layout);
    PlaceFrame1(input, layout);
    layout.page_visible = {true, true, false, false, false, false, false, false};
    layout.lines = DrawLines(input.window_width, input.window_height, input.bar, input.frame1_top);
  });
}

TwipsRect ControlBarRect(double window_width, double window_height) {
  constexpr double kBarWidth = 9000;
  constexpr double kBarFromBottom = 660;
  constexpr double kTwipsPerPixel = 15;
  const double wanted = std::min(kBarWidth, window_width - 400);
  const double width = std::floor(wanted / kTwipsPerPixel + 0.5) * kTwipsPerPixel;
  return {(window_width - width) / 2 - 45, window_height - kBarFromBottom, width,
          kBarFromBottom - 60};
}

EdgeLines DrawLines(double window_width, double window_height, ControlBar bar, double frame1_top) {
  EdgeLines lines;
  lines.top = {25, kLineTopY, window_width - 145, kLineTopY};
  const double bottom_y = bar == ControlBar::kHidden ? window_height - 50 : frame1_top - 15;
  lines.bottom = {lines.top.x1 + 50, bottom_y, window_width - 185, bottom_y};
  // The outer ("hard") edge stops 75 twips above the bottom line; the inner
  // edge, further in, reaches it.
  const double hard_bottom = lines.bottom.y2 - 75;
  lines.hard_left = {lines.top.x1, kEdgeLinesTopY, lines.top.x1, hard_bottom};
  lines.left = {lines.top.x1 + 50, kEdgeLinesTopY, lines.top.x1 + 50, lines.bottom.y2};
  lines.hard_right = {lines.top.x2, kEdgeLinesTopY, lines.top.x2, hard_bottom};
  lines.right = {window_width - 200, kEdgeLinesTopY, window_width - 200, lines.bottom.y2};
  const double centre_x = window_width / 2 - 70;
  lines.centre = {centre_x, lines.left.y1, centre_x, lines.left.y2};
  return lines;
}

void SetPageBorders(Surface& page0, double font_size, PageTextArea& area) {
  Trap("sub setpageborders", kModule, [&] {
    area.left_border = ReadNumberPreference(LeftBorderPreference());
    area.right_border = ReadNumberPreference(RightBorderPreference());
    area.top_border = ReadNumberPreference(TopBorderPreference());
    area.bottom_border = ReadNumberPreference(BottomBorderPreference());
    area.text_width = page0.ScaleWidth() - (area.left_border + area.right_border);
    area.text_height = page0.ScaleHeight() - (area.top_border + area.bottom_border);
    page0.SetFontSize(font_size);
    area.line_height = page0.TextHeight(kLineSample);
    area.line_gap = area.line_height / 15;
    area.line_pitch = area.line_height + area.line_gap;
    area.lines_per_page = Int16::FromDouble(area.text_height / area.line_pitch);
  });
}

std::optional<int> TextureSlot(int texture_num) {
  if (texture_num == -1) return std::nullopt;
  Require(texture_num >= 0 && texture_num <= 3, ErrorNumber::kSubscriptOutOfRange);
  return texture_num;
}

std::vector<TextureFile> LoadTextures(const std::string& program_folder) {
  std::vector<TextureFile> found;
  Trap("sub loadtextures", kModule, [&] {
    for (int number = 1; number <= 4; ++number) {
      const std::string path = JoinPath(program_folder, "paper" + std::to_string(number) + ".jpg");
      if (FileExists(path)) found.push_back({number - 1, path});
    }
  });
  return found;
}

}  // namespace vireo
