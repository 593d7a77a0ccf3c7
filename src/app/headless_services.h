#pragma once

#include "app/peripheral_services.h"

namespace vireo {

// The services where there is no window system: nothing is shown, printed,
// copied or opened, every dialog is cancelled and no speech engine exists.
class HeadlessServices : public PeripheralServices, CommonDialogs, SpeechEngine {
 public:
  void ShowManual() override {}
  void PrintBook(int) override {}
  void CopyPage(int, const std::string&) override {}
  void OpenWebPage(const std::string&) override {}
  CommonDialogs& Dialogs() override { return *this; }
  SpeechEngine& Speech() override { return *this; }

  std::optional<FileChoice> AskSaveFile(std::string_view, std::string_view,
                                        const std::vector<std::string>&) override {
    return std::nullopt;
  }
  std::optional<FileChoice> AskOpenFile(std::string_view, std::string_view,
                                        const std::vector<std::string>&) override {
    return std::nullopt;
  }
  std::optional<std::string> AskFolder(std::string_view, std::string_view) override {
    return std::nullopt;
  }
  std::optional<uint32_t> AskColour(std::string_view, uint32_t) override { return std::nullopt; }

  bool Available() override { return false; }
  void Say(const std::string&, std::function<void()>) override {}
  void Stop() override {}
  void Pause() override {}
  void Resume() override {}
  std::vector<std::string> Voices() override { return {}; }
  void SetVoice(const std::string&) override {}
  void SetRate(double) override {}
};

}  // namespace vireo
