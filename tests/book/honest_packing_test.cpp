// What the maker writes for characters the book cannot show as themselves, and the
// stand-alone packed book.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "book/book_maker.h"
#include "book/book_reader.h"
#include "support/windows1252.h"
#include "test_support.h"

namespace vireo {
namespace {

using ::testing::ElementsAre;

// The text the reader holds for a book made from input, without reformatting, as UTF-8.
std::string ReadBack(const std::string& input, ReplacementTally* tally = nullptr) {
  test::TempFolder folder;
  const std::string path = folder.File("book.brn");
  test::WriteFile(path, PackBody(PackableText(input, DetectEncoding(input), tally), "A", "T"));
  const BookReadResult book = ReadBookFile(path, {.reformat = false});
  EXPECT_TRUE(book.has_book && book.damage.empty()) << book.message << book.damage;
  return Utf8FromWindows1252(book.text);
}

TEST(HonestPacking, TheFormattingCodesCharactersArriveAsPlainTextAndAreReported) {
  struct Case {
    std::string windows1252;
    std::string shown;  // UTF-8
  };
  const Case cases[] = {
      // That every code arrives as its plain form is the round trip's test.
      {"5 \x80", "5 EUR"},
      {"wait\x85 then", "wait\xE2\x80\xA6 then"},
      {"a\x81z", "a?z"},
  };
  for (const Case& c : cases) {
    // The same from Windows-1252 and from UTF-8; the ellipsis becomes the book's own.
    const std::string text = "Plain " + c.windows1252 + " plain.";
    EXPECT_EQ(ReadBack(text), "Plain " + c.shown + " plain.") << c.shown;
    EXPECT_EQ(ReadBack(Utf8FromWindows1252(text) + "\xC3\xA9"),
              "Plain " + c.shown + " plain.\xC3\xA9");
  }
  ReplacementTally tally;
  ReadBack("\x80\x80 \x85 \x86", &tally);
  EXPECT_THAT(ReplacementReport(tally.Kinds()),
              ElementsAre("1 \xC3\x97 \xE2\x80\xA0 are written as +",
                          "1 \xC3\x97 \xE2\x80\xA6 are written as ...",
                          "2 \xC3\x97 \xE2\x82\xAC are written as EUR"));
}

TEST(HonestPacking, CharactersOutsideWindows1252AreTransliteratedOrShownAsQuestionMarks) {
  const std::string greek_and_cyrillic = "\xCE\xA9\xCE\xA9\xCE\xA9 \xD0\x96";  // ΩΩΩ Ж
  ReplacementTally tally;
  EXPECT_EQ(ReadBack(greek_and_cyrillic, &tally), "??? ?");
  EXPECT_THAT(ReplacementReport(tally.Kinds()),
              ElementsAre("3 \xC3\x97 \xCE\xA9 had no place in the book and show as ?",
                          "1 \xC3\x97 \xD0\x96 had no place in the book and show as ?"));
  // Letters lose only the accents Windows-1252 lacks; a combining accent joins its letter
  // where Windows-1252 has the pair; ligatures, dashes and spaces get their plain forms.
  EXPECT_EQ(ReadBack("\xC5\x81\xC3\xB3"
                     "d\xC5\xBA, Erd\xC5\x91s, Cafe\xCC\x81, z\xCC\x81"),
            "L\xC3\xB3"
            "dz, Erdos, Caf\xC3\xA9, z");
  EXPECT_EQ(ReadBack("\xEF\xAC\x81nal \xE2\x80\x90 a\xE2\x80\x89"
                     "b \xE2\x88\x92"
                     "1"),
            "final - a b -1");
  EXPECT_EQ(ReadBack(std::string("\xEF\xBB\xBF") + "a\xC2\x85"), "a?") << "a C1 control";
}

// Little-endian UTF-16 is the create-ebook dialog's test.
TEST(HonestPacking, BigEndianUtf16WithAByteOrderMarkIsRead) {
  const std::string big = std::string("\xFE\xFF", 2) + std::string("\0H\0\xE9\x04\x16", 6);
  EXPECT_EQ(DetectEncoding(big), TextEncoding::kUtf16BigEndian);
  EXPECT_EQ(ReadBack(big), "H\xC3\xA9?");
}

// Refusing to write over the reader's open book is the create-ebook dialog's test.
TEST(BrnMaking, ThePackedBookAloneIsWrittenAndReadsBack) {
  test::TempFolder folder;
  test::WriteFile(folder.File("story.txt"), "Once upon a time.");
  MakeRequest request;
  request.text_path = folder.File("story.txt");
  request.out_path = folder.File("story.brn");
  request.form = MakeForm::kBrn;
  std::vector<int> percents;
  request.progress = [&](std::string_view, int value, int) { percents.push_back(value); };
  const MakeResult result = MakeEbook(request);
  ASSERT_TRUE(result.ok) << result.message;
  EXPECT_EQ(percents.back(), 100);
  const BookReadResult book = ReadBookFile(request.out_path, {});
  EXPECT_EQ(book.text, "Once upon a time.");
  EXPECT_EQ(book.title, "story.brn");
  EXPECT_EQ(test::ReadFile(request.out_path).size(), result.stored_size) << "no stub, no markers";
}

}  // namespace
}  // namespace vireo
