// A book with more pages than 16-bit page numbers reach, through the fake
// window: the overflow is logged, the reader says how much can be shown, and
// the pages that fit can be read to the last one without the turns sticking.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "app/fake_window.h"

namespace vireo {
namespace {

using ::testing::HasSubstr;

// One short paragraph per line, each line one word: a page of few lines
// holds only a few bytes of text.
std::string ManyShortLines(int lines) {
  std::string text;
  text.reserve(static_cast<size_t>(lines) * 5);
  for (int line = 0; line < lines; ++line) text += "a\r\n\r\n";
  return text;
}

bool Logged(std::string_view entry) {
  const auto& texts = Actions().text;
  return std::any_of(texts.begin(), texts.end(),
                     [&](const std::string& text) { return text.find(entry) == 0; });
}

TEST(PageLimit, PagesBeyondSixteenBitsAreExplainedAndTheRestStaysReadable) {
  test::FakeReader reader(ManyShortLines(700'000), "FontSize,48\r\nINSTANTPAGETURN,True\r\n");
  reader.Start();
  const int32_t last = BookPages::kLastShowablePage;
  ASSERT_GT(reader.logic.pages().count, last);
  EXPECT_TRUE(Logged("Overflow in sub reindexfile(6) of module frmMain"));
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
