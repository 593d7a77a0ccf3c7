#pragma once

#include "render/book_display.h"

namespace vireo {

// Mouse events on the page pictures (Page_MouseDown, _MouseMove, _MouseUp)
// turned into what the main window does. A pure decision: the window carries
// it out (turns, the context menu, the line marker, speech).

enum class PageMouseEventKind { kDown, kMove, kUp };
enum class PageMouseButton { kNone, kLeft, kRight, kMiddle };

struct PageMouseEvent {
  PageMouseEventKind kind = PageMouseEventKind::kUp;
  int page_box = kLeftPageBox;  // 0: the left or only page, 1: the right page
  // The button pressed or released; for a move, the left button when held.
  PageMouseButton button = PageMouseButton::kNone;
  bool shift = false;
  bool ctrl = false;
  double y_twips = 0;  // from the top of the page box
};

struct PageMouseContext {
  PageMode mode = PageMode::kDouble;
  bool navigation_busy = false;  // the page dialog is open
  double text_top_twips = 0;     // top border of the text area
  double line_height_twips = 0;
  int lines_per_page = 0;
  int marked_line = 0;  // the line the marker is over; 0 when none
};

enum class PageMouseAction {
  kNone,
  kTurnForward,  // WipeRightToLeft / SinglePageNext
  kTurnBack,     // WipeLeftToRight / SinglePagePrev
  kContextMenu,  // the pages' right-click menu
  kMarkLine,     // draw the marker over the line's band
  kMoveMark,     // the marker moves to another line
  kSpeakLine,    // hand the marked line to text-to-speech
};

struct PageMouseDecision {
  PageMouseAction action = PageMouseAction::kNone;
  int line = 0;            // for the line actions: 1-based line on the page
  double band_top = 0;     // marker band, twips: (line - 1) x height + top
  double band_bottom = 0;  // line x height + top - 10
  friend bool operator==(const PageMouseDecision&, const PageMouseDecision&) = default;
};

// Shift + left button marks the line under the pointer, n = Int((y - text
// top) / line height) + 1, when n is at most the lines per page (down:
// mark, move with the button held: move the mark when n changes, up: speak
// it). Left button up without Shift turns: single-page mode forward, or
// back with Ctrl; double-page mode forward on the right page and back on the
// left one. Right button up opens the context menu unless navigation is busy.
PageMouseDecision DecidePageMouse(const PageMouseEvent& event, const PageMouseContext& context);

}  // namespace vireo
