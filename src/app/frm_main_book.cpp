// The main window's book: loading, pagination and its events, bookmarks.

#include <algorithm>
#include <chrono>

#include "app/frm_main.h"
#include "nav/bookmarks.h"
#include "render/status_lamp.h"
#include "support/error_trap.h"
#include "support/logging.h"
#include "support/platform.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";
constexpr std::string_view kReindexingMark = " - Reindexing...";
constexpr uint32_t kRed = 255;
constexpr std::chrono::milliseconds kProgressYieldInterval{4};

std::string WithoutReindexingMark(std::string caption) {
  for (size_t at = caption.find(kReindexingMark); at != std::string::npos;
       at = caption.find(kReindexingMark)) {
    caption.erase(at, kReindexingMark.size());
  }
  return caption;
}

}  // namespace

void frmMain::ShowLoadMessage(std::string_view text) { user_.ShowMessage(text, "Vireo"); }

void frmMain::ShowProgress(std::string_view caption, int value, int maximum) {
  const int percent = maximum > 0 ? value * 100 / maximum : 0;
  view_.SetSplashStatus(std::string(caption) + " " + std::to_string(percent) + "%");
  pump_.Yield();
}

FormattingOptions frmMain::Formatting() {
  return {reformat_, prefs_.underscores, prefs_.extra_paragraph_line};
}

void frmMain::OpenBook(const std::string& path) {
  loading_path_ = path;
  LoadFile(path, *this);
}

void frmMain::BookLoaded(std::string text, std::string author, std::string title) {
  book_path_ = loading_path_;
  book_text_ = std::move(text);
  ++book_version_;
  author_ = std::move(author);
  title_ = std::move(title);
  SetCaption(title_);
  book_loaded_ = true;
  for (const char* item : {"mnuSave", "mnuCopyPage", "mnuPrint"}) view_.SetMenuEnabled(item, true);
}

void frmMain::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  view_.SetCaption(caption_);
}

void frmMain::HideLanguageList() { view_.SetLanguageListVisible(false); }

int32_t frmMain::LastBookmark() const {
  int32_t position = 0;
  Trap("function lastbookmark", kModule, [&] { position = RetrieveBookmark(book_path_); });
  return position;
}

void frmMain::ReadBookmark() {
  Trap("sub readbookmark", kModule, [&] {
    const int32_t position = LastBookmark();
    int32_t page = 1;
    if (position != 0) {
      page = WhichPage(pages_, position);
      if (page > pages_.count) page = pages_.count;
      if (page == 0) page = 1;
    }
    if (page % 2 == 0) page -= 1;
    reading_.current_page = page;
  });
}

void frmMain::StoreCurrentBookmark() {
  Trap("sub storebookmark", kModule, [&] {
    if (!book_loaded_ || reading_.current_page < 1 || reading_.current_page > pages_.count) return;
    vireo::StoreBookmark(book_path_, pages_.PageStart(reading_.current_page));
  });
}

void frmMain::SaveBookmarks() { vireo::SaveBookmarks(); }

// Called for every word while the count sits on a multiple of 25: the label
// is only touched when what it shows changes.
void frmMain::ShowPageCount(int32_t page_count, uint32_t colour) {
  if (page_count == page_label_count_ && colour == page_label_colour_) return;
  page_label_ = std::to_string(page_count) + " " + GetTranslation("pages");
  page_label_count_ = page_count;
  page_label_colour_ = colour;
  view_.SetPageLabel(page_label_, colour);
}

void frmMain::ReindexFile(bool keep_position) {
  Trap("sub reindexfile", kModule, [&] {
    reindexing_ = true;
    size_at_reindex_ = view_.WindowOuterSize();
    plotter_.SetPageBorders();
    const int32_t reading_position = keep_position ? LastBookmark() : 0;
    pages_.count = 1;
    SetCaption(WithoutReindexingMark(caption_) + std::string(kReindexingMark));
    page_label_colour_ = kRed;
    view_.SetPageLabel(page_label_, kRed);
    RedShape(*this, pump_);
    pump_.Yield();
    cache_.ResetCache();
    const PageTextArea& area = plotter_.text_area();
    EnsureFontTables();
    reindex_.NewReindexFile(book_text_, InsertMode::kAllowed, pages_, reading_position,
                            area.text_width, area.lines_per_page, area.line_height);
    ++book_version_;  // pictures may have made room for themselves in the text
    reindexing_ = false;
    GreenShape(*this, pump_);
  });
}

// Raised after every word while the count sits on a multiple of 25: running
// the event loop costs far more than a word, so within a few milliseconds of
// the last time, with nothing new to show, the yield is left out.
void frmMain::CurrentPage(int32_t page_count) {
  Trap("sub creindex_currentpage", kModule, [&] {
    const bool changed = page_count != page_label_count_;
    ShowPageCount(page_count, kRed);
    const auto now = std::chrono::steady_clock::now();
    if (changed || now - last_progress_yield_ >= kProgressYieldInterval) {
      pump_.Yield();
      last_progress_yield_ = now;
    }
  });
}

void frmMain::PassedPage(int32_t position) {
  Trap("sub creindex_passedpage", kModule, [&] { DrawSpreadAt(position); });
}

// The reader's page drawn as soon as it is paginated: the spread that holds
// position, with the cache filled on both sides.
void frmMain::DrawSpreadAt(int32_t position) {
  int32_t page = std::clamp<int32_t>(WhichPage(pages_, position), 1, pages_.count);
  if (reading_.mode == PageMode::kSingle) {
    reading_.current_page = page;
    ClearPage(kLeftPageBox);
    PlotOnPage(PageSide::kLeft, kLeftPageBox, page);
  } else {
    if (page % 2 == 0) page -= 1;
    ClearPage(kLeftPageBox);
    ClearPage(kRightPageBox);
    reading_.current_page = page;
    PlotOnPage(PageSide::kLeft, kLeftPageBox, page);
    reading_.current_page = page + 1;
    PlotOnPage(PageSide::kRight, kRightPageBox, page + 1);
  }
  reindexing_ = false;
  view_.Milestone("first spread");
  cache_.RefillAfterRedraw();
  reading_.busy = false;
}

void frmMain::FinishedReindex() {
  Trap("sub creindex_finishedreindex", kModule, [&] {
    SetCaption(WithoutReindexingMark(caption_));
    ShowPageCount(pages_.count, view_.SystemButtonTextColour());
    view_.Milestone("pagination finished");
  });
}

}  // namespace vireo
