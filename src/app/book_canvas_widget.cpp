#include "app/book_canvas_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QtMath>
#include <algorithm>

#include "app/control_bar_widget.h"
#include "support/translation.h"

namespace vireo {
namespace {

double Pixels(double twips) { return twips / BookCanvasWidget::kTwipsPerPixel; }

QImage BlankBuffer(double width_twips, double height_twips, qreal ratio) {
  const int width = std::max(1, static_cast<int>(Pixels(width_twips) * ratio));
  const int height = std::max(1, static_cast<int>(Pixels(height_twips) * ratio));
  // Not filled: its surface is cleared before it is drawn on or shown.
  QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  return image;
}

}  // namespace

BookCanvasWidget::BookCanvasWidget(QWidget* parent)
    : QWidget(parent),
      lstLanguages_(new QListWidget(this)),
      lblLanguages_(new QLabel(Translatable("Language:"), this)) {
  setObjectName("BookCanvas");
  // paintEvent covers every pixel, so nothing is painted underneath first.
  setAttribute(Qt::WA_OpaquePaintEvent);
  lstLanguages_->setObjectName("lstLanguages");
  lstLanguages_->addItem("English");
  lstLanguages_->setFixedSize(110, 36);
  lblLanguages_->setObjectName("lblLanguages");
  connect(lstLanguages_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) emit languageChosen(row);
  });
  setMouseTracking(false);
  for (int box = 0; box < 8; ++box) {
    images_[box] = BlankBuffer(4500, 6000, 1);
    surfaces_[box] = std::make_unique<QtSurface>(&images_[box]);
    surfaces_[box]->Clear();
  }
  // Higher boxes lie under lower ones: Page(0) over Page(2), Page(1) over Page(3).
  stacking_[0] = {6, 4, 2, 0};
  stacking_[1] = {7, 5, 3, 1};
}

BookCanvasWidget::~BookCanvasWidget() = default;

void BookCanvasWidget::SetLanguages(const QStringList& names, int chosen) {
  const QSignalBlocker quiet(lstLanguages_);
  lstLanguages_->clear();
  lstLanguages_->addItems(names);
  lstLanguages_->setCurrentRow(chosen);
}

void BookCanvasWidget::ResizeBuffers(double width_twips, double height_twips) {
  const qreal ratio = devicePixelRatioF();
  for (int box = 0; box < 8; ++box) {
    surfaces_[box]->DropDrawing();
    images_[box] = BlankBuffer(width_twips, height_twips, ratio);
    ApplyBoxTexture(box);
    surfaces_[box]->Clear();
  }
}

void BookCanvasWidget::ApplyLayout(const BookViewLayout& layout) {
  layout_ = layout;
  ResizeBuffers(layout.page_width, layout.page_height);
  for (int box = 0; box < 8; ++box) {
    boxes_[box] = {0, layout.page_width, layout.page_visible[box]};
  }
  stacking_[0] = {6, 4, 2, 0};
  stacking_[1] = {7, 5, 3, 1};
  update();
  emit laidOut();
}

void BookCanvasWidget::SetBoxBackColour(int box, uint32_t bgr) {
  surfaces_[box]->SetBackColor(bgr);
}

void BookCanvasWidget::SetBoxTexture(int box, std::optional<int> slot) {
  texture_slots_[box] = slot && *slot >= 0 && *slot < PaperTextures::kSlots ? slot : std::nullopt;
  ApplyBoxTexture(box);
  surfaces_[box]->Clear();
}

void BookCanvasWidget::ApplyBoxTexture(int box) {
  const std::optional<int> slot = texture_slots_[box];
  const QSizeF logical = images_[box].deviceIndependentSize();
  const QSize page(qCeil(logical.width()), qCeil(logical.height()));
  const QImage* texture = slot ? &papers_.Covering(*slot, page) : nullptr;
  if (texture != nullptr && !texture->isNull()) {
    surfaces_[box]->SetTexture(*texture);
  } else {
    surfaces_[box]->ClearTexture();
  }
}

