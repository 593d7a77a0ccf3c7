// The main window's book view: the page boxes, the layout, the font and the
// window-side effects of the preferences.

#include <string>

#include "app/frm_main.h"
#include "render/surface.h"
#include "support/error_trap.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

}  // namespace

void frmMain::LayOutBook() {
  for (int box = 0; box < kBoxCount; ++box) ClearPage(box);
  pump_.Yield();
  const WindowSize inner = view_.WindowInnerSize();
  laid_out_size_ = inner;
  const BookViewInput input{inner.width, inner.height,
                            prefs_.bar_hidden ? ControlBar::kHidden : ControlBar::kShown,
                            view_.Frame1Width(), view_.Frame1Top()};
  BookViewLayout layout;
  if (reading_.mode == PageMode::kSingle) {
    DrawSinglePageBook(input, layout);
  } else {
    DrawDoublePageBook(input, layout);
  }
  view_.ApplyLayout(layout);
  plotter_.SetPageBorders();
}

void frmMain::SetFontSize(int points) {
  Trap("sub setfontsize", kModule, [&] {
    if (points < 6 || points > 48) return;
    prefs_.font_size = points;
    view_.SetFontSizeLabel(std::to_string(points));
    for (int box = 0; box < kBoxCount; ++box) Box(box).SetFontSize(points);
    RebuildFontTables();
  });
}

void frmMain::SetFontStyle(const std::string& name) {
  Trap("sub setfontstyle", kModule, [&] {
    prefs_.font_name = name;
    for (int box = 0; box < kBoxCount; ++box) Box(box).SetFontName(name);
    RebuildFontTables();
  });
}

// The tables are measured when they are next needed, so that setting the
// font name and then its size measures once.
void frmMain::RebuildFontTables() { font_tables_stale_ = true; }

void frmMain::EnsureFontTables() {
  if (!font_tables_stale_) return;
  font_tables_stale_ = false;
  reindex_.FontMetrics().MakeArrays(Box(kLeftPageBox));
}

void frmMain::RedrawPages() {
  Trap("sub redrawpages", kModule, [&] {
    if (!book_loaded_) {
      DrawTitlePage();
      return;
    }
    const int page = reading_.current_page;
    if (reading_.mode == PageMode::kSingle) {
      ClearPage(kLeftPageBox);
      PlotOnPage(PageSide::kLeft, kLeftPageBox, page);
      return;
    }
    ClearPage(kLeftPageBox);
    PlotOnPage(PageSide::kLeft, kLeftPageBox, page - 1);
    ClearPage(kRightPageBox);
    PlotOnPage(PageSide::kRight, kRightPageBox, page);
  });
}

// The turns read the sweep preferences as they stand (the settings dialog
// may have changed them).
void frmMain::SyncTurnSettings() {
  turn_settings_.instant_page_turn = prefs_.instant_page_turn;
  turn_settings_.page_sweep_width = prefs_.page_sweep_width;
}

void frmMain::NextPage() {
  if (reindexing_) return;
  SyncTurnSettings();
  if (reading_.mode == PageMode::kSingle) {
    turner_.SinglePageNext(PageCount());
  } else {
    turner_.WipeRightToLeft(PageCount());
  }
}

void frmMain::PreviousPage() {
  if (reindexing_) return;
  SyncTurnSettings();
  if (reading_.mode == PageMode::kSingle) {
    turner_.SinglePagePrev(PageCount());
  } else {
    turner_.WipeLeftToRight(PageCount());
  }
}

// PageBoxes

Surface& frmMain::Box(int box) { return view_.Box(box); }
void frmMain::SetBoxBackColour(int box, uint32_t bgr) { view_.SetBoxBackColour(box, bgr); }
void frmMain::SetBoxTexture(int box, std::optional<int> slot) { view_.SetBoxTexture(box, slot); }
int frmMain::PageCount() const { return book_loaded_ ? pages_.count : 0; }

