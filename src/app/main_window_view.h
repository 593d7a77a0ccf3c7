#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "app/peripheral_services.h"
#include "app/progress_display.h"
#include "nav/page_navigation.h"
#include "prefs/reader_preferences.h"

namespace vireo {

// The controls on the control bar that show a text.
enum class BarLabel {
  kPageNumber,  // lblPageNum: the page count
  kFontSize,    // lblFontSize
  kSearch,      // lblSearch: the search term
};

// The window's state as the size commands see it.
enum class WindowState { kNormal, kMaximised, kMinimised };

// The window system's colours that stand in for the reader's own.
struct WindowColours {
  uint32_t window = 0xFFFFFF;       // window background
  uint32_t window_text = 0x000000;  // window text
  uint32_t button_text = 0x000000;  // button text: the page label at rest
};

// What the main window's logic needs from the window system apart from the
// page pictures (PageBuffers): the splash, the window, the control bar, the
// menu and the dialogs the commands open. The Qt main window implements it;
// tests fake it. Lengths are twips, colours 0x00BBGGRR. ShowProgress goes
// to the splash while it is up and to the window's status afterwards.
class MainWindowView : public ProgressDisplay {
 public:
  // Splash window and shutdown.
  virtual void ShowSplash() = 0;
  virtual void UnloadSplash() = 0;
  // Unloads every open window, from the last in the program's list to the first.
  virtual void UnloadAllWindows() = 0;
  // Ends the program's message loop with the exit status.
  virtual void EndProgram(int status) = 0;

  // Shows the main window (before the book is loaded, so that the first
  // spread appears while the rest of the book is paginated).
  virtual void ShowMainWindow() = 0;
  virtual void SetCaption(std::string_view caption) = 0;
  virtual void SetExitCaption(std::string_view caption) = 0;
  virtual WindowColours SystemColours() const = 0;
  virtual WindowSize ScreenSize() const = 0;
  // The window's size as the preferences keep it and the commands enforce
  // it, and its inner (client) size that the book view is laid out in. A
  // window system that cannot know its frame before the window is shown
  // gives the client size for both, so that stored sizes do not drift.
  virtual WindowSize WindowOuterSize() const = 0;
  virtual WindowSize WindowInnerSize() const = 0;
  virtual void SetWindowWidth(double twips) = 0;
  virtual void SetWindowHeight(double twips) = 0;
  virtual WindowState State() const = 0;
  // kMaximised maximises, kNormal restores a maximised or minimised window.
  virtual void SetState(WindowState state) = 0;

  // The control bar: shown or hidden, and the labels on it.
  virtual void SetBarVisible(bool visible) = 0;
  virtual void SetBarLabel(BarLabel label, std::string_view text, uint32_t colour) = 0;
  // Menu items by name ("mnuJustified" ...): ticks and enabled state.
  virtual void SetMenuTick(std::string_view item, bool ticked) = 0;
  virtual void SetMenuEnabled(std::string_view item, bool enabled) = 0;
  // The pages' right-click menu at the pointer.
  virtual void ShowContextMenu() = 0;
  // The same menu opened from the keyboard, at the top of the left page.
  virtual void ShowOptionsMenuAtPage() = 0;
  // The page dialog (frmPageNav) that Goto Page shows.
  virtual PageChooser& PageDialog() = 0;
  // The manual, printer, clipboard, browser, common dialogs and speech.
  virtual PeripheralServices& Services() = 0;

  // A point in the program's progress ("first spread", "pagination
  // finished"), for timing; the window may report it.
  virtual void Milestone(std::string_view what) { (void)what; }

  // The languages offered (English first, then their own names in
  // Windows-1252) and the one chosen, with its file's code ("" for English):
  // the window fills its language list and menu and translates its forms.
  virtual void ShowLanguages(const std::vector<std::string>& names, int chosen,
                             std::string_view code) {
    (void)names, (void)chosen, (void)code;
  }
};

}  // namespace vireo
