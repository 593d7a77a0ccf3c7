#include "prefs/font_choice.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "prefs/settings_get_set.h"
#include "prefs/shared_settings.h"
#include "support/error_trap.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmFontSel";

constexpr std::array<std::string_view, 5> kWholeNames = {"Times New Roman", "Arial", "Tahoma",
                                                         "Verdana", "Garamond"};
constexpr std::array<std::string_view, 6> kNameParts = {"Bookman Old", "Georgia",  "Goudy Sans",
                                                        "Trebuch",     "Atlantea", "Comic Sans"};

bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
  const auto same = [](char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) ==
           std::tolower(static_cast<unsigned char>(b));
  };
  return std::search(text.begin(), text.end(), part.begin(), part.end(), same) != text.end();
}

std::string FontKey(int number) { return "Font" + std::to_string(number); }

int StoredFontCount() { return sget("Fonts", 0).ToLong(); }

}  // namespace

bool IsRecommendedFont(std::string_view name) {
  return std::find(kWholeNames.begin(), kWholeNames.end(), name) != kWholeNames.end() ||
         std::any_of(kNameParts.begin(), kNameParts.end(),
                     [name](std::string_view part) { return ContainsIgnoringCase(name, part); });
}

FontChoice::FontChoice(const FontSource& fonts, std::string current_font)
    : fonts_(fonts), current_font_(std::move(current_font)), selected_(current_font_) {
  Trap("sub form_load", kModule, [&] { show_all_ = sget("ShowAllFonts", false).ToBoolean(); });
}

bool FontChoice::NeedsScan() const {
  bool needs = true;
  Trap("sub form_load", kModule, [&] { needs = StoredFontCount() < 1; });
  return needs;
}

void FontChoice::Rescan() {
  Trap("sub rescan", kModule, [&] {
    EraseFontsFromSettings();
    int count = 0;
    for (const std::string& name : fonts_.InstalledFonts()) {
      if (IsRecommendedFont(name)) sset(FontKey(++count), name);
    }
    sset("Fonts", count);
  });
}

void FontChoice::EraseFontsFromSettings() {
  Trap("sub erasefontsfromsettings", kModule, [&] {
    const int count = StoredFontCount();
    for (int number = 1; number <= count; ++number) {
      // The store keeps its keys upper-cased and deletes by the exact key.
      if (GlobalSettings() != nullptr) {
        GlobalSettings()->DeleteSettingByName("FONT" + std::to_string(number));
      }
    }
  });
}

void FontChoice::SetShowAll(bool show_all) { show_all_ = show_all; }

std::vector<std::string> FontChoice::FontList() {
  std::vector<std::string> list;
  Trap("sub fillfontlist", kModule, [&] {
    if (show_all_) {
      list = fonts_.InstalledFonts();
      return;
    }
    if (StoredFontCount() < 1) Rescan();
    const int count = StoredFontCount();
    for (int number = 1; number <= count; ++number) {
      std::string name = sget(FontKey(number), "").ToText();
      if (!name.empty()) list.push_back(std::move(name));
    }
  });
  const auto listed = [&list](const std::string& name) {
    return std::find(list.begin(), list.end(), name) != list.end();
  };
  if (!selected_ || !listed(*selected_)) selected_.reset();
  if (!selected_ && listed(current_font_)) selected_ = current_font_;
  return list;
}

FontPreview FontChoice::Preview() const {
  if (!selected_) return {"Times New Roman", GetTranslation("No font selected")};
  if (!fonts_.Usable(*selected_)) return {"Times New Roman", GetTranslation("Invalid font")};
  return {*selected_, GetTranslation("The quick brown fox jumps over the lazy dog.")};
}

std::string FontChoice::EmptyListNotice(const std::vector<std::string>& list) const {
  if (!list.empty()) return "";
  if (show_all_) return GetTranslation("No fonts are installed.");
  return GetTranslation(
      "None of the recommended fonts is installed. Choose \"Show all fonts\" to pick another.");
}

std::string FontChoice::OK() const {
  Trap("sub cmdok_click", kModule, [&] { sset("ShowAllFonts", show_all_); });
  return selected_.value_or("");
}

}  // namespace vireo
