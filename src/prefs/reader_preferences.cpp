#include "prefs/reader_preferences.h"

#include "prefs/preference_ranges.h"
#include "prefs/settings_get_set.h"
#include "support/checked_int16.h"
#include "support/error_trap.h"
#include "support/platform.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";
// A window this close to the screen's size in either dimension opens
// maximised.
constexpr double kMaximiseFraction = 0.95;

// Each statement of ReadSettings is a step of its own: an error skips only
// that step.
void ReadStep(auto&& step) { Trap("sub readsettings", kModule, step); }
void StoreStep(auto&& step) { Trap("sub storesettings", kModule, step); }

int ReadInteger(const NumberPreference& preference) {
  return Int16::FromDouble(ReadNumberPreference(preference));
}

bool ReadBool(const std::string& key, bool default_value) {
  return sget(key, default_value).ToBoolean();
}

uint32_t ReadColour(const std::string& key, uint32_t default_value) {
  const double colour = ReadNumberPreference(ColourPreference(key, default_value));
  return static_cast<uint32_t>(SettingValue(colour).ToLong());
}

SettingValue ColourValue(uint32_t colour) { return SettingValue(static_cast<int64_t>(colour)); }

// Maximises a window nearly as large as the screen; otherwise sets its height
// (with the resizing flag raised, so that the resize handler does not lay the
// book out twice) and then its width.
void FitToScreen(const ReaderPreferences& prefs, PreferencesHost& host) {
  bool maximise = false;
  ReadStep([&] {
    const WindowSize screen = host.ScreenSize();
    maximise = prefs.window_height >= kMaximiseFraction * screen.height ||
               prefs.window_width >= kMaximiseFraction * screen.width;
    if (maximise) host.MaximiseWindow();
  });
  if (maximise) return;
  ReadStep([&] { host.SetResizing(true); });
  ReadStep([&] { host.SetWindowHeight(prefs.window_height); });
  ReadStep([&] { host.SetResizing(false); });
  ReadStep([&] { host.SetWindowWidth(prefs.window_width); });
}

void ReadColours(ReaderPreferences& prefs, PreferencesHost& host, const SystemColours& system) {
  ReadStep([&] { prefs.paper_colour = ReadColour("PaperColour", system.window); });
  ReadStep([&] { prefs.ink_colour = ReadColour("InkColour", system.window_text); });
  ReadStep([&] { prefs.highlight_colour = ReadColour("HLColour", 45056); });
  ReadStep([&] { prefs.page_number_colour = ReadColour("PNColour", 0x808080); });
  ReadStep([&] { host.SetPageColours(); });
}

}  // namespace

void ReadSettings(ReaderPreferences& prefs, PreferencesHost& host, const SystemColours& system) {
  ReadStep([&] {
    prefs.font_name = sget("FontName", "Times New Roman").ToText();
    host.ApplyFontName(prefs.font_name);
  });
  ReadStep([&] { prefs.single_page_mode = ReadBool("SinglePageMode", false); });
  ReadStep([&] {
    prefs.font_size = ReadInteger(FontSizePreference());
    host.ApplyFontSize(prefs.font_size);
  });
  ReadStep([&] {
    prefs.justify = ReadBool("Justify", true);
    host.SetJustify(prefs.justify);
  });
  ReadStep([&] {
    prefs.indented = ReadBool("Indented", true);
    host.SetIndent(prefs.indented);
  });
  ReadStep([&] { prefs.bar_hidden = ReadBool("BarHidden", false); });
  ReadStep([&] {
    prefs.underscores = ReadBool("UnderScores", false);
    host.TickUnderscores(prefs.underscores);
  });
  ReadStep([&] {
    prefs.extra_paragraph_line = ReadBool("ExtraParagraphLine", false);
    host.TickExtraParagraphLine(prefs.extra_paragraph_line);
  });
  ReadColours(prefs, host, system);
  ReadStep([&] { prefs.page_sweep_width = ReadInteger(PageSweepWidthPreference()); });
  // The default width follows the bar, the key follows the page mode.
  ReadStep([&] {
    const double default_width =
        prefs.bar_hidden ? kMinimumWindowWidthWithoutBar : kMinimumWindowWidthWithBar;
    const char* key = prefs.single_page_mode ? "SingleWinWidth" : "WinWidth";
    prefs.window_width = ReadNumberPreference(WindowWidthPreference(key, default_width));
  });
  ReadStep([&] {
    const char* key = prefs.single_page_mode ? "SingleWinHeight" : "WinHeight";
    prefs.window_height = ReadNumberPreference(WindowHeightPreference(key, kMinimumWindowHeight));
  });
  FitToScreen(prefs, host);
  ReadStep([&] { prefs.instant_page_turn = ReadBool("InstantPageTurn", false); });
  ReadStep([&] { prefs.texture_num = ReadInteger(TextureNumPreference()); });
}

void ReadDefaultPath(ReaderPreferences& prefs, const std::string& executable_folder) {
  Trap("sub readdefaultpath", kModule, [&] {
    std::string path = sget("Path", executable_folder).ToText();
    if (!FolderExists(path)) path = executable_folder;
    prefs.path = path;
  });
}

void StoreSettings(const ReaderPreferences& prefs, PreferencesHost& host,
                   const std::string& settings_path) {
  StoreStep([&] { sset("SinglePageMode", prefs.single_page_mode); });
  StoreStep([&] { sset("FontSize", prefs.font_size); });
  StoreStep([&] { sset("BarHidden", prefs.bar_hidden); });
  StoreStep([&] { sset("FontName", prefs.font_name); });
  StoreStep([&] { sset("Justify", prefs.justify); });
  StoreStep([&] { sset("Indented", prefs.indented); });
  StoreStep([&] { sset("Path", prefs.path); });
  StoreStep([&] { sset("PaperColour", ColourValue(prefs.paper_colour)); });
  StoreStep([&] { sset("InkColour", ColourValue(prefs.ink_colour)); });
  StoreStep([&] { sset("HLColour", ColourValue(prefs.highlight_colour)); });
  StoreStep([&] { sset("PNColour", ColourValue(prefs.page_number_colour)); });
  // The size is stored as it is, also when the window is maximised.
  StoreStep([&] {
    const WindowSize size = host.CurrentWindowSize();
    sset(prefs.single_page_mode ? "SingleWinWidth" : "WinWidth", size.width);
    sset(prefs.single_page_mode ? "SingleWinHeight" : "WinHeight", size.height);
  });
  StoreStep([&] { sset("UnderScores", host.UnderscoresTicked()); });
  StoreStep([&] { sset("ExtraParagraphLine", host.ExtraParagraphLineTicked()); });
  StoreStep([&] { savesettings(settings_path); });
}

}  // namespace vireo
