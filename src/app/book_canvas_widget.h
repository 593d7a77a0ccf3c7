#pragma once

#include <QEvent>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QWidget>
#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "render/book_view.h"
#include "render/page_buffers.h"
#include "render/paper_textures_qt.h"
#include "render/picture_decoder_qt.h"
#include "render/qt_surface_qt.h"

namespace vireo {

class LampWidget;

// The open book on screen: the edge lines, the two page frames and, inside
// them, the page boxes Page(0)..Page(7). Every box is an image buffer of the
// page size with a drawing surface; a box is a window onto its buffer that
// can be narrowed, moved, hidden and stacked for the page-turn sweep.
// Geometry is kept in twips (15 to a logical pixel). It also holds the
// language list beside the title page and drives the status lamp on the
// control bar.
class BookCanvasWidget : public QWidget, public PageBuffers {
  Q_OBJECT

 public:
  static constexpr double kTwipsPerPixel = 15;

  explicit BookCanvasWidget(QWidget* parent = nullptr);
  ~BookCanvasWidget() override;

  // PageBuffers. RefreshBox marks the box's frame for repainting when the
  // box is on show: frames marked by the steps of one turn are painted
  // together, at the next yield, lamp change or return to the event loop.
  void ApplyLayout(const BookViewLayout& layout) override;
  double FrameWidth(int frame) const override;
  Surface& Box(int box) override { return *surfaces_[box]; }
  void SetBoxBackColour(int box, uint32_t bgr) override;
  void SetBoxTexture(int box, std::optional<int> slot) override;
  bool LoadTexture(int slot, const std::string& path) override;
  void CopyBox(int source_box, int destination_box) override;
  void StretchBox(int source_box, int destination_box, double width_twips) override;
  void RefreshBox(int box) override;
  void SetBoxWidth(int box, double twips) override;
  void SetBoxLeft(int box, double twips) override;
  void SetBoxVisible(int box, Visibility visibility) override;
  void RaiseBox(int box) override;
  void SetLamp(Lamp lamp) override;
  void SetLineMarker(int frame, double top, double bottom) override;
  TwipsSize LanguageListSize() const override;
  void PlaceLanguageList(const LanguageListPlacement& placement) override;
  void SetLanguageListVisible(bool visible) override;
  void ShowCoverPicture(const Picture* cover) override;
  const PictureDecoder* Pictures() const override { return &decoder_; }

  const BookViewLayout& layout() const { return layout_; }
  // The box's buffer with all drawing on it finished.
  const QImage& BoxImage(int box) const {
    surfaces_[box]->EndPainting();
    return images_[box];
  }
  bool BoxVisible(int box) const { return boxes_[box].visible; }
  // The lamp shape the status lamp shows on (the control bar's Shape1).
  void SetLampWidget(LampWidget* lamp) { lamp_ = lamp; }

  // The page box under a point of the widget (0 or 1), or nullopt; position
  // receives the point in twips relative to that page.
  std::optional<int> PageAt(QPointF point, QPointF* position = nullptr) const;
  // The rectangle of a page frame in widget pixels.
  QRectF FrameRect(int frame) const;

  // lstLanguages: the languages offered, the chosen one selected.
  void SetLanguages(const QStringList& names, int chosen);
  QListWidget* languageList() const { return lstLanguages_; }

 signals:
  // The person chose entry index of lstLanguages.
  void languageChosen(int index);
  // A mouse press, move or release on page 0 or 1 (x, y in twips on the page).
  void pageMouse(int page, QEvent::Type type, Qt::MouseButton button,
                 Qt::KeyboardModifiers modifiers, double x, double y);
  // A double click outside the pages: on the border of the book.
  void borderDoubleClicked();
  // A new layout was applied (the window places the control bar).
  void laidOut();

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
  void PaintCover(QPainter& painter) const;
  void ResizeBuffers(double width_twips, double height_twips);
  // Gives box the paper of its slot as far as its buffer needs, or none.
  void ApplyBoxTexture(int box);

  BookViewLayout layout_;
  std::array<QImage, 8> images_;
  std::array<std::unique_ptr<QtSurface>, 8> surfaces_;
  std::array<BoxPlace, 8> boxes_;
  std::array<std::vector<int>, 2> stacking_;  // bottom to top, per frame
  std::array<std::optional<int>, 8> texture_slots_;
  PaperTextures papers_;
  LampWidget* lamp_ = nullptr;
  QtPictureDecoder decoder_;
  QImage cover_;  // shares the shown cover's pixels; null when none is shown
  QListWidget* lstLanguages_;
  QLabel* lblLanguages_;
  int pressed_page_ = -1;
  int marker_page_ = -1;
  double marker_top_ = 0;
  double marker_bottom_ = 0;
};

}  // namespace vireo
