#include "app/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPalette>
#include <QScreen>

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "render/book_display.h"

namespace vireo {
namespace {

constexpr double kTwipsPerPixel = 15;

uint32_t ToBgr(const QColor& colour) {
  return static_cast<uint32_t>(colour.red()) | static_cast<uint32_t>(colour.green()) << 8 |
         static_cast<uint32_t>(colour.blue()) << 16;
}

QColor FromBgr(uint32_t bgr) { return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF); }

int Pixels(double twips) { return static_cast<int>(twips / kTwipsPerPixel + 0.5); }

// Width of the control bar in twips, and its top below the pages when shown.
constexpr double kBarWidth = 9000;
constexpr double kBarFromBottom = 660;

}  // namespace

MainWindow::MainWindow(UserInteraction& user, ProgramLocation location)
    : canvas_(new BookCanvasWidget(this)),
      bar_(new ControlBarWidget(canvas_)),
      menu_(new OptionsMenu(this)),
      lstLanguages_(new QListWidget(canvas_)),
      lblLanguages_(new QLabel("Language:", canvas_)),
      logic_(*this, user, pump_, std::move(location)) {
  setObjectName("frmMain");
  setWindowTitle("Vireo");
  setCentralWidget(canvas_);
  lstLanguages_->setObjectName("lstLanguages");
  lstLanguages_->addItem("English");
  lstLanguages_->setFixedSize(110, 36);
  lblLanguages_->setObjectName("lblLanguages");
  QFont bar_font = bar_->font();
  bar_font.setPointSizeF(8);
  bar_->setFont(bar_font);
  resize(Pixels(9500), Pixels(6570));
  ConnectCommands();
}

MainWindow::~MainWindow() = default;

void MainWindow::ConnectCommands() {
  connect(canvas_, &BookCanvasWidget::pageMouse, this, &MainWindow::OnPageMouse);
  connect(bar_->cmdExit, &QPushButton::clicked, this, [this] { logic_.Quit(); });
  connect(bar_->cmdLoad, &QPushButton::clicked, this, [this] { logic_.mnuLoad_Click(); });
  connect(menu_->Item("mnuExit"), &QAction::triggered, this, [this] { logic_.Quit(); });
  connect(menu_->Item("mnuLoad"), &QAction::triggered, this, [this] { logic_.mnuLoad_Click(); });
}

void MainWindow::OnPageMouse(int page, QEvent::Type type, Qt::MouseButton button,
                             Qt::KeyboardModifiers modifiers, double, double) {
  if (type != QEvent::MouseButtonRelease) return;
  if (button == Qt::RightButton) {
    menu_->popup(QCursor::pos());
    return;
  }
  if (button != Qt::LeftButton) return;
  const bool single = logic_.preferences().single_page_mode;
  const bool back = single ? (modifiers & Qt::ControlModifier) : page == kLeftPageBox;
  if (back) {
    logic_.PreviousPage();
  } else {
    logic_.NextPage();
  }
}

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

uint32_t MainWindow::SystemWindowColour() {
  return ToBgr(QApplication::palette().color(QPalette::Base));
}

uint32_t MainWindow::SystemWindowTextColour() {
  return ToBgr(QApplication::palette().color(QPalette::Text));
}

uint32_t MainWindow::SystemButtonTextColour() {
  return ToBgr(QApplication::palette().color(QPalette::ButtonText));
}

WindowSize MainWindow::ScreenSize() const {
  const QScreen* display = screen() != nullptr ? screen() : QGuiApplication::primaryScreen();
  const QSize size = display != nullptr ? display->geometry().size() : QSize(1024, 768);
  return {size.width() * kTwipsPerPixel, size.height() * kTwipsPerPixel};
}

WindowSize MainWindow::WindowOuterSize() const {
  const QSize size = frameGeometry().size();
  return {size.width() * kTwipsPerPixel, size.height() * kTwipsPerPixel};
}

WindowSize MainWindow::WindowInnerSize() const {
  // The book view fills the window; before the window is first shown its
  // central widget has no size yet, the window has.
  const QSize size = this->size();
  return {size.width() * kTwipsPerPixel, size.height() * kTwipsPerPixel};
}

void MainWindow::SetWindowWidth(double twips) {
  const int frame = frameGeometry().width() - width();
  resize(std::max(1, Pixels(twips) - frame), height());
}

void MainWindow::SetWindowHeight(double twips) {
  const int frame = frameGeometry().height() - height();
  resize(width(), std::max(1, Pixels(twips) - frame));
}

void MainWindow::MaximiseWindow() { showMaximized(); }

bool MainWindow::IsMaximisedOrMinimised() const {
  return (windowState() & (Qt::WindowMaximized | Qt::WindowMinimized)) != 0;
}

void MainWindow::ApplyLayout(const BookViewLayout& layout) {
  canvas_->ApplyLayout(layout);
  PlaceControlBar();
  if (layout.frame1) bar_->move(Pixels(layout.frame1->x), Pixels(layout.frame1->y));
}

