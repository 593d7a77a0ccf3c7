#pragma once

#include <QObject>
#include <QTextToSpeech>
#include <functional>
#include <memory>

#include "app/speech_engine.h"

namespace vireo {

// The platform's text-to-speech engine (Qt TextToSpeech). The engine is
// made when first needed; with no engine plugin installed, Available() is
// false and nothing is spoken.
class QtSpeechEngine : public QObject, public SpeechEngine {
  Q_OBJECT

 public:
  explicit QtSpeechEngine(QObject* parent = nullptr);
  ~QtSpeechEngine() override;

  bool Available() override;
  void Say(const std::string& text, std::function<void()> finished) override;
  void Stop() override;
  void Pause() override;
  void Resume() override;
  std::vector<std::string> Voices() override;
  void SetVoice(const std::string& name) override;
  void SetRate(double rate) override;

 private:
  QTextToSpeech* Engine();

  QTextToSpeech* engine_ = nullptr;
  std::function<void()> finished_;
  bool speaking_ = false;
};

}  // namespace vireo
