#include "prefs/settings_dialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "support/error_trap.h"
#include "support/translate_form_qt.h"
#include "support/translation.h"

namespace vireo {

namespace {

constexpr std::string_view kModule = "frmSettings";

QColor ToQColor(uint32_t bgr) {
  const ColourComponents c = SplitColour(bgr);
  return {c.red, c.green, c.blue};
}

template <typename Widget>
Widget* Named(Widget* widget, const char* name) {
  widget->setObjectName(QString::fromLatin1(name));
  return widget;
}

// The boxes as the form keeps them, in the order of border_boxes_.
constexpr std::array<std::string BorderTexts::*, 4> kBorderTexts = {
    &BorderTexts::left, &BorderTexts::right, &BorderTexts::top, &BorderTexts::bottom};

std::array<bool, 4> Present(const std::array<std::string, 4>& texture_paths) {
  std::array<bool, 4> present{};
  for (size_t slot = 0; slot < present.size(); ++slot) present[slot] = !texture_paths[slot].empty();
  return present;
}

}  // namespace

// DisplaySample: the paper (with its texture when one is chosen) and the
// three kinds of text in their colours.
class SettingsSample : public QWidget {
 public:
  SettingsSample(const SettingsForm& form, const std::array<QImage, 4>& textures)
      : form_(form), textures_(textures) {
    setMinimumSize(220, 96);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), ToQColor(form_.Colour(PageColour::kPaper)));
    const QImage& texture = textures_[static_cast<size_t>(form_.texture_slot())];
    if (form_.textured() && !texture.isNull()) painter.fillRect(rect(), QBrush(texture));
    const struct {
      const char* text;
      PageColour colour;
    } lines[] = {{Translatable("Normal text"), PageColour::kInk},
                 {Translatable("Highlighted text"), PageColour::kHighlight},
                 {Translatable("Page Numbers"), PageColour::kPageNumber}};
    int y = 10;
    for (const auto& line : lines) {
      painter.setPen(ToQColor(form_.Colour(line.colour)));
      painter.drawText(QRect(12, y, width() - 24, 24), Qt::AlignLeft | Qt::AlignVCenter,
                       Tr(line.text));
      y += 26;
    }
  }

 private:
  const SettingsForm& form_;
  const std::array<QImage, 4>& textures_;
};

frmSettings::frmSettings(ReaderPreferences& prefs, SystemColours system,
                         const std::array<std::string, 4>& texture_paths, UserInteraction& user,
                         std::function<void(const SettingsOutcome&)> on_ok, QWidget* parent)
    : QDialog(parent),
      prefs_(prefs),
      user_(user),
      on_ok_(std::move(on_ok)),
      form_(prefs, system, Present(texture_paths)) {
  setObjectName(QStringLiteral("frmSettings"));
  setWindowTitle(Tr("Settings"));
  setModal(true);
  Trap("sub form_load", kModule, [&] {
    for (size_t slot = 0; slot < texture_paths.size(); ++slot) {
      if (!texture_paths[slot].empty()) {
        textures_[slot].load(QString::fromLocal8Bit(texture_paths[slot].c_str()));
      }
    }
  });
  auto* top = new QHBoxLayout;
  top->addWidget(BuildColours());
  auto* right = new QVBoxLayout;
  right->addWidget(BuildTextures());
  right->addWidget(BuildBorders());
  top->addLayout(right);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(BuildButtons());
  ShowForm();
  ShowBorders();
}

QWidget* frmSettings::BuildColours() {
  auto* box = new QGroupBox(Tr("Colours"));
  auto* grid = new QGridLayout(box);
  const std::pair<const char*, const char*> options[] = {
      {"optInk", Translatable("Normal text")},
      {"optHL", Translatable("Highlighted text")},
      {"optPageNum", Translatable("Page Numbers")},
      {"optPaper", Translatable("Paper")}};
  for (size_t i = 0; i < colour_options_.size(); ++i) {
    auto* option = Named(new QRadioButton(Tr(options[i].second)), options[i].first);
    colour_options_[i] = option;
    grid->addWidget(option, static_cast<int>(i / 2), static_cast<int>(i % 2));
    connect(option, &QRadioButton::clicked, this, [this, i] {
      form_.ChooseColour(static_cast<PageColour>(i));
      ShowForm();
    });
  }
  const std::pair<const char*, const char*> bars[] = {{"HSRed", Translatable("Red")},
                                                      {"HSGreen", Translatable("Green")},
                                                      {"HSBlue", Translatable("Blue")}};
  for (size_t i = 0; i < scroll_bars_.size(); ++i) {
    auto* bar = Named(new QScrollBar(Qt::Horizontal), bars[i].first);
    bar->setRange(0, 255);
    bar->setPageStep(16);
    scroll_bars_[i] = bar;
    grid->addWidget(new QLabel(Tr(bars[i].second)), static_cast<int>(i) + 2, 0);
    grid->addWidget(bar, static_cast<int>(i) + 2, 1);
    // valueChanged covers both the change and the scroll events.
    connect(bar, &QScrollBar::valueChanged, this, [this, i](int value) {
      form_.SetColour(static_cast<ColourComponent>(i), value);
      sample_->update();
    });
  }
  sample_ = Named(new SettingsSample(form_, textures_), "picSample");
  grid->addWidget(sample_, 5, 0, 1, 2);
  return box;
}

