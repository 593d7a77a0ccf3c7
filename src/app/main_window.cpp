#include "app/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPalette>

namespace vireo {
namespace {

uint32_t ToBgr(const QColor& colour) {
  return static_cast<uint32_t>(colour.red()) | static_cast<uint32_t>(colour.green()) << 8 |
         static_cast<uint32_t>(colour.blue()) << 16;
}

}  // namespace

MainWindow::MainWindow(UserInteraction& user, ProgramLocation location)
    : logic_(*this, user, pump_, std::move(location)) {
  setObjectName("frmMain");
  setWindowTitle("Vireo");
  resize(9500 / 15, 6570 / 15);
}

MainWindow::~MainWindow() = default;

void MainWindow::ShowSplash() {
  splash_ = std::make_unique<SplashWindow>();
  splash_->show();
}

void MainWindow::SetSplashStatus(std::string_view text) {
  if (splash_) splash_->SetStatus(FromWindows1252(text));
}

void MainWindow::UnloadSplash() {
  if (!splash_) return;
  splash_->hide();
  splash_.reset();
}

void MainWindow::SetExitCaption(std::string_view caption) {
  exit_caption_ = FromWindows1252(caption);
}

uint32_t MainWindow::SystemWindowColour() {
  return ToBgr(QApplication::palette().color(QPalette::Base));
}

uint32_t MainWindow::SystemWindowTextColour() {
  return ToBgr(QApplication::palette().color(QPalette::Text));
}

void MainWindow::UnloadAllWindows() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  for (auto it = windows.rbegin(); it != windows.rend(); ++it) {
    if (*it != this) (*it)->close();
  }
  UnloadSplash();
  hide();
}

void MainWindow::EndProgram(int status) {
  end_status_ = status;
  QCoreApplication::exit(status);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (end_status_ >= 0) {
    event->accept();
    return;
  }
  if (logic_.Form_QueryUnload(event->spontaneous())) {
    event->ignore();
    return;
  }
  event->accept();
}

}  // namespace vireo
