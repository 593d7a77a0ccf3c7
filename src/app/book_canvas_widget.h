#pragma once

#include <QEvent>
#include <QImage>
#include <QWidget>
#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "render/book_display.h"
#include "render/book_view.h"
#include "render/qt_surface_qt.h"

namespace vireo {

// The open book on screen: the edge lines, the two page frames and, inside
// them, the page boxes Page(0)..Page(7). Every box is an image buffer of the
// page size with a drawing surface; a box is a window onto its buffer that
// can be narrowed, moved, hidden and stacked for the page-turn sweep.
// Geometry is kept in twips (15 to a logical pixel).
class BookCanvasWidget : public QWidget {
  Q_OBJECT

 public:
  static constexpr double kTwipsPerPixel = 15;

  explicit BookCanvasWidget(QWidget* parent = nullptr);
  ~BookCanvasWidget() override;

  // Places frames, boxes and lines; every buffer gets the page size and is
  // repainted with its paper. Boxes return to full width at left 0.
  void ApplyLayout(const BookViewLayout& layout);
  const BookViewLayout& layout() const { return layout_; }

  QtSurface& Box(int box) { return *surfaces_[box]; }
  // The box's buffer with all drawing on it finished.
  const QImage& BoxImage(int box) const {
    surfaces_[box]->EndPainting();
    return images_[box];
  }
  void SetBoxBackColour(int box, uint32_t bgr);
  // Texture (nullptr: none), then the buffer is repainted with its paper.
  void SetBoxTexture(int box, const QImage* texture);
  void CopyBox(int source_box, int destination_box);
  void StretchBox(int source_box, int destination_box, double width_twips);

  double FrameWidth(int frame) const;
  void SetBoxWidth(int box, double twips);
  void SetBoxLeft(int box, double twips);
  void SetBoxVisible(int box, bool visible);
  bool BoxVisible(int box) const { return boxes_[box].visible; }
  void RaiseBox(int box);
  // Marks the box's frame for repainting when the box is on show. Frames
  // marked by the steps of one turn are painted together: at the next yield,
  // lamp change or return to the event loop.
  void RefreshBox(int box);

  // A translucent band over lines of a page (page -1: none), in twips from
  // the page's top.
  void SetMarker(int page, double top, double bottom);

  // The page box under a point of the widget (0 or 1), or nullopt; position
  // receives the point in twips relative to that page.
  std::optional<int> PageAt(QPointF point, QPointF* position = nullptr) const;
  // The rectangle of a page frame in widget pixels.
  QRectF FrameRect(int frame) const;

 signals:
  // A mouse press, move or release on page 0 or 1 (x, y in twips on the page).
  void pageMouse(int page, QEvent::Type type, Qt::MouseButton button,
                 Qt::KeyboardModifiers modifiers, double x, double y);
  // A double click outside the pages: on the border of the book.
  void borderDoubleClicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  struct BoxPlace {
    double left = 0;
    double width = 0;
    bool visible = false;
  };
  void ForwardMouse(QMouseEvent* event);
  void PaintFrame(QPainter& painter, int frame) const;
  void ResizeBuffers(double width_twips, double height_twips);

  BookViewLayout layout_;
  std::array<QImage, 8> images_;
  std::array<std::unique_ptr<QtSurface>, 8> surfaces_;
  std::array<BoxPlace, 8> boxes_;
  std::array<std::vector<int>, 2> stacking_;  // bottom to top, per frame
  int pressed_page_ = -1;
  int marker_page_ = -1;
  double marker_top_ = 0;
  double marker_bottom_ = 0;
};

}  // namespace vireo