PageContent frmMain::Page(int page) const {
  PageContent content;
  const int32_t start = pages_.PageStart(page);
  const int32_t next = page < pages_.UpperBound() ? pages_.PageStart(page + 1) : 0;
  const size_t from = start > 0 ? static_cast<size_t>(start - 1) : 0;
  if (from < book_text_.size()) {
    const size_t length = next > start ? static_cast<size_t>(next - start) : std::string::npos;
    content.text = book_text_.substr(from, length);
  }
  content.bold = pages_.Bold(page);
  content.italic = pages_.Italic(page);
  content.underline = pages_.Underline(page);
  return content;
}

// FIXME: the book's cover picture is shown and hidden here once covers land.
void frmMain::ShowCover(int, int) {}
void frmMain::ShowCover() {}
void frmMain::HideCover() {}

TwipsSize frmMain::LanguageListSize() const { return view_.LanguageListSize(); }
void frmMain::PlaceLanguageList(const LanguageListPlacement& placement) {
  view_.PlaceLanguageList(placement);
}

// BookDisplay

void frmMain::PlotOnPage(PageSide side, int box, int page) {
  EnsureFontTables();
  plotter_.PlotOnPage(static_cast<int>(side), box, page);
  view_.RefreshBox(box);
}

void frmMain::ClearPage(int box) {
  plotter_.ClearPage(box);
  view_.RefreshBox(box);
}

void frmMain::CopyPage(int source_box, int destination_box) {
  view_.CopyBox(source_box, destination_box);
}

void frmMain::StretchPage(int source_box, int destination_box, double destination_width) {
  view_.StretchBox(source_box, destination_box, destination_width);
}

void frmMain::DrawTitlePage() {
  plotter_.DrawTitlePage();
  view_.RefreshBox(kLeftPageBox);
  view_.RefreshBox(kRightPageBox);
}

double frmMain::FrameWidth(int frame) const { return view_.FrameWidth(frame); }
void frmMain::SetBoxWidth(int box, double twips) { view_.SetBoxWidth(box, twips); }
void frmMain::SetBoxLeft(int box, double twips) { view_.SetBoxLeft(box, twips); }
void frmMain::SetBoxVisible(int box, Visibility visibility) {
  view_.SetBoxVisible(box, visibility);
}
void frmMain::RaiseBox(int box) { view_.RaiseBox(box); }
void frmMain::SetLamp(Lamp lamp) { view_.SetLamp(lamp); }

// PreferencesHost

void frmMain::ApplyFontName(const std::string& name) { SetFontStyle(name); }
void frmMain::ApplyFontSize(int points) { SetFontSize(points); }

void frmMain::SetJustify(bool justify) {
  Trap("sub setjustify", kModule, [&] {
    prefs_.justify = justify;
    view_.SetMenuTick("mnuJustified", justify);
  });
}

void frmMain::SetIndent(bool indented) {
  Trap("sub setindent", kModule, [&] {
    prefs_.indented = indented;
    RedrawPages();
    view_.SetMenuTick("mnuIndentParagraphs", indented);
  });
}

void frmMain::TickUnderscores(bool ticked) {
  prefs_.underscores = ticked;
  view_.SetMenuTick("mnuUnderscores", ticked);
}

void frmMain::TickExtraParagraphLine(bool ticked) {
  prefs_.extra_paragraph_line = ticked;
  view_.SetMenuTick("mnuExtraLine", ticked);
}

bool frmMain::UnderscoresTicked() const { return view_.MenuTick("mnuUnderscores"); }
bool frmMain::ExtraParagraphLineTicked() const { return view_.MenuTick("mnuExtraLine"); }
void frmMain::SetPageColours() { plotter_.SetPageColours(); }
WindowSize frmMain::ScreenSize() const { return view_.ScreenSize(); }
WindowSize frmMain::CurrentWindowSize() const { return view_.WindowOuterSize(); }
void frmMain::MaximiseWindow() { view_.MaximiseWindow(); }
void frmMain::SetWindowHeight(double twips) { view_.SetWindowHeight(twips); }
void frmMain::SetWindowWidth(double twips) { view_.SetWindowWidth(twips); }

}  // namespace vireo
