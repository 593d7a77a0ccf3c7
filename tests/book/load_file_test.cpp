#include "book/load_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "book/book_maker.h"
#include "book/book_test_support.h"
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
  void ShowProgress(std::string_view, int, int) override { calls.push_back("progress"); }
  FormattingOptions Formatting() override { return options; }
  void BookLoaded(std::string text, std::string author, std::string title) override {
    calls.push_back("loaded " + text + " by " + author + ": " + title);
  }
  void ReadBookmark() override { calls.push_back("bookmark"); }
  void ReindexFile(bool keep_position) override {
    calls.push_back(keep_position ? "reindex keep" : "reindex");
  }
  void HideLanguageList() override { calls.push_back("hide languages"); }

  FormattingOptions options;
  std::vector<std::string> calls;
};

const std::string kStub = "stub program bytes\n";

class LoadFileTest : public ::testing::Test {
 protected:
  std::string Write(const std::string& name, const std::string& content) {
    const std::string path = folder_.File(name);
    test::WriteFile(path, content);
    return path;
  }
  test::TempFolder folder_;
  LogCapture log_;
  FakeHost host_;
};

TEST_F(LoadFileTest, LoadsTheBookAndHandsItToTheWindow) {
  const std::string body = PackBody("In the beginning.\nAnd the earth.", "Ann", "Tit");
  const std::string path = Write("Genesis", EbookFile(kStub, body));
  host_.options = {false, false, false};
  LoadFile(path, host_);
  // The title shown is the file's name.
  EXPECT_EQ(host_.calls,
            (std::vector<std::string>{"progress", "progress", "progress",
                                      "loaded In the beginning. \n And the earth. by Ann: Genesis",
                                      "bookmark", "reindex keep", "hide languages"}));
  const std::string log = log_.LogText();
  size_t at = 0;
  for (const std::string& line : {"Loading from: " + path, std::string("Reading Book"),
                                  std::string("Converting book"), std::string("Reindexing file")}) {
    at = log.find("      " + line + "\r\n", at);
    EXPECT_NE(at, std::string::npos) << line << " missing or out of order in\n" << log;
  }
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

}  // namespace
}  // namespace vireo
