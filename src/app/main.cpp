#include <QApplication>
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

#include "app/error_report_dialog.h"
#include "app/font_selection_qt.h"
#include "app/interaction_qt.h"
#include "app/main_window.h"
#include "app/page_setup_qt.h"
#include "support/error_trap.h"
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

// VIREO_DIALOG=about|report|font|menu: the about window, the error-report
// form for an example error, the font dialog or the options menu, opened over the window (the
// screenshot shows it).
QWidget* OpenDialog(vireo::MainWindow& window) {
  const char* which = std::getenv("VIREO_DIALOG");
  if (which == nullptr) return nullptr;
  if (std::string_view(which) == "about") return window.help().ShowAbout();
  if (std::string_view(which) == "menu") {
    window.menu().popup(window.mapToGlobal(QPoint(40, 40)));
    return &window.menu();
  }
  if (std::string_view(which) == "font") {
    QWidget* dialog = vireo::MakeFontDialog(window.logic(), window.fonts(), &window).release();
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    return dialog;
  }
  if (std::string_view(which) != "report") return nullptr;
  auto* form = new vireo::fSHAREDErrorRpt(window.logic().context().location.folder,
                                          vireo::OpenAddress, &window);
  form->setAttribute(Qt::WA_DeleteOnClose);
  form->ShowError("Subscript out of range in sub showpage(9) of module frmMain");
  form->show();
  return form;
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
  // VIREO_MENU=NAME: the options menu's item NAME is chosen first.
  if (const char* item = std::getenv("VIREO_MENU")) {
    if (QAction* action = window.menu().Item(QString::fromLatin1(item))) action->trigger();
  }
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
  CatchSignals();
  QApplication application(argc, argv);
  std::unique_ptr<vireo::UserInteraction> user;
  auto* qt_user = new vireo::QtUserInteraction();
  if (vireo::NonInteractiveMode()) {
    user.reset(new vireo::StderrInteraction());
    delete qt_user;
    qt_user = nullptr;
  } else {
    user.reset(qt_user);
  }
  vireo::MainWindow window(*user,
                           vireo::ProgramLocation{vireo::ProgramFolder(), vireo::ExecutablePath()});
  if (qt_user != nullptr) qt_user->set_parent(&window);
  const std::function<void()> started = QuitOnSignals(window);
  vireo::SetErrorObserver(
      [&window](const std::string& entry) { window.help().ErrorReached(entry); });
  if (!window.logic().lifecycle().Form_Load()) {
    vireo::SetErrorObserver(nullptr);
    return 1;
  }
  window.show();
  started();
  const char* keys = std::getenv("VIREO_KEYS");
  PressKeys(window, keys != nullptr ? keys : "",
            [&window, &user] { ScheduleAutomation(window, *user); });
  const int status = application.exec();
  vireo::SetErrorObserver(nullptr);
  return window.end_status() >= 0 ? window.end_status() : status;
}
