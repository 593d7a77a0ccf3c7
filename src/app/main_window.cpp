#include "app/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPalette>
#include <QScreen>

#include <cstdio>
#include <cstdlib>

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMimeData>
#include <QShortcut>
#include <QUrl>
#include <QWheelEvent>

#include "app/create_ebook_dialog.h"
#include "app/file_types.h"
#include "app/font_selection_qt.h"
#include "app/key_map.h"
#include "app/language_window_qt.h"
#include "app/page_setup_qt.h"
#include "nav/page_nav_dialog.h"
#include "nav/page_nav_mouse.h"
#include "render/book_display.h"
#include "support/logging.h"
#include "support/maker.h"
#include "support/milestones.h"
#include "support/platform.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr double kTwipsPerPixel = 15;

int Pixels(double twips) { return static_cast<int>(twips / kTwipsPerPixel + 0.5); }

}  // namespace

MainWindow::MainWindow(UserInteraction& user, ProgramLocation location)
    : user_(user),
      canvas_(new BookCanvasWidget(this)),
      bar_(new ControlBarWidget(canvas_)),
      menu_(new OptionsMenu(this)),
      progress_(new QLabel(canvas_)),
      services_(std::make_unique<QtPeripheralServices>(this, *canvas_, user)),
      logic_(*this, *canvas_, user, pump_, std::move(location)),
      help_(new HelpDialogs(this, logic_)) {
  setObjectName("frmMain");
  setWindowTitle("Vireo");
  setCentralWidget(canvas_);
  canvas_->SetLampWidget(bar_->Shape1);
  progress_->setObjectName("lblProgress");
  progress_->hide();
  QFont bar_font = bar_->font();
  bar_font.setPointSizeF(8);
  bar_->setFont(bar_font);
  resize(Pixels(kMinimumWindowWidthWithBar), Pixels(kMinimumWindowHeight));
  setFocusPolicy(Qt::StrongFocus);
  setAcceptDrops(true);
  ConnectCommands();
  ConnectMenu();
  ConnectDialogs();
  ConnectServices();
}

MainWindow::~MainWindow() = default;

void MainWindow::ConnectCommands() {
  connect(canvas_, &BookCanvasWidget::pageMouse, this, &MainWindow::OnPageMouse);
  connect(canvas_, &BookCanvasWidget::borderDoubleClicked, this,
          [this] { logic_.view_commands().ToggleBar(); });
  connect(canvas_, &BookCanvasWidget::laidOut, this, [this] {
    PlaceControlBar();
    if (const auto& frame1 = canvas_->layout().frame1) {
      bar_->move(Pixels(frame1->x), Pixels(frame1->y));
    }
  });
  const auto on = [this](auto* sender, auto signal, auto&& action) {
    connect(sender, signal, this, std::forward<decltype(action)>(action));
  };
  ProgramLifecycle& lifecycle = logic_.lifecycle();
  ViewCommands& view = logic_.view_commands();
  SearchCommands& search = logic_.search();
  on(bar_->cmdExit, &QPushButton::clicked, [&lifecycle] { lifecycle.Quit(); });
  on(bar_->cmdLoad, &QPushButton::clicked, [&lifecycle] { lifecycle.mnuLoad_Click(); });
  on(bar_->cmdBiggerFont, &QPushButton::clicked, [&view] { view.cmdBiggerFont_Click(); });
  on(bar_->cmdSmallerFont, &QPushButton::clicked, [&view] { view.cmdSmallerFont_Click(); });
  on(bar_->cmdFindNext, &QPushButton::clicked, [&search] { search.FindNext(); });
  on(bar_->cmdFindPrev, &QPushButton::clicked, [&search] { search.FindPrev(); });
  on(bar_->lblSearch, &ClickLabel::clicked, [&search] { search.GetSearchTerm(); });
  on(bar_->lblPageNum, &ClickLabel::clicked, [this] { logic_.commands().GotoPage(); });
  on(bar_->lblFontSize, &ClickLabel::clicked, [&view] { view.GetNewFontSize(); });
  const auto choose = [this](int index) { logic_.languages().ChooseLanguage(index); };
  on(canvas_, &BookCanvasWidget::languageChosen, choose);
  on(menu_, &OptionsMenu::languageChosen, choose);
}

