#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "app/key_map.h"
#include "app/main_window_view.h"
#include "book/load_file.h"
#include "layout/page_index.h"
#include "layout/reindex.h"
#include "nav/page_navigation.h"
#include "nav/search.h"
#include "prefs/reader_preferences.h"
#include "render/book_display.h"
#include "render/page_boxes.h"
#include "render/page_cache.h"
#include "render/page_plotter.h"
#include "render/page_turner.h"
#include "render/print_page.h"
#include "support/user_interaction.h"

namespace vireo {

// Where the program runs from.
struct ProgramLocation {
  std::string folder;           // without a trailing separator
  std::string executable_path;  // full path of the running executable
};

// The main window's logic: start-up and shutdown, the book on show and its
// pagination, the page boxes, the preferences. The window system is reached
// only through MainWindowView. Module name in the log: "frmMain".
class frmMain : public LoadFileHost,
                public PageBoxes,
                public BookDisplay,
                public PreferencesHost,
                public ReindexEvents {
 public:
  frmMain(MainWindowView& view, UserInteraction& user, MessagePump& pump, ProgramLocation location);
  ~frmMain() override;

  // The start-up sequence. Returns false when the program must end at once
  // (the helper library is missing); the message has been shown then.
  bool Form_Load();

  // Exit: stores the preferences and closes, unless the window is busy
  // (starting, applying a font change or paginating).
  void Quit();
  // A close from the title bar: returns true to refuse it.
  bool Form_QueryUnload(bool closed_by_user);
  // Load (menu, button, key L).
  void mnuLoad_Click();

  // Loads the book appended to the file at path and shows it.
  void OpenBook(const std::string& path);
  // Lays the book view out for the window's size and mode and recomputes the
  // page borders (the boxes are cleared; the caller re-plots).
  void LayOutBook();
  // Re-paginates the book text at the stored reading position.
  void ReindexFile(bool keep_position) override;

  // Font size 6..48 (anything else is ignored) and font name for every box,
  // with the font tables rebuilt.
  void SetFontSize(int points);
  void SetFontStyle(const std::string& name);

  // Switches to the page mode in the preferences: the bookmark is stored,
  // the window takes the new mode's size (the old one saved first when
  // save_size), and the book is laid out and paginated again.
  void UpdateBookMode(bool save_size);
  // Shows page (clamped to the book; in double-page mode the spread that
  // begins on the odd page at or before it).
  void ShowPage(int page);
  // The pages on show are cleared and drawn again.
  void RedrawPages();
  // Page turns in the current mode.
  void NextPage();
  void PreviousPage();
  // The position of the page on show into the bookmarks.
  void StoreCurrentBookmark();
  // The stored position of the open book (0 when none).
  int32_t LastBookmark() const;

  // Commands of the window: keys (on release; returns true when consumed),
  // font size and style, the bar, resizing, the menus and dropped files.
  bool Form_KeyUp(int virtual_key, ShiftKey shift);
  void SwitchPageMode(bool single);
  void GotoPage();
  void ChangeFontSize(int points);
  void cmdBiggerFont_Click();
  void cmdSmallerFont_Click();
  void GetNewFontSize();
  void ChangeFontStyle(const std::string& name);
  void ToggleBar();
  void Form_Resize();
  void mnuFormatting_Click();
  void mnuUnderscores_Click();
  void mnuExtraLine_Click();
  void mnuJustified_Click();
  void mnuIndentParagraphs_Click();
  void mnuErasefile_Click();
  void mnuEraseBookmarks_Click();
  void mnuHelp_Click();
  void Page_OLEDragDrop(const std::string& path);

  // Search: the term (the search label's caption), and the moves.
  void GetSearchTerm();
  bool Search(const std::string& term, SearchDirection direction);
  void FindNext();
  void FindPrev();

  // LoadFileHost
  void ShowLoadMessage(std::string_view text) override;
  void ShowProgress(std::string_view caption, int value, int maximum) override;
  FormattingOptions Formatting() override;
  void BookLoaded(std::string text, std::string author, std::string title) override;
  void ReadBookmark() override;
  void HideLanguageList() override;

  // ReindexEvents: cReindex_PassedPage, cReindex_FinishedReindex,
  // cReindex_CurrentPage.
  void PassedPage(int32_t position) override;
  void FinishedReindex() override;
  void CurrentPage(int32_t page_count) override;

  // PageBoxes
  Surface& Box(int box) override;
  void SetBoxBackColour(int box, uint32_t bgr) override;
  void SetBoxTexture(int box, std::optional<int> slot) override;
  bool BookLoaded() const override { return book_loaded_; }
  int PageCount() const override;
  PageContent Page(int page) const override;
  std::string SearchTerm() const override { return search_term_; }
  void ShowCover(int box, int page) override;
  void UpdateSearchLabel() override {}
  TwipsSize LanguageListSize() const override;
  void PlaceLanguageList(const LanguageListPlacement& placement) override;

  // BookDisplay
  void PlotOnPage(PageSide side, int box, int page) override;
  void ClearPage(int box) override;
  void CopyPage(int source_box, int destination_box) override;
  void StretchPage(int source_box, int destination_box, double destination_width) override;
  void DrawTitlePage() override;
  double FrameWidth(int frame) const override;
  void SetBoxWidth(int box, double twips) override;
  void SetBoxLeft(int box, double twips) override;
  void SetBoxVisible(int box, Visibility visibility) override;
  void RaiseBox(int box) override;
  void SetLamp(Lamp lamp) override;
  void ShowCover() override;
  void HideCover() override;

  // PreferencesHost
  void ApplyFontName(const std::string& name) override;
  void ApplyFontSize(int points) override;
  void SetJustify(bool justify) override;
  void SetIndent(bool indented) override;
  void TickUnderscores(bool ticked) override;
  void TickExtraParagraphLine(bool ticked) override;
  bool UnderscoresTicked() const override;
  bool ExtraParagraphLineTicked() const override;
  void SetPageColours() override;
  WindowSize ScreenSize() const override;
  WindowSize CurrentWindowSize() const override;
  void MaximiseWindow() override;
  void SetResizing(bool resizing) override { resizing_ = resizing; }
  void SetWindowHeight(double twips) override;
  void SetWindowWidth(double twips) override;
  void StoreBookmark() override { StoreCurrentBookmark(); }
  void SaveBookmarks() override;

  bool busy() const { return busy_; }
  bool book_loaded() const { return book_loaded_; }
  bool paginator_busy() const { return reindex_.Busy(); }
  bool reindexing() const { return reindexing_; }
  bool resizing() const { return resizing_; }
  const std::string& settings_path() const { return settings_path_; }
  const std::string& program_folder() const { return program_folder_; }
  const std::string& book_text() const { return book_text_; }
  const std::string& book_path() const { return book_path_; }
  const std::string& author() const { return author_; }
  const std::string& title() const { return title_; }
  const std::string& caption() const { return caption_; }
  int current_page() const { return reading_.current_page; }
  const PageIndex& pages() const { return pages_; }
  const ReaderPreferences& preferences() const { return prefs_; }
  ReaderPreferences& preferences() { return prefs_; }
  const PageTextArea& text_area() const { return plotter_.text_area(); }
  const PageCache& cache() const { return cache_; }
  PageNavigator& navigator() { return navigator_; }
  PageTurner& turner() { return turner_; }

  // "Exit Vireo " + major.minor.revision.
  static std::string ExitCaption();
  // The program-folder string: a folder that ends in a separator (a drive's
  // root) becomes "C:", whatever it was.
  static std::string ProgramFolderString(const std::string& folder);

 private:
  bool CheckRequiredLibrary();
  void RunStartupSteps();
  void StartupStep(auto&& step);
  void LoadPaperTextures();
  void StoreSettings();
  void ClosingRoutine();
  void SetCaption(std::string caption);
  void ShowPageCount(int32_t page_count, uint32_t colour);
  void DrawSpreadAt(int32_t position);
  void RebuildFontTables();
  void EnsureFontTables();
  void SyncTurnSettings();
  void StepFontSize(int step);
  void RepaginateAtBookmark();
  void ReloadBook();
  void Find(SearchDirection direction, std::string_view procedure);

  MainWindowView& view_;
  UserInteraction& user_;
  MessagePump& pump_;
  ProgramLocation location_;
  std::string settings_path_;
  std::string program_folder_;
  SystemColours system_colours_;
  bool busy_ = true;
  bool book_loaded_ = false;
  bool reindexing_ = false;
  bool resizing_ = false;
  bool reformat_ = true;
  bool font_guard_ = false;
  bool font_tables_stale_ = true;
  WindowSize size_at_reindex_;
  WindowSize laid_out_size_;
  BookSearch search_;
  int book_version_ = 0;
  int search_text_version_ = -1;

  ReaderPreferences prefs_;
  std::string book_text_;
  std::string book_path_;
  std::string author_;
  std::string title_;
  std::string caption_;
  std::string search_term_;
  std::string page_label_;
  int32_t page_label_count_ = -1;
  std::chrono::steady_clock::time_point last_progress_yield_;
  uint32_t page_label_colour_ = 0;
  std::string loading_path_;

  clsReindex reindex_;
  PageIndex pages_;
  ReadingState reading_;
  TurnSettings turn_settings_;
  clsPrintPage composer_;
  PagePlotter plotter_;
  PageCache cache_;
  PageTurner turner_;
  PageNavigator navigator_;
};

// Closes the program: unloads every window, lists the recent actions into
// the log, logs "Shutdown" and ends. Module "modConstVRO".
void ShutdownProg(MainWindowView& view);

}  // namespace vireo
