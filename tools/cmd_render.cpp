// vireo-tool render and sweep: draw a book as the reader shows it, headless,
// with the preferences in the program's folder.

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "app/interaction_qt.h"
#include "app/main_window.h"
#include "support/logging.h"
#include "support/platform.h"
#include "tool_commands.h"

namespace vireo::tool {
namespace {

struct RenderRequest {
  std::string file;
  std::string output;
  int page = 1;
  bool single = false;
};

bool ParseRender(const Arguments& arguments, RenderRequest& request) {
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const bool has_value = i + 1 < arguments.size();
    if (argument == "--page" && has_value) {
      request.page = std::atoi(arguments[++i].c_str());
    } else if (argument == "-o" && has_value) {
      request.output = arguments[++i];
    } else if (argument == "--single") {
      request.single = true;
    } else if (request.file.empty() && !argument.starts_with("-")) {
      request.file = argument;
    } else {
      return false;
    }
  }
  return !request.file.empty() && !request.output.empty() && request.page >= 1;
}

// The reader opened on a file, offscreen, without touching the reader's log
// or the desktop's file types.
class HeadlessReader {
 public:
  explicit HeadlessReader(const RenderRequest& request) {
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    SetLoggingDisabled(true);
    setenv("XDG_DATA_HOME", desktop_.path().toLocal8Bit().constData(), 1);
    application_ = std::make_unique<QApplication>(argc_, argv_);
    window_ = std::make_unique<MainWindow>(user_, ProgramLocation{ProgramFolder(), request.file});
    started_ = window_->logic().lifecycle().Form_Load();
    if (!started_) return;
    window_->show();
    frmMain& reader = window_->logic();
    if (request.single != reader.preferences().single_page_mode) {
      reader.preferences().single_page_mode = request.single;
      reader.view_commands().UpdateBookMode(false);
    }
    reader.spread().ShowPage(request.page);
    QCoreApplication::processEvents();
  }

  bool started() const { return started_; }
  MainWindow& window() { return *window_; }

 private:
  int argc_ = 1;
  char name_[11] = "vireo-tool";
  char* argv_[2] = {name_, nullptr};
  QTemporaryDir desktop_;
  StderrInteraction user_;
  std::unique_ptr<QApplication> application_;
  std::unique_ptr<MainWindow> window_;
  bool started_ = false;
};

bool SavePicture(MainWindow& window, const std::string& path) {
  return window.grab().save(QString::fromLocal8Bit(path.c_str()), "PNG");
}

}  // namespace

int RunRender(const Arguments& arguments) {
  RenderRequest request;
  if (!ParseRender(arguments, request)) {
    return Fail("usage: vireo-tool render FILE --page N -o OUT.png [--single]");
  }
  if (!FileExists(request.file)) return Fail("cannot read " + request.file);
  HeadlessReader reader(request);
  if (!reader.started()) return Fail("the helper library is missing");
  if (!SavePicture(reader.window(), request.output)) return Fail("cannot write " + request.output);
  std::printf("%s\n", request.output.c_str());
  return 0;
}

// Records every drawn step of one animated forward turn from the given page
// as OUT/frame-NNN.png: the spread before the turn, the window at every
// pause of the animation (each drawn step is followed by one), and the
// spread after it.
int RunSweep(const Arguments& arguments) {
  RenderRequest request;
  if (!ParseRender(arguments, request) || request.single) {
    return Fail("usage: vireo-tool sweep FILE --page N -o FOLDER");
  }
  if (!FileExists(request.file)) return Fail("cannot read " + request.file);
  if (!QDir().mkpath(QString::fromLocal8Bit(request.output.c_str()))) {
    return Fail("cannot make " + request.output);
  }
  HeadlessReader reader(request);
  if (!reader.started()) return Fail("the helper library is missing");
  MainWindow& window = reader.window();
  int frame = 0;
  bool written = true;
  const auto record = [&] {
    char name[32];
    std::snprintf(name, sizeof name, "/frame-%03d.png", frame++);
    written = SavePicture(window, request.output + name) && written;
  };
  record();
  window.logic().preferences().instant_page_turn = false;
  window.pump().SetPauseObserver(record);
  window.logic().spread().NextPage();
  window.pump().SetPauseObserver(nullptr);
  record();
  if (!written) return Fail("cannot write the frames into " + request.output);
  std::printf("%d frames in %s\n", frame, request.output.c_str());
  return 0;
}

}  // namespace vireo::tool