void MainWindow::ConnectMenu() {
  const auto on = [this](const char* item, auto&& action) {
    connect(menu_->Item(item), &QAction::triggered, this, std::forward<decltype(action)>(action));
  };
  ReaderCommands& commands = logic_.commands();
  SearchCommands& search = logic_.search();
  on("mnuExit", [this] { logic_.lifecycle().Quit(); });
  on("mnuLoad", [this] { logic_.lifecycle().mnuLoad_Click(); });
  on("mnuOpen", [this] { OpenBookFile(); });
  addAction(menu_->Item("mnuOpen"));  // Ctrl+O works with the menu closed
  on("mnuEraseBookmarks", [&commands] { commands.mnuEraseBookmarks_Click(); });
  on("mnuErasefile", [&commands] { commands.mnuErasefile_Click(); });
  on("mnuGetSearchTerm", [&search] { search.GetSearchTerm(); });
  on("mnuFindNext", [&search] { search.FindNext(); });
  on("mnuFindPrevious", [&search] { search.FindPrev(); });
  on("mnuGoto", [&commands] { commands.GotoPage(); });
  on("mnuFormatting", [&commands] { commands.mnuFormatting_Click(); });
  on("mnuJustified", [&commands] { commands.mnuJustified_Click(); });
  on("mnuIndentParagraphs", [&commands] { commands.mnuIndentParagraphs_Click(); });
  on("mnuUnderscores", [&commands] { commands.mnuUnderscores_Click(); });
  on("mnuExtraLine", [&commands] { commands.mnuExtraLine_Click(); });
  on("mnuHelp", [&commands] { commands.mnuHelp_Click(); });
  on("mnuReportProblem", [this] { help_->ReportProblem(); });
  on("mnuToggleBar", [this] {
    if (!logic_.paginator_busy()) logic_.view_commands().ToggleBar();
  });
  on("mnuGutenberg", [this] { OpenAddress("https://www.gutenberg.org"); });
}

// Menu items and buttons that open the window's own dialogs.
void MainWindow::ConnectDialogs() {
  const auto about = [this] { help_->ShowAbout(); };
  connect(bar_->cmdAbout, &QPushButton::clicked, this, about);
  connect(menu_->Item("mnuAbout"), &QAction::triggered, this, about);
  connect(menu_->Item("mnuEbook"), &QAction::triggered, this,
          [this] { ShowCreateEbook(logic_, user_, this); });
  const auto settings = [this] { ShowPageSetup(logic_, user_, this); };
  connect(bar_->cmdPageSetup, &QPushButton::clicked, this, settings);
  connect(menu_->Item("mnuColours"), &QAction::triggered, this, settings);
  const auto font = [this] { ShowFontSelection(logic_, fonts_, this); };
  connect(bar_->Label1, &ClickLabel::clicked, this, font);
  connect(menu_->Item("mnuSelectFont"), &QAction::triggered, this, font);
}

void MainWindow::ConnectServices() {
  services_->SetLogic(logic_);
  ServiceCommands& services = logic_.services();
  ReadAloud& reading = services.read_aloud();
  const auto on = [this](const char* item, auto&& action) {
    connect(menu_->Item(item), &QAction::triggered, this, std::forward<decltype(action)>(action));
  };
  on("mnuPrint", [&services] { services.mnuPrint_Click(); });
  on("mnuPrintSetup", [this] { services_->printer().PageSetup(); });
  on("mnuSave", [&services] { services.mnuSave_Click(); });
  on("mnuCopyPage", [&services] { services.mnuCopyPage_Click(CopiedPage::kUnderMenu); });
  on("mnuPayAuthor", [&services] { services.mnuPayAuthor_Click(); });
  on("mnuCheckUpdate", [&services] { services.mnuCheckUpdate_Click(); });
  on("mnuReadAloud", [&reading] { reading.reading() ? reading.Stop() : reading.Start(); });
  on("mnuPauseReading", [&reading] { reading.PauseOrResume(); });
  auto* copy = new QShortcut(QKeySequence::Copy, this);
  connect(copy, &QShortcut::activated, this,
          [&services] { services.mnuCopyPage_Click(CopiedPage::kRightPage); });
}

void MainWindow::OpenAddress(const QString& address) { vireo::OpenAddress(QUrl(address)); }

std::optional<int> MainWindow::PageDialogChooser::ChoosePage(int current_page, int page_count) {
  if (NonInteractiveMode()) {
    std::fprintf(stderr, "[input] Goto Page: cancelled\n");
    return std::nullopt;
  }
  frmPageNav dialog(parent_);
  return dialog.ChoosePage(current_page, page_count);
}

PageChooser& MainWindow::PageDialog() { return page_dialog_; }

