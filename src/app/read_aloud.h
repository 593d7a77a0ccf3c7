#pragma once

#include "app/book_spread.h"
#include "app/reader_context.h"

namespace vireo {

// Reading the book aloud through the platform's speech engine: one marked
// line, or page after page from the top of the pages on show, turning the
// pages as it goes. The voice ("SpeechVoice") and rate ("SpeechRate", -1..1)
// come from the preferences. Without an engine the person is told what to
// install. Errors are logged under module "frmMain".
class ReadAloud {
 public:
  ReadAloud(ReaderContext& context, BookSpread& spread);

  // Speaks line `line` (1-based) of the page on page box `box`.
  void SpeakLine(int box, int line);
  // Reads from the top of the pages on show on; Stop ends it.
  void Start();
  void Stop();
  // Pauses a reading in progress, or resumes a paused one.
  void PauseOrResume();
  bool reading() const { return reading_; }
  bool paused() const { return paused_; }

 private:
  // The engine with the voice and rate of the preferences, or nullptr (and
  // the message) when there is none.
  SpeechEngine* ReadyEngine();
  void SpeakPage(int page);
  void PageSpoken();
  void SetReading(bool reading);

  ReaderContext& context_;
  BookSpread& spread_;
  int page_ = 0;  // the page being read
  bool reading_ = false;
  bool paused_ = false;
};

}  // namespace vireo
