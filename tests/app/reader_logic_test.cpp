// The main window's decisions, through the fake window seam and page buffers:
// no window system, no display.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/fake_window.h"
#include "book/load_file.h"
#include "nav/bookmarks.h"

namespace vireo {
namespace {

using test::FakeReader;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr const char* kInstant = "INSTANTPAGETURN,True\r\n";

TEST(ReaderLogic, StartUpShowsTheFirstSpreadAndCountsThePages) {
  FakeReader reader(test::NumberedProse(300), kInstant);
  reader.Start();
  EXPECT_EQ(reader.view.caption, "Book");
  EXPECT_EQ(reader.logic.current_page(), 2);
  EXPECT_THAT(reader.buffers.Text(kLeftPageBox), HasSubstr("Paragraph"));
  EXPECT_EQ(reader.view.labels[BarLabel::kPageNumber],
            std::to_string(reader.logic.pages().count) + " pages");
  EXPECT_GT(reader.logic.pages().count, 10);
  EXPECT_FALSE(reader.view.splash);
  EXPECT_THAT(reader.view.splash_status, testing::Contains(HasSubstr("Unpacking")));
}

TEST(ReaderLogic, KeysAreDroppedWhilePaginatingAndTurnAfterwards) {
  FakeReader reader(test::NumberedProse(300), kInstant);
  reader.Start();
  int turned_during = 0;
  reader.pump.on_yield = [&] {
    if (!reader.logic.paginator_busy()) return;
    const int before = reader.logic.current_page();
    reader.logic.commands().Form_KeyUp(vk::kSpace, ShiftKey::kUp);
    turned_during += reader.logic.current_page() != before;
  };
  reader.logic.view_commands().ChangeFontSize(12);
  reader.pump.on_yield = nullptr;
  EXPECT_EQ(turned_during, 0);
  const int before = reader.logic.current_page();
  reader.logic.commands().Form_KeyUp(vk::kSpace, ShiftKey::kUp);
  EXPECT_EQ(reader.logic.current_page(), before + 2);
}

TEST(ReaderLogic, AFontSizeChangeReopensTheBookWhereItWas) {
  FakeReader reader(test::NumberedProse(300), kInstant);
  reader.Start();
  reader.logic.spread().ShowPage(21);
  const int32_t shown_start = reader.logic.pages().PageStart(reader.logic.current_page());
  reader.buffers.lamps.clear();
  reader.logic.view_commands().cmdBiggerFont_Click();
  EXPECT_EQ(reader.logic.preferences().font_size, 11);
  EXPECT_EQ(reader.view.labels[BarLabel::kFontSize], "11");
  EXPECT_EQ(RetrieveBookmark(reader.book_path), shown_start);
  // Paginated again: red while it ran, green when it had finished.
  EXPECT_THAT(reader.buffers.lamps, testing::IsSupersetOf({Lamp::kRed, Lamp::kGreen}));
  // The spread on show holds the stored position.
  const PageIndex& pages = reader.logic.pages();
  const int c = reader.logic.current_page();
  EXPECT_LE(pages.PageStart(c - 1), shown_start);
  EXPECT_TRUE(c + 1 > pages.count || pages.PageStart(c + 1) > shown_start);
}

TEST(ReaderLogic, TheBarAndThePageModeLayTheBookOutAgain) {
  FakeReader reader(test::NumberedProse(200),
                    std::string(kInstant) + "SINGLEWINWIDTH,6000\r\nSINGLEWINHEIGHT,7000\r\n");
  reader.Start();
  const double height_with_bar = reader.buffers.layout.page_height;
  reader.logic.commands().Form_KeyUp('B', ShiftKey::kUp);
  EXPECT_TRUE(reader.logic.preferences().bar_hidden);
  EXPECT_FALSE(reader.view.bar_visible);
  EXPECT_GT(reader.buffers.layout.page_height, height_with_bar);

  reader.logic.commands().Form_KeyUp('1', ShiftKey::kUp);
  EXPECT_TRUE(reader.logic.preferences().single_page_mode);
  EXPECT_FALSE(reader.buffers.layout.right_frame_visible);
  EXPECT_EQ(reader.view.size.width, 6000);
  EXPECT_EQ(sget("WinWidth", 0).ToNumber(), 9500);  // the two-page size kept for later
  reader.logic.commands().Form_KeyUp('2', ShiftKey::kUp);
  EXPECT_TRUE(reader.buffers.layout.right_frame_visible);
  EXPECT_EQ(reader.view.size.width, 9500);
}

TEST(ReaderLogic, FindNextAndPreviousMoveBetweenMatches) {
  std::string text = test::NumberedProse(400);
  text.insert(text.find("Paragraph 150 "), "Zebra ");
  text.insert(text.find("Paragraph 300 "), "Zebra ");
  FakeReader reader(text, kInstant);
  reader.user.answer = "Zebra";
  reader.Start();
  reader.logic.search().GetSearchTerm();
  EXPECT_EQ(reader.view.labels[BarLabel::kSearch], "Zebra");
  reader.logic.search().FindNext();
  const int first = reader.logic.current_page();
  EXPECT_THAT(reader.buffers.Text(kLeftPageBox) + reader.buffers.Text(kRightPageBox),
              HasSubstr("Zebra"));
  reader.logic.search().FindNext();
  const int second = reader.logic.current_page();
  EXPECT_GT(second, first);
  reader.logic.search().FindPrev();
  EXPECT_EQ(reader.logic.current_page(), first);
}

TEST(ReaderLogic, DeletingTheOpenBookErasesItsFileOnlyWhenConfirmed) {
  FakeReader reader(test::NumberedProse(50), kInstant);
  reader.Start();
  reader.logic.commands().mnuErasefile_Click();
  EXPECT_TRUE(test::FileExists(reader.book_path));
  EXPECT_TRUE(reader.logic.book_pages().loaded);

  reader.user.yes = true;
  reader.logic.commands().mnuErasefile_Click();
  EXPECT_FALSE(test::FileExists(reader.book_path));
  EXPECT_FALSE(reader.logic.book_pages().loaded);
  EXPECT_EQ(reader.view.caption, "Vireo");
  EXPECT_EQ(reader.view.labels[BarLabel::kPageNumber], "");
  EXPECT_THAT(reader.buffers.Text(kRightPageBox), HasSubstr("Welcome"));
}

TEST(ReaderLogic, ADroppedBookLoadsWithItsProgressShownAfterTheSplash) {
  FakeReader reader(test::NumberedProse(50), kInstant);
  reader.Start();
  EXPECT_THAT(reader.view.progress_shown, Not(testing::Contains(HasSubstr("%"))));
  const std::string dropped = reader.folder.File("Second.txt");
  test::WriteEbook(dropped, "A second book that is short.");
  reader.logic.commands().Page_OLEDragDrop(dropped);
  EXPECT_EQ(reader.view.caption, "Second.txt");
  EXPECT_THAT(reader.view.progress_shown, testing::Contains(HasSubstr("%")));
  EXPECT_EQ(reader.view.progress_shown.back(), "");  // taken away when done

  reader.logic.commands().Page_OLEDragDrop(reader.folder.File("picture.png"));
  EXPECT_EQ(reader.user.messages.back(), "Cannot load that type of file");
  EXPECT_EQ(reader.view.caption, "Second.txt");
}

TEST(ReaderLogic, TheMouseOnThePagesTurnsMarksAndOpensTheMenu) {
  FakeReader reader(test::NumberedProse(300), kInstant);
  reader.Start();
  const auto click = [&](PageMouseEventKind kind, int page, PageMouseButton button, bool shift,
                         double y) {
    reader.logic.commands().Page_Mouse({kind, page, button, shift, false, y});
  };
  click(PageMouseEventKind::kUp, kRightPageBox, PageMouseButton::kLeft, false, 1000);
  EXPECT_EQ(reader.logic.current_page(), 4);
  click(PageMouseEventKind::kUp, kLeftPageBox, PageMouseButton::kLeft, false, 1000);
  EXPECT_EQ(reader.logic.current_page(), 2);
  click(PageMouseEventKind::kUp, kLeftPageBox, PageMouseButton::kRight, false, 1000);
  EXPECT_EQ(reader.view.context_menus, 1);
  click(PageMouseEventKind::kDown, kRightPageBox, PageMouseButton::kLeft, true, 1000);
  EXPECT_EQ(reader.buffers.marker_frame, kRightPageBox);
  EXPECT_GT(reader.logic.commands().marked_line(), 0);
  click(PageMouseEventKind::kUp, kRightPageBox, PageMouseButton::kLeft, true, 1000);
  EXPECT_EQ(reader.buffers.marker_frame, -1);
  EXPECT_EQ(reader.logic.current_page(), 2);
}

TEST(ReaderLogic, ABookLoadsWithItsStepsInTheLogAndAFileWithoutOneSaysSo) {
  FakeReader reader(test::NumberedProse(20), kInstant);
  reader.Start();
  const std::string log = test::ReadFile(reader.folder.File("log.txt"));
  size_t at = 0;
  for (const std::string& line : {"Loading from: " + reader.book_path, std::string("Reading Book"),
                                  std::string("Converting book"), std::string("Reindexing file")}) {
    at = log.find("      " + line + "\r\n", at);
    EXPECT_NE(at, std::string::npos) << line << " missing or out of order in\n" << log;
  }
  for (const std::string& content :
       {std::string(), std::string("plain text\n"), BookMarker() + "no header marker"}) {
    const std::string path = reader.folder.File("plain.txt");
    test::WriteFile(path, content);
    reader.logic.loader().OpenBook(path);
    EXPECT_EQ(reader.user.messages.back(), "There is no ebook stored in this file.");
    EXPECT_EQ(reader.view.caption, "Book");
  }
}

}  // namespace
}  // namespace vireo
