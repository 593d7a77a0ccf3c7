#include "book/load_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "book/book_maker.h"
#include "book/book_reader.h"
#include "book/book_test_support.h"
#include "book/random_text.h"
#include "test_support.h"

namespace vireo {
namespace {

using test::LogCapture;

// Records what LoadFile asks of the window, in order.
class FakeHost : public LoadFileHost {
 public:
  void ShowLoadMessage(std::string_view message) override {
    calls.push_back("message " + std::string(message));
  }
  void ShowProgress(std::string_view caption, int value, int maximum) override {
    calls.push_back("progress " + std::string(caption) + " " + std::to_string(value) + "/" +
                    std::to_string(maximum));
  }
  FormattingOptions Formatting() override { return options; }
  void BookLoaded(std::string book_text, std::string book_author, std::string book_title) override {
    text = std::move(book_text);
    author = std::move(book_author);
    title = std::move(book_title);
    calls.push_back("loaded");
  }
  void ReadBookmark() override { calls.push_back("bookmark"); }
  void ReindexFile(bool keep_position) override {
    calls.push_back(keep_position ? "reindex keep" : "reindex");
  }
  void HideLanguageList() override { calls.push_back("hide languages"); }

  FormattingOptions options;
  std::vector<std::string> calls;
  std::string text, author, title;
};

const std::string kStub = "stub program bytes\n";

std::string Ebook(const std::string& text) {
  return EbookFile(kStub, PackBody(PackableText(text, TextEncoding::kWindows1252), "Ann", "Tit"));
}

class LoadFileTest : public ::testing::Test {
 protected:
  std::string Write(const std::string& name, const std::string& content) {
    const std::string path = folder_.File(name);
    test::WriteFile(path, content);
    return path;
  }
  // Log lines after their time stamps, in order.
  std::vector<std::string> LogLines() const {
    std::vector<std::string> lines;
    std::string text = log_.LogText();
    for (size_t start = 0; start < text.size();) {
      size_t end = text.find("\r\n", start);
      if (end == std::string::npos) end = text.size();
      const std::string line = text.substr(start, end - start);
      const size_t first = line.find_first_not_of(' ', 8);
      lines.push_back(first == std::string::npos ? "" : line.substr(first));
      start = end + 2;
    }
    return lines;
  }

  test::TempFolder folder_;
  LogCapture log_;
  FakeHost host_;
};

TEST_F(LoadFileTest, LoadsTheBookAndHandsItToTheWindow) {
  const std::string path = Write("Genesis", Ebook("In the beginning.\nAnd the earth."));
  host_.options = {false, false, false};
  LoadFile(path, host_);
  EXPECT_EQ(host_.text, "In the beginning. \n And the earth.");
  EXPECT_EQ(host_.author, "Ann");
  EXPECT_EQ(host_.title, "Genesis");
  EXPECT_EQ(host_.calls, (std::vector<std::string>{"progress Unpacking 30/100",
                                                   "progress Reformatting Text 50/100",
                                                   "progress Finishing 80/100", "loaded",
                                                   "bookmark", "reindex keep", "hide languages"}));
  EXPECT_EQ(LogLines(), (std::vector<std::string>{"Loading from: " + path, "Reading Book",
                                                  "Converting book", "Reindexing file"}));
}

TEST_F(LoadFileTest, AFileWithoutABookSaysSo) {
  for (const std::string& content :
       {std::string(), std::string("plain text\n"), BookMarker() + "no header marker"}) {
    host_.calls.clear();
    LoadFile(Write("plain.txt", content), host_);
    EXPECT_EQ(host_.calls,
              std::vector<std::string>{"message There is no ebook stored in this file."});
  }
}

TEST_F(LoadFileTest, TheStubMessageNeedsTheBareStubName) {
  const std::filesystem::path previous = std::filesystem::current_path();
  std::filesystem::current_path(folder_.path());
  Write("Vireo_Stub.exe", kStub);
  Write("  VIREO_stub.EXE ", kStub);
  LoadFile("  VIREO_stub.EXE ", host_);
  LoadFile(folder_.File("Vireo_Stub.exe"), host_);
  std::filesystem::current_path(previous);
  EXPECT_EQ(host_.calls,
            (std::vector<std::string>{
                "message Running Vireo_Stub.exe does nothing. Please use Vireo.exe instead.",
                "message There is no ebook stored in this file."}));
}

TEST_F(LoadFileTest, AHeaderMarkerWithoutABookMarkerIsALoggedError) {
  LoadFile(Write("broken", kStub + HeaderMarker() + "header only"), host_);
  EXPECT_TRUE(host_.calls.empty());
  EXPECT_EQ(LogCapture::Entries(),
            std::vector<std::string>{
                "Invalid procedure call or argument in sub loadfile(5) of module frmMain"});
}

TEST_F(LoadFileTest, TruncatedBooksEndInTheMessageALoggedErrorOrAShorterText) {
  std::mt19937 random(9);
  const std::string text = test::ProseLikeText(random, 20000);
  const std::string book = Ebook(text);
  const size_t body = book.find(BookMarker()) + BookMarker().size();
  // Inside the header marker: no book at all.
  EXPECT_EQ(ReadEmbeddedBook(Write("cut", book.substr(0, kStub.size() + 5)), {}).message,
            "There is no ebook stored in this file.");
  // A body shorter than lead-in and trailer: nothing left, the details missing.
  ClearActions();
  EXPECT_EQ(ReadEmbeddedBook(Write("cut", book.substr(0, body + 3000)), {}).text, "");
  EXPECT_EQ(LogCapture::Entries().size(), 2u);
  // Cut anywhere else: a book no longer than the whole one.
  for (size_t keep : {book.size() - 1, book.size() - 2100, body + book.size() / 2}) {
    const BookReadResult result = ReadEmbeddedBook(Write("cut", book.substr(0, keep)), {});
    EXPECT_TRUE(result.has_book) << keep;
    EXPECT_LE(result.text.size(), text.size() + text.size() / 8) << keep;
  }
}

}  // namespace
}  // namespace vireo
