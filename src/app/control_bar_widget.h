#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <cstdint>

namespace vireo {

// The status lamp: a small round indicator (Shape1) in one of the lamp
// colours, repainted at once when it changes.
class LampWidget : public QWidget {
  Q_OBJECT

 public:
  explicit LampWidget(QWidget* parent = nullptr);
  // Sets the colour (0x00BBGGRR) and paints it immediately.
  void SetColour(uint32_t bgr);
  uint32_t colour() const { return colour_; }
  QSize sizeHint() const override { return {14, 14}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  uint32_t colour_ = 0x808080;
};

// A label that reports clicks, as the bar's labels act as buttons.
class ClickLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

 signals:
  void clicked();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
};

// The control bar (Frame1 / Picture1) under the pages: its buttons, labels
// and the lamp, with the captions and tool tips of the reader.
class ControlBarWidget : public QWidget {
  Q_OBJECT

 public:
  explicit ControlBarWidget(QWidget* parent = nullptr);

  QPushButton* cmdAbout;
  QPushButton* cmdPageSetup;
  QPushButton* cmdLoad;
  QPushButton* cmdExit;
  QPushButton* cmdSmallerFont;
  QPushButton* cmdBiggerFont;
  QPushButton* cmdFindNext;
  QPushButton* cmdFindPrev;
  ClickLabel* lblPageNum;
  ClickLabel* Label1;
  ClickLabel* lblSearch;
  ClickLabel* lblFontSize;
  LampWidget* Shape1;

 signals:
  void doubleClicked();

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  QPushButton* AddButton(const char* name, const QString& caption, const QString& tip);
  ClickLabel* AddLabel(const char* name, const QString& caption, const QString& tip);
};

}  // namespace vireo
