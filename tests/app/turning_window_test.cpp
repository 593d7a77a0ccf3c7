// Turning the pages of the real window with the mouse.

#include <gtest/gtest.h>

#include <QTest>

#include "app/main_window.h"
#include "app/reader_window_fixture.h"
#include "support/logging.h"

namespace vireo {
namespace {

// Counts the paint events a widget receives.
class PaintCounter : public QObject {
 public:
  explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
  int paints = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    paints += event->type() == QEvent::Paint;
    return false;
  }
};

void ClickPage(test::ReaderWindow& reader, int frame, Qt::KeyboardModifiers modifiers = {}) {
  BookCanvasWidget& canvas = reader.window().canvas();
  QTest::mouseClick(&canvas, Qt::LeftButton, modifiers, canvas.FrameRect(frame).center().toPoint());
  QApplication::processEvents();
}

TEST(TurningWithTheMouse, RightPageForwardLeftPageBackAndInSinglePageModeCtrlBack) {
  test::ReaderWindow reader(test::NumberedProse(250), test::kInstant);
  reader.Start();
  ASSERT_GT(reader.logic().pages().count, 8);
  EXPECT_EQ(reader.logic().current_page(), 2);
  ClickPage(reader, kRightFrame);
  ClickPage(reader, kRightFrame);
  EXPECT_EQ(reader.logic().current_page(), 6);
  ClickPage(reader, kLeftFrame);
  EXPECT_EQ(reader.logic().current_page(), 4);

  test::Press(reader, Qt::Key_1);
  const int page = reader.logic().current_page();
  ClickPage(reader, kLeftFrame);
  ClickPage(reader, kLeftFrame);
  EXPECT_EQ(reader.logic().current_page(), page + 2) << "a click turns forward";
  ClickPage(reader, kLeftFrame, Qt::ControlModifier);
  EXPECT_EQ(reader.logic().current_page(), page + 1);
}

TEST(TurningWithTheMouse, AnAnimatedTurnDrawsItsStepsAndEndsOnTheNextSpread) {
  test::ReaderWindow reader(test::NumberedProse(160), "PAGESWEEPWIDTH,600\r\n");
  reader.Start();
  ClearActions();  // loading leaves its own entries (the pictures loaded)
  PaintCounter canvas(&reader.window().canvas());
  int frames = 0;
  int unpainted_steps = 0;  // pauses with nothing painted since the last one
  int painted_before = canvas.paints;
  reader.window().pump().SetPauseObserver([&] {
    ++frames;
    unpainted_steps += canvas.paints == painted_before;
    painted_before = canvas.paints;
  });
  ClickPage(reader, kRightFrame);
  reader.window().pump().SetPauseObserver(nullptr);
  EXPECT_EQ(reader.logic().current_page(), 4);
  EXPECT_GT(frames, 8) << "the sweep is drawn step by step";
  EXPECT_EQ(unpainted_steps, 0) << "every step is on screen before its pause";
  EXPECT_FALSE(reader.window().canvas().BoxVisible(kRightWorkBox)) << "work boxes hidden again";
  EXPECT_EQ(reader.window().bar().Shape1->colour(), LampColour(Lamp::kGrey)) << "idle again";
  EXPECT_EQ(Actions().position, 0) << Actions().text[1];
}

}  // namespace
}  // namespace vireo
