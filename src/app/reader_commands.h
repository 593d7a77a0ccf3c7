#pragma once

#include <string>

#include "app/book_loader.h"
#include "app/book_session.h"
#include "app/book_spread.h"
#include "app/key_map.h"
#include "app/program_lifecycle.h"
#include "app/reader_context.h"
#include "app/read_aloud.h"
#include "app/search_commands.h"
#include "app/view_commands.h"
#include "app/window_preferences.h"
#include "nav/page_nav_mouse.h"

namespace vireo {

// The reader's commands from keys, menus, the mouse on the pages and
// dropped files, carried out on the other rooms. Errors are logged under
// their procedures' logged names of module "frmMain".
class ReaderCommands {
 public:
  ReaderCommands(ReaderContext& context, BookSpread& spread, BookSession& session,
                 BookLoader& loader, SearchCommands& search, ViewCommands& view_commands,
                 WindowPreferences& preferences, ProgramLifecycle& lifecycle,
                 ReadAloud& read_aloud);

  // A released key (the key map); always consumed. Dropped while the book
  // is paginated.
  bool Form_KeyUp(int virtual_key, ShiftKey shift);
  // A mouse event on a page: turns, the context menu, the line marker.
  void Page_Mouse(const PageMouseEvent& event);
  // A file dropped on a page: loaded when its name shows a book type.
  void Page_OLEDragDrop(const std::string& path);
  // A file named on the command line or chosen with Open...: loaded as a
  // dropped file is, and also when it is a program (an ebook, whose name
  // need not show a book type).
  void OpenNamedFile(const std::string& path);
  // The mouse wheel turned by notches (positive away from the reader):
  // one turn back per notch away, forward per notch towards; a notch that
  // comes while a turn or a pagination runs is dropped.
  void Page_Wheel(int notches);

  void GotoPage();
  void mnuFormatting_Click();
  void mnuUnderscores_Click();
  void mnuExtraLine_Click();
  void mnuJustified_Click();
  void mnuIndentParagraphs_Click();
  // Asks, then erases the open book's file and shows the title page.
  void mnuErasefile_Click();
  void mnuEraseBookmarks_Click();
  // The manual in the help window.
  void mnuHelp_Click();

  // The line under the marker (0: none).
  int marked_line() const { return marked_line_; }

 private:
  // The formatting options take effect when the book text is loaded again.
  void ReloadBook();
  // Loads an offered file, keeping the open book's reading position first.
  void LoadOffered(const std::string& path);
  // Home and End: the first or the last spread of the open book.
  void ShowEnd(bool last);
  void SetMarker(int frame, int line, double top, double bottom);

  ReaderContext& context_;
  BookSpread& spread_;
  BookSession& session_;
  BookLoader& loader_;
  SearchCommands& search_;
  ViewCommands& view_commands_;
  WindowPreferences& preferences_;
  ProgramLifecycle& lifecycle_;
  ReadAloud& read_aloud_;
  int marked_line_ = 0;
};

}  // namespace vireo
