#include "app/window_preferences.h"

#include "support/error_trap.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

}  // namespace

WindowPreferences::WindowPreferences(ReaderContext& context, BookSpread& spread)
    : context_(context), spread_(spread) {}

void WindowPreferences::ApplyFontName(const std::string& name) { spread_.SetFontStyle(name); }
void WindowPreferences::ApplyFontSize(int points) { spread_.SetFontSize(points); }

void WindowPreferences::SetJustify(bool justify) {
  Trap("sub setjustify", kModule, [&] {
    context_.prefs.justify = justify;
    context_.view.SetMenuTick("mnuJustified", justify);
  });
}

void WindowPreferences::SetIndent(bool indented) {
  Trap("sub setindent", kModule, [&] {
    context_.prefs.indented = indented;
    spread_.RedrawPages();
    context_.view.SetMenuTick("mnuIndentParagraphs", indented);
  });
}

void WindowPreferences::TickUnderscores(bool ticked) {
  context_.prefs.underscores = ticked;
  context_.view.SetMenuTick("mnuUnderscores", ticked);
}

void WindowPreferences::TickExtraParagraphLine(bool ticked) {
  context_.prefs.extra_paragraph_line = ticked;
  context_.view.SetMenuTick("mnuExtraLine", ticked);
}

// The ticks show the preferences: every change of one goes through the
// setters above.
bool WindowPreferences::UnderscoresTicked() const { return context_.prefs.underscores; }
bool WindowPreferences::ExtraParagraphLineTicked() const {
  return context_.prefs.extra_paragraph_line;
}

void WindowPreferences::SetPageColours() { spread_.plotter().SetPageColours(); }
WindowSize WindowPreferences::ScreenSize() const { return context_.view.ScreenSize(); }
WindowSize WindowPreferences::CurrentWindowSize() const { return context_.view.WindowOuterSize(); }
void WindowPreferences::MaximiseWindow() { context_.view.SetState(WindowState::kMaximised); }
void WindowPreferences::SetResizing(bool resizing) { context_.resizing = resizing; }
void WindowPreferences::SetWindowHeight(double twips) { context_.view.SetWindowHeight(twips); }
void WindowPreferences::SetWindowWidth(double twips) { context_.view.SetWindowWidth(twips); }

}  // namespace vireo
