// The reader's commands on the real window: keys, menus, font size, the
// control bar, resizing, the formatting menu, deleting and dropping files.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QTimer>
#include <filesystem>
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

// Answers the next modal dialog, once it is open, by pressing its button of
// that name (the watch ends with the window).
void PressInNextDialog(test::ReaderWindow& reader, const char* button) {
  auto* poll = new QTimer(&reader.window());
  poll->setInterval(10);
  QObject::connect(poll, &QTimer::timeout, [poll, button] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible()) return;
    poll->stop();
    dialog->findChild<QAbstractButton*>(button)->click();
  });
  poll->start();
}

TEST(ReaderKeys, EveryKeyOfTheMapGivesItsCommand) {
  test::ReaderWindow reader(test::SampleProse(80), kInstant);
  reader.Start();
  ASSERT_GT(reader.logic().pages().count, 10);
  EXPECT_EQ(reader.logic().current_page(), 2);
  Press(reader, Qt::Key_Space);
  EXPECT_EQ(reader.logic().current_page(), 4);
  Press(reader, Qt::Key_Right);
  EXPECT_EQ(reader.logic().current_page(), 6);
  Press(reader, Qt::Key_M);
  EXPECT_EQ(reader.logic().current_page(), 8);
  Press(reader, Qt::Key_Left);
  EXPECT_EQ(reader.logic().current_page(), 6);
  Press(reader, Qt::Key_Z);
  EXPECT_EQ(reader.logic().current_page(), 4);
  Press(reader, Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_EQ(reader.logic().current_page(), 2);
  Press(reader, Qt::Key_X);
  Press(reader, Qt::Key_Return);
  EXPECT_EQ(reader.logic().current_page(), 2) << "other keys do nothing";
  EXPECT_TRUE(reader.user().messages.empty());

  Press(reader, Qt::Key_L);
  EXPECT_EQ(LastMessage(reader), "Loading is not supported in this version.");
  Press(reader, Qt::Key_F1);
  EXPECT_EQ(LastMessage(reader).rfind("Vireo keys:", 0), 0u) << LastMessage(reader);
  reader.user().answer = "paragraph 20 goes";
  Press(reader, Qt::Key_S);
  EXPECT_EQ(reader.window().bar().lblSearch->text(), "paragraph 20 goes");
  EXPECT_EQ(reader.logic().current_page(), 2) << "entering a term does not search";
  Press(reader, Qt::Key_N);
  EXPECT_GT(reader.logic().current_page(), 2);
  PressInNextDialog(reader, "cmdLast");
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
  const bool pressed = test::DuringPagination(
      reader, [&] { reader.window().bar().cmdBiggerFont->click(); },
      [&] {
        for (Qt::Key key :
             {Qt::Key_Space, Qt::Key_B, Qt::Key_1, Qt::Key_L, Qt::Key_Q, Qt::Key_F1}) {
          QTest::keyClick(&reader.window(), key);
        }
        reader.window().bar().cmdExit->click();
        reader.window().bar().cmdSmallerFont->click();
      });
  ASSERT_TRUE(pressed);
  EXPECT_EQ(reader.logic().preferences().font_size, 11) << "the font change went through alone";
  const int right = reader.logic().current_page();
  EXPECT_LE(reader.logic().pages().PageStart(right - 1), place) << "no page was turned";
  EXPECT_GT(reader.logic().pages().PageStart(right + 1), place);
  EXPECT_TRUE(reader.window().bar().isVisible());
  EXPECT_FALSE(reader.logic().preferences().single_page_mode);
  EXPECT_EQ(reader.user().messages.size(), messages);
  EXPECT_EQ(reader.window().end_status(), -1) << "Exit waits for the pagination";
  EXPECT_TRUE(reader.window().isVisible());
}

// Item name and caption of every entry of the menu in order, "-" for a
// separator; a submenu's entries follow its own in brackets.
std::vector<std::string> MenuEntries(const QMenu& menu) {
  std::vector<std::string> entries;
  for (const QAction* action : menu.actions()) {
    std::string entry = "-";
    if (!action->isSeparator()) {
      entry = action->objectName().toStdString() + " " + action->text().toStdString();
    }
    if (const QMenu* submenu = action->menu()) {
      for (const std::string& inner : MenuEntries(*submenu)) entry += " [" + inner + "]";
    }
    entries.push_back(entry);
  }
  return entries;
}

TEST(ReaderMenu, TheOptionsMenuHasEveryItemInOrder) {
  test::ReaderWindow reader("A short book.");
  const std::vector<std::string> expected = {
      "mnuEraseBookmarks Erase All Bookmarks",
      "mnuFile File [mnuLoad Load] [mnuPrint Print] [mnuSave Export] [mnuEbook Create ebook] [-] "
      "[mnuErasefile Delete]",
      "mnuColours Page Setup",
      "mnuSelectFont Change Font",
      "-",
      "mnuSearch Search [mnuGetSearchTerm Enter search term] [mnuFindNext Find Next Match (N)] "
      "[mnuFindPrevious Find Previous Match (P)]",
      "mnuGoto Goto Page...",
      "-",
      "mnuCopyPage Copy selected page to clipboard",
      "-",
      "mnuFormat Formatting [mnuFormatting Format Paragraphs (Reloads file)] [mnuJustified "
      "Justify Text] [mnuIndentParagraphs Indent Paragraphs] [mnuUnderscores Change underscores "
      "to italics] [mnuExtraLine Extra line between paragraphs]",
      "-",
      "mnuLanguage Language [mnuSetLang0 English] [mnuSetLang1 Espa\xc3\xb1ol]",
      "mnuPayAuthor Author Payment",
      "-",
      "mnuGutenberg Gutenberg Books",
      "-",
      "mnuHelp Help",
      "-",
      "mnuToggleBar Toggle menu bar",
      "-",
      "mnuCheckUpdate Check for update",
      "mnuAbout About Marrowind Software",
      "mnuExit Exit Vireo"};
  EXPECT_EQ(MenuEntries(reader.window().menu()), expected);
  EXPECT_EQ(reader.window().menu().title(), "Options");
}

void TypeFontSize(test::ReaderWindow& reader, const std::string& typed) {
  reader.user().answer = typed;
  reader.window().bar().lblFontSize->clicked();
  QApplication::processEvents();
}

TEST(FontSize, TypedSizesRunFromSevenToFortyEightAndTheButtonsFromSixToFortyEight) {
  test::ReaderWindow reader(test::SampleProse(20), std::string("FONTSIZE,7\r\n") + kInstant);
  reader.Start();
  const auto font_size = [&] { return reader.logic().preferences().font_size; };
  for (const char* typed : {"6", "49", "0", "", "big", "7"}) {
    EXPECT_FALSE(test::Repaginates(reader, [&] { TypeFontSize(reader, typed); })) << typed;
    EXPECT_EQ(font_size(), 7) << typed;
  }
  EXPECT_EQ(LastMessage(reader), "Enter the font size");
  QPushButton* smaller = reader.window().bar().cmdSmallerFont;
  EXPECT_TRUE(test::Repaginates(reader, [&] { smaller->click(); }));
  EXPECT_EQ(font_size(), 6) << "the button reaches 6";
  EXPECT_FALSE(test::Repaginates(reader, [&] { smaller->click(); }));
  EXPECT_EQ(reader.window().bar().lblFontSize->text(), "6");

  EXPECT_TRUE(test::Repaginates(reader, [&] { TypeFontSize(reader, "48"); }));
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
  const std::string formatted = reader.logic().book_text();
  EXPECT_TRUE(test::Repaginates(reader, [&] { Trigger(reader, "mnuUnderscores"); }));
  EXPECT_TRUE(reader.window().MenuTick("mnuUnderscores"));
  EXPECT_NE(reader.logic().book_text().find("\x82underlined\x83"), std::string::npos);
  Trigger(reader, "mnuUnderscores");
  EXPECT_EQ(reader.logic().book_text(), formatted);

  Trigger(reader, "mnuExtraLine");
  EXPECT_TRUE(reader.window().MenuTick("mnuExtraLine"));
  EXPECT_NE(reader.logic().book_text().find("\n  \n"), std::string::npos);
  Trigger(reader, "mnuExtraLine");

  Trigger(reader, "mnuFormatting");
  EXPECT_FALSE(reader.window().MenuTick("mnuFormatting"));
  EXPECT_EQ(sget("Reformat", true).ToBoolean(), false) << "written at once";
  EXPECT_NE(reader.logic().book_text(), formatted) << "the line break inside the paragraph stays";
  Trigger(reader, "mnuFormatting");
  EXPECT_EQ(reader.logic().book_text(), formatted);
}

TEST(DeleteCommand, AsksWithThePathAndOnYesLeavesTheTitlePage) {
  test::ReaderWindow reader(test::SampleProse(20), kInstant);
  reader.Start();
  const std::string path = reader.logic().book_path();
  Trigger(reader, "mnuErasefile");
  EXPECT_EQ(LastMessage(reader), "Do you really want to erase " + path + " from your hard disk?");
  EXPECT_TRUE(test::FileExists(path)) << "No keeps the file";
  EXPECT_TRUE(reader.logic().book_loaded());

  reader.user().yes = true;
  Trigger(reader, "mnuErasefile");
  EXPECT_FALSE(std::filesystem::exists(path));
  EXPECT_FALSE(reader.logic().book_loaded());
  EXPECT_EQ(reader.window().windowTitle(), "Vireo");
  EXPECT_EQ(reader.window().bar().lblPageNum->text(), "");
  const QImage title_page = test::BoxPicture(reader, kLeftPageBox);
  Press(reader, Qt::Key_Space);
  EXPECT_EQ(test::BoxPicture(reader, kLeftPageBox), title_page) << "no book to turn";
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
  EXPECT_TRUE(reader.logic().book_loaded()) << "the book on show stays";
  EXPECT_EQ(reader.window().windowTitle(), "Book");
}

}  // namespace
}  // namespace vireo
