#pragma once

#include <string>
#include <vector>

#include "app/frm_main.h"
#include "support/user_interaction.h"

namespace vireo::test {

// Records what the main window's logic asks of the window system.
class FakeWindow : public MainWindowView {
 public:
  void ShowSplash() override { events.push_back("show splash"); }
  void SetSplashStatus(std::string_view text) override { splash_statuses.emplace_back(text); }
  void UnloadSplash() override { events.push_back("unload splash"); }
  void SetExitCaption(std::string_view caption) override { exit_caption = caption; }
  uint32_t SystemWindowColour() override { return 0xFFFFFF; }
  uint32_t SystemWindowTextColour() override { return 0; }
  void UnloadAllWindows() override { events.push_back("unload windows"); }
  void EndProgram(int status) override { events.push_back("end " + std::to_string(status)); }

  std::vector<std::string> events;
  std::vector<std::string> splash_statuses;
  std::string exit_caption;
};

// Answers every box with its default and keeps what was asked.
class FakeUser : public UserInteraction {
 public:
  void ShowMessage(std::string_view text, std::string_view) override {
    messages.emplace_back(text);
  }
  std::optional<std::string> AskText(std::string_view prompt, std::string_view,
                                     std::string_view default_text) override {
    messages.emplace_back(prompt);
    return answer ? answer : std::optional<std::string>(std::string(default_text));
  }
  bool AskYesNo(std::string_view question, std::string_view) override {
    messages.emplace_back(question);
    return yes;
  }

  std::vector<std::string> messages;
  std::optional<std::string> answer;
  bool yes = false;
};

class FakePump : public MessagePump {
 public:
  void Yield() override { ++yields; }
  void SleepMilliseconds(int milliseconds) override { slept_ms += milliseconds; }
  int yields = 0;
  int slept_ms = 0;
};

}  // namespace vireo::test
