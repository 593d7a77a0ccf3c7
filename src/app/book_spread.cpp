#include "app/book_spread.h"

#include <algorithm>

#include "render/book_view.h"
#include "render/status_lamp.h"
#include "render/surface.h"
#include "support/error_trap.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

}  // namespace

BookSpread::BookSpread(ReaderContext& context)
    : context_(context),
      composer_(context.pump),
      plotter_(context.buffers, context.book, context.prefs, composer_,
               context.reindex.FontMetrics()),
      pictures_(context.images, plotter_.text_area()),
      cache_(plotter_, context.buffers, context.pump, context.reading),
      turner_(plotter_, context.buffers, context.pump, cache_, context.reading, turn_settings_),
      navigator_(plotter_, context.reading) {
  composer_.SetImageStore(&pictures_);
  composer_.SetObserver(&plotter_);
  composer_.SetUser(&context.user);
  plotter_.SetPictures(&context.images);
}

void BookSpread::LayOutBook() {
  for (int box = 0; box < PageBuffers::kBoxCount; ++box) plotter_.ClearPage(box);
  context_.pump.Yield();
  const WindowSize inner = context_.view.WindowInnerSize();
  laid_out_size_ = inner;
  const TwipsRect bar = ControlBarRect(inner.width, inner.height);
  const BookViewInput input{inner.width, inner.height,
                            context_.prefs.bar_hidden ? ControlBar::kHidden : ControlBar::kShown,
                            bar.width, bar.top};
  BookViewLayout layout;
  if (context_.reading.mode == PageMode::kSingle) {
    DrawSinglePageBook(input, layout);
  } else {
    DrawDoublePageBook(input, layout);
  }
  context_.buffers.ApplyLayout(layout);
  laid_out_ = true;
  plotter_.SetPageBorders();
}

bool BookSpread::SizeChangedSinceLayout() const {
  return !(context_.view.WindowInnerSize() == laid_out_size_);
}

void BookSpread::ShowPage(int page) {
  Trap("sub showpage", kModule, [&] {
    const PageIndex& pages = context_.book.index;
    if (!context_.book.loaded || pages.count < 1) return;
    ReadingState& reading = context_.reading;
    int first = std::clamp(page, 1, context_.book.PageCount());
    if (reading.mode == PageMode::kDouble && first % 2 == 0) first -= 1;
    reading.current_page = reading.mode == PageMode::kDouble ? first + 1 : first;
    cache_.ResetCache();
    RedrawPages();
    cache_.RefillAfterRedraw();
    NoShape(context_.buffers, context_.pump);
  });
}

void BookSpread::RedrawPages() {
  // Until the book is first laid out its page buffers are placeholders that
  // the layout replaces, so nothing drawn on them could ever be seen (the
  // preferences applied at start-up would draw the title page twice).
  if (!laid_out_) return;
  Trap("sub redrawpages", kModule, [&] {
    if (!context_.book.loaded) {
      plotter_.DrawTitlePage();
      return;
    }
    const int page = context_.reading.current_page;
    if (context_.reading.mode == PageMode::kSingle) {
      plotter_.ClearPage(kLeftPageBox);
      plotter_.PlotOnPage(PageSide::kLeft, kLeftPageBox, page);
      return;
    }
    plotter_.ClearPage(kLeftPageBox);
    plotter_.PlotOnPage(PageSide::kLeft, kLeftPageBox, page - 1);
    plotter_.ClearPage(kRightPageBox);
    plotter_.PlotOnPage(PageSide::kRight, kRightPageBox, page);
  });
}

void BookSpread::DrawSpreadAt(int32_t position) {
  const PageIndex& pages = context_.book.index;
  ReadingState& reading = context_.reading;
  int32_t page = std::clamp<int32_t>(WhichPage(pages, position), 1, context_.book.PageCount());
  if (reading.mode == PageMode::kSingle) {
    reading.current_page = page;
    plotter_.ClearPage(kLeftPageBox);
    plotter_.PlotOnPage(PageSide::kLeft, kLeftPageBox, page);
  } else {
    if (page % 2 == 0) page -= 1;
    plotter_.ClearPage(kLeftPageBox);
    plotter_.ClearPage(kRightPageBox);
    reading.current_page = page;
    plotter_.PlotOnPage(PageSide::kLeft, kLeftPageBox, page);
    reading.current_page = page + 1;
    plotter_.PlotOnPage(PageSide::kRight, kRightPageBox, page + 1);
  }
  context_.reindexing = false;
  context_.view.Milestone("first spread");
  cache_.RefillAfterRedraw();
  reading.busy = false;
}

void BookSpread::SyncTurnSettings() {
  turn_settings_.instant_page_turn = context_.prefs.instant_page_turn;
  turn_settings_.page_sweep_width = context_.prefs.page_sweep_width;
}

void BookSpread::NextPage() {
  if (context_.reindexing) return;
  // Past the last spread a forward turn still moves the page number on; it
  // stops where the next number would not fit in 16 bits.
  if (context_.reading.current_page > INT16_MAX - 2) return;
  SyncTurnSettings();
  if (context_.reading.mode == PageMode::kSingle) {
    turner_.SinglePageNext(context_.book.PageCount());
  } else {
    turner_.WipeRightToLeft(context_.book.PageCount());
  }
}

void BookSpread::PreviousPage() {
  if (context_.reindexing) return;
  SyncTurnSettings();
  if (context_.reading.mode == PageMode::kSingle) {
    turner_.SinglePagePrev(context_.book.PageCount());
  } else {
    turner_.WipeLeftToRight(context_.book.PageCount());
  }
}

void BookSpread::SetFontSize(int points) {
  Trap("sub setfontsize", kModule, [&] {
    if (points < 6 || points > 48) return;
    context_.prefs.font_size = points;
    context_.view.SetBarLabel(BarLabel::kFontSize, std::to_string(points),
                              context_.system_colours.button_text);
    for (int box = 0; box < PageBuffers::kBoxCount; ++box) {
      context_.buffers.Box(box).SetFontSize(points);
    }
    plotter_.MarkFontTablesStale();
  });
}

void BookSpread::SetFontStyle(const std::string& name) {
  Trap("sub setfontstyle", kModule, [&] {
    context_.prefs.font_name = name;
    for (int box = 0; box < PageBuffers::kBoxCount; ++box) {
      context_.buffers.Box(box).SetFontName(name);
    }
    plotter_.MarkFontTablesStale();
  });
}

void BookSpread::LoadPaperTextures() {
  Trap("sub loadtextures", kModule, [&] {
    for (const TextureFile& file : LoadTextures(context_.location.DataFolder())) {
      context_.buffers.LoadTexture(file.slot, file.path);
    }
  });
}

int BookSpread::PageOnBox(int box) const {
  const int current = context_.reading.current_page;
  if (context_.reading.mode == PageMode::kSingle) return box == kLeftPageBox ? current : 0;
  return box == kLeftPageBox ? current - 1 : current;
}

}  // namespace vireo