bool BookCanvasWidget::LoadTexture(int slot, const std::string& path) {
  return papers_.SetFile(slot, QString::fromLocal8Bit(path.c_str()));
}

void BookCanvasWidget::CopyBox(int source_box, int destination_box) {
  surfaces_[destination_box]->DropDrawing();  // every pixel is replaced
  QPainter painter(&images_[destination_box]);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.drawImage(QPointF(0, 0), BoxImage(source_box));
  painter.end();
  RefreshBox(destination_box);
}

void BookCanvasWidget::StretchBox(int source_box, int destination_box, double width_twips) {
  if (width_twips <= 0) return;
  surfaces_[destination_box]->EndPainting();
  QImage& destination = images_[destination_box];
  const QSizeF logical = destination.deviceIndependentSize();
  QPainter painter(&destination);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRectF(0, 0, Pixels(width_twips), logical.height()), BoxImage(source_box));
  painter.end();
  RefreshBox(destination_box);
}

double BookCanvasWidget::FrameWidth(int frame) const { return layout_.page_frames[frame].width; }

void BookCanvasWidget::SetBoxWidth(int box, double twips) { boxes_[box].width = twips; }
void BookCanvasWidget::SetBoxLeft(int box, double twips) { boxes_[box].left = twips; }

void BookCanvasWidget::SetBoxVisible(int box, Visibility visibility) {
  boxes_[box].visible = visibility == Visibility::kShown;
  RefreshBox(box);
}

void BookCanvasWidget::RaiseBox(int box) {
  auto& order = stacking_[box % 2];
  order.erase(std::remove(order.begin(), order.end(), box), order.end());
  order.push_back(box);
}

QRectF BookCanvasWidget::FrameRect(int frame) const {
  const TwipsRect& rect = layout_.page_frames[frame];
  return {Pixels(rect.left), Pixels(rect.top), Pixels(rect.width), Pixels(rect.height)};
}

void BookCanvasWidget::RefreshBox(int box) {
  if (box > 3 || (box % 2 == 1 && !layout_.right_frame_visible)) return;
  update(FrameRect(box % 2).toAlignedRect());
}

// Boxes are drawn 1:1 at whole pixels, clipped to the frame: the raster
// engine then copies rows instead of resampling the page.
void BookCanvasWidget::PaintFrame(QPainter& painter, int frame) const {
  const QRect area = FrameRect(frame).toRect();
  painter.save();
  painter.setClipRect(area);
  for (int box : stacking_[frame]) {
    const BoxPlace& place = boxes_[box];
    if (!place.visible || place.width <= 0) continue;
    const QImage& image = BoxImage(box);
    const qreal ratio = image.devicePixelRatio();
    const QRect target(QPoint(area.left() + qRound(Pixels(place.left)), area.top()),
                       QSize(qRound(Pixels(place.width)), area.height()));
    const QRect source(QPoint(0, 0), (QSizeF(target.size()) * ratio).toSize());
    painter.drawImage(target, image, source);
  }
  painter.restore();
}

void BookCanvasWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  painter.setPen(QPen(palette().windowText().color(), 1));
  const EdgeLines& lines = layout_.lines;
  for (const TwipsLine& line : {lines.top, lines.bottom, lines.hard_left, lines.hard_right,
                                lines.left, lines.right, lines.centre}) {
    painter.drawLine(QPointF(Pixels(line.x1), Pixels(line.y1)),
                     QPointF(Pixels(line.x2), Pixels(line.y2)));
  }
  PaintFrame(painter, 0);
  if (layout_.right_frame_visible) PaintFrame(painter, 1);
  PaintCover(painter);
  if (marker_page_ >= 0) {
    const QRectF frame = FrameRect(marker_page_);
    painter.fillRect(QRectF(frame.left(), frame.top() + Pixels(marker_top_), frame.width(),
                            Pixels(marker_bottom_ - marker_top_)),
                     QColor(255, 220, 0, 80));
  }
}

