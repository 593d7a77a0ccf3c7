#include "app/read_aloud.h"

#include <algorithm>

#include "app/book_text_export.h"
#include "app/peripheral_services.h"
#include "prefs/settings_get_set.h"
#include "support/error_trap.h"
#include "support/translation.h"
#include "support/windows1252.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

std::string Spoken(std::string_view book_text) {
  return Utf8FromWindows1252(PlainBookText(book_text, ItalicMarks::kDropped));
}

}  // namespace

ReadAloud::ReadAloud(ReaderContext& context, BookSpread& spread)
    : context_(context), spread_(spread) {}

SpeechEngine* ReadAloud::ReadyEngine() {
  SpeechEngine& engine = context_.view.Services().Speech();
  if (!engine.Available()) {
    context_.user.ShowMessage(
        GetTranslation("Reading aloud needs a speech engine. Please install the package "
                       "qt6-speech-speechd-plugin (with speech-dispatcher) or "
                       "qt6-speech-flite-plugin."),
        "Vireo");
    return nullptr;
  }
  engine.SetVoice(sget("SpeechVoice", "").ToText());
  engine.SetRate(std::clamp(sget("SpeechRate", 0.0).ToNumber(), -1.0, 1.0));
  return &engine;
}

void ReadAloud::SpeakLine(int box, int line) {
  Trap("sub speakline", kModule, [&] {
    const std::vector<std::string> lines = spread_.plotter().PageLines(spread_.PageOnBox(box));
    if (line < 1 || line > static_cast<int>(lines.size())) return;
    SetReading(false);
    if (SpeechEngine* engine = ReadyEngine()) engine->Say(Spoken(lines[line - 1]), nullptr);
  });
}

void ReadAloud::Start() {
  Trap("sub readaloud", kModule, [&] {
    if (!context_.book.loaded || ReadyEngine() == nullptr) return;
    SetReading(true);
    SpeakPage(spread_.PageOnBox(kLeftPageBox));
  });
}

void ReadAloud::SpeakPage(int page) {
  page_ = page;
  // The page is brought on show first; the current page is the last one on show.
  while (page_ > context_.reading.current_page && reading_) {
    const int before = context_.reading.current_page;
    spread_.NextPage();
    if (context_.reading.current_page == before) break;
  }
  context_.view.Services().Speech().Say(Spoken(context_.book.Page(page_).text),
                                        [this] { PageSpoken(); });
}

void ReadAloud::PageSpoken() {
  Trap("sub pagespoken", kModule, [&] {
    if (!reading_) return;
    if (page_ >= context_.book.PageCount()) return SetReading(false);
    SpeakPage(page_ + 1);
  });
}

void ReadAloud::Stop() {
  Trap("sub stopreading", kModule, [&] {
    SetReading(false);
    context_.view.Services().Speech().Stop();
  });
}

void ReadAloud::PauseOrResume() {
  Trap("sub pausereading", kModule, [&] {
    if (!reading_) return;
    SpeechEngine& engine = context_.view.Services().Speech();
    paused_ ? engine.Resume() : engine.Pause();
    paused_ = !paused_;
    context_.view.SetMenuTick("mnuPauseReading", paused_);
  });
}

void ReadAloud::SetReading(bool reading) {
  reading_ = reading;
  paused_ = false;
  context_.view.SetMenuTick("mnuReadAloud", reading);
  context_.view.SetMenuTick("mnuPauseReading", false);
  context_.view.SetMenuEnabled("mnuPauseReading", reading);
}

}  // namespace vireo
