#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "nav/page_navigation.h"
#include "prefs/reader_preferences.h"
#include "render/book_display.h"
#include "render/book_view.h"
#include "render/title_page.h"

namespace vireo {

class Surface;

// What the main window's logic needs from the window system: the splash,
// the window and its captions, the page boxes and their frames, the control
// bar and the menu. The Qt main window implements it; tests fake it. Lengths
// are twips, colours 0x00BBGGRR.
class MainWindowView {
 public:
  virtual ~MainWindowView() = default;

  // Splash window and shutdown.
  virtual void ShowSplash() = 0;
  virtual void SetSplashStatus(std::string_view text) = 0;
  virtual void UnloadSplash() = 0;
  // Unloads every open window, from the last in the program's list to the first.
  virtual void UnloadAllWindows() = 0;
  // Ends the program's message loop with the exit status.
  virtual void EndProgram(int status) = 0;

  // The window.
  // Shows the main window (before the book is loaded, so that the first
  // spread appears while the rest of the book is paginated).
  virtual void ShowMainWindow() = 0;
  virtual void SetCaption(std::string_view caption) = 0;
  virtual void SetExitCaption(std::string_view caption) = 0;
  // The window system's window background and window text colours.
  virtual uint32_t SystemWindowColour() = 0;
  virtual uint32_t SystemWindowTextColour() = 0;
  // The system's button-text colour, for the page label at rest.
  virtual uint32_t SystemButtonTextColour() = 0;
  virtual WindowSize ScreenSize() const = 0;
  // The window's size as the preferences keep it and the commands enforce
  // it, and its inner (client) size that the book view is laid out in. A
  // window system that cannot know its frame before the window is shown
  // gives the client size for both, so that stored sizes do not drift.
  virtual WindowSize WindowOuterSize() const = 0;
  virtual WindowSize WindowInnerSize() const = 0;
  virtual void SetWindowWidth(double twips) = 0;
  virtual void SetWindowHeight(double twips) = 0;
  virtual void MaximiseWindow() = 0;
  virtual bool IsMaximisedOrMinimised() const = 0;
  // A maximised or minimised window back to its normal size.
  virtual void RestoreWindow() = 0;

  // The book view: frames, boxes and edge lines as laid out.
  virtual void ApplyLayout(const BookViewLayout& layout) = 0;
  // Page(box): an image buffer of the page size with a drawing surface.
  virtual Surface& Box(int box) = 0;
  virtual void SetBoxBackColour(int box, uint32_t bgr) = 0;
  // Sets the box's background texture (slot 0..3, or none) and repaints it
  // with back colour and texture.
  virtual void SetBoxTexture(int box, std::optional<int> slot) = 0;
  // Loads a paper texture picture into a slot; false when it cannot be read.
  virtual bool LoadTexture(int slot, const std::string& path) = 0;
  virtual void CopyBox(int source_box, int destination_box) = 0;
  virtual void StretchBox(int source_box, int destination_box, double width) = 0;
  virtual double FrameWidth(int frame) const = 0;
  virtual void SetBoxWidth(int box, double twips) = 0;
  virtual void SetBoxLeft(int box, double twips) = 0;
  virtual void SetBoxVisible(int box, Visibility visibility) = 0;
  virtual void RaiseBox(int box) = 0;
  // Shows what has been drawn into a box, with the next repaint.
  virtual void RefreshBox(int box) = 0;
  virtual void SetLamp(Lamp lamp) = 0;

  // The control bar.
  virtual void SetBarVisible(bool visible) = 0;
  virtual double Frame1Width() const = 0;
  virtual double Frame1Top() const = 0;
  virtual void SetPageLabel(std::string_view text, uint32_t colour) = 0;
  virtual void SetFontSizeLabel(std::string_view text) = 0;
  virtual void SetSearchLabel(std::string_view text) = 0;
  // The page dialog (frmPageNav) that Goto Page shows.
  virtual PageChooser& PageDialog() = 0;

  // The language list beside the title page's hints.
  virtual TwipsSize LanguageListSize() const = 0;
  virtual void PlaceLanguageList(const LanguageListPlacement& placement) = 0;
  virtual void SetLanguageListVisible(bool visible) = 0;

  // A point in the program's progress ("first spread", "pagination
  // finished"), for timing; the window may report it.
  virtual void Milestone(std::string_view what) { (void)what; }

  // Menu items by name ("mnuJustified" ...): ticks and enabled state.
  virtual void SetMenuTick(std::string_view item, bool ticked) = 0;
  virtual bool MenuTick(std::string_view item) const = 0;
  virtual void SetMenuEnabled(std::string_view item, bool enabled) = 0;
};

}  // namespace vireo
