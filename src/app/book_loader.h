#pragma once

#include <string>

#include "app/book_prefetch.h"
#include "app/book_session.h"
#include "app/book_spread.h"
#include "app/reader_context.h"

namespace vireo {

// Opening a book file: read it, find the markers, unpack and reformat it
// (progress shown on the window's progress display), take the reading
// position from the bookmarks and paginate it there
// (LoadFile). The picture references become placeholders of the image store
// and the book's cover is loaded (see CoverPictureBytes). Its errors are
// logged under "sub loadfile" of "frmMain".
class BookLoader {
 public:
  BookLoader(ReaderContext& context, BookSpread& spread, BookSession& session);

  // Loads the book appended to the file at path (the program's own
  // executable at start-up, a dropped or named file, the book again after a
  // formatting change), or the stand-alone packed book a ".brn"/".bfl" file
  // holds. Without a book the person is told there is no ebook in the file
  // and the open book stays as it was.
  void OpenBook(const std::string& path);
  // Starts reading and unpacking the book at path on a second thread, with
  // the formatting the stored settings ask for, for the OpenBook of the same
  // file and formatting that follows. Until then nothing may use the picture
  // store or the book's picture files.
  void PrefetchBook(const std::string& path);

 private:
  FormattingOptions Formatting() const;
  PictureLoading Pictures(const std::string& path);
  BookReadResult ReadBook(const std::string& path);
  void ShowProgress(std::string_view caption, int value, int maximum);
  // The open book's cover into context.cover and onto the plotter.
  void LoadCover(const std::string& packed_cover, const std::string& path);

  ReaderContext& context_;
  BookSpread& spread_;
  BookSession& session_;
  BookPrefetch prefetch_;
};

}  // namespace vireo
