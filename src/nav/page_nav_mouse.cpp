#include "nav/page_nav_mouse.h"

#include <cmath>
#include <optional>

namespace vireo {
namespace {

// The line under y and its marker band, when it is within the page's lines.
// Only the upper bound is checked: a point above the text gives line 0 or
// less, whose band lies above the text.
std::optional<PageMouseDecision> LineUnder(double y, const PageMouseContext& context,
                                           PageMouseAction action) {
  if (context.line_height_twips <= 0) return std::nullopt;
  const double height = context.line_height_twips;
  const int line = static_cast<int>(std::floor((y - context.text_top_twips) / height)) + 1;
  if (line > context.lines_per_page) return std::nullopt;
  return PageMouseDecision{action, line, (line - 1) * height + context.text_top_twips,
                           line * height + context.text_top_twips - 10};
}

PageMouseAction TurnFor(const PageMouseEvent& event, const PageMouseContext& context) {
  if (context.mode == PageMode::kSingle) {
    return event.ctrl ? PageMouseAction::kTurnBack : PageMouseAction::kTurnForward;
  }
  return event.page_box == kRightPageBox ? PageMouseAction::kTurnForward
                                         : PageMouseAction::kTurnBack;
}

}  // namespace

PageMouseDecision DecidePageMouse(const PageMouseEvent& event, const PageMouseContext& context) {
  const bool marking = event.shift && event.button == PageMouseButton::kLeft;
  switch (event.kind) {
    case PageMouseEventKind::kDown:
      if (marking)
        return LineUnder(event.y_twips, context, PageMouseAction::kMarkLine)
            .value_or(PageMouseDecision{});
      break;
    case PageMouseEventKind::kMove:
      if (marking) {
        auto moved = LineUnder(event.y_twips, context, PageMouseAction::kMoveMark);
        if (moved && moved->line != context.marked_line) return *moved;
      }
      break;
    case PageMouseEventKind::kUp:
      if (marking) {
        return LineUnder(event.y_twips, context, PageMouseAction::kSpeakLine)
            .value_or(PageMouseDecision{});
      }
      if (event.button == PageMouseButton::kLeft) return {TurnFor(event, context)};
      if (event.button == PageMouseButton::kRight && !context.navigation_busy) {
        return {PageMouseAction::kContextMenu};
      }
      break;
  }
  return {};
}

}  // namespace vireo
