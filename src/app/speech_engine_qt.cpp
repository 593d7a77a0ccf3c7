#include "app/speech_engine_qt.h"

#include <QVoice>

namespace vireo {

QtSpeechEngine::QtSpeechEngine(QObject* parent) : QObject(parent) {}

QtSpeechEngine::~QtSpeechEngine() = default;

bool QtSpeechEngine::Available() {
  return !QTextToSpeech::availableEngines().isEmpty() && Engine() != nullptr &&
         engine_->state() != QTextToSpeech::Error;
}

QTextToSpeech* QtSpeechEngine::Engine() {
  if (engine_ != nullptr || QTextToSpeech::availableEngines().isEmpty()) return engine_;
  engine_ = new QTextToSpeech(this);
  // The finished call comes when speaking ends by itself, not after Stop or Say.
  connect(engine_, &QTextToSpeech::stateChanged, this, [this](QTextToSpeech::State state) {
    if (state != QTextToSpeech::Ready || !speaking_) return;
    speaking_ = false;
    // A copy: the call may start the next text, which replaces finished_.
    const std::function<void()> finished = finished_;
    if (finished) finished();
  });
  return engine_;
}

void QtSpeechEngine::Say(const std::string& text, std::function<void()> finished) {
  if (!Available()) return;
  speaking_ = false;
  engine_->stop();
  finished_ = std::move(finished);
  speaking_ = true;
  engine_->say(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

void QtSpeechEngine::Stop() {
  speaking_ = false;
  if (engine_ != nullptr) engine_->stop();
}

void QtSpeechEngine::Pause() {
  if (engine_ != nullptr) engine_->pause();
}

void QtSpeechEngine::Resume() {
  if (engine_ != nullptr) engine_->resume();
}

std::vector<std::string> QtSpeechEngine::Voices() {
  std::vector<std::string> names;
  if (Engine() == nullptr) return names;
  for (const QVoice& voice : engine_->availableVoices())
    names.push_back(voice.name().toStdString());
  return names;
}

void QtSpeechEngine::SetVoice(const std::string& name) {
  if (Engine() == nullptr || name.empty()) return;
  for (const QVoice& voice : engine_->availableVoices()) {
    if (voice.name().toStdString() == name) engine_->setVoice(voice);
  }
}

void QtSpeechEngine::SetRate(double rate) {
  if (Engine() != nullptr) engine_->setRate(rate);
}

}  // namespace vireo
