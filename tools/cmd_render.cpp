// vireo-tool render and sweep: draw a book as the reader shows it, headless,
// with the preferences in the program's folder.

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "app/book_canvas_widget.h"
#include "app/frm_main.h"
#include "app/headless_window.h"
#include "app/interaction_qt.h"
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

// The reader's logic opened on a file, offscreen, drawing onto the book
// canvas alone (no main window, no control bar), without touching the
// reader's log or the desktop's file types.
class HeadlessReader {
 public:
  explicit HeadlessReader(const RenderRequest& request) {
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    SetLoggingDisabled(true);
    setenv("XDG_DATA_HOME", desktop_.path().toLocal8Bit().constData(), 1);
    application_ = std::make_unique<QApplication>(argc_, argv_);
    canvas_ = std::make_unique<BookCanvasWidget>();
    reader_ = std::make_unique<frmMain>(view_, *canvas_, user_, pump_,
                                        ProgramLocation{ProgramFolder(), request.file});
    started_ = reader_->lifecycle().Form_Load();
    if (!started_) return;
    if (request.single != reader_->preferences().single_page_mode) {
      reader_->preferences().single_page_mode = request.single;
      reader_->view_commands().UpdateBookMode(false);
    }
    constexpr double kTwipsPerPixel = BookCanvasWidget::kTwipsPerPixel;
    canvas_->resize(static_cast<int>(view_.size.width / kTwipsPerPixel + 0.5),
                    static_cast<int>(view_.size.height / kTwipsPerPixel + 0.5));
    canvas_->show();
    reader_->spread().ShowPage(request.page);
    QCoreApplication::processEvents();
  }

  bool started() const { return started_; }
  frmMain& reader() { return *reader_; }
  QtMessagePump& pump() { return pump_; }
  bool Save(const std::string& path) {
    return canvas_->grab().save(QString::fromLocal8Bit(path.c_str()), "PNG");
  }

 private:
  int argc_ = 1;
  char name_[11] = "vireo-tool";
  char* argv_[2] = {name_, nullptr};
  QTemporaryDir desktop_;
  StderrInteraction user_;
  QtMessagePump pump_;
  HeadlessWindowView view_;
  std::unique_ptr<QApplication> application_;
  std::unique_ptr<BookCanvasWidget> canvas_;
  std::unique_ptr<frmMain> reader_;
  bool started_ = false;
};

}  // namespace

int RunRender(const Arguments& arguments) {
  RenderRequest request;
  if (!ParseRender(arguments, request)) {
    return Fail("usage: vireo-tool render FILE --page N -o OUT.png [--single]");
  }
  if (!FileExists(request.file)) return Fail("cannot read " + request.file);
  HeadlessReader reader(request);
  if (!reader.started()) return Fail("the helper library is missing");
  if (!reader.Save(request.output)) return Fail("cannot write " + request.output);
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
  int frame = 0;
  bool written = true;
  const auto record = [&] {
    char name[32];
    std::snprintf(name, sizeof name, "/frame-%03d.png", frame++);
    written = reader.Save(request.output + name) && written;
  };
  record();
  reader.reader().preferences().instant_page_turn = false;
  reader.pump().SetPauseObserver(record);
  reader.reader().spread().NextPage();
  reader.pump().SetPauseObserver(nullptr);
  record();
  if (!written) return Fail("cannot write the frames into " + request.output);
  std::printf("%d frames in %s\n", frame, request.output.c_str());
  return 0;
}

}  // namespace vireo::tool
