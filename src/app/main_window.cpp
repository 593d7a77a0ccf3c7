#include "app/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPalette>
#include <QScreen>

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include <QClipboard>
#include <QDesktopServices>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMimeData>
#include <QUrl>

#include "app/key_map.h"
#include "nav/page_nav_dialog.h"
#include "nav/page_nav_mouse.h"
#include "render/book_display.h"
#include "support/logging.h"
#include "support/maker.h"
#include "support/platform.h"

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
  setFocusPolicy(Qt::StrongFocus);
  setAcceptDrops(true);
  ConnectCommands();
  ConnectMenu();
  ConnectPlannedItems();
}

MainWindow::~MainWindow() = default;

void MainWindow::ConnectCommands() {
  connect(canvas_, &BookCanvasWidget::pageMouse, this, &MainWindow::OnPageMouse);
  connect(canvas_, &BookCanvasWidget::borderDoubleClicked, this, [this] { logic_.ToggleBar(); });
  const auto on = [this](auto* sender, auto signal, auto&& action) {
    connect(sender, signal, this, std::forward<decltype(action)>(action));
  };
  on(bar_->cmdExit, &QPushButton::clicked, [this] { logic_.Quit(); });
  on(bar_->cmdLoad, &QPushButton::clicked, [this] { logic_.mnuLoad_Click(); });
  on(bar_->cmdBiggerFont, &QPushButton::clicked, [this] { logic_.cmdBiggerFont_Click(); });
  on(bar_->cmdSmallerFont, &QPushButton::clicked, [this] { logic_.cmdSmallerFont_Click(); });
  on(bar_->cmdFindNext, &QPushButton::clicked, [this] { logic_.FindNext(); });
  on(bar_->cmdFindPrev, &QPushButton::clicked, [this] { logic_.FindPrev(); });
  on(bar_->lblSearch, &ClickLabel::clicked, [this] { logic_.GetSearchTerm(); });
  on(bar_->lblPageNum, &ClickLabel::clicked, [this] { logic_.GotoPage(); });
  on(bar_->lblFontSize, &ClickLabel::clicked, [this] { logic_.GetNewFontSize(); });
}

void MainWindow::ConnectMenu() {
  const auto on = [this](const char* item, auto&& action) {
    connect(menu_->Item(item), &QAction::triggered, this, std::forward<decltype(action)>(action));
  };
  on("mnuExit", [this] { logic_.Quit(); });
  on("mnuLoad", [this] { logic_.mnuLoad_Click(); });
  on("mnuEraseBookmarks", [this] { logic_.mnuEraseBookmarks_Click(); });
  on("mnuErasefile", [this] { logic_.mnuErasefile_Click(); });
  on("mnuGetSearchTerm", [this] { logic_.GetSearchTerm(); });
  on("mnuFindNext", [this] { logic_.FindNext(); });
  on("mnuFindPrevious", [this] { logic_.FindPrev(); });
  on("mnuGoto", [this] { logic_.GotoPage(); });
  on("mnuFormatting", [this] { logic_.mnuFormatting_Click(); });
  on("mnuJustified", [this] { logic_.mnuJustified_Click(); });
  on("mnuIndentParagraphs", [this] { logic_.mnuIndentParagraphs_Click(); });
  on("mnuUnderscores", [this] { logic_.mnuUnderscores_Click(); });
  on("mnuExtraLine", [this] { logic_.mnuExtraLine_Click(); });
  on("mnuHelp", [this] { logic_.mnuHelp_Click(); });
  on("mnuToggleBar", [this] {
    if (!logic_.paginator_busy()) logic_.ToggleBar();
  });
  on("mnuCopyPage",
     [this] { QApplication::clipboard()->setImage(canvas_->BoxImage(kLeftPageBox)); });
  on("mnuPayAuthor", [this] { OpenAddress(QString::fromUtf8(kMakerPaymentPage.data())); });
  on("mnuCheckUpdate", [this] { OpenAddress(QString::fromUtf8(kMakerUpdatePage.data())); });
  on("mnuGutenberg", [this] { OpenAddress("https://www.gutenberg.org"); });
}

