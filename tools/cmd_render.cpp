// vireo-tool render: draws a page or spread of a book as the reader shows
// it, headless, with the preferences in the program's folder.

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
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

}  // namespace

int RunRender(const Arguments& arguments) {
  RenderRequest request;
  if (!ParseRender(arguments, request)) {
    return Fail("usage: vireo-tool render FILE --page N -o OUT.png [--single]");
  }
  if (!FileExists(request.file)) return Fail("cannot read " + request.file);
  if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  // The reader's own log and the desktop's file types stay untouched.
  SetLoggingDisabled(true);
  QTemporaryDir desktop;
  setenv("XDG_DATA_HOME", desktop.path().toLocal8Bit().constData(), 1);
  int argc = 1;
  char name[] = "vireo-tool";
  char* argv[] = {name, nullptr};
  QApplication application(argc, argv);
  StderrInteraction user;
  MainWindow window(user, ProgramLocation{ProgramFolder(), request.file});
  if (!window.logic().Form_Load()) return Fail("the helper library is missing");
  window.show();
  frmMain& reader = window.logic();
  if (request.single != reader.preferences().single_page_mode) {
    reader.preferences().single_page_mode = request.single;
    reader.UpdateBookMode(false);
  }
  reader.ShowPage(request.page);
  QCoreApplication::processEvents();
  if (!window.grab().save(QString::fromLocal8Bit(request.output.c_str()), "PNG")) {
    return Fail("cannot write " + request.output);
  }
  std::printf("%s\n", request.output.c_str());
  return 0;
}

}  // namespace vireo::tool
