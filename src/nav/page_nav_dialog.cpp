#include "nav/page_nav_dialog.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>

#include "support/error_trap.h"
#include "support/translate_form_qt.h"
#include "support/translation.h"
#include "support/windows1252_qt.h"

namespace vireo {

// Picture1: a groove from page 1 to the last page with a marker at the
// chosen page. Pressing or dragging with the left button reports the page
// under the pointer; a release over the strip after a press is a click.
class PageSliderStrip : public QWidget {
 public:
  static constexpr int kMargin = 12;

  std::function<void(double)> on_drag;
  std::function<void()> on_click;
  std::function<int()> selected_page;
  int num_pages = 1;

  PageSliderStrip() { setMinimumSize(240, 44); }

  PageSliderScale Scale() const {
    return {kMargin, std::max(1, width() - 2 * kMargin) * 1.0, num_pages};
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const PageSliderScale scale = Scale();
    const int groove_y = 14;
    painter.setPen(QPen(palette().color(QPalette::Mid), 3));
    painter.drawLine(QPointF(scale.left_x, groove_y),
                     QPointF(scale.left_x + scale.width, groove_y));
    painter.setPen(palette().color(QPalette::WindowText));
    const QRectF labels(0, groove_y + 8, width(), height() - groove_y - 8);
    painter.drawText(labels, Qt::AlignLeft | Qt::AlignTop, QStringLiteral("1"));
    painter.drawText(labels, Qt::AlignRight | Qt::AlignTop, QString::number(num_pages));
    const double x = scale.XOf(selected_page ? selected_page() : 1);
    const QPointF marker[] = {
        {x, groove_y + 6.0}, {x - 6, groove_y - 6.0}, {x + 6, groove_y - 6.0}};
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawPolygon(marker, 3);
  }

  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton) return;
    pressed_ = true;
    if (on_drag) on_drag(event->position().x());
  }

  void mouseMoveEvent(QMouseEvent* event) override {
    if ((event->buttons() & Qt::LeftButton) && on_drag) on_drag(event->position().x());
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    const bool click = pressed_ && rect().contains(event->position().toPoint());
    pressed_ = false;
    if (click && on_click) on_click();
  }

 private:
  bool pressed_ = false;
};

frmPageNav::frmPageNav(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmPageNav"));
  setWindowTitle(Tr("Goto Page"));
  setModal(true);

  picture1_ = new PageSliderStrip;
  picture1_->setObjectName(QStringLiteral("Picture1"));
  picture1_->selected_page = [this] { return static_cast<int>(state_.selected_page()); };
  picture1_->on_drag = [this](double x) { SliderDragged(x); };
  picture1_->on_click = [this] { CloseWith(&PageNavState::Accept); };

  txt_goto_page_ = new QLineEdit;
  txt_goto_page_->setObjectName(QStringLiteral("txtGotoPage"));

  auto button = [](const char* name, const char* caption) {
    auto* b = new QPushButton(Tr(caption));
    b->setObjectName(QString::fromLatin1(name));
    b->setAutoDefault(false);
    return b;
  };
  cmd_first_ = button("cmdFirst", Translatable("First"));
  cmd_last_ = button("cmdLast", Translatable("Last"));
  cmd_ok_ = button("cmdOK", "OK");
  cmd_cancel_ = button("cmdCancel", Translatable("Cancel"));
  cmd_ok_->setDefault(true);
  connect(cmd_first_, &QPushButton::clicked, this, [this] {
    state_.SelectFirst();
    CloseWith(nullptr);
  });
  connect(cmd_last_, &QPushButton::clicked, this, [this] {
    state_.SelectLast();
    CloseWith(nullptr);
  });
  connect(cmd_ok_, &QPushButton::clicked, this, [this] { CloseWith(&PageNavState::Accept); });
  connect(cmd_cancel_, &QPushButton::clicked, this, [this] { reject(); });

  auto* buttons = new QHBoxLayout;
  for (QPushButton* b : {cmd_first_, cmd_last_, cmd_ok_, cmd_cancel_}) buttons->addWidget(b);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(picture1_);
  layout->addWidget(txt_goto_page_);
  layout->addLayout(buttons);

  // The form sees every key first, as with a key preview.
  installEventFilter(this);
  for (QWidget* child : findChildren<QWidget*>()) child->installEventFilter(this);
}

void frmPageNav::Prepare(int current_page, int page_count) {
  Trap("sub choosepage", "frmPageNav", [&] {
    state_.ChoosePage(current_page, page_count);
    picture1_->num_pages = state_.num_pages();
  });
  UpdateForm();
}

std::optional<int> frmPageNav::ChoosePage(int current_page, int page_count) {
  Prepare(current_page, page_count);
  QCoreApplication::processEvents();
  exec();
  if (state_.cancelled()) return std::nullopt;
  return static_cast<int>(state_.selected_page());
}

void frmPageNav::UpdateForm() {
  Trap("sub updateform", "frmPageNav", [&] {
    txt_goto_page_->setText(QString::number(static_cast<int>(state_.selected_page())));
    picture1_->update();
  });
}

void frmPageNav::SliderDragged(double x) {
  state_.SlideTo(picture1_->Scale().PageAt(x));
  UpdateForm();
  picture1_->repaint();
}

void frmPageNav::CloseWith(void (PageNavState::*choice)()) {
  if (choice) (state_.*choice)();
  done(QDialog::Accepted);
  QCoreApplication::processEvents();
}

void frmPageNav::reject() {
  state_.Cancel();
  QDialog::reject();
  QCoreApplication::processEvents();
}

bool frmPageNav::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_F || key == Qt::Key_L) {
      if (event->type() == QEvent::KeyRelease) (key == Qt::Key_F ? cmd_first_ : cmd_last_)->click();
      return true;
    }
    if (event->type() == QEvent::KeyRelease && watched == txt_goto_page_) {
      if (state_.TypePage(txt_goto_page_->text().toStdString())) picture1_->update();
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace vireo
