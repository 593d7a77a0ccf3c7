#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

#include "app/book_spread.h"
#include "app/reader_context.h"
#include "layout/reindex_events.h"

namespace vireo {

// The open book: its file, author and title, the window caption, the
// reading position kept in the bookmarks, and its pagination with the
// paginator's events (the first spread drawn as soon as it is paginated,
// the page count on the control bar). Errors are logged under their procedures'
// logged names of module "frmMain".
class BookSession : public ReindexEvents {
 public:
  BookSession(ReaderContext& context, BookSpread& spread);

  // A book was loaded from path: its text and author are kept, title (the
  // file name) becomes the caption, the items that need a book are enabled.
  void BookLoaded(std::string text, std::string author, std::string title, std::string path);
  // The book is gone (erased): the title page is shown, the caption and the
  // page label are cleared, the items that need a book are disabled.
  void CloseBook();
  // Export, Copy Page, Print and Read Aloud, which act on the open book.
  void EnableBookItems(bool enabled);

  // The stored position of the open book (0 when none), as the current
  // page: the odd page of the spread that holds it.
  int32_t LastBookmark() const;
  void ReadBookmark();
  // The position of the page on show into the bookmarks.
  void StoreCurrentBookmark();

  // Re-paginates the book text (keep_position: at the stored reading position).
  void ReindexFile(bool keep_position);
  // After the font or the page size changed: the bookmark is stored and the
  // book re-paginated there; without a book the title page is drawn again.
  void RepaginateAtBookmark();

  // ReindexEvents: cReindex_PassedPage, cReindex_FinishedReindex,
  // cReindex_CurrentPage.
  void PassedPage(int32_t position) override;
  void FinishedReindex() override;
  void CurrentPage(int32_t page_count) override;

  // What the book file says of the book: its stored title and the size of
  // the packed book.
  void SetStoredDetails(std::string stored_title, size_t stored_size);
  const std::string& stored_title() const { return stored_title_; }
  size_t stored_size() const { return stored_size_; }

  void SetCaption(std::string caption);
  const std::string& path() const { return path_; }
  const std::string& author() const { return author_; }
  const std::string& title() const { return title_; }
  const std::string& caption() const { return caption_; }
  // Grows whenever the book text changes (loading, pictures making room).
  int version() const { return version_; }
  // The window's size when the last pagination started: a resize while it
  // runs is undone to it.
  const WindowSize& size_at_reindex() const { return size_at_reindex_; }

 private:
  void ShowPageCount(int32_t page_count, uint32_t colour);
  void WarnOfUnshownPages();

  ReaderContext& context_;
  BookSpread& spread_;
  std::string path_;
  std::string author_;
  std::string title_;
  std::string caption_;
  std::string stored_title_;
  size_t stored_size_ = 0;
  int version_ = 0;
  WindowSize size_at_reindex_;
  std::string page_label_;
  int32_t page_label_count_ = -1;
  uint32_t page_label_colour_ = 0;
  std::chrono::steady_clock::time_point last_progress_yield_;
  unsigned raises_since_clock_ = 0;
};

}  // namespace vireo
