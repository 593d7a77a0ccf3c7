// The menu's peripheral services decided without a window system: which page is copied,
// what an export writes and refuses, what is read aloud, which addresses open.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/book_text_export.h"
#include "app/fake_window.h"
#include "app/key_map.h"
#include "app/print_job.h"
#include "support/windows1252.h"

namespace vireo {
namespace {

using test::FakeReader;
using test::StartedReader;
using ::testing::HasSubstr;
using ::testing::StartsWith;

using test::kInstant;

std::string PageWords(FakeReader& reader, int page) {
  return Utf8FromWindows1252(
      PlainBookText(reader.logic.book_pages().Page(page).text, ItalicMarks::kDropped));
}

TEST(Services, CopyPageTakesThePageUnderTheMenuElseTheRightOrOnlyPage) {
  struct Case {
    bool single;
    int menu_box;  // -1: no context menu
    CopiedPage which;
    int expected_box;
    int page_offset;  // from the current page
  };
  const Case cases[] = {
      {false, kLeftPageBox, CopiedPage::kUnderMenu, kLeftPageBox, -1},
      {false, kRightPageBox, CopiedPage::kUnderMenu, kRightPageBox, 0},
      {false, kLeftPageBox, CopiedPage::kRightPage, kRightPageBox, 0},
      {true, -1, CopiedPage::kRightPage, kLeftPageBox, 0},
  };
  StartedReader reader(test::NumberedProse(300), kInstant);
  reader.logic.spread().ShowPage(6);
  for (const Case& c : cases) {
    reader.logic.view_commands().SwitchPageMode(c.single);
    if (c.menu_box >= 0) {
      reader.logic.commands().Page_Mouse(
          {PageMouseEventKind::kUp, c.menu_box, PageMouseButton::kRight, false, false, 1000});
    }
    reader.logic.services().mnuCopyPage_Click(c.which);
    const int page = reader.logic.current_page() + c.page_offset;
    EXPECT_EQ(reader.view.services.copied_box, c.expected_box) << c.single << c.menu_box;
    EXPECT_EQ(reader.view.services.copied_text, PageWords(reader, page));
    EXPECT_THAT(reader.view.services.copied_text, HasSubstr("Paragraph"));
  }
}

// The exported text, made into a book again, loads as the same book text; the UTF-8 export
// is the same text in the other encoding.
TEST(Services, ExportRoundTripsTheBookTextInBothEncodingsButNeverOverTheProgram) {
  const std::string text = "Caf\xe9 \x93quoted\x94 words.\r\n\r\nA second paragraph.\r\n\r\n";
  StartedReader reader(text + test::NumberedProse(5), kInstant);
  std::string exported[2];
  for (const int kind : {0, 1}) {
    const std::string path = reader.folder.File("export" + std::to_string(kind) + ".txt");
    reader.view.services.save_answer = FileChoice{path, kind};
    reader.logic.services().mnuSave_Click();
    exported[kind] = test::ReadFile(path);
  }
  EXPECT_THAT(exported[1], StartsWith("Caf\xe9 \"quoted\" words.\n\nA second"));
  EXPECT_EQ(exported[0], Utf8FromWindows1252(exported[1]));
  StartedReader again(exported[1], kInstant);
  EXPECT_EQ(again.logic.book_pages().text, reader.logic.book_pages().text);

  const std::string program = test::ReadFile(reader.book_path);
  reader.view.services.save_answer = FileChoice{reader.book_path, 0};
  reader.logic.services().mnuSave_Click();
  EXPECT_THAT(reader.user.messages.back(), HasSubstr("cannot be saved over the program itself"));
  EXPECT_EQ(test::ReadFile(reader.book_path), program);
}

TEST(Services, TheItemsAndMenuKeysGoToTheirServicesAndThoseNeedingABookWaitForOne) {
  FakeReader reader(test::NumberedProse(40), "PAYAUTHORADDRESS,https://pay.example\r\n");
  reader.view.enabled_items.clear();
  reader.Start();
  reader.logic.services().mnuPayAuthor_Click();
  reader.logic.services().mnuCheckUpdate_Click();
  EXPECT_THAT(reader.view.services.opened,
              testing::ElementsAre("https://pay.example", "https://vireo-reader.example.org"));
  reader.logic.commands().Form_KeyUp(vk::kF1, ShiftKey::kUp);
  reader.logic.services().mnuPrint_Click();
  EXPECT_EQ(reader.view.services.manuals, 1);
  reader.logic.commands().Form_KeyUp(vk::kF10, ShiftKey::kUp);
  reader.logic.commands().Form_KeyUp(vk::kMenu, ShiftKey::kUp);
  EXPECT_EQ(reader.view.menus_at_page, 2);
  EXPECT_EQ(reader.view.context_menus, 0);
  EXPECT_THAT(reader.view.services.printed_page_counts,
              testing::ElementsAre(reader.logic.pages().count));
  for (const bool open : {true, false}) {
    if (!open) reader.logic.book().CloseBook();
    for (const char* item : {"mnuSave", "mnuCopyPage", "mnuPrint", "mnuReadAloud"}) {
      EXPECT_EQ(reader.view.enabled_items[item], open) << item;
    }
  }
}

// A right-click opens the menu; a shift-click marks a line while held, then speaks it.
TEST(ReadAloud, AShiftClickSpeaksTheMarkedLineAndWithoutAnEngineThePersonIsToldWhatToInstall) {
  StartedReader reader(test::NumberedProse(40), kInstant);
  const PageTextArea& area = reader.logic.spread().text_area();
  const auto click = [&](PageMouseEventKind kind, PageMouseButton button, bool shift) {
    reader.logic.commands().Page_Mouse(
        {kind, kLeftPageBox, button, shift, false, area.top_border + 2.5 * area.line_pitch});
  };
  click(PageMouseEventKind::kUp, PageMouseButton::kRight, false);
  EXPECT_EQ(reader.view.context_menus, 1);
  click(PageMouseEventKind::kDown, PageMouseButton::kLeft, true);
  EXPECT_EQ(reader.buffers.marker_frame, kLeftPageBox);
  click(PageMouseEventKind::kUp, PageMouseButton::kLeft, true);
  EXPECT_EQ(reader.buffers.marker_frame, -1);
  EXPECT_EQ(reader.logic.current_page(), 2) << "a shift-click turns no page";
  const std::vector<std::string> lines =
      reader.logic.spread().plotter().PageLines(reader.logic.current_page() - 1);
  ASSERT_GE(lines.size(), 3u);
  EXPECT_THAT(
      reader.view.services.speech.said,
      testing::ElementsAre(Utf8FromWindows1252(PlainBookText(lines[2], ItalicMarks::kDropped))));

  reader.view.services.speech.installed = false;
  reader.logic.services().read_aloud().Start();
  EXPECT_THAT(reader.user.messages.back(), HasSubstr("qt6-speech-flite-plugin"));
  EXPECT_FALSE(reader.logic.services().read_aloud().reading());
}

TEST(ReadAloud, ReadingGoesOnPageAfterPageAndTurnsThemInEitherMode) {
  for (const bool single : {false, true}) {
    StartedReader reader(test::NumberedProse(300), kInstant);
    reader.logic.view_commands().SwitchPageMode(single);
    const int first = reader.logic.spread().PageOnBox(kLeftPageBox);
    ReadAloud& reading = reader.logic.services().read_aloud();
    reading.Start();
    test::FakeSpeech& speech = reader.view.services.speech;
    for (int finished = 0; finished < 3; ++finished) speech.Finish();
    ASSERT_EQ(speech.said.size(), 4u);
    for (int read = 0; read < 4; ++read) {
      EXPECT_EQ(speech.said[read], PageWords(reader, first + read)) << single;
    }
    EXPECT_EQ(reader.logic.current_page(), first + 3) << "the page read is on show";
    reading.Stop();
    speech.Finish();
    EXPECT_EQ(speech.said.size(), 4u);
  }
}

// Print jobs: the chosen range, and cancelling between pages.
class CountingSheets : public PrintSheets {
 public:
  bool NewSheet() override { return ++sheets <= refuse_after; }
  void PrintBookPage(int page) override { pages.push_back(page); }
  void Progress(int, int) override {}
  bool Cancelled() override { return static_cast<int>(pages.size()) >= cancel_after; }
  int sheets = 0;
  int refuse_after = 1000;
  int cancel_after = 1000;
  std::vector<int> pages;
};

TEST(PrintJob, PrintsTheChosenPagesUntilCancelledOrRefused) {
  struct Case {
    int from, to, count;
    int cancel_after, refuse_after;
    PrintOutcome outcome;
    std::vector<int> pages;
  };
  const Case cases[] = {
      {0, 0, 3, 1000, 1000, PrintOutcome::kPrinted, {1, 2, 3}},
      {5, 2, 9, 1000, 1000, PrintOutcome::kPrinted, {2, 3, 4, 5}},
      {8, 20, 9, 1000, 1000, PrintOutcome::kPrinted, {8, 9}},
      {0, 0, 9, 2, 1000, PrintOutcome::kCancelled, {1, 2}},
      {0, 0, 9, 1000, 1, PrintOutcome::kFailed, {1, 2}},
  };
  test::RecordingPump pump;
  for (const Case& c : cases) {
    CountingSheets sheets;
    sheets.cancel_after = c.cancel_after;
    sheets.refuse_after = c.refuse_after;
    EXPECT_EQ(RunPrintJob(PrintedPages(c.from, c.to, c.count), sheets, pump), c.outcome);
    EXPECT_EQ(sheets.pages, c.pages) << c.from << "-" << c.to;
  }
}

}  // namespace
}  // namespace vireo