// Menu items and buttons whose features come in later versions say so.
void MainWindow::ConnectPlannedItems() {
  const auto say = [this](const char* text) {
    return [this, text] { logic_.ShowLoadMessage(text); };
  };
  const auto about = [this] {
    logic_.ShowLoadMessage("Vireo " + AppVersion() + "\nMarrowind Software, " +
                           std::string(kMakerCountry) + "\n" + std::string(kMakerHomePage));
  };
  connect(bar_->cmdAbout, &QPushButton::clicked, this, about);
  connect(menu_->Item("mnuAbout"), &QAction::triggered, this, about);
  connect(menu_->Item("mnuPrint"), &QAction::triggered, this,
          say("Print will print the pages on show. It is not available in this version."));
  connect(menu_->Item("mnuSave"), &QAction::triggered, this,
          say("Export will save the book as a text file. It is not available in this version."));
  connect(menu_->Item("mnuEbook"), &QAction::triggered, this,
          say("Create ebook will make a self-contained ebook from a text file. Until it is "
              "here, use vireo-tool make."));
  const auto settings =
      say("Page Setup will change colours, borders, texture and page turning. It is not available "
          "in this version; the settings can be edited in Vireo.ini.");
  connect(bar_->cmdPageSetup, &QPushButton::clicked, this, settings);
  connect(menu_->Item("mnuColours"), &QAction::triggered, this, settings);
  const auto font =
      say("Change Font will let you choose the book's font. It is not available in this version.");
  connect(bar_->Label1, &ClickLabel::clicked, this, font);
  connect(menu_->Item("mnuSelectFont"), &QAction::triggered, this, font);
  const auto language = say("Translations come with a later version; Vireo speaks English.");
  connect(menu_->Item("mnuSetLang0"), &QAction::triggered, this, language);
  connect(menu_->Item("mnuSetLang1"), &QAction::triggered, this, language);
}

void MainWindow::OpenAddress(const QString& address) {
  if (NonInteractiveMode()) {
    std::fprintf(stderr, "[open] %s\n", address.toUtf8().constData());
    return;
  }
  QDesktopServices::openUrl(QUrl(address));
}

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
  const PageTextArea& area = logic_.text_area();
  const PageMouseContext context{
      logic_.preferences().single_page_mode ? PageMode::kSingle : PageMode::kDouble,
      logic_.navigator().navigation_busy(),
      area.top_border,
      area.line_pitch,
      area.lines_per_page,
      marked_line_};
  const PageMouseDecision decision = DecidePageMouse(event, context);
  switch (decision.action) {
    case PageMouseAction::kTurnForward:
      logic_.NextPage();
      break;
    case PageMouseAction::kTurnBack:
      logic_.PreviousPage();
      break;
    case PageMouseAction::kContextMenu:
      menu_->popup(QCursor::pos());
      break;
    case PageMouseAction::kMarkLine:
    case PageMouseAction::kMoveMark:
      marked_line_ = decision.line;
      canvas_->SetMarker(page, decision.band_top, decision.band_bottom);
      break;
    case PageMouseAction::kSpeakLine:
      // FIXME: the marked line goes to text-to-speech once speech lands.
      marked_line_ = 0;
      canvas_->SetMarker(-1, 0, 0);
      break;
    case PageMouseAction::kNone:
      break;
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

void MainWindow::MaximiseWindow() { showMaximized(); }
void MainWindow::RestoreWindow() { showNormal(); }

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
  const QImage* texture = slot && *slot >= 0 && *slot < 4 ? &Texture(*slot) : nullptr;
  canvas_->SetBoxTexture(box, texture != nullptr && !texture->isNull() ? texture : nullptr);
}

// Textures are decoded when first shown: a reader uses one paper of the four.
bool MainWindow::LoadTexture(int slot, const std::string& path) {
  if (slot < 0 || slot >= 4) return false;
  texture_paths_[slot] = QString::fromLocal8Bit(path.c_str());
  textures_[slot] = QImage();
  return QFileInfo(texture_paths_[slot]).isReadable();
}

const QImage& MainWindow::Texture(int slot) {
  if (textures_[slot].isNull() && !texture_paths_[slot].isEmpty()) {
    textures_[slot].load(texture_paths_[slot]);
    texture_paths_[slot].clear();  // a picture that does not load is tried once
  }
  return textures_[slot];
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

void MainWindow::SetSearchLabel(std::string_view text) {
  bar_->lblSearch->setText(FromWindows1252(text));
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
// started the program can tell how long the milestone took. Frames waiting
// to be painted are painted first, so that what the milestone names is on
// screen when it is stamped.
void MainWindow::Milestone(std::string_view what) {
  static const bool timing = std::getenv("VIREO_TIMING") != nullptr;
  if (!timing) return;
  QCoreApplication::sendPostedEvents(this, QEvent::UpdateRequest);
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
  if (!logic_.busy()) logic_.Form_Resize();
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
    default:
      return (qt_key >= '0' && qt_key <= 'Z') ? qt_key : 0;
  }
}

}  // namespace

void MainWindow::keyReleaseEvent(QKeyEvent* event) {
  if (event->isAutoRepeat()) return;
  const ShiftKey shift = event->modifiers() & Qt::ShiftModifier ? ShiftKey::kDown : ShiftKey::kUp;
  logic_.Form_KeyUp(VirtualKey(event->key()), shift);
  event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (urls.isEmpty() || !urls.first().isLocalFile()) return;
  event->acceptProposedAction();
  logic_.Page_OLEDragDrop(urls.first().toLocalFile().toLocal8Bit().toStdString());
}

}  // namespace vireo
