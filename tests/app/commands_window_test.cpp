// The reader's commands wired to the real window: keys, the wheel, a drop and
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

}  // namespace
}  // namespace vireo
