#include "app/reader_commands.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "nav/bookmarks.h"
#include "prefs/settings_get_set.h"
#include "support/error_trap.h"
#include "support/text_helpers.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

// The kinds of file a page accepts when dropped: tested anywhere in the
// upper-cased name, so that NOTES.TXT.OLD passes too.
constexpr std::string_view kDroppableTypes[] = {".TXT", ".BRN", ".BFL", ".RTF",
                                                ".TEX", ".VRH", ".VRT", ".HTM"};

constexpr std::string_view kHelpText = Translatable(
    "Vireo keys: Space, Right or M next page; Shift+Space, Left or Z previous page; "
    "1 one page; 2 two pages; G go to page; B control bar; S search; N next match; "
    "P previous match; Q quit. Right-click a page for the menu.");

}  // namespace

ReaderCommands::ReaderCommands(ReaderContext& context, BookSpread& spread, BookSession& session,
                               BookLoader& loader, SearchCommands& search,
                               ViewCommands& view_commands, WindowPreferences& preferences,
                               ProgramLifecycle& lifecycle)
    : context_(context),
      spread_(spread),
      session_(session),
      loader_(loader),
      search_(search),
      view_commands_(view_commands),
      preferences_(preferences),
      lifecycle_(lifecycle) {}

bool ReaderCommands::Form_KeyUp(int virtual_key, ShiftKey shift) {
  Trap("sub form_keyup", kModule, [&] {
    if (context_.reindex.Busy()) return;
    switch (CommandForKey(virtual_key, shift)) {
      case KeyCommand::kPreviousPage:
        return spread_.PreviousPage();
      case KeyCommand::kNextPage:
        return spread_.NextPage();
      case KeyCommand::kSinglePageMode:
        return view_commands_.SwitchPageMode(true);
      case KeyCommand::kTwoPageMode:
        return view_commands_.SwitchPageMode(false);
      case KeyCommand::kGotoPage:
        return GotoPage();
      case KeyCommand::kToggleBar:
        return view_commands_.ToggleBar();
      case KeyCommand::kEnterSearchTerm:
        return search_.GetSearchTerm();
      case KeyCommand::kFindNext:
        return search_.FindNext();
      case KeyCommand::kFindPrevious:
        return search_.FindPrev();
      case KeyCommand::kLoad:
        return lifecycle_.mnuLoad_Click();
      case KeyCommand::kQuit:
        return lifecycle_.Quit();
      case KeyCommand::kHelp:
        return mnuHelp_Click();
      case KeyCommand::kNone:
        return;
    }
  });
  return true;  // the key is consumed either way
}

void ReaderCommands::Page_Mouse(const PageMouseEvent& event) {
  const PageTextArea& area = spread_.text_area();
  const PageMouseContext mouse_context{context_.reading.mode, spread_.navigator().navigation_busy(),
                                       area.top_border,       area.line_pitch,
                                       area.lines_per_page,   marked_line_};
  const PageMouseDecision decision = DecidePageMouse(event, mouse_context);
  switch (decision.action) {
    case PageMouseAction::kTurnForward:
      return spread_.NextPage();
    case PageMouseAction::kTurnBack:
      return spread_.PreviousPage();
    case PageMouseAction::kContextMenu:
      return context_.view.ShowContextMenu();
    case PageMouseAction::kMarkLine:
    case PageMouseAction::kMoveMark:
      return SetMarker(event.page_box, decision.line, decision.band_top, decision.band_bottom);
    case PageMouseAction::kSpeakLine:
      // FIXME: the marked line goes to text-to-speech once speech lands.
      return SetMarker(-1, 0, 0, 0);
    case PageMouseAction::kNone:
      return;
  }
}

void ReaderCommands::SetMarker(int frame, int line, double top, double bottom) {
  marked_line_ = line;
  context_.buffers.SetLineMarker(frame, top, bottom);
}

void ReaderCommands::Page_OLEDragDrop(const std::string& path) {
  Trap("sub page_oledragdrop", kModule, [&] {
    const std::string name = UpperCase(path);
    const bool known =
        std::any_of(std::begin(kDroppableTypes), std::end(kDroppableTypes),
                    [&](std::string_view type) { return name.find(type) != std::string::npos; });
    if (!known) {
      context_.user.ShowMessage(GetTranslation("Cannot load that type of file"), "Vireo");
      return;
    }
    if (context_.book.loaded) session_.StoreCurrentBookmark();
    loader_.OpenBook(path);
  });
}

void ReaderCommands::GotoPage() {
  Trap("sub gotopage", kModule, [&] {
    spread_.navigator().GotoPage(context_.view.PageDialog(), context_.book.PageCount());
  });
}

void ReaderCommands::mnuFormatting_Click() {
  Trap("sub mnuformatting_click", kModule, [&] {
    context_.reformat = !context_.reformat;
    context_.view.SetMenuTick("mnuFormatting", context_.reformat);
    sset("Reformat", context_.reformat);
    ReloadBook();
  });
}

void ReaderCommands::mnuUnderscores_Click() {
  Trap("sub mnuunderscores_click", kModule, [&] {
    preferences_.TickUnderscores(!context_.prefs.underscores);
    ReloadBook();
  });
}

void ReaderCommands::mnuExtraLine_Click() {
  Trap("sub mnuextraline_click", kModule, [&] {
    preferences_.TickExtraParagraphLine(!context_.prefs.extra_paragraph_line);
    ReloadBook();
  });
}

void ReaderCommands::mnuJustified_Click() {
  Trap("sub mnujustified_click", kModule, [&] {
    preferences_.SetJustify(!context_.prefs.justify);
    spread_.RedrawPages();
  });
}

void ReaderCommands::mnuIndentParagraphs_Click() {
  Trap("sub mnuindentparagraphs_click", kModule,
       [&] { preferences_.SetIndent(!context_.prefs.indented); });
}

void ReaderCommands::ReloadBook() {
  if (!context_.book.loaded) return;
  session_.StoreCurrentBookmark();
  loader_.OpenBook(session_.path());
}

void ReaderCommands::mnuErasefile_Click() {
  Trap("sub mnuerasefile_click", kModule, [&] {
    const std::string& path = session_.path();
    if (context_.font_guard || path.empty()) return;
    const std::string question = GetTranslation("Do you really want to erase") + " " + path + " " +
                                 GetTranslation("from your hard disk?");
    if (!context_.user.AskYesNo(question, "Vireo", DefaultAnswer::kNo)) return;
    // A file that cannot be deleted is logged, and the book is closed all
    // the same, as the handler goes on with its next statement.
    Trap("sub mnuerasefile_click", kModule, [&] {
      if (std::remove(path.c_str()) != 0) throw RuntimeError(ErrorNumber::kPathFileAccess);
    });
    session_.CloseBook();
  });
}

void ReaderCommands::mnuEraseBookmarks_Click() {
  Trap("sub mnuerasebookmarks_click", kModule, [&] {
    if (context_.user.AskYesNo(
            GetTranslation("This will erase bookmarks for all files. Are you sure?"), "Vireo",
            DefaultAnswer::kNo)) {
      EraseAllBookmarks();
    }
  });
}

void ReaderCommands::mnuHelp_Click() {
  Trap("sub mnuhelp_click", kModule,
       [&] { context_.user.ShowMessage(GetTranslation(kHelpText), "Vireo"); });
}

}  // namespace vireo
