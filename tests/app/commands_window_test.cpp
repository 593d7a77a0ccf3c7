// The reader's commands wired to the real window: keys, the wheel, the mouse, a drop and
// the font-size controls on the bar. What the commands decide is tested through
// the fake window (reader_logic_test).

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QWheelEvent>
#include <string>
#include <utility>

#include "app/main_window.h"
#include "app/reader_window_fixture.h"
#include "nav/page_nav_dialog.h"
#include "support/logging.h"

namespace vireo {
namespace {

using test::kInstant;
using test::LastMessage;
using test::Press;

TEST(ReaderKeys, EveryKeyOfTheMapWholeWheelNotchesAndADropGiveTheirCommands) {
  test::ReaderWindow reader(test::NumberedProse(300), kInstant);
  reader.Start();
  ASSERT_GT(reader.logic().pages().count, 12);
  EXPECT_EQ(reader.logic().current_page(), 2);
  const std::pair<Qt::Key, int> turns[] = {
      {Qt::Key_Space, 4},  {Qt::Key_Right, 6}, {Qt::Key_M, 8},    {Qt::Key_PageDown, 10},
      {Qt::Key_PageUp, 8}, {Qt::Key_Left, 6},  {Qt::Key_Z, 4},    {Qt::Key_X, 4},
      {Qt::Key_Return, 4}, {Qt::Key_Home, 2},  {Qt::Key_Space, 4}};  // X and Return do nothing
  for (const auto& [key, page] : turns) {
    Press(reader, key);
    EXPECT_EQ(reader.logic().current_page(), page) << key;
  }
  Press(reader, Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_EQ(reader.logic().current_page(), 2);
  const auto wheel = [&](int eighths_of_a_degree) {
    const QPointF at(10, 10);
    QWheelEvent event(at, at, {}, {0, eighths_of_a_degree}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&reader.window(), &event);
  };
  for (const auto& [eighths, page] : {std::pair{-60, 2}, {-60, 4}, {120, 2}}) {  // half, whole
    wheel(eighths);
    EXPECT_EQ(reader.logic().current_page(), page) << eighths;
  }
  Press(reader, Qt::Key_End);
  EXPECT_GE(reader.logic().current_page(), reader.logic().pages().count);
  EXPECT_TRUE(reader.user().messages.empty());

  Press(reader, Qt::Key_L);
  EXPECT_EQ(LastMessage(reader), "Loading is not supported in this version.");
  Press(reader, Qt::Key_Home);
  reader.user().answer = "paragraph 80 tells";
  Press(reader, Qt::Key_S);
  EXPECT_EQ(reader.window().bar().lblSearch->text(), "paragraph 80 tells");
  Press(reader, Qt::Key_N);
  EXPECT_GT(reader.logic().current_page(), 2);
  EXPECT_TRUE(test::Answering<frmPageNav>(
      [&] { Press(reader, Qt::Key_G); },
      [](frmPageNav& page) { page.findChild<QAbstractButton*>("cmdLast")->click(); }));
  const int count = reader.logic().pages().count;
  EXPECT_EQ(reader.logic().current_page(), (count % 2 == 0 ? count - 1 : count) + 1);

  const std::string story = reader.folder().File("Story.htm");
  test::WriteEbook(story, test::NumberedProse(10));
  ASSERT_TRUE(test::DropFile(reader, story)) << "a dragged book is taken";
  EXPECT_EQ(reader.window().windowTitle(), "Story.htm");
}

TEST(FontSize, TypedSizesRunFromSevenToFortyEightAndTheButtonsFromSixToFortyEight) {
  test::ReaderWindow reader(test::NumberedProse(80), std::string("FONTSIZE,7\r\n") + kInstant);
  reader.Start();
  const auto font_size = [&] { return reader.logic().preferences().font_size; };
  const auto type = [&](const char* typed) {
    reader.user().answer = typed;
    reader.window().bar().lblFontSize->clicked();
    QApplication::processEvents();
  };
  for (const char* typed : {"6", "49", "0", "", "big", "7"}) {
    EXPECT_FALSE(test::Repaginates(reader, [&] { type(typed); })) << typed;
    EXPECT_EQ(font_size(), 7) << typed;
  }
  QPushButton* smaller = reader.window().bar().cmdSmallerFont;
  EXPECT_TRUE(test::Repaginates(reader, [&] { smaller->click(); }));
  EXPECT_EQ(font_size(), 6) << "the button reaches 6";
  EXPECT_FALSE(test::Repaginates(reader, [&] { smaller->click(); })) << "at 6 nothing";

  EXPECT_TRUE(test::Repaginates(reader, [&] { type("48"); }));
  EXPECT_EQ(reader.window().bar().lblFontSize->text(), "48");
  QPushButton* bigger = reader.window().bar().cmdBiggerFont;
  EXPECT_FALSE(test::Repaginates(reader, [&] { bigger->click(); }));
  smaller->click();
  EXPECT_EQ(font_size(), 47);
}

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
