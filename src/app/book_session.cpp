#include "app/book_session.h"

#include <algorithm>

#include "app/page_limit.h"
#include "nav/bookmarks.h"
#include "render/status_lamp.h"
#include "support/error_trap.h"
#include "support/logging.h"
#include "support/milestones.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";
constexpr std::string_view kReindexingMark = " - Reindexing...";
constexpr uint32_t kRed = 255;
constexpr std::chrono::milliseconds kProgressYieldInterval{4};
constexpr unsigned kRaisesPerClockRead = 16;

std::string WithoutReindexingMark(std::string caption) {
  for (size_t at = caption.find(kReindexingMark); at != std::string::npos;
       at = caption.find(kReindexingMark)) {
    caption.erase(at, kReindexingMark.size());
  }
  return caption;
}

}  // namespace

BookSession::BookSession(ReaderContext& context, BookSpread& spread)
    : context_(context), spread_(spread) {
  context_.reindex.SetEvents(this);
  context_.reindex.SetImageHeights(
      [this](int32_t number) { return spread_.pictures().ImageHeight(number); });
  context_.reindex.SetMessagePump(&context_.pump);
}

void BookSession::SetStoredDetails(std::string stored_title, size_t stored_size) {
  stored_title_ = std::move(stored_title);
  stored_size_ = stored_size;
}

void BookSession::BookLoaded(std::string text, std::string author, std::string title,
                             std::string path) {
  path_ = std::move(path);
  context_.book.SetText(std::move(text));
  ++version_;
  author_ = std::move(author);
  title_ = std::move(title);
  SetCaption(title_);
  context_.book.loaded = true;
  EnableBookItems(true);
}

void BookSession::EnableBookItems(bool enabled) {
  for (const char* item : {"mnuSave", "mnuCopyPage", "mnuPrint", "mnuReadAloud"}) {
    context_.view.SetMenuEnabled(item, enabled);
  }
}

void BookSession::CloseBook() {
  context_.book.loaded = false;
  EnableBookItems(false);
  SetCaption("Vireo");
  spread_.plotter().DrawTitlePage();
  page_label_.clear();
  page_label_count_ = -1;
  context_.view.SetBarLabel(BarLabel::kPageNumber, "", context_.system_colours.button_text);
}

void BookSession::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  context_.view.SetCaption(caption_);
}

int32_t BookSession::LastBookmark() const {
  int32_t position = 0;
  Trap("function lastbookmark", kModule, [&] { position = RetrieveBookmark(path_); });
  return position;
}

void BookSession::ReadBookmark() {
  Trap("sub readbookmark", kModule, [&] {
    const PageIndex& pages = context_.book.index;
    const int32_t position = LastBookmark();
    int32_t page = 1;
    if (position != 0) {
      page = WhichPage(pages, position);
      if (page > context_.book.PageCount()) page = context_.book.PageCount();
      if (page == 0) page = 1;
    }
    if (page % 2 == 0) page -= 1;
    context_.reading.current_page = page;
  });
}

void BookSession::StoreCurrentBookmark() {
  Trap("sub storebookmark", kModule, [&] {
    const PageIndex& pages = context_.book.index;
    const int page = context_.reading.current_page;
    if (!context_.book.loaded || page < 1 || page > pages.count) return;
    StoreBookmark(path_, pages.PageStart(page));
  });
}

void BookSession::RepaginateAtBookmark() {
  if (context_.book.loaded && context_.book.index.count > 0) {
    StoreCurrentBookmark();
    ReindexFile(true);
  } else {
    spread_.plotter().DrawTitlePage();
  }
}

// Called for every word while the count sits on a multiple of 25: the label
// is only touched when what it shows changes.
void BookSession::ShowPageCount(int32_t page_count, uint32_t colour) {
  if (page_count == page_label_count_ && colour == page_label_colour_) return;
  page_label_ = std::to_string(page_count) + " " + GetTranslation("pages");
  page_label_count_ = page_count;
  page_label_colour_ = colour;
  context_.view.SetBarLabel(BarLabel::kPageNumber, page_label_, colour);
}

void BookSession::ReindexFile(bool keep_position) {
  Trap("sub reindexfile", kModule, [&] {
    context_.reindexing = true;
    size_at_reindex_ = context_.view.WindowOuterSize();
    spread_.plotter().SetPageBorders();
    const int32_t reading_position = keep_position ? LastBookmark() : 0;
    context_.book.index.count = 1;
    SetCaption(WithoutReindexingMark(caption_) + std::string(kReindexingMark));
    page_label_colour_ = kRed;
    context_.view.SetBarLabel(BarLabel::kPageNumber, page_label_, kRed);
    RedShape(context_.buffers, context_.pump);
    context_.pump.Yield();
    spread_.cache().ResetCache();
    const PageTextArea& area = spread_.text_area();
    spread_.plotter().EnsureFontTables();
    WriteMilestone("font tables");
    context_.reindex.NewReindexFile(context_.book.text, InsertMode::kAllowed, context_.book.index,
                                    reading_position, area.text_width, area.lines_per_page,
                                    area.line_height);
    ++version_;  // pictures may have made room for themselves in the text
    context_.reindexing = false;
    GreenShape(context_.buffers, context_.pump);
    WarnOfUnshownPages();
  });
}

// More pages than 16-bit page numbers reach: the design's overflow is logged,
// the pages that fit stay readable, and the reader is told how to see more.
void BookSession::WarnOfUnshownPages() {
  const std::string message = PageLimitMessage(context_.book);
  if (message.empty()) return;
  LogError(RuntimeError(ErrorNumber::kOverflow), "sub reindexfile", kModule);
  LogAction("The book has " + std::to_string(context_.book.index.count) +
            " pages; those after page " + std::to_string(BookPages::kLastShowablePage) +
            " cannot be shown");
  context_.user.ShowMessage(message, "Vireo");
}

// Raised after every word while the count sits on a multiple of 25: running
// the event loop costs far more than a word, so within a few milliseconds of
// the last time, with nothing new to show, the yield is left out. Reading
// the clock costs more than a word too: it is read every 16th time.
void BookSession::CurrentPage(int32_t page_count) {
  Trap("sub creindex_currentpage", kModule, [&] {
    const bool changed = page_count != page_label_count_;
    ShowPageCount(page_count, kRed);
    if (!changed && ++raises_since_clock_ % kRaisesPerClockRead != 0) return;
    const auto now = std::chrono::steady_clock::now();
    if (changed || now - last_progress_yield_ >= kProgressYieldInterval) {
      context_.pump.Yield();
      last_progress_yield_ = now;
    }
  });
}

void BookSession::PassedPage(int32_t position) {
  Trap("sub creindex_passedpage", kModule, [&] { spread_.DrawSpreadAt(position); });
}

void BookSession::FinishedReindex() {
  Trap("sub creindex_finishedreindex", kModule, [&] {
    SetCaption(WithoutReindexingMark(caption_));
    ShowPageCount(context_.book.index.count, context_.system_colours.button_text);
    context_.view.Milestone("pagination finished");
  });
}

}  // namespace vireo
