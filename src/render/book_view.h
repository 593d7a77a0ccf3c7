#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "support/checked_int16.h"

namespace vireo {

class Surface;

// The geometry of the book view: where the page frames, the page boxes, the
// button bar `Frame1` and the seven edge lines go for a window of a given
// size. Every length is twips; W is the window's width, H its inner height.
// The window system only places what these functions decide.

struct TwipsRect {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
  friend bool operator==(const TwipsRect&, const TwipsRect&) = default;
};

struct TwipsPoint {
  double x = 0;
  double y = 0;
  friend bool operator==(const TwipsPoint&, const TwipsPoint&) = default;
};

struct TwipsSize {
  double width = 0;
  double height = 0;
  friend bool operator==(const TwipsSize&, const TwipsSize&) = default;
};

struct TwipsLine {
  double x1 = 0;
  double y1 = 0;
  double x2 = 0;
  double y2 = 0;
  friend bool operator==(const TwipsLine&, const TwipsLine&) = default;
};

// The control bar. The layout's bar flag is the bar-hidden flag: while the
// bar is hidden the pages keep a small bottom reserve and the edge lines run
// down to the window's foot; while it is shown the pages leave room for it
// and the bottom line runs just above `Frame1`.
enum class ControlBar { kShown, kHidden };

// Form-design values (the window's own fixed dimensions).
inline constexpr double kPageFrameTop = 100;  // top edge of both page frames
inline constexpr double kLineTopY = 60;       // height of LineTop
inline constexpr double kEdgeLinesTopY = 60;  // upper end (Y1) of the vertical edge lines
// Bottom reserve under the page frames.
inline constexpr double kBottomReserveBarHidden = 225;
inline constexpr double kBottomReserveBarShown = 800;

// The seven lines that draw the edges of the book. They are drawn beneath the
// page frames (so in single-page mode the page covers LineCentre).
struct EdgeLines {
  TwipsLine top;         // LineTop
  TwipsLine bottom;      // LineBottom
  TwipsLine hard_left;   // LineHardLeft: outer edge, left
  TwipsLine hard_right;  // LineHardRight: outer edge, right
  TwipsLine left;        // LineLeft: inner edge, left
  TwipsLine right;       // LineRight: inner edge, right
  TwipsLine centre;      // LineCentre: the gap between the two pages
  friend bool operator==(const EdgeLines&, const EdgeLines&) = default;
};

struct BookViewInput {
  double window_width = 0;   // W
  double window_height = 0;  // H, the inner (scale) height
  ControlBar bar = ControlBar::kShown;
  double frame1_width = 0;  // width of the button bar Frame1
  double frame1_top = 0;    // Frame1's current top; kept while the bar is shown
};

// The page layout for one mode. Each Page(i) sits at (0, 0) of its frame
// (boxes 0, 2, 4, 6 in PageFrame(0); 1, 3, 5, 7 in PageFrame(1)) and has
// the frame's size. Boxes 4..7 (the cache) are never shown.
struct BookViewLayout {
  double bottom_reserve = 0;
  std::array<TwipsRect, 2> page_frames{};  // PageFrame(0), PageFrame(1)
  bool right_frame_visible = false;        // PageFrame(1)
  double page_width = 0;
  double page_height = 0;
  std::array<bool, 8> page_visible{};  // Page(0)..Page(7)
  // Frame1's new top-left corner: it is hidden, moved there and shown again
  // while the bar is hidden; nullopt: it stays where it is.
  std::optional<TwipsPoint> frame1;
  EdgeLines lines;
};

// Lays out one page: PageFrame(0) H - m high, W - 385 wide at left 155.
// Before calling, the window clears all eight page boxes and yields. A window
// too small for the layout gives a negative size: the error is logged
// ("DrawSinglePageBook", "frmMain") and layout keeps what was set before it.
void DrawSinglePageBook(const BookViewInput& input, BookViewLayout& layout);

// Lays out two facing pages: both frames H - m high and W / 2 - 275 wide, at
// left 185 and W / 2 - 45. Errors as above ("DrawDoublePageBook").
void DrawDoublePageBook(const BookViewInput& input, BookViewLayout& layout);

// Where the control bar Frame1 stands while it is shown, in a window whose
// inner size is W x H: 9000 wide (at most W - 400, in whole pixels), 45
// left of the centre, its top 660 above the window's foot.
TwipsRect ControlBarRect(double window_width, double window_height);

// The end points of the seven edge lines, the same in both modes. frame1_top
// is Frame1's top edge (used while the bar is shown).
EdgeLines DrawLines(double window_width, double window_height, ControlBar bar, double frame1_top);

// The text area inside a page box, shared by pagination and the composer.
struct PageTextArea {
  double left_border = 400;
  double right_border = 400;
  double top_border = 300;
  double bottom_border = 550;
  double text_width = 0;     // page width - (left + right border)
  double text_height = 0;    // page height - (top + bottom border)
  double line_height = 0;    // TextHeight("hg^,!") at the reader's font size
  double line_gap = 0;       // line height / 15
  double line_pitch = 0;     // line height + line gap
  Int16 lines_per_page = 0;  // text height / line pitch, rounded to nearest
};

// Reads "LeftBorder", "RightBorder", "TopBorder" and "BottomBorder" (defaults
// 400, 400, 300, 550; a border outside the settings dialog's limits falls
// back to its default) and recomputes area from page 0's surface after setting
// its font size to font_size points. An error (a wrong-typed border, a line
// count beyond 16 bits) is logged ("sub setpageborders", "frmMain") and the
// values not reached keep what they held.
void SetPageBorders(Surface& page0, double font_size, PageTextArea& area);

// The paper texture of a page box for "TextureNum": nullopt (no texture) for
// -1, the slot for 0..3; any other number raises error 9.
std::optional<int> TextureSlot(int texture_num);

struct TextureFile {
  int slot = 0;  // picTexture index, 0..3
  std::string path;
  friend bool operator==(const TextureFile&, const TextureFile&) = default;
};

// The texture files present in the program's folder: "paper1.jpg" ..
// "paper4.jpg" go into slots 0..3; a missing file leaves its slot empty.
std::vector<TextureFile> LoadTextures(const std::string& program_folder);

}  // namespace vireo
