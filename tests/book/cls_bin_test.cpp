#include "book/cls_bin.h"

#include <gtest/gtest.h>

#include "book/book_test_support.h"
#include "support/logging.h"
#include "test_support.h"

namespace vireo {
namespace {

using test::HandPackedBody;
using test::HandScramble;
using test::LogCapture;

// A conversion that records its progress as "caption value/maximum".
clsBIN Recorded(std::vector<std::string>& events) {
  return clsBIN(FormattingOptions{}, [&events](std::string_view caption, int value, int maximum) {
    events.push_back(std::string(caption) + " " + std::to_string(value) + "/" +
                     std::to_string(maximum));
  });
}

// Author, two fields, title and one more, each behind the section mark 169.
const std::string kDetails = "\251Ann\251F2\251Tit\251F4\251";

// Each conversion logs under clsBIN; the log starts afresh.
class ClsBinTest : public ::testing::Test {
 protected:
  LogCapture log_;
  clsBIN bin_;
};

const std::string kDetailsFault =
    "Invalid procedure call or argument in sub decodedetails(5) of module clsBIN";

TEST_F(ClsBinTest, ADetailBlockWithoutItsLastFieldLeavesTheTitleEmpty) {
  bin_.set_header_block("header");
  bin_.set_body(HandPackedBody("Hello", "World", kDetails.substr(0, 8)));
  bin_.ConvertLoadedBRN();
  EXPECT_EQ(bin_.result_text(), "HelloWorld");
  EXPECT_EQ(bin_.details().author, "Ann");
  EXPECT_EQ(bin_.details().title, "");
  EXPECT_EQ(bin_.header_block(), "");
  EXPECT_EQ(LogCapture::Entries(), std::vector<std::string>{kDetailsFault});
}

TEST_F(ClsBinTest, AShortBodyLeavesNothingAndLogsTheMissingDetails) {
  bin_.set_body(HandScramble(std::string(3999, 'q')));
  bin_.ConvertLoadedBRN();
  EXPECT_EQ(bin_.result_text(), "");
  EXPECT_EQ(LogCapture::Entries(),
            (std::vector<std::string>{
                "Invalid procedure call or argument in sub brnpostextract(5) of module clsBIN",
                kDetailsFault}));
}

TEST_F(ClsBinTest, WordCodesExpandWithTheirQuirks) {
  // the, blank, "r" (the full stop), ".", "f0", "f" (the blank), "f9", tab,
  // "er", "Th", and the placeholder 200 after a blank.
  const std::string stored_text = "\xCA\xE7.\xE9\xB3 \xBC\xE0\xE6\xEC\xE7\xC8z";
  bin_.set_body(HandPackedBody(stored_text, "", kDetails));
  bin_.ConvertLoadedBRN();
  EXPECT_EQ(bin_.result_text(), "the r.f0ff9   erTh \n z");
}

TEST_F(ClsBinTest, AnOverflowInDescramblingLeavesTheRestAsItIs) {
  // Positions 1 and 2 decode (16 - 2, 16 + 3); position 3 would be 1 - 2.
  bin_.set_body(std::string("\x10\x10\x01\x10", 4));
  bin_.DecodeBin();
  EXPECT_EQ(bin_.body(), std::string("\x0E\x13\x01\x10", 4));
  EXPECT_EQ(LogCapture::Entries(),
            std::vector<std::string>{"Overflow in sub decodebin(6) of module clsBIN"});
}

// A BFL header: 1000 characters stored with 50 added, starting with 250.
std::string BflHeader(const std::string& details) {
  std::string header = std::string(1, '\xC8') + "pad" + details;
  header.resize(1000, 'p');
  for (char& c : header) c = static_cast<char>(static_cast<unsigned char>(c) + 50);
  return header;
}

// Packed books (.brn) are read in the packing and round-trip tests.
TEST_F(ClsBinTest, ReadsBflFilesButNotAHeaderWithAByteBelowFifty) {
  const std::string bfl = log_.folder().File("book.bfl");
  test::WriteFile(bfl, BflHeader(kDetails) + HandScramble("Plain"));
  std::vector<std::string> events;
  clsBIN bfl_run = Recorded(events);
  bfl_run.ConvertAndLoadBFL(bfl);
  EXPECT_EQ(bfl_run.result_text(), "Plain");
  EXPECT_EQ(bfl_run.details().author, "Ann");
  EXPECT_EQ(bfl_run.details().title, "Tit");
  EXPECT_EQ(events.front(), "Reading file 10/100");
  EXPECT_EQ(events.back(), "Finishing 90/100");
  EXPECT_TRUE(LogCapture::Entries().empty());

  // A header byte below 50 is an overflow, and the header stays in the body.
  std::string header = BflHeader(kDetails);
  header[500] = '\x10';
  bin_.set_body(header);
  EXPECT_FALSE(bin_.CheckForBflHeader());
  EXPECT_EQ(bin_.body(), header);
  EXPECT_EQ(LogCapture::Entries(),
            std::vector<std::string>{"Overflow in function checkforbflheader(6) of module clsBIN"});
}

}  // namespace
}  // namespace vireo
