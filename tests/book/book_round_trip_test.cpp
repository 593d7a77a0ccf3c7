// The ebook maker and the reader together: the reader shows exactly the reformatted text.

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "book/book_maker.h"
#include "book/book_reader.h"
#include "book/load_file.h"
#include "book/plain_text_fallback.h"
#include "support/windows1252.h"
#include "sample_text.h"
#include "book/replace_known_char_reference.h"
#include "test_support.h"

namespace vireo {
namespace {

const std::string kStub = "\x7f" "ELF stub\x01\x02 not a real program\n";

class RoundTrip : public ::testing::Test {
 protected:
  // What the reader shows of a packed Windows-1252 text is the reformatted text, the
  // formatting codes' characters written as plain text.
  void ExpectRoundTrip(const std::string& text, const std::string& what) {
    std::string plain;
    for (const char c : text) {
      const auto byte = static_cast<uint8_t>(c);
      plain += IsFormattingCode(byte) ? PlainTextFallback(Windows1252ToUnicode(byte))
                                      : std::string_view(&c, 1);
    }
    for (const FormattingOptions& options : test::AllFormattingOptions()) {
      std::string expected = plain;
      test::ReplaceKnownCharStepByStep(expected, options);
      test::WriteFile(path_,
                      EbookFile(kStub, PackBody(PackableText(text, TextEncoding::kWindows1252),
                                                "An Author", "A Title")));
      const BookReadResult book = ReadEmbeddedBook(path_, options);
      ASSERT_TRUE(book.has_book) << what;
      ASSERT_EQ(book.text, expected)
          << what << " options " << options.reformat << options.underscores << options.extra_line;
    }
  }

  test::TempFolder folder_;
  std::string path_ = folder_.File("Book");
};

TEST_F(RoundTrip, EveryByteValueAndLongRunsOfBlanksAndLineEnds) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  ExpectRoundTrip(all + std::string(all.rbegin(), all.rend()) + all, "every byte");
  ExpectRoundTrip("start" + std::string(5000, ' ') + std::string(3000, '\r') + "\"" +
                      std::string(4000, '\n') + std::string(1000, '"') + "end",
                  "long runs");
}

TEST_F(RoundTrip, HostilePieces) {
  std::mt19937 random(5);
  std::vector<std::string> pieces = samples::ReformattingPieces();
  pieces.insert(pieces.end(),
                {"&amp;", "&#201;", "&eacute;", "&#x41;", "\xC9", " \xC8", "\xA9", "\xB3", "f0",
                 "f 0", "the", "There", "tre", "\xFF", std::string(1, '\0'), "&#", ";", "tion"});
  for (int round = 0; round < 15; ++round) {
    ExpectRoundTrip(samples::RandomFromPieces(random, pieces, 400), "round " + std::to_string(round));
  }
}

class MakeEbookTest : public ::testing::Test {
 protected:
  MakeRequest Request(const std::string& text) {
    test::WriteFile(folder_.File("book.txt"), text);
    test::WriteFile(folder_.File("stub"), kStub);
    return {folder_.File("book.txt"), folder_.File("out"), folder_.File("stub"), "Au", "Ti"};
  }
  test::TempFolder folder_;
};

TEST_F(MakeEbookTest, AStubThatIsABookIsCutAtItsMarker) {
  ASSERT_TRUE(MakeEbook(Request("first")).ok);
  MakeRequest again = Request("second");
  again.stub_path = folder_.File("out");
  again.out_path = folder_.File("out2");
  ASSERT_TRUE(MakeEbook(again).ok);
  EXPECT_EQ(ReadEmbeddedBook(folder_.File("out2"), {}).text, "second");
  EXPECT_EQ(test::ReadFile(folder_.File("out2")).substr(0, kStub.size() + 1),
            kStub + HeaderMarker().substr(0, 1));
}

// A missing or empty text, and a book that runs, are the e2e tests'.
TEST_F(MakeEbookTest, AMissingStubOrAnUnwritableOutputLeavesNoFile) {
  std::filesystem::create_directory(folder_.File("a-folder"));
  MakeRequest bad[2] = {Request("x"), Request("x")};
  bad[0].stub_path = folder_.File("missing-stub");
  bad[1].out_path = folder_.File("a-folder");
  for (const MakeRequest& request : bad) EXPECT_FALSE(MakeEbook(request).ok) << request.out_path;
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.path()), {}), 3)
      << "only the text, the stub and the folder: no temporary left behind";
  EXPECT_TRUE(std::filesystem::is_empty(folder_.File("a-folder")));
}

}  // namespace
}  // namespace vireo
