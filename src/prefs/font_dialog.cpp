#include "prefs/font_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "support/translate_form_qt.h"
#include "support/translation.h"
#include "support/windows1252_qt.h"

namespace vireo {
namespace {

QColor FromBgr(uint32_t bgr) {
  return {static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
          static_cast<int>((bgr >> 16) & 0xFF)};
}

template <typename Widget>
Widget* Named(Widget* widget, const char* name) {
  widget->setObjectName(QString::fromLatin1(name));
  return widget;
}

}  // namespace

// PicPreview: the preview's text in its font, on the reader's paper.
class FontPreviewBox : public QWidget {
 public:
  FontPreviewBox(uint32_t ink, uint32_t paper) : ink_(ink), paper_(paper) {
    setMinimumSize(320, 70);
  }
  void Show(const FontPreview& preview) {
    preview_ = preview;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), paper_ != 0 ? FromBgr(paper_) : palette().color(QPalette::Base));
    painter.setPen(ink_ != 0 ? FromBgr(ink_) : palette().color(QPalette::Text));
    QFont font(QString::fromStdString(preview_.font));
    font.setPointSize(14);
    painter.setFont(font);
    painter.drawText(rect().adjusted(8, 4, -8, -4), Qt::AlignCenter | Qt::TextWordWrap,
                     FromWindows1252(preview_.text));
  }

 private:
  uint32_t ink_;
  uint32_t paper_;
  FontPreview preview_;
};

frmFontSel::frmFontSel(const FontSource& fonts, const std::string& current_font, uint32_t ink,
                       uint32_t paper, QWidget* parent)
    : QDialog(parent), choice_(fonts, current_font) {
  setObjectName(QStringLiteral("frmFontSel"));
  setWindowTitle(Translatable("Change Font"));
  setModal(true);
  notice_ = Named(new QLabel, "lblNotice");
  notice_->setWordWrap(true);
  list_ = Named(new QListWidget, "lstFonts");
  show_recommended_ =
      Named(new QRadioButton(Translatable("Recommended fonts")), "optShowRecommended");
  show_all_ = Named(new QRadioButton(Translatable("Show all fonts")), "optShowAll");
  preview_ = new FontPreviewBox(ink, paper);
  preview_->setObjectName("PicPreview");
  auto* rescan = Named(new QPushButton(Translatable("Rescan")), "cmdRescan");
  rescan->setToolTip(Translatable("Look again for the recommended fonts on this computer"));
  auto* ok = Named(new QPushButton(Translatable("OK")), "cmdOK");
  auto* cancel = Named(new QPushButton(Translatable("Cancel")), "cmdCancel");
  ok->setDefault(true);

  auto* options = new QHBoxLayout;
  options->addWidget(show_recommended_);
  options->addWidget(show_all_);
  options->addStretch();
  options->addWidget(rescan);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(options);
  layout->addWidget(notice_);
  layout->addWidget(list_, 1);
  layout->addWidget(preview_);
  layout->addLayout(buttons);
  resize(420, 440);

  (choice_.show_all() ? show_all_ : show_recommended_)->setChecked(true);
  connect(show_all_, &QRadioButton::toggled, this, [this](bool on) {
    choice_.SetShowAll(on);
    FillFontList();
  });
  connect(rescan, &QPushButton::clicked, this, [this] {
    choice_.Rescan();
    FillFontList();
  });
  connect(list_, &QListWidget::currentTextChanged, this, [this](const QString& name) {
    if (name.isEmpty()) return;
    choice_.Select(name.toStdString());
    ShowPreview();
  });
  connect(ok, &QPushButton::clicked, this, &frmFontSel::PressOK);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  TranslateForm(this);
  if (choice_.NeedsScan() && !choice_.show_all()) {
    // The first scan of a machine's fonts can take a moment: say so first.
    notice_->setText(Tr("Loading Font List..."));
    notice_->repaint();
  }
  FillFontList();
}

void frmFontSel::FillFontList() {
  const QSignalBlocker quiet(list_);
  list_->clear();
  const std::vector<std::string> names = choice_.FontList();
  for (const std::string& name : names) list_->addItem(QString::fromStdString(name));
  if (const auto& selected = choice_.selected()) {
    const auto found = list_->findItems(QString::fromStdString(*selected), Qt::MatchExactly);
    if (!found.isEmpty()) list_->setCurrentItem(found.first());
  }
  const std::string notice = choice_.EmptyListNotice(names);
  notice_->setText(FromWindows1252(notice));
  notice_->setVisible(!notice.empty());
  ShowPreview();
}

void frmFontSel::ShowPreview() { preview_->Show(choice_.Preview()); }

void frmFontSel::PressOK() {
  chosen_ = choice_.OK();
  accept();
}

std::string frmFontSel::PickFont() { return exec() == QDialog::Accepted ? chosen_ : ""; }

}  // namespace vireo
