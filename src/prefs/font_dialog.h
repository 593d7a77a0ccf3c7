#pragma once

#include <QDialog>
#include <cstdint>
#include <string>

#include "prefs/font_choice.h"

class QLabel;
class QListWidget;
class QRadioButton;

namespace vireo {

class FontPreviewBox;

// The font dialog frmFontSel: the list lstFonts, the option buttons
// optShowRecommended and optShowAll, the preview PicPreview, the notice
// lblNotice, and the buttons cmdRescan, cmdOK and cmdCancel (each control's
// objectName is its design name). The decisions are FontChoice's. The
// preview draws in the reader's ink on its paper (each only when not 0).
class frmFontSel : public QDialog {
  Q_OBJECT

 public:
  // fonts must outlive the dialog. ink and paper are 0x00BBGGRR colours.
  frmFontSel(const FontSource& fonts, const std::string& current_font, uint32_t ink, uint32_t paper,
             QWidget* parent = nullptr);

  // PickFont: shows the dialog modally; the chosen name, or "" when cancelled.
  std::string PickFont();
  // The name OK chose ("" before OK or after Cancel).
  const std::string& chosen() const { return chosen_; }
  const FontChoice& choice() const { return choice_; }

 private:
  void FillFontList();
  void ShowPreview();
  void PressOK();

  FontChoice choice_;
  std::string chosen_;
  QListWidget* list_ = nullptr;
  QRadioButton* show_all_ = nullptr;
  QRadioButton* show_recommended_ = nullptr;
  QLabel* notice_ = nullptr;
  FontPreviewBox* preview_ = nullptr;
};

}  // namespace vireo
