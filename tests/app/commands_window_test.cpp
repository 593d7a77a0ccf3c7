// The reader's commands on the real window: keys, menus, font size, the
// control bar, resizing, the formatting menu, deleting and dropping files.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QTimer>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "app/main_window.h"
#include "app/reader_window_fixture.h"

namespace vireo {
namespace {

using test::kInstant;
using test::LastMessage;
using test::Press;
using test::Px;
using test::Trigger;

// Resizes the window as a person dragging its frame would (twips).
void DragTo(test::ReaderWindow& reader, double width, double height) {
  reader.window().resize(Px(width), Px(height));
  QApplication::processEvents();
}

// The window's size as the commands see it, in pixels.
QSize WindowPixels(test::ReaderWindow& reader) {
  const WindowSize size = reader.window().WindowOuterSize();
  return {Px(size.width), Px(size.height)};
}

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
  EXPECT_EQ(LastMessage(reader).rfind("Vireo keys:", 0), 0u) << LastMessage(reader);
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

TEST(ReaderKeys, OneAndTwoSwitchThePageModeOnlyWhenItChanges) {
  test::ReaderWindow reader(test::SampleProse(60), kInstant);
  reader.Start();
  EXPECT_FALSE(test::Repaginates(reader, [&] { Press(reader, Qt::Key_2); }));
  EXPECT_FALSE(reader.logic().preferences().single_page_mode);

  EXPECT_TRUE(test::Repaginates(reader, [&] { Press(reader, Qt::Key_1); }));
  EXPECT_TRUE(reader.logic().preferences().single_page_mode);
  EXPECT_EQ(reader.logic().current_page(), 1);
  Press(reader, Qt::Key_Space);
  EXPECT_EQ(reader.logic().current_page(), 2) << "one page at a time";
  EXPECT_FALSE(test::Repaginates(reader, [&] { Press(reader, Qt::Key_1); }));
  EXPECT_EQ(reader.logic().current_page(), 2);
  const int32_t single_page_two = reader.logic().pages().PageStart(2);

  EXPECT_TRUE(test::Repaginates(reader, [&] { Press(reader, Qt::Key_2); }));
  EXPECT_FALSE(reader.logic().preferences().single_page_mode);
  const PageIndex& pages = reader.logic().pages();
  const int right = reader.logic().current_page();
  EXPECT_EQ(right % 2, 0);
  EXPECT_LE(pages.PageStart(right - 1), single_page_two);
  EXPECT_GT(pages.PageStart(right + 1), single_page_two) << "the spread that holds the place";
}

TEST(ReaderKeys, KeysAndExitAreDroppedWhileThePaginatorRuns) {
  test::ReaderWindow reader(test::SampleProse(150), kInstant);
  reader.Start();
  ASSERT_GT(reader.logic().pages().count, 30) << "long enough to yield during pagination";
  const int32_t place = reader.logic().pages().PageStart(2);
  const size_t messages = reader.user().messages.size();
  ASSERT_TRUE(test::DuringPagination(
      reader, [&] { reader.window().bar().cmdBiggerFont->click(); },
      [&] {
        for (Qt::Key key :
             {Qt::Key_Space, Qt::Key_B, Qt::Key_1, Qt::Key_L, Qt::Key_Q, Qt::Key_F1}) {
          QTest::keyClick(&reader.window(), key);
        }
        reader.window().bar().cmdExit->click();
        reader.window().bar().cmdSmallerFont->click();
      }));
  EXPECT_EQ(reader.logic().preferences().font_size, 11) << "the font change went through alone";
  const int right = reader.logic().current_page();
  EXPECT_LE(reader.logic().pages().PageStart(right - 1), place) << "no page was turned";
  EXPECT_GT(reader.logic().pages().PageStart(right + 1), place);
  EXPECT_TRUE(reader.window().bar().isVisible());
  EXPECT_FALSE(reader.logic().preferences().single_page_mode);
  EXPECT_EQ(reader.user().messages.size(), messages);
  EXPECT_EQ(reader.window().end_status(), -1) << "Exit waits for the pagination";
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
            "mnuEraseBookmarks mnuFile [mnuLoad mnuPrint mnuSave mnuEbook - mnuErasefile ] "
            "mnuColours mnuSelectFont - mnuSearch [mnuGetSearchTerm mnuFindNext mnuFindPrevious ] "
            "mnuGoto - mnuCopyPage - mnuFormat [mnuFormatting mnuJustified mnuIndentParagraphs "
            "mnuUnderscores mnuExtraLine ] - mnuLanguage [mnuSetLang0 mnuSetLang1 ] mnuPayAuthor "
            "- mnuGutenberg - mnuHelp - mnuToggleBar - mnuCheckUpdate mnuAbout mnuExit ");
  EXPECT_EQ(menu.title(), "Options");
  EXPECT_EQ(menu.Item("mnuFile")->text().toStdString(), "File") << "a submenu by its name";
  EXPECT_EQ(menu.Item("mnuSetLang1")->text().toStdString(), "Espa\xc3\xb1ol");
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

TEST(ControlBar, ShowingTheBarWidensANarrowWindowTo9500Twips) {
  test::ReaderWindow reader(test::SampleProse(60), kInstant);
  reader.Start();
  const int32_t shown_count = reader.logic().pages().count;
  EXPECT_TRUE(test::Repaginates(reader, [&] { Press(reader, Qt::Key_B); }));
  EXPECT_FALSE(reader.window().bar().isVisible());
  EXPECT_LT(reader.logic().pages().count, shown_count) << "taller pages without the bar";

  DragTo(reader, 8000, 6570);
  EXPECT_EQ(WindowPixels(reader).width(), Px(8000)) << "8000 twips is wide enough without the bar";
  Press(reader, Qt::Key_B);
  EXPECT_TRUE(reader.window().bar().isVisible());
  EXPECT_EQ(WindowPixels(reader).width(), Px(9500));
  EXPECT_EQ(reader.logic().pages().count, shown_count) << "laid out for 9500 twips again";

  Trigger(reader, "mnuToggleBar");
  EXPECT_TRUE(reader.logic().preferences().bar_hidden);
}

TEST(Resizing, TheWindowSnapsBackToItsSmallestSize) {
  test::ReaderWindow reader(test::SampleProse(60), kInstant);
  reader.Start();
  DragTo(reader, 6000, 7000);
  EXPECT_EQ(WindowPixels(reader), QSize(Px(9500), Px(7000))) << "with the bar, at least 9500 wide";
  DragTo(reader, 10000, 5000);
  EXPECT_EQ(WindowPixels(reader), QSize(Px(10000), Px(6570))) << "at least 6570 twips high";

  Press(reader, Qt::Key_B);
  DragTo(reader, 5000, 6570);
  EXPECT_EQ(WindowPixels(reader).width(), Px(5000)) << "without the bar 5000 twips is enough";
  DragTo(reader, 2000, 6570);
  EXPECT_EQ(WindowPixels(reader).width(), Px(3500)) << "but not less than 3500";
}

TEST(Resizing, AResizeDuringAPaginationIsUndone) {
  test::ReaderWindow reader(test::SampleProse(150), kInstant);
  reader.Start();
  const QSize before = reader.window().size();
  ASSERT_TRUE(test::DuringPagination(
      reader, [&] { reader.window().bar().cmdBiggerFont->click(); },
      [&] { DragTo(reader, 13000, 9000); }));
  QApplication::processEvents();
  EXPECT_EQ(reader.window().size(), before);
  EXPECT_EQ(reader.logic().preferences().font_size, 11);
}

TEST(FormattingMenu, TheTextOptionsReloadTheBook) {
  test::ReaderWindow reader("An _underlined_ word.\r\nA second line.\r\n\r\nA new paragraph.");
  reader.Start();
  const std::string formatted = reader.logic().book_pages().text;
  EXPECT_TRUE(test::Repaginates(reader, [&] { Trigger(reader, "mnuUnderscores"); }));
  EXPECT_TRUE(reader.window().menu().Item("mnuUnderscores")->isChecked());
  EXPECT_NE(reader.logic().book_pages().text.find("\x82underlined\x83"), std::string::npos);
  Trigger(reader, "mnuUnderscores");

  Trigger(reader, "mnuExtraLine");
  EXPECT_NE(reader.logic().book_pages().text.find("\n  \n"), std::string::npos);
  Trigger(reader, "mnuExtraLine");

  Trigger(reader, "mnuFormatting");
  EXPECT_FALSE(reader.window().menu().Item("mnuFormatting")->isChecked());
  EXPECT_EQ(sget("Reformat", true).ToBoolean(), false) << "written at once";
  EXPECT_NE(reader.logic().book_pages().text, formatted)
      << "the line break inside the paragraph stays";
  Trigger(reader, "mnuFormatting");
  EXPECT_EQ(reader.logic().book_pages().text, formatted);
}

TEST(DeleteCommand, AsksWithThePathAndOnYesLeavesTheTitlePage) {
  test::ReaderWindow reader(test::SampleProse(20), kInstant);
  reader.Start();
  const std::string path = reader.logic().book().path();
  Trigger(reader, "mnuErasefile");
  EXPECT_EQ(LastMessage(reader), "Do you really want to erase " + path + " from your hard disk?");
  EXPECT_TRUE(test::FileExists(path)) << "No keeps the file";
  EXPECT_TRUE(reader.logic().book_pages().loaded);

  reader.user().yes = true;
  Trigger(reader, "mnuErasefile");
  EXPECT_FALSE(std::filesystem::exists(path));
  EXPECT_FALSE(reader.logic().book_pages().loaded);
  EXPECT_EQ(reader.window().windowTitle(), "Vireo");
}

TEST(DroppedFiles, TheNameDecidesWhetherTheFileIsTried) {
  test::ReaderWindow reader(test::SampleProse(20), kInstant);
  reader.Start();
  for (const char* name : {"BOOK.TXT", "notes.txt.old", "page.htm"}) {
    test::WriteFile(reader.folder().File(name), "Just some text, no book.");
    reader.user().messages.clear();
    ASSERT_TRUE(test::DropFile(reader, reader.folder().File(name)));
    EXPECT_EQ(LastMessage(reader), "There is no ebook stored in this file.") << name;
  }
  test::WriteFile(reader.folder().File("picture.png"), "not a book");
  ASSERT_TRUE(test::DropFile(reader, reader.folder().File("picture.png")));
  EXPECT_EQ(LastMessage(reader), "Cannot load that type of file");
  EXPECT_TRUE(reader.logic().book_pages().loaded) << "the book on show stays";
  EXPECT_EQ(reader.window().windowTitle(), "Book");
}

}  // namespace
}  // namespace vireo