void MainWindow::OnPageMouse(int page, QEvent::Type type, Qt::MouseButton button,
                             Qt::KeyboardModifiers modifiers, double, double y) {
  PageMouseEvent event;
  event.kind = type == QEvent::MouseButtonPress ? PageMouseEventKind::kDown
               : type == QEvent::MouseMove      ? PageMouseEventKind::kMove
                                                : PageMouseEventKind::kUp;
  event.page_box = page;
  event.button = button == Qt::LeftButton    ? PageMouseButton::kLeft
                 : button == Qt::RightButton ? PageMouseButton::kRight
                                             : PageMouseButton::kNone;
  if (event.kind == PageMouseEventKind::kMove && (QApplication::mouseButtons() & Qt::LeftButton)) {
    event.button = PageMouseButton::kLeft;
  }
  event.shift = modifiers & Qt::ShiftModifier;
  event.ctrl = modifiers & Qt::ControlModifier;
  event.y_twips = y;
  logic_.commands().Page_Mouse(event);
}

void MainWindow::ShowContextMenu() { menu_->popup(QCursor::pos()); }

void MainWindow::ShowOptionsMenuAtPage() {
  const auto& frame = canvas_->layout().frame1;
  const QPoint at = frame ? QPoint(Pixels(frame->x), Pixels(frame->y)) : QPoint(0, 0);
  menu_->popup(canvas_->mapToGlobal(at));
}

void MainWindow::OpenBookFile() {
  const auto path = ChooseBookFile(services_->Dialogs(), logic_.context().prefs.path);
  if (path) logic_.commands().OpenNamedFile(*path);
}

void MainWindow::ShowSplash() {
  splash_ = std::make_unique<SplashWindow>();
  splash_->show();
}

// The splash shows the progress while it is up; afterwards a status line
// at the foot of the book does.
void MainWindow::ShowProgress(std::string_view text) {
  if (splash_) {
    splash_->SetStatus(FromWindows1252(text));
    return;
  }
  progress_->setText(FromWindows1252(text));
  progress_->adjustSize();
  progress_->move(8, canvas_->height() - progress_->height() - 4);
  progress_->setVisible(!text.empty());
  progress_->raise();
}

