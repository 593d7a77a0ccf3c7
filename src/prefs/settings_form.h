#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "prefs/reader_preferences.h"
#include "support/user_interaction.h"

namespace vireo {

// The four page colours the settings dialog edits, in the order of its option buttons.
enum class PageColour { kInk, kHighlight, kPageNumber, kPaper };

// A component of a 0x00BBGGRR colour: red the low byte, blue the high one.
enum class ColourComponent { kRed, kGreen, kBlue };

struct ColourComponents {
  int red = 0;  // 0..255 each
  int green = 0;
  int blue = 0;
  friend bool operator==(const ColourComponents&, const ColourComponents&) = default;
};

ColourComponents SplitColour(uint32_t colour);

// What a press of OK did.
struct SettingsOutcome {
  bool closed = false;           // every border was valid; the dialog's keys are stored
  bool borders_changed = false;  // a stored border differs from what the page was laid out with
};

// The texts the dialog's boxes hold, as typed.
struct BorderTexts {
  std::string left;  // twips
  std::string right;
  std::string top;
  std::string bottom;
};

// The settings dialog's decisions (frmSettings), without its controls: the
// working copies of the four colours, the texture choice, the border and
// sweep-width boxes and the instant-turn box, and what OK applies. Errors are
// logged under module "frmSettings".
class SettingsForm {
 public:
  // Form_Load: the colours, texture and instant flag from prefs, the borders
  // from the store ("LeftBorder" ... with the page's defaults), the ink colour
  // chosen for editing. system: the colours "Defaults" restores.
  // textures_present: which texture slots have a picture beside the program.
  SettingsForm(const ReaderPreferences& prefs, SystemColours system,
               std::array<bool, 4> textures_present = {true, true, true, true});

  // The option buttons: which colour the scroll bars edit.
  void ChooseColour(PageColour colour) { chosen_ = colour; }
  PageColour chosen() const { return chosen_; }
  // SetScrollBars: the chosen colour's components.
  ColourComponents ScrollBars() const { return SplitColour(Colour(chosen_)); }
  // SetColour: one component (clamped to 0..255) of the chosen colour.
  void SetColour(ColourComponent component, int value);
  uint32_t Colour(PageColour colour) const;

  // chkTextured and picTexture: texture off, or a slot 0..3 with a picture
  // chosen (which switches texture on). Switching texture on again brings
  // back the last slot, or the first present one when that has no picture;
  // without any picture texture stays off.
  void SetTextured(bool textured);
  void SetTexture(int slot);
  bool textured() const { return textured_; }
  int texture_slot() const { return texture_slot_; }
  // "TextureNum": the slot, or -1 without texture.
  int TextureNum() const { return textured_ ? texture_slot_ : -1; }

  // cmdDefaults: the system's paper and ink colours, the default highlight
  // and page-number colours, instant turning off.
  void Defaults();
  // cmdDefaultBorders: left 400, top 300, right 400, bottom 550.
  void DefaultBorders();

  // cmdOK: applies the colours, the instant flag and the texture to prefs at
  // once; then checks the borders, and the first one out of range is shown to
  // user with its message and nothing more happens (closed is false). With
  // every border valid, the borders, sweep width, instant flag and texture go
  // to the store (and the sweep width to prefs).
  SettingsOutcome OK(ReaderPreferences& prefs, UserInteraction& user) const;

  // The boxes' texts, edited by the dialog as typed.
  BorderTexts borders;
  std::string sweep_width;
  bool instant = false;

 private:
  std::array<uint32_t, 4> colours_{};  // by PageColour
  SystemColours system_;
  std::array<bool, 4> textures_present_;
  PageColour chosen_ = PageColour::kInk;
  bool textured_ = false;
  int texture_slot_ = 0;
};

// A box's text read as a number: leading blanks, a sign, digits and one
// decimal point; anything else ends it, and text without a number is 0.
double ReadNumber(const std::string& text);

}  // namespace vireo
