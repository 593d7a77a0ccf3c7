#include "app/interaction_qt.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QInputDialog>
#include <QMessageBox>
#include <QThread>

#include <cstdio>
#include <cstdlib>

#include "support/windows1252.h"

namespace vireo {
namespace {

QString Text(std::string_view bytes) { return FromWindows1252(bytes); }

void WriteToStderr(std::string_view kind, std::string_view title, std::string_view text) {
  std::fprintf(stderr, "[%.*s] %.*s: %.*s\n", static_cast<int>(kind.size()), kind.data(),
               static_cast<int>(title.size()), title.data(), static_cast<int>(text.size()),
               text.data());
  std::fflush(stderr);
}

}  // namespace

bool NonInteractiveMode() {
  const char* value = std::getenv("VIREO_NONINTERACTIVE");
  return value != nullptr && *value != '\0' && std::string_view(value) != "0";
}

void OpenAddress(const QUrl& address) {
  if (NonInteractiveMode()) {
    const QString shown = address.isLocalFile() ? address.toLocalFile() : address.toString();
    std::fprintf(stderr, "[open] %s\n", shown.toUtf8().constData());
    std::fflush(stderr);
    return;
  }
  QDesktopServices::openUrl(address);
}

void QtUserInteraction::ShowMessage(std::string_view text, std::string_view title) {
  QMessageBox::information(parent_, Text(title), Text(text));
}

std::optional<std::string> QtUserInteraction::AskText(std::string_view prompt,
                                                      std::string_view title,
                                                      std::string_view default_text) {
  bool ok = false;
  const QString answer = QInputDialog::getText(parent_, Text(title), Text(prompt),
                                               QLineEdit::Normal, Text(default_text), &ok);
  if (!ok) return std::nullopt;
  return ToWindows1252(answer);
}

bool QtUserInteraction::AskYesNo(std::string_view question, std::string_view title,
                                 DefaultAnswer default_answer) {
  return QMessageBox::question(
             parent_, Text(title), Text(question), QMessageBox::Yes | QMessageBox::No,
             default_answer == DefaultAnswer::kNo ? QMessageBox::No : QMessageBox::Yes) ==
         QMessageBox::Yes;
}

void StderrInteraction::ShowMessage(std::string_view text, std::string_view title) {
  WriteToStderr("message", title, text);
}

std::optional<std::string> StderrInteraction::AskText(std::string_view prompt,
                                                      std::string_view title,
                                                      std::string_view default_text) {
  WriteToStderr("input", title, prompt);
  return std::string(default_text);
}

// Unattended, nothing is ever confirmed, whatever the default.
bool StderrInteraction::AskYesNo(std::string_view question, std::string_view title, DefaultAnswer) {
  WriteToStderr("question", title, question);
  return false;
}

void QtMessagePump::Yield() { QCoreApplication::processEvents(); }

// A pause in an animation shows the step drawn before it: frames waiting to
// be painted are painted first, without handling any other event.
void QtMessagePump::SleepMilliseconds(int milliseconds) {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
  if (pause_observer_) pause_observer_();
  if (milliseconds > 0) QThread::msleep(static_cast<unsigned long>(milliseconds));
}

}  // namespace vireo
