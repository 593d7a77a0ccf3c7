#pragma once

#include <QUrl>
#include <QWidget>
#include <functional>

#include "support/user_interaction.h"
#include "support/windows1252_qt.h"

namespace vireo {

// Message boxes and input boxes as Qt dialogs over a parent window.
class QtUserInteraction : public UserInteraction {
 public:
  explicit QtUserInteraction(QWidget* parent = nullptr) : parent_(parent) {}
  void set_parent(QWidget* parent) { parent_ = parent; }
  void ShowMessage(std::string_view text, std::string_view title) override;
  std::optional<std::string> AskText(std::string_view prompt, std::string_view title,
                                     std::string_view default_text) override;
  bool AskYesNo(std::string_view question, std::string_view title,
                DefaultAnswer default_answer) override;

 private:
  QWidget* parent_;
};

// The non-interactive mode (VIREO_NONINTERACTIVE=1): every box is written to
// standard error and answered with its default (OK, the default text, No).
class StderrInteraction : public UserInteraction {
 public:
  void ShowMessage(std::string_view text, std::string_view title) override;
  std::optional<std::string> AskText(std::string_view prompt, std::string_view title,
                                     std::string_view default_text) override;
  bool AskYesNo(std::string_view question, std::string_view title,
                DefaultAnswer default_answer) override;
};

// The Qt event loop as the core's message pump.
class QtMessagePump : public MessagePump {
 public:
  void Yield() override;
  void SleepMilliseconds(int milliseconds) override;
  // Called before every pause: what is on screen then is what the reader
  // sees for the length of the pause (tools record the frames of a page
  // turn with it). Empty: nothing is called.
  void SetPauseObserver(std::function<void()> observer) { pause_observer_ = std::move(observer); }

 private:
  std::function<void()> pause_observer_;
};

// Opens a web page, a mail link or a file (in the desktop's viewer for it);
// in the non-interactive mode writes "[open] " and the address or the file's
// path to standard error instead.
void OpenAddress(const QUrl& address);

// True when VIREO_NONINTERACTIVE is set to anything but "" or "0".
bool NonInteractiveMode();

}  // namespace vireo
