// The main window's commands: keys, font size and style, the control bar,
// resizing, the formatting menu, deleting the book, dropped files.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

#include "app/frm_main.h"
#include "app/key_map.h"
#include "nav/bookmarks.h"
#include "prefs/settings_get_set.h"
#include "render/status_lamp.h"
#include "support/error_trap.h"
#include "support/text_helpers.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";
constexpr double kShownBarMinimumWidth = 9500;
constexpr double kHiddenBarMinimumWidth = 3500;
constexpr double kMinimumHeight = 6570;

// The kinds of file a page accepts when dropped: tested anywhere in the
// upper-cased name, so that NOTES.TXT.OLD passes too.
constexpr std::string_view kDroppableTypes[] = {".TXT", ".BRN", ".BFL", ".RTF",
                                                ".TEX", ".VRH", ".VRT", ".HTM"};

constexpr std::string_view kHelpText =
    "Vireo keys: Space, Right or M next page; Shift+Space, Left or Z previous page; "
    "1 one page; 2 two pages; G go to page; B control bar; S search; N next match; "
    "P previous match; Q quit. Right-click a page for the menu.";

}  // namespace

bool frmMain::Form_KeyUp(int virtual_key, ShiftKey shift) {
  Trap("sub form_keyup", kModule, [&] {
    if (reindex_.Busy()) return;
    switch (CommandForKey(virtual_key, shift)) {
      case KeyCommand::kPreviousPage:
        PreviousPage();
        break;
      case KeyCommand::kNextPage:
        NextPage();
        break;
      case KeyCommand::kSinglePageMode:
        SwitchPageMode(true);
        break;
      case KeyCommand::kTwoPageMode:
        SwitchPageMode(false);
        break;
      case KeyCommand::kGotoPage:
        GotoPage();
        break;
      case KeyCommand::kToggleBar:
        ToggleBar();
        break;
      case KeyCommand::kEnterSearchTerm:
        GetSearchTerm();
        break;
      case KeyCommand::kFindNext:
        FindNext();
        break;
      case KeyCommand::kFindPrevious:
        FindPrev();
        break;
      case KeyCommand::kLoad:
        mnuLoad_Click();
        break;
      case KeyCommand::kQuit:
        Quit();
        break;
      case KeyCommand::kHelp:
        mnuHelp_Click();
        break;
      case KeyCommand::kNone:
        break;
    }
  });
  return true;  // the key is consumed either way
}

void frmMain::SwitchPageMode(bool single) {
  if (prefs_.single_page_mode == single) return;
  prefs_.single_page_mode = single;
  UpdateBookMode(true);
}

void frmMain::mnuHelp_Click() {
  Trap("sub mnuhelp_click", kModule, [&] { user_.ShowMessage(kHelpText, "Vireo"); });
}

void frmMain::GotoPage() {
  Trap("sub gotopage", kModule, [&] { navigator_.GotoPage(view_.PageDialog(), PageCount()); });
}

// Re-lays the pages out after the font or the page size changed: the
// stored bookmark reopens the book where it was.
void frmMain::RepaginateAtBookmark() {
  if (book_loaded_ && pages_.count > 0) {
    StoreCurrentBookmark();
    ReindexFile(true);
  } else {
    DrawTitlePage();
  }
}

void frmMain::ChangeFontSize(int points) {
  Trap("sub changefontsize", kModule, [&] {
    if (points == 0 || points == prefs_.font_size) return;
    const int before = prefs_.font_size;
    SetFontSize(points);
    if (prefs_.font_size == before) return;
    plotter_.SetPageBorders();
    RepaginateAtBookmark();
  });
}

void frmMain::cmdBiggerFont_Click() { StepFontSize(+1); }
void frmMain::cmdSmallerFont_Click() { StepFontSize(-1); }

void frmMain::StepFontSize(int step) {
  Trap(step > 0 ? "sub cmdbiggerfont_click" : "sub cmdsmallerfont_click", kModule, [&] {
    if (reindex_.Busy() || font_guard_) return;
    font_guard_ = true;
    ChangeFontSize(prefs_.font_size + step);
    font_guard_ = false;
  });
}

void frmMain::GetNewFontSize() {
  Trap("sub getnewfontsize", kModule, [&] {
    if (font_guard_) return;
    const auto reply = user_.AskText(GetTranslation("Enter the font size"), "Vireo", "");
    if (!reply) return;
    char* end = nullptr;
    const double size = std::strtod(reply->c_str(), &end);
    if (end == reply->c_str() || size < 7 || size > 48) return;
    ChangeFontSize(static_cast<int>(std::nearbyint(size)));
  });
}

void frmMain::ChangeFontStyle(const std::string& name) {
  Trap("sub changefontstyle", kModule, [&] {
    if (name.empty() || name == prefs_.font_name) return;
    SetFontStyle(name);
    plotter_.SetPageBorders();
    RepaginateAtBookmark();
  });
}

