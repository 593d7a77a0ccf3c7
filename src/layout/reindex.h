#pragma once

#include <cstdint>
#include <string>

#include "layout/font_metrics.h"
#include "layout/page_index.h"
#include "layout/reindex_events.h"

namespace vireo {

class MessagePump;

enum class InsertMode { kNotAllowed, kAllowed };

// The paginator: walks the book text once, word by word, breaks it into
// lines of a given width and pages of a given number of lines, and records
// where each page begins in a PageIndex. Linear in the length of the text.
// Module name in the log: "clsReindex"; every procedure logs and swallows
// its own errors.
class clsReindex {
 public:
  clsReindex() = default;
  clsReindex(const clsReindex&) = delete;
  clsReindex& operator=(const clsReindex&) = delete;

  // The font tables pagination measures with; the main window rebuilds them
  // (MakeArrays) whenever the font changes.
  clsFontMetrics& FontMetrics() { return metrics_; }
  const clsFontMetrics& FontMetrics() const { return metrics_; }

  // Seams, all optional and not owned: the event listener, the message pump
  // the paginator yields to, and the image store's heights.
  void SetEvents(ReindexEvents* events) { events_ = events; }
  void SetMessagePump(MessagePump* pump) { pump_ = pump; }
  void SetImageHeights(ImageHeightFunction heights) { image_heights_ = std::move(heights); }

  // Paginates text into index. index.count holds the number of the first text
  // page on entry (1, or 2 behind a title page) and the page count on return;
  // every other entry is recreated. reading_position is the reader's 1-based
  // place, line_width and line_height are in the units of the font tables.
  // Image placeholders may insert paragraph marks into text unless insertion
  // is not allowed (which then stays so for this object's life). Raises the
  // events while it runs; must not be called again while Busy().
  void NewReindexFile(std::string& text, InsertMode insert, PageIndex& index,
                      int32_t reading_position, double line_width, int16_t lines_per_page,
                      double line_height);

  // Replaces the character at 1-based position with NewLines(count), unless
  // insertion has been switched off. Position 0 or less is error 5 (logged);
  // a position past the end appends.
  void AddLines(std::string& text, int32_t position, int count);

  // count paragraph marks (" \n " each) joined; "" for count below 1.
  std::string NewLines(int count) const;

  // Replaces the character at position with " " + code 134 + " ", a forced
  // page break, unless insertion has been switched off.
  void AddBreak(std::string& text, int32_t position);

  // True while NewReindexFile runs (cleared just before its last two events).
  bool Busy() const { return busy_; }
  bool InsertAllowed() const { return !no_insert_; }

 private:
  friend class PaginationPass;

  void ReplaceCharacter(std::string& text, int32_t position, std::string_view replacement);
  void Yield();

  clsFontMetrics metrics_;
  ReindexEvents* events_ = nullptr;
  MessagePump* pump_ = nullptr;
  ImageHeightFunction image_heights_;
  bool busy_ = false;
  bool no_insert_ = false;
};

}  // namespace vireo
