#include "app/view_commands.h"

#include <cmath>
#include <cstdlib>

#include "prefs/preference_ranges.h"
#include "prefs/settings_get_set.h"
#include "support/error_trap.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

struct SizeKeys {
  const char* width;
  const char* height;
};
constexpr SizeKeys kSingleKeys{"SingleWinWidth", "SingleWinHeight"};
constexpr SizeKeys kDoubleKeys{"WinWidth", "WinHeight"};

}  // namespace

ViewCommands::ViewCommands(ReaderContext& context, BookSpread& spread, BookSession& session)
    : context_(context), spread_(spread), session_(session) {}

void ViewCommands::ChangeFontSize(int points) {
  Trap("sub changefontsize", kModule, [&] {
    if (points == 0 || points == context_.prefs.font_size) return;
    const int before = context_.prefs.font_size;
    spread_.SetFontSize(points);
    if (context_.prefs.font_size == before) return;
    spread_.plotter().SetPageBorders();
    session_.RepaginateAtBookmark();
  });
}

void ViewCommands::cmdBiggerFont_Click() { StepFontSize(+1); }
void ViewCommands::cmdSmallerFont_Click() { StepFontSize(-1); }

void ViewCommands::StepFontSize(int step) {
  Trap(step > 0 ? "sub cmdbiggerfont_click" : "sub cmdsmallerfont_click", kModule, [&] {
    if (context_.reindex.Busy() || context_.font_guard) return;
    context_.font_guard = true;
    ChangeFontSize(context_.prefs.font_size + step);
    context_.font_guard = false;
  });
}

void ViewCommands::GetNewFontSize() {
  Trap("sub getnewfontsize", kModule, [&] {
    if (context_.font_guard) return;
    const auto reply = context_.user.AskText(GetTranslation("Enter the font size"), "Vireo", "");
    if (!reply) return;
    char* end = nullptr;
    const double size = std::strtod(reply->c_str(), &end);
    if (end == reply->c_str() || size < 7 || size > 48) return;
    ChangeFontSize(static_cast<int>(std::nearbyint(size)));
  });
}

void ViewCommands::ChangeFontStyle(const std::string& name) {
  Trap("sub changefontstyle", kModule, [&] {
    if (name.empty() || name == context_.prefs.font_name) return;
    spread_.SetFontStyle(name);
    spread_.plotter().SetPageBorders();
    session_.RepaginateAtBookmark();
  });
}

// A size the program sets itself is not a resize by the person.
void ViewCommands::SetWindowWidth(double twips) {
  context_.resizing = true;
  context_.view.SetWindowWidth(twips);
  context_.resizing = false;
}

void ViewCommands::ToggleBar() {
  Trap("sub togglebar", kModule, [&] {
    ReaderPreferences& prefs = context_.prefs;
    if (prefs.bar_hidden) {
      prefs.bar_hidden = false;
      context_.view.SetBarVisible(true);
    } else {
      context_.view.SetBarVisible(false);
      context_.pump.Yield();
      Delay(context_.pump, 0.1);
      prefs.bar_hidden = true;
      context_.pump.Yield();
    }
    if (context_.view.WindowOuterSize().width < kMinimumWindowWidthWithBar && !prefs.bar_hidden) {
      SetWindowWidth(kMinimumWindowWidthWithBar);
    }
    spread_.LayOutBook();
    context_.pump.Yield();
    session_.RepaginateAtBookmark();
  });
}

void ViewCommands::Form_Resize() {
  Trap("sub form_resize", kModule, [&] {
    if (context_.resizing) return;
    MainWindowView& view = context_.view;
    context_.resizing = true;
    const WindowSize size = view.WindowOuterSize();
    if (context_.reindex.Busy()) {
      view.SetState(WindowState::kNormal);
      view.SetWindowWidth(session_.size_at_reindex().width);
      view.SetWindowHeight(session_.size_at_reindex().height);
      context_.resizing = false;
      return;
    }
    const double minimum_width =
        context_.prefs.bar_hidden ? kMinimumWindowWidthWithoutBar : kMinimumWindowWidthWithBar;
    if (size.width < minimum_width) view.SetWindowWidth(minimum_width);
    if (size.height < kMinimumWindowHeight) view.SetWindowHeight(kMinimumWindowHeight);
    context_.resizing = false;
    if (!spread_.SizeChangedSinceLayout()) return;
    context_.pump.Yield();
    spread_.LayOutBook();
    context_.pump.Yield();
    session_.RepaginateAtBookmark();
  });
}

void ViewCommands::SwitchPageMode(bool single) {
  if (context_.prefs.single_page_mode == single) return;
  context_.prefs.single_page_mode = single;
  UpdateBookMode(true);
}

void ViewCommands::UpdateBookMode(bool save_size) {
  Trap("sub updatebookmode", kModule, [&] {
    if (context_.book.loaded) session_.StoreCurrentBookmark();
    const bool single = context_.prefs.single_page_mode;
    const SizeKeys& leaving = single ? kDoubleKeys : kSingleKeys;
    const SizeKeys& entering = single ? kSingleKeys : kDoubleKeys;
    MainWindowView& view = context_.view;
    const WindowSize current = view.WindowOuterSize();
    if (save_size) {
      sset(leaving.width, current.width);
      sset(leaving.height, current.height);
    }
    if (view.State() == WindowState::kNormal) {
      context_.resizing = true;
      view.SetWindowWidth(
          ReadNumberPreference(WindowWidthPreference(entering.width, current.width)));
      view.SetWindowHeight(
          ReadNumberPreference(WindowHeightPreference(entering.height, current.height)));
      context_.resizing = false;
    }
    context_.reading.mode = single ? PageMode::kSingle : PageMode::kDouble;
    spread_.LayOutBook();
    if (context_.book.loaded) {
      session_.ReindexFile(true);
    } else {
      spread_.plotter().DrawTitlePage();
    }
  });
}

void ViewCommands::ApplyPageSetup(const SettingsOutcome& outcome) {
  Trap("sub applypagesetup", kModule, [&] {
    spread_.plotter().SetPageColours();
    if (outcome.closed && outcome.borders_changed) {
      spread_.LayOutBook();
      session_.RepaginateAtBookmark();
    } else if (context_.book.loaded) {
      spread_.ShowPage(context_.reading.current_page);
    } else {
      spread_.RedrawPages();
    }
  });
}

}  // namespace vireo
