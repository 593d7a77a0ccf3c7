#pragma once

#include <QDialog>
#include <QImage>
#include <array>
#include <functional>
#include <string>

#include "prefs/settings_form.h"

class QCheckBox;
class QLineEdit;
class QRadioButton;
class QScrollBar;
class QToolButton;

namespace vireo {

class SettingsSample;

// The settings dialog frmSettings: the colour option buttons optInk, optHL,
// optPageNum and optPaper with the scroll bars HSRed, HSGreen and HSBlue and
// the sample picture picSample; chkTextured and the texture chooser
// picTexture (one button picTextureN per texture beside the program, N the
// slot 0..3); the boxes txtLeftBorder, txtRightBorder, txtTopBorder,
// txtBottomBorder and txtPageSweepWidth; chkInstant; the buttons
// cmdDefaults, cmdDefaultBorders, cmdOK and cmdCancel. Each control's
// objectName is its design name. The decisions are SettingsForm's; OK hands
// its outcome to on_ok and closes when the borders were valid. Cancel, Escape
// and the frame's close button change nothing.
class frmSettings : public QDialog {
  Q_OBJECT

 public:
  // texture_paths: the paper texture picture of each slot, "" where there is
  // none. prefs, user and on_ok must outlive the dialog.
  frmSettings(ReaderPreferences& prefs, SystemColours system,
              const std::array<std::string, 4>& texture_paths, UserInteraction& user,
              std::function<void(const SettingsOutcome&)> on_ok, QWidget* parent = nullptr);

  const SettingsForm& form() const { return form_; }

 private:
  QWidget* BuildColours();
  QWidget* BuildTextures();
  QWidget* BuildBorders();
  QWidget* BuildButtons();
  // Scroll bars, option buttons, sample and check boxes from the form.
  void ShowForm();
  void ShowBorders();
  void PressOK();

  ReaderPreferences& prefs_;
  UserInteraction& user_;
  std::function<void(const SettingsOutcome&)> on_ok_;
  SettingsForm form_;
  std::array<QImage, 4> textures_;                 // by slot; null without a texture
  std::array<QRadioButton*, 4> colour_options_{};  // by PageColour
  std::array<QScrollBar*, 3> scroll_bars_{};       // by ColourComponent
  std::array<QToolButton*, 4> texture_buttons_{};  // by slot; nullptr without a texture
  std::array<QLineEdit*, 4> border_boxes_{};       // left, right, top, bottom
  SettingsSample* sample_ = nullptr;
  QCheckBox* chk_textured_ = nullptr;
  QCheckBox* chk_instant_ = nullptr;
  QLineEdit* txt_sweep_width_ = nullptr;
};

}  // namespace vireo
