#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/peripheral_services.h"

namespace vireo::test {

// A speech engine that keeps what it was asked to say; Finish() ends the
// text being spoken as the engine would.
class FakeSpeech : public SpeechEngine {
 public:
  bool Available() override { return installed; }
  void Say(const std::string& text, std::function<void()> finished) override {
    said.push_back(text);
    finished_ = std::move(finished);
  }
  void Finish() {
    auto finished = std::move(finished_);
    if (finished) finished();
  }
  void Stop() override { finished_ = nullptr; }
  void Pause() override {}
  void Resume() override {}
  std::vector<std::string> Voices() override { return {}; }
  void SetVoice(const std::string&) override {}
  void SetRate(double) override {}

  bool installed = true;
  std::vector<std::string> said;

 private:
  std::function<void()> finished_;
};

// The services, keeping every request; the file dialogs answer `save_answer`,
// `open_answer` and `folder_answer`, and keep the titles and starting places asked.
class FakeServices : public PeripheralServices, public CommonDialogs {
 public:
  void ShowManual() override { ++manuals; }
  void PrintBook(int page_count) override { printed_page_counts.push_back(page_count); }
  void CopyPage(int box, const std::string& text) override {
    copied_box = box;
    copied_text = text;
  }
  void OpenWebPage(const std::string& address) override { opened.push_back(address); }
  CommonDialogs& Dialogs() override { return *this; }
  SpeechEngine& Speech() override { return speech; }

  std::optional<FileChoice> AskSaveFile(std::string_view title, std::string_view start,
                                        const std::vector<std::string>&) override {
    Asked(title, start);
    return save_answer;
  }
  std::optional<FileChoice> AskOpenFile(std::string_view title, std::string_view start,
                                        const std::vector<std::string>&) override {
    Asked(title, start);
    return open_answer;
  }
  std::optional<std::string> AskFolder(std::string_view title, std::string_view start) override {
    Asked(title, start);
    return folder_answer;
  }
  std::optional<uint32_t> AskColour(std::string_view, uint32_t) override { return std::nullopt; }

  int manuals = 0;
  std::vector<int> printed_page_counts;
  int copied_box = -1;
  std::string copied_text;
  std::vector<std::string> opened;
  std::optional<FileChoice> save_answer;
  std::optional<FileChoice> open_answer;
  std::optional<std::string> folder_answer;
  std::vector<std::string> asked;  // "title: start" of every file dialog
  FakeSpeech speech;

 private:
  void Asked(std::string_view title, std::string_view start) {
    asked.push_back(std::string(title) + ": " + std::string(start));
  }
};

}  // namespace vireo::test