void BookCanvasWidget::ShowCoverPicture(const Picture* cover) {
  const bool was_shown = !cover_.isNull();
  cover_ = cover != nullptr ? ImageOfPicture(*cover) : QImage();
  if (was_shown || !cover_.isNull()) update(FrameRect(0).toAlignedRect());
}

// The cover fills as much of the first page frame as its proportions allow,
// centred in it.
void BookCanvasWidget::PaintCover(QPainter& painter) const {
  if (cover_.isNull()) return;
  const QRectF frame = FrameRect(0);
  if (frame.isEmpty()) return;
  QSizeF size = QSizeF(cover_.size());
  size.scale(frame.size(), Qt::KeepAspectRatio);
  const QRectF target(frame.center() - QPointF(size.width() / 2, size.height() / 2), size);
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(target, cover_);
  painter.restore();
}

void BookCanvasWidget::SetLamp(Lamp lamp) {
  if (lamp_ != nullptr) lamp_->SetColour(LampColour(lamp));
}

TwipsSize BookCanvasWidget::LanguageListSize() const {
  return {lstLanguages_->width() * kTwipsPerPixel, lstLanguages_->height() * kTwipsPerPixel};
}

void BookCanvasWidget::PlaceLanguageList(const LanguageListPlacement& placement) {
  const QRectF frame = FrameRect(0);
  const auto at = [](double frame_pixels, double twips) {
    return static_cast<int>(frame_pixels + static_cast<int>(Pixels(twips) + 0.5));
  };
  lstLanguages_->move(at(frame.left(), placement.list.left), at(frame.top(), placement.list.top));
  lblLanguages_->adjustSize();
  lblLanguages_->move(at(frame.left(), placement.caption_right) - lblLanguages_->width(),
                      at(frame.top(), placement.caption_top));
}

void BookCanvasWidget::SetLanguageListVisible(bool visible) {
  lstLanguages_->setVisible(visible);
  lblLanguages_->setVisible(visible);
}

void BookCanvasWidget::SetLineMarker(int page, double top, double bottom) {
  marker_page_ = page;
  marker_top_ = top;
  marker_bottom_ = bottom;
  update();
}

std::optional<int> BookCanvasWidget::PageAt(QPointF point, QPointF* position) const {
  for (int frame = 0; frame < 2; ++frame) {
    if (frame == 1 && !layout_.right_frame_visible) continue;
    const QRectF area = FrameRect(frame);
    if (!area.contains(point)) continue;
    if (position != nullptr) *position = (point - area.topLeft()) * kTwipsPerPixel;
    return frame;
  }
  return std::nullopt;
}

void BookCanvasWidget::ForwardMouse(QMouseEvent* event) {
  QPointF on_page;
  const std::optional<int> page = PageAt(event->position(), &on_page);
  if (event->type() == QEvent::MouseButtonPress) pressed_page_ = page.value_or(-1);
  const int target = event->type() == QEvent::MouseButtonPress ? page.value_or(-1) : pressed_page_;
  if (target < 0) return;
  if (!page) on_page = (event->position() - FrameRect(target).topLeft()) * kTwipsPerPixel;
  emit pageMouse(target, event->type(), event->button(), event->modifiers(), on_page.x(),
                 on_page.y());
  if (event->type() == QEvent::MouseButtonRelease) pressed_page_ = -1;
}

void BookCanvasWidget::mousePressEvent(QMouseEvent* event) { ForwardMouse(event); }
void BookCanvasWidget::mouseMoveEvent(QMouseEvent* event) { ForwardMouse(event); }
void BookCanvasWidget::mouseReleaseEvent(QMouseEvent* event) { ForwardMouse(event); }

void BookCanvasWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!PageAt(event->position())) emit borderDoubleClicked();
}

}  // namespace vireo
