#pragma once

#include "app/book_loader.h"
#include "app/book_session.h"
#include "app/book_spread.h"
#include "app/language_commands.h"
#include "app/program_lifecycle.h"
#include "app/reader_commands.h"
#include "app/reader_context.h"
#include "app/search_commands.h"
#include "app/service_commands.h"
#include "app/view_commands.h"
#include "app/window_preferences.h"

namespace vireo {

// The main window's logic, in rooms:
//   spread()      the pages on show: drawing, the cache, turns, layout, font
//   book()        the open book: caption, bookmarks, pagination and its events
//   loader()      opening a book file (LoadFile)
//   search()      the search term, Find Next and Find Previous
//   view_commands() font size and style, the bar, resizing, the page mode
//   commands()    keys, menus, the mouse on the pages, dropped files
//   preferences_host() the preferences' effects on the window
//   lifecycle()   start-up and shutdown
//   services()    print, export, copy page, reading aloud, web pages
//   languages()   the reader's language
// frmMain owns the shared state and the rooms and wires them together. The
// window system is reached only through MainWindowView and PageBuffers.
class frmMain {
 public:
  frmMain(MainWindowView& view, PageBuffers& buffers, UserInteraction& user, MessagePump& pump,
          ProgramLocation location);

  BookSpread& spread() { return spread_; }
  BookSession& book() { return session_; }
  BookLoader& loader() { return loader_; }
  SearchCommands& search() { return search_; }
  ViewCommands& view_commands() { return view_commands_; }
  ReaderCommands& commands() { return commands_; }
  WindowPreferences& preferences_host() { return preferences_; }
  ProgramLifecycle& lifecycle() { return lifecycle_; }
  ServiceCommands& services() { return services_; }
  LanguageCommands& languages() { return languages_; }

  // The shared state, for the window and for tests.
  const ReaderContext& context() const { return context_; }
  ReaderPreferences& preferences() { return context_.prefs; }
  const ReaderPreferences& preferences() const { return context_.prefs; }
  const BookPages& book_pages() const { return context_.book; }
  const PageIndex& pages() const { return context_.book.index; }
  int current_page() const { return context_.reading.current_page; }
  bool busy() const { return context_.busy; }
  bool paginator_busy() const { return context_.reindex.Busy(); }
  bool reindexing() const { return context_.reindexing; }

 private:
  ReaderContext context_;
  BookSpread spread_;
  BookSession session_;
  BookLoader loader_;
  SearchCommands search_;
  ViewCommands view_commands_;
  WindowPreferences preferences_;
  LanguageCommands languages_;
  ProgramLifecycle lifecycle_;
  ServiceCommands services_;
  ReaderCommands commands_;
};

}  // namespace vireo
