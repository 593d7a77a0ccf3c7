// The main window's decisions, through the fake window seam and page buffers:
// no window system, no display.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "app/fake_window.h"
#include "nav/bookmarks.h"

namespace vireo {
namespace {

using test::FakeReader;
using test::StartedReader;
using ::testing::HasSubstr;
using ::testing::Not;

using test::kInstant;

TEST(ReaderLogic, StartUpShowsTheFirstSpreadBeforeThePaginationEndsAndCountsThePages) {
  StartedReader reader(test::NumberedProse(300), kInstant);
  EXPECT_EQ(reader.view.caption, "Book");
  EXPECT_EQ(reader.logic.current_page(), 2);
  EXPECT_THAT(reader.buffers.Text(kLeftPageBox), HasSubstr("Paragraph"));
  EXPECT_EQ(reader.view.labels[BarLabel::kPageNumber],
            std::to_string(reader.logic.pages().count) + " pages");
  EXPECT_GT(reader.logic.pages().count, 10);
  const std::vector<std::string>& milestones = reader.view.milestones;
  const auto finished = std::find(milestones.begin(), milestones.end(), "pagination finished");
  ASSERT_NE(finished, milestones.end());
  EXPECT_NE(std::find(milestones.begin(), finished, "first spread"), finished)
      << "the reader need not wait for the whole book";
  EXPECT_FALSE(reader.view.splash);
  EXPECT_THAT(reader.view.splash_status, testing::Contains(HasSubstr("Unpacking")));
  // The book's edges at start-up are those of any later layout at that size.
  const EdgeLines at_start = reader.buffers.layout.lines;
  EXPECT_GT(at_start.hard_left.y2, at_start.hard_left.y1);
  reader.logic.view_commands().UpdateBookMode(false);
  EXPECT_EQ(reader.buffers.layout.lines, at_start);
}

TEST(ReaderLogic, ExitWaitsForStartUpThenStoresEveryPreferenceSorted) {
  FakeReader reader("A short book.");
  reader.logic.lifecycle().Quit();
  EXPECT_FALSE(reader.logic.lifecycle().Form_QueryUnload(true))
      << "a close is refused only while paginating";
  EXPECT_EQ(reader.view.end_status, -1) << "the window is busy until start-up ends";
  reader.Start();
  reader.logic.lifecycle().Quit();
  EXPECT_EQ(reader.view.end_status, 0);
  // A first run writes every preference of the shutdown list.
  EXPECT_EQ(test::ReadFile(reader.folder.File("Vireo.ini")),
            "BARHIDDEN,False\r\nEXTRAPARAGRAPHLINE,False\r\nFONTNAME,Times New Roman\r\n"
            "FONTSIZE,10\r\nHLCOLOUR,45056\r\nINDENTED,True\r\nINKCOLOUR,0\r\nJUSTIFY,True\r\n"
            "PAPERCOLOUR,16777215\r\nPATH," +
                reader.folder.str() +
                "\r\nPNCOLOUR,8421504\r\nSINGLEPAGEMODE,False\r\nUNDERSCORES,False\r\nWINHEIGHT," +
                std::to_string(static_cast<int>(reader.view.size.height)) + "\r\nWINWIDTH," +
                std::to_string(static_cast<int>(reader.view.size.width)) + "\r\n");
}

TEST(ReaderLogic, TheBookOpensAtItsStoredPlaceAndExitStoresThePlaceOnShowAfterAnErase) {
  FakeReader reader(test::NumberedProse(300), kInstant);
  test::WriteFile(reader.folder.File("BookMarks.ini"), "BOOK,20000\r\nOTHER BOOK,5000\r\n");
  reader.Start();
  const PageIndex& pages = reader.logic.pages();
  const int right = reader.logic.current_page();
  EXPECT_LE(pages.PageStart(right - 1), 20000);
  EXPECT_GT(pages.PageStart(right + 1), 20000);
  reader.logic.commands().Form_KeyUp(vk::kSpace, ShiftKey::kUp);
  reader.logic.commands().mnuEraseBookmarks_Click();
  EXPECT_EQ(reader.user.messages.back(), "This will erase bookmarks for all files. Are you sure?");
  EXPECT_EQ(RetrieveBookmark("Other Book"), 5000) << "No erases nothing";
  reader.user.yes = true;
  reader.logic.commands().mnuEraseBookmarks_Click();
  EXPECT_EQ(RetrieveBookmark("Other Book"), 0);
  reader.logic.lifecycle().Quit();
  EXPECT_EQ(test::ReadFile(reader.folder.File("BookMarks.ini")),
            "BOOK," + std::to_string(pages.PageStart(right + 2)) + "\r\n");
}

TEST(ReaderLogic, AFontChangeReopensWhereItWasAndDropsKeysExitAndResizesWhilePaginating) {
  StartedReader reader(test::NumberedProse(300), kInstant);
  reader.logic.spread().ShowPage(21);
  const int32_t place = reader.logic.pages().PageStart(reader.logic.current_page());
  reader.buffers.lamps.clear();
  const size_t messages = reader.user.messages.size();
  const WindowSize size = reader.view.size;
  bool during = false;
  reader.pump.on_yield = [&] {
    if (during || !reader.logic.paginator_busy() || reader.logic.reindexing()) return;
    during = true;
    for (int key : {vk::kSpace, int('B'), int('1'), int('L'), int('Q'), vk::kF1}) {
      reader.logic.commands().Form_KeyUp(key, ShiftKey::kUp);
    }
    reader.logic.lifecycle().Quit();
    reader.logic.view_commands().cmdSmallerFont_Click();
    reader.view.size = {size.width + 3000, size.height + 2000};
    reader.logic.view_commands().Form_Resize();
  };
  reader.logic.view_commands().cmdBiggerFont_Click();
  reader.pump.on_yield = nullptr;
  ASSERT_TRUE(during);
  EXPECT_EQ(reader.logic.preferences().font_size, 11) << "the font change went through alone";
  EXPECT_EQ(reader.view.labels[BarLabel::kFontSize], "11");
  EXPECT_EQ(RetrieveBookmark(reader.book_path), place);
  // Paginated again: red while it ran, green when it had finished.
  EXPECT_THAT(reader.buffers.lamps, testing::IsSupersetOf({Lamp::kRed, Lamp::kGreen}));
  const int right = reader.logic.current_page();
  EXPECT_LE(reader.logic.pages().PageStart(right - 1), place) << "the spread holds the place";
  EXPECT_GT(reader.logic.pages().PageStart(right + 1), place) << "and no page was turned";
  EXPECT_TRUE(reader.view.bar_visible);
  EXPECT_EQ(reader.view.size, size) << "the resize is undone";
  EXPECT_FALSE(reader.logic.preferences().single_page_mode);
  EXPECT_EQ(reader.user.messages.size(), messages);
  EXPECT_EQ(reader.view.end_status, -1) << "Exit waits for the pagination";

  reader.logic.commands().Form_KeyUp(vk::kSpace, ShiftKey::kUp);
  EXPECT_EQ(reader.logic.current_page(), right + 2);
  reader.logic.commands().Form_KeyUp('Q', ShiftKey::kUp);
  EXPECT_EQ(reader.view.end_status, 0);
}

TEST(ReaderLogic, TheBarAndThePageModeLayTheBookOutAgain) {
  StartedReader reader(test::NumberedProse(200),
                       std::string(kInstant) + "SINGLEWINWIDTH,6000\r\nSINGLEWINHEIGHT,7000\r\n");
  const double height_with_bar = reader.buffers.layout.page_height;
  reader.logic.commands().Form_KeyUp('B', ShiftKey::kUp);
  EXPECT_TRUE(reader.logic.preferences().bar_hidden);
  EXPECT_FALSE(reader.view.bar_visible);
  EXPECT_GT(reader.buffers.layout.page_height, height_with_bar);
  reader.view.size.width = 8000;  // wide enough without the bar
  reader.logic.commands().Form_KeyUp('B', ShiftKey::kUp);
  EXPECT_EQ(reader.view.size.width, 9500) << "the bar widens a narrow window";

  EXPECT_FALSE(test::Repaginates(reader, [&] { reader.logic.commands().Form_KeyUp('2', {}); }));
  reader.logic.spread().ShowPage(9);
  const int32_t place = reader.logic.pages().PageStart(reader.logic.current_page());
  EXPECT_TRUE(test::Repaginates(reader, [&] { reader.logic.commands().Form_KeyUp('1', {}); }));
  EXPECT_TRUE(reader.logic.preferences().single_page_mode);
  EXPECT_FALSE(reader.buffers.layout.right_frame_visible);
  EXPECT_EQ(reader.view.size.width, 6000);
  EXPECT_EQ(sget("WinWidth", 0).ToNumber(), 9500);  // the two-page size kept for later
  EXPECT_LE(reader.logic.pages().PageStart(reader.logic.current_page()), place);
  EXPECT_FALSE(test::Repaginates(reader, [&] { reader.logic.commands().Form_KeyUp('1', {}); }));

  reader.logic.commands().Form_KeyUp('2', ShiftKey::kUp);
  EXPECT_TRUE(reader.buffers.layout.right_frame_visible);
  EXPECT_EQ(reader.view.size.width, 9500);
  const PageIndex& pages = reader.logic.pages();
  const int right = reader.logic.current_page();
  EXPECT_EQ(right % 2, 0);
  EXPECT_LE(pages.PageStart(right - 1), place);
  EXPECT_GT(pages.PageStart(right + 1), place) << "the spread that holds the place";
}

TEST(ReaderLogic, TheWindowKeepsItsSmallestSize) {
  StartedReader reader(test::NumberedProse(300), kInstant);
  const auto resize = [&](double width, double height) {
    reader.view.size = {width, height};
    reader.logic.view_commands().Form_Resize();
    return reader.view.size;
  };
  EXPECT_EQ(resize(6000, 7000), (WindowSize{9500, 7000})) << "with the bar, at least 9500 wide";
  EXPECT_EQ(resize(10000, 5000), (WindowSize{10000, 6570})) << "at least 6570 twips high";
  reader.logic.view_commands().ToggleBar();
  EXPECT_EQ(resize(5000, 6570).width, 5000) << "without the bar 5000 twips is enough";
  EXPECT_EQ(resize(2000, 6570).width, 3500) << "but not less than 3500";
}

TEST(ReaderLogic, TheFormattingMenuReloadsTheBookWithItsOptions) {
  StartedReader reader("An _underlined_ word.\r\nA second line.\r\n\r\nA new paragraph.");
  ReaderCommands& commands = reader.logic.commands();
  const std::string formatted = reader.logic.book_pages().text;
  EXPECT_TRUE(test::Repaginates(reader, [&] { commands.mnuUnderscores_Click(); }));
  EXPECT_TRUE(reader.view.ticks["mnuUnderscores"]);
  EXPECT_NE(reader.logic.book_pages().text.find("\x82underlined\x83"), std::string::npos);
  commands.mnuUnderscores_Click();

  commands.mnuFormatting_Click();
  EXPECT_FALSE(reader.view.ticks["mnuFormatting"]);
  EXPECT_EQ(sget("Reformat", true).ToBoolean(), false) << "written at once";
  EXPECT_NE(reader.logic.book_pages().text, formatted)
      << "the line break inside the paragraph stays";
  commands.mnuFormatting_Click();
  EXPECT_EQ(reader.logic.book_pages().text, formatted);
}

TEST(ReaderLogic, ANewTermIsShownInPlaceAndFindMovesBetweenMatchesWhateverTheirCase) {
  std::string text = test::NumberedProse(400);
  text.insert(text.find("Paragraph 150 "), "Zebra ");
  text.insert(text.find("Paragraph 300 "), "Zebra ");
  StartedReader reader(text, kInstant);
  const auto no_more_matches = [&] {
    return std::count(reader.user.messages.begin(), reader.user.messages.end(), "No more matches");
  };
  const auto term = [&](const char* answer) {
    reader.user.answer = answer;
    reader.logic.search().GetSearchTerm();
  };
  term("paragraph 1 tells");
  EXPECT_EQ(reader.logic.current_page(), 2) << "no search is made";
  const auto& runs = reader.buffers.boxes[kLeftPageBox].runs;
  EXPECT_TRUE(std::any_of(runs.begin(), runs.end(), [&](const auto& run) {
    return run.colour == reader.logic.preferences().highlight_colour;
  })) << "page 1 holds paragraph 1, drawn again with the match";
  term("");
  EXPECT_EQ(reader.view.labels[BarLabel::kSearch], "paragraph 1 tells") << "an empty answer";
  term("   ");
  reader.logic.search().FindNext();
  reader.logic.search().FindPrev();
  EXPECT_EQ(reader.logic.current_page(), 2) << "a blank term searches nothing";
  EXPECT_EQ(no_more_matches(), 0);

  term("ZEBRA");
  EXPECT_EQ(reader.view.labels[BarLabel::kSearch], "ZEBRA");
  reader.logic.search().FindPrev();
  EXPECT_EQ(no_more_matches(), 1) << "nothing before the first spread";
  reader.logic.search().FindNext();
  const int first = reader.logic.current_page();
  EXPECT_THAT(reader.buffers.Text(kLeftPageBox) + reader.buffers.Text(kRightPageBox),
              HasSubstr("Zebra"));
  reader.logic.search().FindNext();
  const int second = reader.logic.current_page();
  EXPECT_GT(second, first);
  reader.logic.search().FindNext();
  EXPECT_EQ(no_more_matches(), 2);
  EXPECT_EQ(reader.logic.current_page(), second);
  reader.logic.search().FindPrev();
  EXPECT_EQ(reader.logic.current_page(), first);
}

// A No keeps the file and the book: the real window's dangerous-question test.
TEST(ReaderLogic, DeletingTheOpenBookConfirmedErasesItsFileAndClosesIt) {
  StartedReader reader(test::NumberedProse(50), kInstant);
  reader.user.yes = true;
  reader.logic.commands().mnuErasefile_Click();
  EXPECT_EQ(reader.user.messages.back(),
            "Do you really want to erase " + reader.book_path + " from your hard disk?");
  EXPECT_FALSE(test::FileExists(reader.book_path));
  EXPECT_FALSE(reader.logic.book_pages().loaded);
  EXPECT_EQ(reader.view.caption, "Vireo");
  EXPECT_EQ(reader.view.labels[BarLabel::kPageNumber], "");
  EXPECT_THAT(reader.buffers.Text(kRightPageBox), HasSubstr("Welcome"));
}

TEST(ReaderLogic, ABookLoadsWithItsStepsInTheLogAndADroppedOneWithItsProgressAfterTheSplash) {
  StartedReader reader(test::NumberedProse(50), kInstant);
  const std::string log = test::ReadFile(reader.folder.File("log.txt"));
  size_t at = 0;
  for (const std::string& line : {"Loading from: " + reader.book_path, std::string("Reading Book"),
                                  std::string("Converting book"), std::string("Reindexing file")}) {
    at = log.find("      " + line + "\r\n", at);
    EXPECT_NE(at, std::string::npos) << line << " missing or out of order in\n" << log;
  }
  EXPECT_THAT(reader.view.progress_shown, Not(testing::Contains(HasSubstr("%"))));
  const std::string dropped = reader.folder.File("Second.txt");
  test::WriteEbook(dropped, "A second book that is short.");
  reader.logic.commands().Page_OLEDragDrop(dropped);
  EXPECT_EQ(reader.view.caption, "Second.txt");
  EXPECT_THAT(reader.view.progress_shown, testing::Contains(HasSubstr("%")));
  EXPECT_EQ(reader.view.progress_shown.back(), "");  // taken away when done
}

// One short paragraph per line, each line one word: a page of few lines
// holds only a few bytes of text.
std::string ManyShortLines(int lines) {
  std::string text;
  text.reserve(static_cast<size_t>(lines) * 5);
  for (int line = 0; line < lines; ++line) text += "a\r\n\r\n";
  return text;
}

// More pages than 16-bit page numbers reach: the overflow is logged, the reader says how much
// can be shown, and the pages that fit can be read to the last one without the turns sticking.
TEST(PageLimit, PagesBeyondSixteenBitsAreExplainedAndTheRestStaysReadable) {
  StartedReader reader(ManyShortLines(700'000), std::string("FontSize,48\r\n") + kInstant);
  const int32_t last = BookPages::kLastShowablePage;
  ASSERT_GT(reader.logic.pages().count, last);
  EXPECT_THAT(
      Actions().text,
      testing::Contains(testing::StartsWith("Overflow in sub reindexfile(6) of module frmMain")));
  ASSERT_EQ(reader.user.messages.size(), 1u);
  const std::string& message = reader.user.messages.front();
  EXPECT_THAT(message, HasSubstr(std::to_string(reader.logic.pages().count) + " pages"));
  EXPECT_THAT(message, HasSubstr("only the first " + std::to_string(last) + " ("));
  EXPECT_THAT(message, HasSubstr("smaller font"));

  reader.logic.commands().Form_KeyUp(vk::kEnd, ShiftKey::kUp);
  EXPECT_EQ(reader.logic.current_page(), last);
  EXPECT_THAT(reader.buffers.Text(kLeftPageBox), HasSubstr("a"));
  ClearActions();
  for (int turn = 0; turn < 3; ++turn) {
    reader.logic.commands().Form_KeyUp(vk::kSpace, ShiftKey::kUp);
  }
  EXPECT_EQ(Actions().position, 0) << Actions().text[1];
  reader.logic.commands().Form_KeyUp(vk::kHome, ShiftKey::kUp);
  EXPECT_EQ(reader.logic.current_page(), 2) << "the turns did not stick";
}

}  // namespace
}  // namespace vireo
