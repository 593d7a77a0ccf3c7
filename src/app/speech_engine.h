#pragma once

#include <functional>
#include <string>
#include <vector>

namespace vireo {

// A text-to-speech engine as the reader uses it. Text is UTF-8. The Qt
// layer wraps the platform's engine; tests fake it.
class SpeechEngine {
 public:
  virtual ~SpeechEngine() = default;
  // False when no engine is installed: nothing can be spoken.
  virtual bool Available() = 0;
  // Starts speaking text, dropping anything still being spoken; `finished`
  // is called once the text has been spoken in full (not after Stop).
  virtual void Say(const std::string& text, std::function<void()> finished) = 0;
  virtual void Stop() = 0;
  virtual void Pause() = 0;
  virtual void Resume() = 0;
  // The installed voices' names; "" chooses the engine's default voice.
  virtual std::vector<std::string> Voices() = 0;
  virtual void SetVoice(const std::string& name) = 0;
  // -1 (slowest) .. 1 (fastest), 0 normal.
  virtual void SetRate(double rate) = 0;
};

}  // namespace vireo
