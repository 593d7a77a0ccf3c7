#pragma once

#include <string>
#include <string_view>

#include "book/formatting_options.h"

namespace vireo {

// The markers that open the header block and the packed book behind an
// executable. They exist in the program only as UTF-16 literals, so the
// reader never finds its own constants; these build their byte form.
std::string HeaderMarker();
std::string BookMarker();

// What LoadFile needs from the window that owns the book (the main window).
class LoadFileHost {
 public:
  virtual ~LoadFileHost() = default;
  // A message box (the text is already translated).
  virtual void ShowLoadMessage(std::string_view text) = 0;
  // The unpacker's progress: caption (translated), value, maximum (100).
  virtual void ShowProgress(std::string_view caption, int value, int maximum) = 0;
  // The formatting options the book is to be loaded with.
  virtual FormattingOptions Formatting() = 0;
  // A book was loaded: keep its text and author, take title (the file name)
  // as the title detail and the window caption, set the book-loaded flag and
  // enable the Save and Copy Page menu entries.
  virtual void BookLoaded(std::string text, std::string author, std::string title) = 0;
  // Picks up the saved reading position of the book just loaded.
  virtual void ReadBookmark() = 0;
  // Paginates the book (keep_position: stay at the reading position).
  virtual void ReindexFile(bool keep_position) = 0;
  // Hides the language list and its label.
  virtual void HideLanguageList() = 0;
};

// Loads the book appended to the file at path (the program's own executable
// at start-up, or a dropped file) and hands it to host. Without the header
// marker it tells the person there is no ebook in the file and changes
// nothing; other failures are logged under "sub loadfile" of "frmMain".
void LoadFile(const std::string& path, LoadFileHost& host);

}  // namespace vireo
