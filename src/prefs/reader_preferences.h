#pragma once

#include <cstdint>
#include <string>

#include "prefs/preference_ranges.h"

namespace vireo {

// The reader's preferences as the program holds them between start-up and
// shutdown. Colours are 0x00BBGGRR; window sizes and borders are twips.
struct ReaderPreferences {
  std::string font_name = "Times New Roman";
  bool single_page_mode = false;
  int font_size = 10;  // points
  bool justify = true;
  bool indented = true;
  bool bar_hidden = false;
  bool underscores = false;              // underscores become italics on loading
  bool extra_paragraph_line = false;     // an empty line between paragraphs on loading
  uint32_t paper_colour = 0xFFFFFF;      // "PaperColour"; the system's window colour by default
  uint32_t ink_colour = 0x000000;        // "InkColour"; the system's window text colour by default
  uint32_t highlight_colour = 0x00B000;  // "HLColour": search matches
  uint32_t page_number_colour = 0x808080;  // "PNColour"
  int page_sweep_width = 2100;
  double window_width = kMinimumWindowWidthWithBar;
  double window_height = kMinimumWindowHeight;
  bool instant_page_turn = false;
  int texture_num = 1;  // -1: no texture; 0..3: a paper texture
  std::string path;     // default folder for opening and saving files
};

struct WindowSize {
  double width = 0;  // twips
  double height = 0;
  friend bool operator==(const WindowSize&, const WindowSize&) = default;
};

// The window-side effects of reading and storing the preferences, called in
// the order the preferences are read. The main window implements it.
class PreferencesHost {
 public:
  virtual ~PreferencesHost() = default;
  // The setters of the font, the formatting flags and the menu ticks.
  virtual void ApplyFontName(const std::string& name) = 0;
  virtual void ApplyFontSize(int points) = 0;
  virtual void SetJustify(bool justify) = 0;
  virtual void SetIndent(bool indented) = 0;
  virtual void TickUnderscores(bool ticked) = 0;
  virtual void TickExtraParagraphLine(bool ticked) = 0;
  virtual bool UnderscoresTicked() const = 0;
  virtual bool ExtraParagraphLineTicked() const = 0;
  // Gives the page boxes the preference's paper and ink colours and texture.
  virtual void SetPageColours() = 0;
  // The screen's size and the window's outer size, in twips.
  virtual WindowSize ScreenSize() const = 0;
  virtual WindowSize CurrentWindowSize() const = 0;
  virtual void MaximiseWindow() = 0;
  // While raised, the resize handler leaves a size change alone.
  virtual void SetResizing(bool resizing) = 0;
  virtual void SetWindowHeight(double twips) = 0;
  virtual void SetWindowWidth(double twips) = 0;
};

// The system colours that stand in for absent paper and ink colours, taken
// from the window system before the preferences are read.
struct SystemColours {
  uint32_t window = 0xFFFFFF;
  uint32_t window_text = 0x000000;
};

// Reads every start-up preference from the settings store into prefs and
// applies it through host, in a fixed order. A value of the wrong type is
// logged ("sub readsettings", "frmMain") and that one step is skipped: its
// preference keeps the value prefs held. The window size is read for the page
// mode just read; a window at least 0.95 of the screen in either dimension is
// maximised.
void ReadSettings(ReaderPreferences& prefs, PreferencesHost& host, const SystemColours& system);

// "Path", defaulting to executable_folder; a folder that no longer exists
// falls back to executable_folder.
void ReadDefaultPath(ReaderPreferences& prefs, const std::string& executable_folder);

// Writes the shutdown preferences (page mode, font, formatting, path,
// colours, the window's current size under the current mode's keys, the two
// formatting ticks) and saves the store to settings_path; the caller stores
// the bookmark before and saves the bookmarks after. "PageSweepWidth", "InstantPageTurn",
// "TextureNum" and the borders are left to the settings dialog.
void StoreSettings(const ReaderPreferences& prefs, PreferencesHost& host,
                   const std::string& settings_path);

}  // namespace vireo
