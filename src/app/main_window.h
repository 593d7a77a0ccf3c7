#pragma once

#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <array>
#include <memory>

#include "app/book_canvas_widget.h"
#include "app/control_bar_widget.h"
#include "app/frm_main.h"
#include "app/interaction_qt.h"
#include "app/options_menu_qt.h"
#include "app/splash_window.h"

namespace vireo {

// The reader's main window: draws what frmMain decides and forwards events.
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
  SplashWindow* splash() const { return splash_.get(); }
  const QString& exit_caption() const { return exit_caption_; }
  // The status the program ended with (EndProgram), -1 while running.
  int end_status() const { return end_status_; }

  // MainWindowView
  void ShowSplash() override;
  void SetSplashStatus(std::string_view text) override;
  void UnloadSplash() override;
  void UnloadAllWindows() override;
  void EndProgram(int status) override;
  void ShowMainWindow() override;
  void SetCaption(std::string_view caption) override;
  void SetExitCaption(std::string_view caption) override;
  uint32_t SystemWindowColour() override;
  uint32_t SystemWindowTextColour() override;
  uint32_t SystemButtonTextColour() override;
  WindowSize ScreenSize() const override;
  WindowSize WindowOuterSize() const override;
  WindowSize WindowInnerSize() const override;
  void SetWindowWidth(double twips) override;
  void SetWindowHeight(double twips) override;
  void MaximiseWindow() override;
  bool IsMaximisedOrMinimised() const override;
  void RestoreWindow() override;
  void ApplyLayout(const BookViewLayout& layout) override;
  Surface& Box(int box) override;
  void SetBoxBackColour(int box, uint32_t bgr) override;
  void SetBoxTexture(int box, std::optional<int> slot) override;
  bool LoadTexture(int slot, const std::string& path) override;
  void CopyBox(int source_box, int destination_box) override;
  void StretchBox(int source_box, int destination_box, double width) override;
  double FrameWidth(int frame) const override;
  void SetBoxWidth(int box, double twips) override;
  void SetBoxLeft(int box, double twips) override;
  void SetBoxVisible(int box, Visibility visibility) override;
  void RaiseBox(int box) override;
  void RefreshBox(int box) override;
  void SetLamp(Lamp lamp) override;
  void SetBarVisible(bool visible) override;
  double Frame1Width() const override;
  double Frame1Top() const override;
  void SetPageLabel(std::string_view text, uint32_t colour) override;
  void SetFontSizeLabel(std::string_view text) override;
  void SetSearchLabel(std::string_view text) override;
  PageChooser& PageDialog() override;
  TwipsSize LanguageListSize() const override;
  void PlaceLanguageList(const LanguageListPlacement& placement) override;
  void SetLanguageListVisible(bool visible) override;
  void Milestone(std::string_view what) override;
  void SetMenuTick(std::string_view item, bool ticked) override;
  bool MenuTick(std::string_view item) const override;
  void SetMenuEnabled(std::string_view item, bool enabled) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void ConnectCommands();
  void ConnectMenu();
  void ConnectPlannedItems();
  void OpenAddress(const QString& address);
  void OnPageMouse(int page, QEvent::Type type, Qt::MouseButton button,
                   Qt::KeyboardModifiers modifiers, double x, double y);
  void PlaceControlBar();

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
  PageDialogChooser page_dialog_{this};
  int marked_line_ = 0;
  BookCanvasWidget* canvas_;
  ControlBarWidget* bar_;
  OptionsMenu* menu_;
  QListWidget* lstLanguages_;
  QLabel* lblLanguages_;
  const QImage& Texture(int slot);

  std::array<QImage, 4> textures_;
  std::array<QString, 4> texture_paths_;
  frmMain logic_;
  std::unique_ptr<SplashWindow> splash_;
  QString exit_caption_;
  int end_status_ = -1;
};

}  // namespace vireo
