#pragma once

#include <string>

#include "app/main_window_view.h"
#include "app/program_location.h"
#include "book/cls_new_images.h"
#include "book/picture_files.h"
#include "layout/reindex.h"
#include "prefs/reader_preferences.h"
#include "render/book_pages.h"
#include "render/page_buffers.h"
#include "render/page_cache.h"
#include "support/user_interaction.h"

namespace vireo {

// What the rooms of the main window's logic share: the window system's two
// seams, the person, the message pump, and the reader's state. frmMain owns
// it; each room holds a reference. Module name in the log: "frmMain".
struct ReaderContext {
  ReaderContext(MainWindowView& window, PageBuffers& page_buffers, UserInteraction& person,
                MessagePump& message_pump, ProgramLocation where)
      : view(window),
        buffers(page_buffers),
        user(person),
        pump(message_pump),
        location(std::move(where)) {}

  MainWindowView& view;
  PageBuffers& buffers;
  UserInteraction& user;
  MessagePump& pump;
  const ProgramLocation location;

  ReaderPreferences prefs;
  ReadingState reading;
  BookPages book;                  // the open book's text and page index
  clsReindex reindex;              // the paginator, with the font tables it measures by
  clsNewImages images;             // the pictures of the open book
  DiskPictureFiles picture_files;  // where books' pictures are looked for on disk
  Picture cover;                   // the open book's cover (empty: none)
  WindowColours system_colours;

  // The busy flags commands respect: a command that arrives while one is
  // raised is dropped.
  bool busy = true;         // the start-up sequence runs
  bool font_guard = false;  // a font-size change is applied
  bool resizing = false;    // the program sets the window's size itself
  bool reindexing = false;  // from the start of a pagination to its first spread
  bool reformat = true;     // "Reformat": the book's paragraphs are reformatted on loading
  int menu_page_box = -1;   // the page box the context menu was last opened on
};

}  // namespace vireo
