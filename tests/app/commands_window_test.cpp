// The reader's commands wired to the real window: keys, the menu and the
// font-size controls on the bar. What the commands decide is tested through
// the fake window (reader_logic_test).

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QTimer>
#include <string>
#include <utility>

#include "app/main_window.h"
#include "app/reader_window_fixture.h"

namespace vireo {
namespace {

using test::kInstant;
using test::LastMessage;
using test::Press;

TEST(ReaderKeys, EveryKeyOfTheMapGivesItsCommand) {
  test::ReaderWindow reader(test::SampleProse(80), kInstant);
  reader.Start();
  ASSERT_GT(reader.logic().pages().count, 10);
  EXPECT_EQ(reader.logic().current_page(), 2);
  const std::pair<Qt::Key, int> turns[] = {{Qt::Key_Space, 4}, {Qt::Key_Right, 6}, {Qt::Key_M, 8},
                                           {Qt::Key_Left, 6},  {Qt::Key_Z, 4},     {Qt::Key_X, 4},
                                           {Qt::Key_Return, 4}};  // other keys do nothing
  for (const auto& [key, page] : turns) {
    Press(reader, key);
    EXPECT_EQ(reader.logic().current_page(), page) << key;
  }
  Press(reader, Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_EQ(reader.logic().current_page(), 2);
  EXPECT_TRUE(reader.user().messages.empty());

  Press(reader, Qt::Key_L);
  EXPECT_EQ(LastMessage(reader), "Loading is not supported in this version.");
  Press(reader, Qt::Key_F1);
  // This program folder holds no manual; the window test of the manual copies one.
  EXPECT_EQ(LastMessage(reader).rfind("The manual was not found", 0), 0u) << LastMessage(reader);
  reader.user().answer = "paragraph 20 goes";
  Press(reader, Qt::Key_S);
  EXPECT_EQ(reader.window().bar().lblSearch->text(), "paragraph 20 goes");
  Press(reader, Qt::Key_N);
  EXPECT_GT(reader.logic().current_page(), 2);
  QTimer poll;  // answers the page dialog, once open, with its Last button
  QObject::connect(&poll, &QTimer::timeout, [&poll] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible()) return;
    poll.stop();
    dialog->findChild<QAbstractButton*>("cmdLast")->click();
  });
  poll.start(10);
  Press(reader, Qt::Key_G);
  const int count = reader.logic().pages().count;
  EXPECT_EQ(reader.logic().current_page(), (count % 2 == 0 ? count - 1 : count) + 1);
}

// The item names of the menu in order, "-" for a separator, a submenu's in brackets.
std::string MenuNames(const QMenu& menu) {
  std::string names;
  for (const QAction* action : menu.actions()) {
    names += action->isSeparator() ? "- " : action->objectName().toStdString() + " ";
    if (action->menu() != nullptr) names += "[" + MenuNames(*action->menu()) + "] ";
  }
  return names;
}

TEST(ReaderMenu, TheOptionsMenuHasEveryItemInOrder) {
  test::ReaderWindow reader("A short book.");
  const OptionsMenu& menu = reader.window().menu();
  EXPECT_EQ(MenuNames(menu),
            "mnuEraseBookmarks mnuFile [mnuOpen mnuLoad mnuPrint mnuPrintSetup mnuSave mnuEbook - "
            "mnuErasefile ] "
            "mnuColours mnuSelectFont - mnuSearch [mnuGetSearchTerm mnuFindNext mnuFindPrevious ] "
            "mnuGoto - mnuCopyPage mnuReadAloud mnuPauseReading - mnuFormat [mnuFormatting "
            "mnuJustified mnuIndentParagraphs mnuUnderscores mnuExtraLine ] - mnuLanguage "
            "[mnuSetLang0 ] mnuPayAuthor "
            "- mnuGutenberg - mnuHelp mnuReportProblem - mnuToggleBar - mnuCheckUpdate mnuAbout mnuExit ");
  EXPECT_EQ(menu.title(), "Options");
  EXPECT_EQ(menu.Item("mnuFile")->text().toStdString(), "File") << "a submenu by its name";
  EXPECT_EQ(menu.Item("mnuSetLang0")->text().toStdString(), "English") << "without translations";
}

TEST(FontSize, TypedSizesRunFromSevenToFortyEightAndTheButtonsFromSixToFortyEight) {
  test::ReaderWindow reader(test::SampleProse(20), std::string("FONTSIZE,7\r\n") + kInstant);
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
