#include "app/control_bar_widget.h"

#include <QGridLayout>
#include <QMouseEvent>
#include <QPainter>

#include "render/qt_surface_qt.h"
#include "support/translation.h"

namespace vireo {

LampWidget::LampWidget(QWidget* parent) : QWidget(parent) { setFixedSize(sizeHint()); }

void LampWidget::SetColour(uint32_t bgr) {
  colour_ = bgr;
  repaint();
}

void LampWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor fill = QtSurface::ColorFromBgr(colour_);
  painter.setPen(QPen(fill.darker(160), 1));
  painter.setBrush(fill);
  painter.drawEllipse(QRectF(1.5, 1.5, width() - 3, height() - 3));
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit clicked();
  QLabel::mouseReleaseEvent(event);
}

ControlBarWidget::ControlBarWidget(QWidget* parent) : QWidget(parent) {
  setObjectName("Picture1");
  // The bar paints its own background, the window colour the canvas shows
  // around it, so that a change on the bar (the page count while a book is
  // paginated) repaints the bar alone, not the pages underneath.
  setAutoFillBackground(true);
  setToolTip(Translatable(
      "Hides the menu bar. Double-click page border to bring it back, or use the right-click "
      "menu."));
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(4, 2, 4, 2);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(2);

  cmdAbout = AddButton("cmdAbout", Translatable("About"), "");
  cmdPageSetup = AddButton("cmdPageSetup", Translatable("Settings"), Translatable("Page Settings"));
  cmdLoad = AddButton("cmdLoad", Translatable("Load"), "");
  cmdExit = AddButton("cmdExit", Translatable("Exit"), "");
  cmdSmallerFont = AddButton("cmdSmallerFont", QString::fromUtf8("A\u2212"), "");
  cmdBiggerFont = AddButton("cmdBiggerFont", "A+", "");
  cmdFindNext = AddButton("cmdFindNext", Translatable("Next Match"), "");
  cmdFindPrev = AddButton("cmdFindPrev", Translatable("Previous Match"), "");
  QFont small = cmdSmallerFont->font();
  small.setPointSizeF(small.pointSizeF() * 0.8);
  cmdSmallerFont->setFont(small);
  QFont big = cmdBiggerFont->font();
  big.setBold(true);
  cmdBiggerFont->setFont(big);

  Label1 = AddLabel("Label1", Translatable("Font:"), Translatable("Click here to change the font"));
  lblFontSize = AddLabel("lblFontSize", "10", Translatable("Click here to enter your font size"));
  lblSearch = AddLabel("lblSearch", Translatable("Search..."),
                       Translatable("Click here to enter your search text"));
  lblPageNum = AddLabel("lblPageNum", "", "Click here to choose your page");
  Shape1 = new LampWidget(this);
  Shape1->setObjectName("Shape1");

  QWidget* top[] = {cmdAbout, cmdPageSetup, cmdLoad, cmdExit, cmdFindPrev, cmdFindNext};
  for (int i = 0; i < 6; ++i) grid->addWidget(top[i], 0, i);
  grid->addWidget(Label1, 1, 0);
  grid->addWidget(lblFontSize, 1, 1);
  grid->addWidget(cmdSmallerFont, 1, 2);
  grid->addWidget(cmdBiggerFont, 1, 3);
  grid->addWidget(lblSearch, 1, 4);
  auto* status = new QHBoxLayout();
  status->addWidget(lblPageNum, 1, Qt::AlignRight);
  status->addWidget(Shape1, 0, Qt::AlignRight);
  grid->addLayout(status, 1, 5);
}

QPushButton* ControlBarWidget::AddButton(const char* name, const QString& caption,
                                         const QString& tip) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(name);
  button->setToolTip(tip);
  button->setFocusPolicy(Qt::NoFocus);
  button->setAutoDefault(false);
  return button;
}

ClickLabel* ControlBarWidget::AddLabel(const char* name, const QString& caption,
                                       const QString& tip) {
  auto* label = new ClickLabel(caption, this);
  label->setObjectName(name);
  label->setToolTip(tip);
  label->setCursor(Qt::PointingHandCursor);
  return label;
}

void ControlBarWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  emit doubleClicked();
  QWidget::mouseDoubleClickEvent(event);
}

}  // namespace vireo
