#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vireo {

enum class DefaultAnswer { kYes, kNo };

// The few ways the core talks to the person at the screen. The Qt layer shows
// dialogs; the non-interactive mode writes to standard error and answers with
// the default; tests record.
class UserInteraction {
 public:
  virtual ~UserInteraction() = default;
  // A message box with an OK button.
  virtual void ShowMessage(std::string_view text, std::string_view title) = 0;
  // An input box; nullopt when cancelled.
  virtual std::optional<std::string> AskText(std::string_view prompt, std::string_view title,
                                             std::string_view default_text) = 0;
  // A question with Yes and No buttons; true for Yes. The default answer is
  // the one a bare Enter gives: questions that destroy something default to No.
  virtual bool AskYesNo(std::string_view question, std::string_view title,
                        DefaultAnswer default_answer) = 0;
};

// Lets pending window messages run, and sleeps.
class MessagePump {
 public:
  virtual ~MessagePump() = default;
  virtual void Yield() = 0;
  virtual void SleepMilliseconds(int milliseconds) = 0;
};

// The program-wide pause: seconds x 1000, rounded to whole milliseconds.
void Delay(MessagePump& pump, double seconds);

}  // namespace vireo
