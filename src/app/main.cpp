#include <QApplication>
#include <QFileDialog>
#include <QKeyEvent>
#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>

#include <cctype>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "app/create_ebook_dialog.h"
#include "app/error_report_dialog.h"
#include "app/file_types.h"
#include "app/font_selection_qt.h"
#include "app/interaction_qt.h"
#include "app/main_window.h"
#include "app/page_setup_qt.h"
#include "support/error_trap.h"
#include "support/milestones.h"
#include "support/platform.h"

#if !defined(_WIN32)
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace {

#if !defined(_WIN32)
int g_signal_pipe[2] = {-1, -1};

void OnTerminate(int) {
  const char byte = 1;
  [[maybe_unused]] const auto written = write(g_signal_pipe[1], &byte, 1);
}

// SIGTERM and SIGINT ask the program to quit as Exit does. The handlers are
// in place before anything else runs: a signal that comes early waits in the
// pipe until the window listens.
void CatchSignals() {
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, g_signal_pipe) != 0) return;
  std::signal(SIGTERM, OnTerminate);
  std::signal(SIGINT, OnTerminate);
}

// A signal that arrives during the start-up sequence is kept until the
// sequence has finished; afterwards, while the reader cannot close yet
// (paginating), the request is tried again at every yield until it goes
// through. Returns what starts the retries once start-up is complete.
std::function<void()> QuitOnSignals(vireo::MainWindow& window) {
  if (g_signal_pipe[0] < 0) return [] {};
  auto* notifier = new QSocketNotifier(g_signal_pipe[0], QSocketNotifier::Read, &window);
  auto* retry = new QTimer(&window);
  retry->setInterval(0);
  QObject::connect(retry, &QTimer::timeout, &window, [&window, retry] {
    if (window.end_status() < 0) window.logic().lifecycle().Quit();
    if (window.end_status() >= 0) retry->stop();
  });
  auto started = std::make_shared<bool>(false);
  auto pending = std::make_shared<bool>(false);
  QObject::connect(notifier, &QSocketNotifier::activated, &window, [retry, started, pending] {
    char byte = 0;
    [[maybe_unused]] const auto count = read(g_signal_pipe[0], &byte, 1);
    *pending = true;
    if (*started) retry->start();
  });
  return [retry, started, pending] {
    *started = true;
    if (*pending) retry->start();
  };
}
#else
void CatchSignals() {}
std::function<void()> QuitOnSignals(vireo::MainWindow&) {
  return [] {};
}
#endif

// VIREO_MENU=ITEM[,ITEM...]: each menu item named ("mnuPrint", "mnuSave"
// ...) is chosen in turn, as a click on it would; then `then` runs.
void ChooseMenuItems(vireo::MainWindow& window, const std::function<void()>& then) {
  const char* items = std::getenv("VIREO_MENU");
  const QStringList names = QString(items != nullptr ? items : "").split(',', Qt::SkipEmptyParts);
  for (const QString& name : names) {
    if (QAction* item = window.menu().Item(name)) item->trigger();
  }
  then();
}

int EnvironmentNumber(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? -1 : std::atoi(value);
}

// VIREO_KEYS=TEXT: each character in turn is pressed and released on the
// window as a person would type it (a blank is Space, letters and digits are
// their keys), each handled in full before the next; then `then` runs.
void PressKeys(vireo::MainWindow& window, std::string keys, std::function<void()> then) {
  if (keys.empty()) {
    then();
    return;
  }
  QTimer::singleShot(0, &window, [&window, keys, then] {
    const unsigned char typed = static_cast<unsigned char>(keys.front());
    const int key = typed == ' ' ? Qt::Key_Space : std::toupper(typed);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, Qt::NoModifier, QString(QChar(typed)));
      QCoreApplication::sendEvent(&window, &event);
    }
    PressKeys(window, keys.substr(1), then);
  });
}

// Shows a dialog made for the screenshot over the window, gone when closed.
QWidget* ShowOver(QWidget* dialog) {
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->show();
  return dialog;
}

QWidget* ShowErrorReport(vireo::MainWindow& window) {
  auto* form = new vireo::fSHAREDErrorRpt(window.logic().context().location.StateFolder(),
                                          vireo::OpenAddress, &window);
  form->ShowError("Subscript out of range in sub showpage(9) of module frmMain");
  return ShowOver(form);
}

