#include "prefs/settings_form.h"

#include <algorithm>
#include <cctype>

#include "prefs/settings_get_set.h"
#include "support/error_trap.h"
#include "support/translation.h"

namespace vireo {

namespace {

constexpr std::string_view kModule = "frmSettings";
constexpr uint32_t kDefaultHighlight = 0x00B000;
constexpr uint32_t kDefaultPageNumber = 0x808080;

// The four borders in the order OK checks them: the store key, the box, the
// border the page is laid out with when the store has none, the allowed range
// in twips (inclusive) and the first phrase of the message when it is out of
// range. The bottom border leaves room for the page number, so it starts higher.
struct BorderRule {
  const char* key;
  std::string BorderTexts::*text;
  int default_twips;
  int minimum;
  int maximum;
  const char* phrase;
};
constexpr std::array<BorderRule, 4> kBorderRules = {{
    {"LeftBorder", &BorderTexts::left, 400, 100, 1000, Translatable("Left border must be between")},
    {"TopBorder", &BorderTexts::top, 300, 100, 1000, Translatable("Top border must be between")},
    {"BottomBorder", &BorderTexts::bottom, 550, 200, 1000,
     Translatable("Bottom border must be between")},
    {"RightBorder", &BorderTexts::right, 400, 100, 1000,
     Translatable("Right border must be between")},
}};

double StoredBorder(const BorderRule& rule) {
  return ReadNumber(sget(rule.key, rule.default_twips).ToText());
}

std::string BorderMessage(const BorderRule& rule) {
  return GetTranslation(rule.phrase) + " " + std::to_string(rule.minimum) + " " +
         GetTranslation("and") + " " + std::to_string(rule.maximum);
}

}  // namespace

ColourComponents SplitColour(uint32_t colour) {
  return {static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
          static_cast<int>((colour >> 16) & 0xFF)};
}

double ReadNumber(const std::string& text) {
  size_t at = 0;
  while (at < text.size() && (text[at] == ' ' || text[at] == '\t')) ++at;
  const bool negative = at < text.size() && text[at] == '-';
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
  double number = 0;
  double scale = 0;  // 0 before the decimal point, then the weight of the next digit
  for (; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '.' && scale == 0) {
      scale = 0.1;
    } else if (std::isdigit(static_cast<unsigned char>(c)) != 0) {
      if (scale == 0) {
        number = number * 10 + (c - '0');
      } else {
        number += (c - '0') * scale;
        scale /= 10;
      }
    } else {
      break;
    }
  }
  return negative ? -number : number;
}

SettingsForm::SettingsForm(const ReaderPreferences& prefs, SystemColours system,
                           std::array<bool, 4> textures_present)
    : system_(system), textures_present_(textures_present) {
  Trap("sub form_load", kModule, [&] {
    colours_ = {prefs.ink_colour, prefs.highlight_colour, prefs.page_number_colour,
                prefs.paper_colour};
    textured_ = prefs.texture_num >= 0;
    texture_slot_ = std::clamp(prefs.texture_num, 0, 3);
    instant = prefs.instant_page_turn;
    sweep_width = std::to_string(prefs.page_sweep_width);
    for (const BorderRule& rule : kBorderRules) {
      borders.*rule.text = sget(rule.key, rule.default_twips).ToText();
    }
  });
}

uint32_t SettingsForm::Colour(PageColour colour) const {
  return colours_[static_cast<size_t>(colour)];
}

void SettingsForm::SetColour(ColourComponent component, int value) {
  const int shift = component == ColourComponent::kRed     ? 0
                    : component == ColourComponent::kGreen ? 8
                                                           : 16;
  const auto byte = static_cast<uint32_t>(std::clamp(value, 0, 255));
  uint32_t& colour = colours_[static_cast<size_t>(chosen_)];
  colour = (colour & ~(0xFFu << shift)) | (byte << shift);
}

void SettingsForm::SetTextured(bool textured) {
  if (!textured) {
    textured_ = false;
    return;
  }
  if (textures_present_[static_cast<size_t>(texture_slot_)]) {
    textured_ = true;
    return;
  }
  const auto first = std::find(textures_present_.begin(), textures_present_.end(), true);
  if (first != textures_present_.end())
    SetTexture(static_cast<int>(first - textures_present_.begin()));
}

void SettingsForm::SetTexture(int slot) {
  if (slot < 0 || slot > 3 || !textures_present_[static_cast<size_t>(slot)]) return;
  texture_slot_ = slot;
  textured_ = true;
}

void SettingsForm::Defaults() {
  colours_ = {system_.window_text, kDefaultHighlight, kDefaultPageNumber, system_.window};
  instant = false;
}

void SettingsForm::DefaultBorders() {
  for (const BorderRule& rule : kBorderRules) {
    borders.*rule.text = std::to_string(rule.default_twips);
  }
}

SettingsOutcome SettingsForm::OK(ReaderPreferences& prefs, UserInteraction& user) const {
  SettingsOutcome outcome;
  Trap("sub cmdok_click", kModule, [&] {
    prefs.ink_colour = Colour(PageColour::kInk);
    prefs.highlight_colour = Colour(PageColour::kHighlight);
    prefs.page_number_colour = Colour(PageColour::kPageNumber);
    prefs.paper_colour = Colour(PageColour::kPaper);
    prefs.instant_page_turn = instant;
    prefs.texture_num = TextureNum();
    for (const BorderRule& rule : kBorderRules) {
      const double twips = ReadNumber(borders.*rule.text);
      if (twips < rule.minimum || twips > rule.maximum) {
        user.ShowMessage(BorderMessage(rule), "Vireo");
        return;
      }
    }
    for (const BorderRule& rule : kBorderRules) {
      const double twips = ReadNumber(borders.*rule.text);
      if (twips != StoredBorder(rule)) outcome.borders_changed = true;
      sset(rule.key, twips);
    }
    // Not range-checked; only kept within what an integer holds.
    prefs.page_sweep_width = static_cast<int>(std::clamp(ReadNumber(sweep_width), -1e9, 1e9));
    sset("PageSweepWidth", prefs.page_sweep_width);
    sset("InstantPageTurn", prefs.instant_page_turn);
    sset("TextureNum", prefs.texture_num);
    outcome.closed = true;
  });
  return outcome;
}

}  // namespace vireo
