// The main window's page mode and jumps to a page.

#include <algorithm>

#include "app/frm_main.h"
#include "prefs/settings_get_set.h"
#include "render/status_lamp.h"
#include "support/error_trap.h"

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

void frmMain::UpdateBookMode(bool save_size) {
  Trap("sub updatebookmode", kModule, [&] {
    if (book_loaded_) StoreCurrentBookmark();
    const bool single = prefs_.single_page_mode;
    const SizeKeys& leaving = single ? kDoubleKeys : kSingleKeys;
    const SizeKeys& entering = single ? kSingleKeys : kDoubleKeys;
    const WindowSize current = view_.WindowOuterSize();
    if (save_size) {
      sset(leaving.width, current.width);
      sset(leaving.height, current.height);
    }
    if (!view_.IsMaximisedOrMinimised()) {
      resizing_ = true;
      view_.SetWindowWidth(sget(entering.width, current.width).ToNumber());
      view_.SetWindowHeight(sget(entering.height, current.height).ToNumber());
      resizing_ = false;
    }
    reading_.mode = single ? PageMode::kSingle : PageMode::kDouble;
    LayOutBook();
    if (book_loaded_) {
      ReindexFile(true);
    } else {
      DrawTitlePage();
    }
  });
}

void frmMain::ShowPage(int page) {
  Trap("sub showpage", kModule, [&] {
    if (!book_loaded_ || pages_.count < 1) return;
    int first = std::clamp(page, 1, static_cast<int>(pages_.count));
    if (reading_.mode == PageMode::kDouble && first % 2 == 0) first -= 1;
    reading_.current_page = reading_.mode == PageMode::kDouble ? first + 1 : first;
    cache_.ResetCache();
    RedrawPages();
    cache_.RefillAfterRedraw();
    NoShape(*this, pump_);
  });
}

}  // namespace vireo