// VIREO_DIALOG=NAME: a dialog or window opened over the main window (the
// screenshot shows it); nullptr for an unknown name.
QWidget* OpenDialog(vireo::MainWindow& window) {
  using Opener = QWidget* (*)(vireo::MainWindow&);
  static constexpr std::pair<std::string_view, Opener> kDialogs[] = {
      {"about", [](vireo::MainWindow& w) -> QWidget* { return w.help().ShowAbout(); }},
      {"report", ShowErrorReport},
      {"ebook",
       [](vireo::MainWindow& w) {
         return ShowOver(vireo::MakeCreateEbookDialog(w.logic(), w.user(), &w).release());
       }},
      {"open",
       [](vireo::MainWindow& w) {
         return ShowOver(w.services().common_dialogs().NewFileDialog(
             vireo::QtCommonDialogs::FileDialogKind::kOpen, vireo::OpenDialogTitle(),
             w.logic().context().prefs.path, vireo::OpenDialogFilters()));
       }},
      {"font",
       [](vireo::MainWindow& w) {
         return ShowOver(vireo::MakeFontDialog(w.logic(), w.fonts(), &w).release());
       }},
      {"menu",
       [](vireo::MainWindow& w) -> QWidget* {
         w.menu().popup(w.mapToGlobal(QPoint(40, 40)));
         return &w.menu();
       }},
      {"help",
       [](vireo::MainWindow& w) -> QWidget* {
         w.logic().commands().mnuHelp_Click();
         return w.services().help_window();
       }},
      {"print-preview",
       [](vireo::MainWindow& w) {
         QWidget* preview = w.services().printer().Preview(1, 2);
         preview->resize(900, 700);
         return ShowOver(preview);
       }},
  };
  const char* which = std::getenv("VIREO_DIALOG");
  if (which == nullptr) return nullptr;
  for (const auto& [name, open] : kDialogs) {
    if (name == which) return open(window);
  }
  return nullptr;
}

// Once started, save a picture (save) at the file the environment variable
// names, print its path and quit; nothing when the variable is not set.
void ScheduleScreenshot(vireo::MainWindow& window, const char* variable,
                        std::function<bool(const QString&)> save) {
  const char* shot = std::getenv(variable);
  if (shot == nullptr || *shot == '\0') return;
  const QString path = QString::fromLocal8Bit(shot);
  QTimer::singleShot(300, &window, [&window, path, save = std::move(save)] {
    if (save(path)) std::printf("%s\n", path.toLocal8Bit().constData());
    std::fflush(stdout);
    window.logic().lifecycle().Quit();
  });
}

// VIREO_SCREENSHOT=FILE.png: a picture of the window, or of the dialog of
// VIREO_DIALOG; VIREO_SETTINGS_SCREENSHOT=FILE.png: of the settings dialog.
// VIREO_QUIT_AFTER_MS=N: quit N ms after start-up. All count from the end
// of the VIREO_KEYS.
void ScheduleAutomation(vireo::MainWindow& window, vireo::UserInteraction& user) {
  if (std::getenv("VIREO_SCREENSHOT") != nullptr) {
    QPointer<QWidget> dialog = OpenDialog(window);
    ScheduleScreenshot(window, "VIREO_SCREENSHOT", [&window, dialog](const QString& path) {
      QWidget* shown = dialog ? dialog.data() : &window;
      return shown->grab().save(path);
    });
  }
  ScheduleScreenshot(window, "VIREO_SETTINGS_SCREENSHOT", [&window, &user](const QString& path) {
    return vireo::SavePageSetupPicture(window.logic(), user, path);
  });
  if (const int delay = EnvironmentNumber("VIREO_QUIT_AFTER_MS"); delay >= 0) {
    QTimer::singleShot(delay, &window, [&window] { window.logic().lifecycle().Quit(); });
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  vireo::WriteMilestone("main entered");
  CatchSignals();
  QApplication application(argc, argv);
  vireo::WriteMilestone("qt ready");
  std::unique_ptr<vireo::UserInteraction> user;
  auto* qt_user = new vireo::QtUserInteraction();
  if (vireo::NonInteractiveMode()) {
    user.reset(new vireo::StderrInteraction());
    delete qt_user;
    qt_user = nullptr;
  } else {
    user.reset(qt_user);
  }
  vireo::MainWindow window(*user, vireo::LocateRunningProgram());
  vireo::WriteMilestone("window made");
  if (qt_user != nullptr) qt_user->set_parent(&window);
  const std::function<void()> started = QuitOnSignals(window);
  vireo::SetErrorObserver(
      [&window](const std::string& entry) { window.help().ErrorReached(entry); });
  if (!window.logic().lifecycle().Form_Load()) {
    vireo::SetErrorObserver(nullptr);
    return 1;
  }
  window.show();
  // A book named on the command line (the desktop's "open with") is offered
  // once the reader's own book is loaded, as a dropped file is.
  if (const QStringList arguments = QApplication::arguments(); arguments.size() > 1) {
    window.logic().commands().OpenNamedFile(arguments.at(1).toLocal8Bit().toStdString());
  }
  started();
  const char* keys = std::getenv("VIREO_KEYS");
  PressKeys(window, keys != nullptr ? keys : "", [&window, &user] {
    ChooseMenuItems(window, [&window, &user] { ScheduleAutomation(window, *user); });
  });
  const int status = application.exec();
  vireo::SetErrorObserver(nullptr);
  return window.end_status() >= 0 ? window.end_status() : status;
}