void MainWindow::UnloadSplash() {
  if (!splash_) return;
  splash_->hide();
  splash_.reset();
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

void MainWindow::ShowMainWindow() {
  show();
  QCoreApplication::processEvents();
}

void MainWindow::SetCaption(std::string_view caption) {
  setWindowTitle(caption.empty() ? QString("Vireo") : FromWindows1252(caption));
}

void MainWindow::SetExitCaption(std::string_view caption) {
  exit_caption_ = FromWindows1252(caption);
  menu_->Item("mnuExit")->setText(exit_caption_);
}

WindowColours MainWindow::SystemColours() const {
  const QPalette palette = QApplication::palette();
  return {QtSurface::BgrFromColor(palette.color(QPalette::Base)),
          QtSurface::BgrFromColor(palette.color(QPalette::Text)),
          QtSurface::BgrFromColor(palette.color(QPalette::ButtonText))};
}

WindowSize MainWindow::ScreenSize() const {
  const QScreen* display = screen() != nullptr ? screen() : QGuiApplication::primaryScreen();
  const QSize size = display != nullptr ? display->geometry().size() : QSize(1024, 768);
  return {size.width() * kTwipsPerPixel, size.height() * kTwipsPerPixel};
}

// The size the preferences keep and the commands enforce is the client size.
// Qt learns the frame only once the window is on screen (on X11 once the
// window manager has framed it), so a frame-inclusive size stored at exit and
// set before the next start-up's show would grow by the frame at every run.
WindowSize MainWindow::WindowOuterSize() const { return WindowInnerSize(); }

WindowSize MainWindow::WindowInnerSize() const {
  // The book view fills the window; before the window is first shown its
  // central widget has no size yet, the window has.
  const QSize size = this->size();
  return {size.width() * kTwipsPerPixel, size.height() * kTwipsPerPixel};
}

void MainWindow::SetWindowWidth(double twips) { resize(std::max(1, Pixels(twips)), height()); }

void MainWindow::SetWindowHeight(double twips) { resize(width(), std::max(1, Pixels(twips))); }

WindowState MainWindow::State() const {
  if (windowState() & Qt::WindowMaximized) return WindowState::kMaximised;
  if (windowState() & Qt::WindowMinimized) return WindowState::kMinimised;
  return WindowState::kNormal;
}

void MainWindow::SetState(WindowState state) {
  if (state == WindowState::kMaximised) {
    showMaximized();
  } else if (state == WindowState::kNormal) {
    showNormal();
  }
}

void MainWindow::PlaceControlBar() {
  const TwipsRect place = ControlBarRect(width() * kTwipsPerPixel, height() * kTwipsPerPixel);
  bar_->resize(Pixels(place.width), Pixels(place.height));
  bar_->move(Pixels(place.left), Pixels(place.top));
}

void MainWindow::SetBarVisible(bool visible) { bar_->setVisible(visible); }
// The page number takes the colour (red while the book is paginated); the
// other labels keep theirs.
void MainWindow::SetBarLabel(BarLabel label, std::string_view text, uint32_t colour) {
  ClickLabel* control = label == BarLabel::kPageNumber ? bar_->lblPageNum
                        : label == BarLabel::kFontSize ? bar_->lblFontSize
                                                       : bar_->lblSearch;
  control->setText(FromWindows1252(text));
  if (label != BarLabel::kPageNumber) return;
  QPalette palette = control->palette();
  palette.setColor(QPalette::WindowText, QtSurface::ColorFromBgr(colour));
  control->setPalette(palette);
}

// VIREO_TIMING=1: frames waiting to be painted are painted first, so that
// what the milestone names is on screen when it is stamped.
void MainWindow::Milestone(std::string_view what) {
  static const bool timing = std::getenv("VIREO_TIMING") != nullptr;
  if (!timing) return;
  QCoreApplication::sendPostedEvents(this, QEvent::UpdateRequest);
  WriteMilestone(what);
}

void MainWindow::SetMenuTick(std::string_view item, bool ticked) {
  if (QAction* action = menu_->Item(QString::fromUtf8(item.data(), item.size()))) {
    action->setChecked(ticked);
  }
}

void MainWindow::ShowLanguages(const std::vector<std::string>& names, int chosen,
                               std::string_view code) {
  QStringList shown;
  for (const std::string& name : names) shown.push_back(FromWindows1252(name));
  canvas_->SetLanguages(shown, chosen);
  menu_->SetLanguages(shown, chosen);
  LoadQtTranslation(code, qt_translator_);
  TranslateOpenForms();
}

void MainWindow::SetMenuEnabled(std::string_view item, bool enabled) {
  if (QAction* action = menu_->Item(QString::fromUtf8(item.data(), item.size()))) {
    action->setEnabled(enabled);
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (end_status_ >= 0) {
    event->accept();
    return;
  }
  if (logic_.lifecycle().Form_QueryUnload(event->spontaneous())) {
    event->ignore();
    return;
  }
  event->accept();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  PlaceControlBar();
  if (!logic_.busy()) logic_.view_commands().Form_Resize();
}

namespace {

// The window system's virtual-key code of a Qt key (letters and digits are
// the same codes).
int VirtualKey(int qt_key) {
  switch (qt_key) {
    case Qt::Key_Space:
      return vk::kSpace;
    case Qt::Key_Left:
      return vk::kLeft;
    case Qt::Key_Right:
      return vk::kRight;
    case Qt::Key_F1:
      return vk::kF1;
    case Qt::Key_F10:
      return vk::kF10;
    case Qt::Key_Menu:
      return vk::kMenu;
    case Qt::Key_PageUp:
      return vk::kPageUp;
    case Qt::Key_PageDown:
      return vk::kPageDown;
    case Qt::Key_Home:
      return vk::kHome;
    case Qt::Key_End:
      return vk::kEnd;
    default:
      return (qt_key >= '0' && qt_key <= 'Z') ? qt_key : 0;
  }
}

}  // namespace

void MainWindow::keyReleaseEvent(QKeyEvent* event) {
  if (event->isAutoRepeat()) return;
  const ShiftKey shift = event->modifiers() & Qt::ShiftModifier ? ShiftKey::kDown : ShiftKey::kUp;
  logic_.commands().Form_KeyUp(VirtualKey(event->key()), shift);
  event->accept();
}

// One turn per notch of 120 eighths of a degree; a fine-grained wheel adds
// up to whole notches.
void MainWindow::wheelEvent(QWheelEvent* event) {
  wheel_rest_ += event->angleDelta().y();
  const int notches = wheel_rest_ / kWheelNotch;
  wheel_rest_ -= notches * kWheelNotch;
  if (notches != 0) logic_.commands().Page_Wheel(notches);
  event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (urls.isEmpty() || !urls.first().isLocalFile()) return;
  event->acceptProposedAction();
  logic_.commands().Page_OLEDragDrop(urls.first().toLocalFile().toLocal8Bit().toStdString());
}

}  // namespace vireo
