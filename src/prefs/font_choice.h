#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vireo {

// The fonts installed on this machine, in the system's order.
class FontSource {
 public:
  virtual ~FontSource() = default;
  virtual std::vector<std::string> InstalledFonts() const = 0;
  // Whether a font of this name can be drawn with.
  virtual bool Usable(const std::string& name) const = 0;
};

// Whether name is one of the recommended book fonts: "Times New Roman",
// "Arial", "Tahoma", "Verdana" and "Garamond" as the whole name, exactly;
// "Bookman Old", "Georgia", "Goudy Sans", "Trebuch", "Atlantea" and "Comic
// Sans" anywhere in it, in any case.
bool IsRecommendedFont(std::string_view name);

// What the font dialog's preview shows: a text in a font.
struct FontPreview {
  std::string font;
  std::string text;  // translated
};

// The font dialog's decisions (frmFontSel), without its controls: the list
// of recommended fonts kept in the settings store ("Fonts" the count, "Font1"
// ... the names), the choice between them and all installed fonts
// ("ShowAllFonts", stored only by OK), the selection and the preview. Errors
// are logged under module "frmFontSel". fonts must outlive the form.
class FontChoice {
 public:
  // Form_Load: "ShowAllFonts" from the store; current_font is selected when
  // the list holds it.
  FontChoice(const FontSource& fonts, std::string current_font);

  // No recommended list is stored yet: the first list will scan the machine.
  bool NeedsScan() const;
  // Rescan: the recommended fonts installed now replace the stored list.
  void Rescan();
  // EraseFontsFromSettings: the stored recommended list is removed.
  void EraseFontsFromSettings();

  // optShowAll / optShowRecommended: which list the dialog shows.
  void SetShowAll(bool show_all);
  bool show_all() const { return show_all_; }
  // FillFontList: every installed font, or the stored recommended ones
  // (scanning first when none is stored). The selection stays when the list
  // holds it, else the current font is selected when the list holds that.
  std::vector<std::string> FontList();

  // lstFonts: the chosen name, or none.
  void Select(std::optional<std::string> name) { selected_ = std::move(name); }
  const std::optional<std::string>& selected() const { return selected_; }

  // ShowPreview: a sample in the selected font, "No font selected" in Times
  // New Roman without a selection, "Invalid font" for a font that cannot be
  // drawn with.
  FontPreview Preview() const;
  // The notice for an empty recommended list, "" when the list has fonts.
  std::string EmptyListNotice(const std::vector<std::string>& list) const;

  // cmdOK: stores "ShowAllFonts" and returns the selected name ("" without
  // one). Cancel simply drops the form.
  std::string OK() const;

 private:
  const FontSource& fonts_;
  std::string current_font_;
  bool show_all_ = false;
  std::optional<std::string> selected_;
};

}  // namespace vireo
