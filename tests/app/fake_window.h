#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/fake_services.h"
#include "app/frm_main.h"
#include "app/headless_window.h"
#include "book/book_maker.h"
#include "fake_pump.h"
#include "prefs/settings_get_set.h"
#include "render/fake_page_buffers.h"
#include "support/logging.h"
#include "test_support.h"

namespace vireo::test {

// The headless window, keeping every progress text (before and after the splash) and
// milestone, counting the menus it was asked to show, with services that keep every request
// (FakeServices).
class FakeWindowView : public HeadlessWindowView {
 public:
  void ShowProgress(std::string_view text) override {
    (splash ? splash_status : progress_shown).emplace_back(text);
  }
  void ShowContextMenu() override { ++context_menus; }
  PeripheralServices& Services() override { return services; }
  void ShowOptionsMenuAtPage() override { ++menus_at_page; }
  void Milestone(std::string_view what) override { milestones.emplace_back(what); }

  std::vector<std::string> milestones;  // "first spread", "pagination finished", ...
  std::vector<std::string> splash_status;
  std::vector<std::string> progress_shown;  // after the splash
  int context_menus = 0;
  FakeServices services;
  int menus_at_page = 0;
};

// Answers every box with `answer` (else the default) and `yes`, keeping what was asked.
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
  bool AskYesNo(std::string_view question, std::string_view, DefaultAnswer) override {
    messages.emplace_back(question);
    return yes;
  }

  std::vector<std::string> messages;
  std::optional<std::string> answer;
  bool yes = false;
};

// An ebook file at path (its folder made if need be) holding text (Windows-1252).
inline void WriteEbook(const std::string& path, const std::string& text) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  WriteFile(path, EbookFile("stub program", PackBody(PackableText(text, TextEncoding::kWindows1252),
                                                     "Author", "Title")));
}

// Page turns without the sweep, for tests that only care where they land.
inline constexpr const char* kInstant = "INSTANTPAGETURN,True\r\n";

// Numbered paragraphs of prose, long enough for many pages.
inline std::string NumberedProse(int paragraphs) {
  std::string text;
  for (int p = 1; p <= paragraphs; ++p) {
    text += "Paragraph " + std::to_string(p) + " tells of the long road and the river. ";
    text += "It goes on for a while before it stops.\r\n\r\n";
  }
  return text;
}

// A program folder holding an ebook of `text` (the "executable") and, unless empty, the
// settings file; the settings and the actions list start afresh and file types register
// inside the folder. The log and the settings are let go with it.
class ReaderFolder {
 public:
  ReaderFolder(const std::string& text, const std::string& settings) {
    ResetGlobalSettings();
    ClearActions();
    setenv("XDG_DATA_HOME", folder.File("xdg").c_str(), 1);
    if (!settings.empty()) WriteFile(folder.File("Vireo.ini"), settings);
    WriteEbook(book_path, text);
  }
  ~ReaderFolder() {
    SetLogFolder("");
    ResetGlobalSettings();
  }

  TempFolder folder;
  const std::string book_path = folder.File("Book");
};

// The main window's logic over the fakes, in a reader folder that also holds the helper
// library.
class FakeReader : public ReaderFolder {
 public:
  explicit FakeReader(const std::string& text, const std::string& settings = "")
      : ReaderFolder(text, settings) {
    std::filesystem::copy_file(std::filesystem::path(BinFolder()) / "libvHtml.so",
                               folder.path() / "libvHtml.so");
  }
  void Start() { ASSERT_TRUE(logic.lifecycle().Form_Load()); }

  FakeWindowView view;
  FakePageBuffers buffers;
  FakeUser user;
  RecordingPump pump;
  frmMain logic{view, buffers, user, pump, ProgramLocation{folder.str(), book_path}};
};

// A FakeReader whose start-up has run.
class StartedReader : public FakeReader {
 public:
  explicit StartedReader(const std::string& text, const std::string& settings = "")
      : FakeReader(text, settings) {
    Start();
  }
};

// Whether the book was paginated while action ran.
inline bool Repaginates(FakeReader& reader, const std::function<void()>& action) {
  bool seen = false;
  reader.pump.on_yield = [&] { seen |= reader.logic.paginator_busy(); };
  action();
  reader.pump.on_yield = nullptr;
  return seen;
}

}  // namespace vireo::test
