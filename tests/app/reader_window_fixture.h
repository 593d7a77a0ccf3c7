#pragma once

#include <QApplication>
#include <QImage>
#include <QTimer>
#include <memory>
#include <string>

#include "app/main_window.h"
#include "book/book_maker.h"
#include "fake_window.h"
#include "prefs/settings_get_set.h"
#include "support/logging.h"
#include "test_support.h"

namespace vireo::test {

// Prose long enough for a few pages: numbered sentences in paragraphs.
inline std::string SampleProse(int paragraphs) {
  std::string text;
  for (int p = 1; p <= paragraphs; ++p) {
    for (int s = 1; s <= 6; ++s) {
      text += "Sentence " + std::to_string(s) + " of paragraph " + std::to_string(p) +
              " goes on for a little while before it stops. ";
    }
    text += "\r\n\r\n";
  }
  return text;
}

// The real main window, offscreen, in a program folder of its own that holds
// an ebook made from `text` and the settings given as file lines.
class ReaderWindow {
 public:
  ReaderWindow(const std::string& text, const std::string& settings = "") {
    ResetGlobalSettings();
    ClearActions();
    qputenv("XDG_DATA_HOME", folder_.File("xdg").c_str());
    if (!settings.empty()) WriteFile(folder_.File("Vireo.ini"), settings);
    const std::string body =
        PackBody(PackableText(text, TextEncoding::kWindows1252), "Author", "Title");
    book_ = folder_.File("Book");
    WriteFile(book_, EbookFile("stub program", body));
    window_ = std::make_unique<MainWindow>(user_, ProgramLocation{folder_.str(), book_});
  }
  ~ReaderWindow() {
    ClearQuit();
    window_.reset();
    SetLogFolder("");
    ResetGlobalSettings();
  }

  // Runs the start-up sequence and shows the window.
  void Start() {
    window_->logic().Form_Load();
    window_->show();
    QApplication::processEvents();
  }

  // A second run of the program in the same folder: the window is dropped
  // (after Exit, or as if the program had been killed) and a new one starts.
  void Restart() {
    ClearQuit();
    window_.reset();
    ResetGlobalSettings();
    window_ = std::make_unique<MainWindow>(user_, ProgramLocation{folder_.str(), book_});
    Start();
  }

  MainWindow& window() { return *window_; }
  frmMain& logic() { return window_->logic(); }
  const TempFolder& folder() const { return folder_; }
  FakeUser& user() { return user_; }

 private:
  // Exit ends the application's event loop; with none running, Qt then
  // refuses every later loop (a modal dialog's too). A short run of the
  // application's own loop clears that for the tests that follow.
  void ClearQuit() {
    if (!window_ || window_->end_status() < 0) return;
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
  }

  TempFolder folder_;
  std::string book_;
  FakeUser user_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace vireo::test