void frmMain::ToggleBar() {
  Trap("sub togglebar", kModule, [&] {
    if (prefs_.bar_hidden) {
      prefs_.bar_hidden = false;
      view_.SetBarVisible(true);
    } else {
      view_.SetBarVisible(false);
      pump_.Yield();
      Delay(pump_, 0.1);
      prefs_.bar_hidden = true;
      pump_.Yield();
    }
    if (view_.WindowOuterSize().width < kShownBarMinimumWidth && !prefs_.bar_hidden) {
      resizing_ = true;
      view_.SetWindowWidth(kShownBarMinimumWidth);
      resizing_ = false;
    }
    LayOutBook();
    pump_.Yield();
    RepaginateAtBookmark();
  });
}

void frmMain::Form_Resize() {
  Trap("sub form_resize", kModule, [&] {
    if (resizing_) return;
    resizing_ = true;
    const WindowSize size = view_.WindowOuterSize();
    if (reindex_.Busy()) {
      view_.RestoreWindow();
      view_.SetWindowWidth(size_at_reindex_.width);
      view_.SetWindowHeight(size_at_reindex_.height);
      resizing_ = false;
      return;
    }
    const double minimum_width = prefs_.bar_hidden ? kHiddenBarMinimumWidth : kShownBarMinimumWidth;
    if (size.width < minimum_width) view_.SetWindowWidth(minimum_width);
    if (size.height < kMinimumHeight) view_.SetWindowHeight(kMinimumHeight);
    resizing_ = false;
    if (view_.WindowInnerSize() == laid_out_size_) return;
    pump_.Yield();
    LayOutBook();
    pump_.Yield();
    RepaginateAtBookmark();
  });
}

void frmMain::mnuFormatting_Click() {
  Trap("sub mnuformatting_click", kModule, [&] {
    reformat_ = !reformat_;
    view_.SetMenuTick("mnuFormatting", reformat_);
    sset("Reformat", reformat_);
    ReloadBook();
  });
}

void frmMain::mnuUnderscores_Click() {
  Trap("sub mnuunderscores_click", kModule, [&] {
    TickUnderscores(!prefs_.underscores);
    ReloadBook();
  });
}

void frmMain::mnuExtraLine_Click() {
  Trap("sub mnuextraline_click", kModule, [&] {
    TickExtraParagraphLine(!prefs_.extra_paragraph_line);
    ReloadBook();
  });
}

void frmMain::mnuJustified_Click() {
  Trap("sub mnujustified_click", kModule, [&] {
    SetJustify(!prefs_.justify);
    RedrawPages();
  });
}

void frmMain::mnuIndentParagraphs_Click() {
  Trap("sub mnuindentparagraphs_click", kModule, [&] { SetIndent(!prefs_.indented); });
}

// The formatting options take effect when the book text is loaded again.
void frmMain::ReloadBook() {
  if (!book_loaded_) return;
  StoreCurrentBookmark();
  OpenBook(book_path_);
}

void frmMain::mnuErasefile_Click() {
  Trap("sub mnuerasefile_click", kModule, [&] {
    if (font_guard_ || book_path_.empty()) return;
    const std::string question = GetTranslation("Do you really want to erase") + " " + book_path_ +
                                 " " + GetTranslation("from your hard disk?");
    if (!user_.AskYesNo(question, "Vireo")) return;
    // A file that cannot be deleted is logged, and the book is closed all
    // the same, as the handler goes on with its next statement.
    Trap("sub mnuerasefile_click", kModule, [&] {
      if (std::remove(book_path_.c_str()) != 0) throw RuntimeError(ErrorNumber::kPathFileAccess);
    });
    book_loaded_ = false;
    SetCaption("Vireo");
    DrawTitlePage();
    page_label_.clear();
    page_label_count_ = -1;
    view_.SetPageLabel("", view_.SystemButtonTextColour());
  });
}

void frmMain::mnuEraseBookmarks_Click() {
  Trap("sub mnuerasebookmarks_click", kModule, [&] {
    if (user_.AskYesNo(GetTranslation("This will erase bookmarks for all files. Are you sure?"),
                       "Vireo")) {
      EraseAllBookmarks();
    }
  });
}

void frmMain::Page_OLEDragDrop(const std::string& path) {
  Trap("sub page_oledragdrop", kModule, [&] {
    const std::string name = UpperCase(path);
    const bool known =
        std::any_of(std::begin(kDroppableTypes), std::end(kDroppableTypes),
                    [&](std::string_view type) { return name.find(type) != std::string::npos; });
    if (!known) {
      user_.ShowMessage(GetTranslation("Cannot load that type of file"), "Vireo");
      return;
    }
    if (book_loaded_) StoreCurrentBookmark();
    OpenBook(path);
  });
}

}  // namespace vireo
