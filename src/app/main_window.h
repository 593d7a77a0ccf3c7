#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QTranslator>
#include <array>
#include <memory>

#include "app/book_canvas_widget.h"
#include "app/control_bar_widget.h"
#include "app/frm_main.h"
#include "app/help_dialogs_qt.h"
#include "app/interaction_qt.h"
#include "app/options_menu_qt.h"
#include "app/peripheral_services_qt.h"
#include "app/splash_window.h"
#include "prefs/font_source_qt.h"

namespace vireo {

// The reader's main window: the canvas with the page pictures, the control
// bar and the menu. It shows what frmMain decides and hands it the events.
class MainWindow : public QMainWindow, public MainWindowView {
  Q_OBJECT

 public:
  MainWindow(UserInteraction& user, ProgramLocation location);
  ~MainWindow() override;

  frmMain& logic() { return logic_; }
  QtMessagePump& pump() { return pump_; }
  BookCanvasWidget& canvas() { return *canvas_; }
  ControlBarWidget& bar() { return *bar_; }
  OptionsMenu& menu() { return *menu_; }
  HelpDialogs& help() { return *help_; }
  QtPeripheralServices& services() { return *services_; }
  UserInteraction& user() { return user_; }
  // The installed fonts the font dialog offers.
  const FontSource& fonts() const { return fonts_; }
  SplashWindow* splash() const { return splash_.get(); }
  const QString& exit_caption() const { return exit_caption_; }
  // The status the program ended with (EndProgram), -1 while running.
  int end_status() const { return end_status_; }

  // MainWindowView
  void ShowProgress(std::string_view text) override;
  void ShowSplash() override;
  void UnloadSplash() override;
  void UnloadAllWindows() override;
  void EndProgram(int status) override;
  void ShowMainWindow() override;
  void SetCaption(std::string_view caption) override;
  void SetExitCaption(std::string_view caption) override;
  WindowColours SystemColours() const override;
  WindowSize ScreenSize() const override;
  WindowSize WindowOuterSize() const override;
  WindowSize WindowInnerSize() const override;
  void SetWindowWidth(double twips) override;
  void SetWindowHeight(double twips) override;
  WindowState State() const override;
  void SetState(WindowState state) override;
  void SetBarVisible(bool visible) override;
  void SetBarLabel(BarLabel label, std::string_view text, uint32_t colour) override;
  void SetMenuTick(std::string_view item, bool ticked) override;
  void SetMenuEnabled(std::string_view item, bool enabled) override;
  void ShowContextMenu() override;
  void ShowOptionsMenuAtPage() override;
  PageChooser& PageDialog() override;
  PeripheralServices& Services() override { return *services_; }
  void Milestone(std::string_view what) override;
  void ShowLanguages(const std::vector<std::string>& names, int chosen,
                     std::string_view code) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void ConnectCommands();
  void ConnectMenu();
  void ConnectDialogs();
  void ConnectServices();
  void OpenAddress(const QString& address);
  // Open...: the file dialog, then the chosen file offered to the reader.
  void OpenBookFile();
  void OnPageMouse(int page, QEvent::Type type, Qt::MouseButton button,
                   Qt::KeyboardModifiers modifiers, double x, double y);
  void PlaceControlBar();
  // A message box of the planned features.

  // The page dialog as Goto Page asks it; in the non-interactive mode it is
  // cancelled at once.
  class PageDialogChooser : public PageChooser {
   public:
    explicit PageDialogChooser(QWidget* parent) : parent_(parent) {}
    std::optional<int> ChoosePage(int current_page, int page_count) override;

   private:
    QWidget* parent_;
  };

  QtMessagePump pump_;
  QtFontSource fonts_;
  UserInteraction& user_;
  PageDialogChooser page_dialog_{this};
  BookCanvasWidget* canvas_;
  ControlBarWidget* bar_;
  OptionsMenu* menu_;
  QLabel* progress_;  // the loading status once the splash is gone
  std::unique_ptr<QtPeripheralServices> services_;
  frmMain logic_;
  HelpDialogs* help_;
  std::unique_ptr<SplashWindow> splash_;
  std::unique_ptr<QTranslator> qt_translator_;  // Qt's own texts in the chosen language
  QString exit_caption_;
  int end_status_ = -1;
  static constexpr int kWheelNotch = 120;
  int wheel_rest_ = 0;  // wheel turning short of a whole notch
};

}  // namespace vireo