void MainWindow::PlaceControlBar() {
  const double inner_width = width() * kTwipsPerPixel;
  const double width = std::min(kBarWidth, inner_width - 400);
  bar_->resize(Pixels(width), Pixels(kBarFromBottom - 60));
  const double left = (inner_width - width) / 2 - 45;
  bar_->move(Pixels(left), height() - Pixels(kBarFromBottom));
}

Surface& MainWindow::Box(int box) { return canvas_->Box(box); }
void MainWindow::SetBoxBackColour(int box, uint32_t bgr) { canvas_->SetBoxBackColour(box, bgr); }

void MainWindow::SetBoxTexture(int box, std::optional<int> slot) {
  const bool usable = slot && *slot >= 0 && *slot < 4 && !textures_[*slot].isNull();
  canvas_->SetBoxTexture(box, usable ? &textures_[*slot] : nullptr);
}

bool MainWindow::LoadTexture(int slot, const std::string& path) {
  if (slot < 0 || slot >= 4) return false;
  return textures_[slot].load(QString::fromLocal8Bit(path.c_str()));
}

void MainWindow::CopyBox(int source_box, int destination_box) {
  canvas_->CopyBox(source_box, destination_box);
}

void MainWindow::StretchBox(int source_box, int destination_box, double width) {
  canvas_->StretchBox(source_box, destination_box, width);
}

double MainWindow::FrameWidth(int frame) const { return canvas_->FrameWidth(frame); }
void MainWindow::SetBoxWidth(int box, double twips) { canvas_->SetBoxWidth(box, twips); }
void MainWindow::SetBoxLeft(int box, double twips) { canvas_->SetBoxLeft(box, twips); }
void MainWindow::SetBoxVisible(int box, Visibility visibility) {
  canvas_->SetBoxVisible(box, visibility == Visibility::kShown);
}
void MainWindow::RaiseBox(int box) { canvas_->RaiseBox(box); }
void MainWindow::RefreshBox(int box) { canvas_->RefreshBox(box); }
void MainWindow::SetLamp(Lamp lamp) { bar_->Shape1->SetColour(LampColour(lamp)); }
void MainWindow::SetBarVisible(bool visible) { bar_->setVisible(visible); }
double MainWindow::Frame1Width() const { return bar_->width() * kTwipsPerPixel; }
double MainWindow::Frame1Top() const { return bar_->y() * kTwipsPerPixel; }

void MainWindow::SetPageLabel(std::string_view text, uint32_t colour) {
  bar_->lblPageNum->setText(FromWindows1252(text));
  QPalette palette = bar_->lblPageNum->palette();
  palette.setColor(QPalette::WindowText, FromBgr(colour));
  bar_->lblPageNum->setPalette(palette);
}

void MainWindow::SetFontSizeLabel(std::string_view text) {
  bar_->lblFontSize->setText(FromWindows1252(text));
}

TwipsSize MainWindow::LanguageListSize() const {
  return {lstLanguages_->width() * kTwipsPerPixel, lstLanguages_->height() * kTwipsPerPixel};
}

void MainWindow::PlaceLanguageList(const LanguageListPlacement& placement) {
  const QRectF frame = canvas_->FrameRect(0);
  lstLanguages_->move(frame.left() + Pixels(placement.list.left),
                      frame.top() + Pixels(placement.list.top));
  lblLanguages_->adjustSize();
  lblLanguages_->move(frame.left() + Pixels(placement.caption_right) - lblLanguages_->width(),
                      frame.top() + Pixels(placement.caption_top));
}

void MainWindow::SetLanguageListVisible(bool visible) {
  lstLanguages_->setVisible(visible);
  lblLanguages_->setVisible(visible);
}

// VIREO_TIMING=1: each milestone is written to standard error with the wall
// clock in milliseconds since the epoch, so that a script that noted when it
// started the program can tell how long the milestone took.
void MainWindow::Milestone(std::string_view what) {
  static const bool timing = std::getenv("VIREO_TIMING") != nullptr;
  if (!timing) return;
  const auto now = std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::system_clock::now().time_since_epoch());
  std::fprintf(stderr, "[timing] %.*s %lld\n", static_cast<int>(what.size()), what.data(),
               static_cast<long long>(now.count()));
}

void MainWindow::SetMenuTick(std::string_view item, bool ticked) {
  if (QAction* action = menu_->Item(QString::fromUtf8(item.data(), item.size()))) {
    action->setChecked(ticked);
  }
}

bool MainWindow::MenuTick(std::string_view item) const {
  const QAction* action = menu_->Item(QString::fromUtf8(item.data(), item.size()));
  return action != nullptr && action->isChecked();
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
  if (logic_.Form_QueryUnload(event->spontaneous())) {
    event->ignore();
    return;
  }
  event->accept();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  PlaceControlBar();
}

}  // namespace vireo
