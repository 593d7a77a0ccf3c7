#pragma once

#include <QMainWindow>
#include <memory>

#include "app/frm_main.h"
#include "app/interaction_qt.h"
#include "app/splash_window.h"

namespace vireo {

// The reader's main window: draws what frmMain decides and forwards events.
class MainWindow : public QMainWindow, public MainWindowView {
  Q_OBJECT

 public:
  MainWindow(UserInteraction& user, ProgramLocation location);
  ~MainWindow() override;

  frmMain& logic() { return logic_; }
  SplashWindow* splash() const { return splash_.get(); }
  const QString& exit_caption() const { return exit_caption_; }
  // The status the program ended with (EndProgram), -1 while running.
  int end_status() const { return end_status_; }

  // MainWindowView
  void ShowSplash() override;
  void SetSplashStatus(std::string_view text) override;
  void UnloadSplash() override;
  void SetExitCaption(std::string_view caption) override;
  uint32_t SystemWindowColour() override;
  uint32_t SystemWindowTextColour() override;
  void UnloadAllWindows() override;
  void EndProgram(int status) override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QtMessagePump pump_;
  frmMain logic_;
  std::unique_ptr<SplashWindow> splash_;
  QString exit_caption_;
  int end_status_ = -1;
};

}  // namespace vireo