QWidget* frmSettings::BuildTextures() {
  auto* box = new QGroupBox(Tr("Paper"));
  auto* column = new QVBoxLayout(box);
  chk_textured_ = Named(new QCheckBox(Tr("Textured paper")), "chkTextured");
  column->addWidget(chk_textured_);
  connect(chk_textured_, &QCheckBox::clicked, this, [this](bool on) {
    form_.SetTextured(on);
    ShowForm();
  });
  auto* chooser = Named(new QWidget, "picTexture");
  auto* row = new QHBoxLayout(chooser);
  row->setContentsMargins(0, 0, 0, 0);
  const char* names[] = {"picTexture0", "picTexture1", "picTexture2", "picTexture3"};
  for (size_t slot = 0; slot < textures_.size(); ++slot) {
    if (textures_[slot].isNull()) continue;
    auto* button = Named(new QToolButton, names[slot]);
    button->setIcon(QPixmap::fromImage(textures_[slot].scaled(48, 48)));
    button->setIconSize(QSize(48, 48));
    button->setCheckable(true);
    texture_buttons_[slot] = button;
    row->addWidget(button);
    connect(button, &QToolButton::clicked, this, [this, slot] {
      form_.SetTexture(static_cast<int>(slot));
      ShowForm();
    });
  }
  if (row->count() == 0) {
    row->addWidget(new QLabel(Tr("No paper textures beside the program")));
    chk_textured_->setEnabled(false);
  }
  row->addStretch();
  column->addWidget(chooser);
  return box;
}

QWidget* frmSettings::BuildBorders() {
  auto* box = new QGroupBox(Tr("Page"));
  auto* form = new QFormLayout(box);
  const std::pair<const char*, const char*> borders[] = {
      {"txtLeftBorder", Translatable("Left border")},
      {"txtRightBorder", Translatable("Right border")},
      {"txtTopBorder", Translatable("Top border")},
      {"txtBottomBorder", Translatable("Bottom border")}};
  for (size_t i = 0; i < border_boxes_.size(); ++i) {
    auto* text = Named(new QLineEdit, borders[i].first);
    border_boxes_[i] = text;
    form->addRow(Tr(borders[i].second), text);
    connect(text, &QLineEdit::textChanged, this, [this, i](const QString& typed) {
      form_.borders.*kBorderTexts[i] = typed.toStdString();
    });
  }
  txt_sweep_width_ = Named(new QLineEdit, "txtPageSweepWidth");
  form->addRow(Tr("Page sweep width"), txt_sweep_width_);
  connect(txt_sweep_width_, &QLineEdit::textChanged, this,
          [this](const QString& typed) { form_.sweep_width = typed.toStdString(); });
  chk_instant_ = Named(new QCheckBox(Tr("Turn pages instantly")), "chkInstant");
  form->addRow(chk_instant_);
  connect(chk_instant_, &QCheckBox::toggled, this, [this](bool on) { form_.instant = on; });
  return box;
}

QWidget* frmSettings::BuildButtons() {
  auto* strip = new QWidget;
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(0, 0, 0, 0);
  auto button = [&](const char* name, const char* caption) {
    auto* b = Named(new QPushButton(Tr(caption)), name);
    b->setAutoDefault(false);
    row->addWidget(b);
    return b;
  };
  connect(button("cmdDefaults", Translatable("Defaults")), &QPushButton::clicked, this, [this] {
    form_.Defaults();
    ShowForm();
  });
  connect(button("cmdDefaultBorders", Translatable("Default borders")), &QPushButton::clicked, this,
          [this] {
            form_.DefaultBorders();
            ShowBorders();
          });
  row->addStretch();
  QPushButton* ok = button("cmdOK", Translatable("OK"));
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, [this] { PressOK(); });
  connect(button("cmdCancel", Translatable("Cancel")), &QPushButton::clicked, this,
          &QDialog::reject);
  return strip;
}

void frmSettings::ShowForm() {
  colour_options_[static_cast<size_t>(form_.chosen())]->setChecked(true);
  const ColourComponents components = form_.ScrollBars();
  const int values[] = {components.red, components.green, components.blue};
  for (size_t i = 0; i < scroll_bars_.size(); ++i) {
    const QSignalBlocker quiet(scroll_bars_[i]);
    scroll_bars_[i]->setValue(values[i]);
  }
  chk_textured_->setChecked(form_.textured());
  for (size_t slot = 0; slot < texture_buttons_.size(); ++slot) {
    if (texture_buttons_[slot] == nullptr) continue;
    texture_buttons_[slot]->setChecked(form_.textured() &&
                                       form_.texture_slot() == static_cast<int>(slot));
  }
  chk_instant_->setChecked(form_.instant);
  sample_->update();
}

void frmSettings::ShowBorders() {
  for (size_t i = 0; i < border_boxes_.size(); ++i) {
    border_boxes_[i]->setText(QString::fromStdString(form_.borders.*kBorderTexts[i]));
  }
  txt_sweep_width_->setText(QString::fromStdString(form_.sweep_width));
}

void frmSettings::PressOK() {
  const SettingsOutcome outcome = form_.OK(prefs_, user_);
  if (on_ok_) on_ok_(outcome);
  if (outcome.closed) accept();
}

}  // namespace vireo
