#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "render/book_display.h"
#include "render/book_view.h"
#include "render/title_page.h"

namespace vireo {

class Surface;
class PictureDecoder;
struct Picture;

// The page pictures on screen: eight buffers Page(0)..Page(7) of the page
// size, shown through movable boxes in the two page frames, with their
// paper (back colour and texture), the status lamp, the line marker and the
// language list beside the title page. The Qt canvas implements it; tests
// fake it. Lengths are twips, colours 0x00BBGGRR. Box numbers are 0..7,
// frame numbers 0..1; anything else is a programming error. The methods may
// throw RuntimeError, which the calling procedure traps under its own name.
//
// A box is a window onto its buffer: the buffer always has the full page
// size, and a box narrowed for the sweep shows the buffer's left part,
// starting at the box's own left edge. Drawing and copying always address
// the whole buffer.
class PageBuffers {
 public:
  static constexpr int kBoxCount = 8;

  virtual ~PageBuffers() = default;

  // Frames, boxes and edge lines as laid out; every buffer gets the page
  // size and its paper, every box its frame's full width at left 0.
  virtual void ApplyLayout(const BookViewLayout& layout) = 0;
  // Width of PageFrame(frame).
  virtual double FrameWidth(int frame) const = 0;

  // Page(box): the buffer's drawing surface.
  virtual Surface& Box(int box) = 0;
  virtual void SetBoxBackColour(int box, uint32_t bgr) = 0;
  // Sets the box's background texture (slot 0..3, an empty slot shows none,
  // or nullopt for none) and repaints it with back colour and texture.
  virtual void SetBoxTexture(int box, std::optional<int> slot) = 0;
  // Loads a paper texture picture into a slot; false when it cannot be read.
  virtual bool LoadTexture(int slot, const std::string& path) = 0;
  // Copies the source buffer 1:1 onto the destination buffer at (0, 0)
  // (a BitBlt, SRCCOPY); the box shows the result.
  virtual void CopyBox(int source_box, int destination_box) = 0;
  // Draws the whole source buffer squeezed horizontally into the rectangle
  // (0, 0, width_twips, full height) of the destination buffer (a
  // StretchBlt); the rest of the destination is left as it is. A width of 0
  // draws nothing.
  virtual void StretchBox(int source_box, int destination_box, double width_twips) = 0;
  // Shows what has been drawn into a box on the surface, with the next
  // repaint (the frames a turn changes are painted together).
  virtual void RefreshBox(int box) = 0;

  // Width and left edge of a box inside its frame; a box wider than its
  // frame or partly left of it is clipped by the frame.
  virtual void SetBoxWidth(int box, double twips) = 0;
  virtual void SetBoxLeft(int box, double twips) = 0;
  virtual void SetBoxVisible(int box, Visibility visibility) = 0;
  // Puts box on top of the other boxes of its frame.
  virtual void RaiseBox(int box) = 0;

  // Shows both lamp shapes (Shape1, Shape2) and gives Shape1 LampColour(lamp).
  virtual void SetLamp(Lamp lamp) = 0;
  // A translucent band over the lines of a page frame (frame -1: none), in
  // twips from the page's top.
  virtual void SetLineMarker(int frame, double top, double bottom) = 0;

  // The book's cover over the first page frame, scaled to fit it with its
  // proportions kept and centred; nullptr takes it away. The picture must
  // stay alive while it is shown.
  virtual void ShowCoverPicture(const Picture* cover) = 0;
  // What decodes the pictures of books on this window system; nullptr when
  // pictures are not decoded.
  virtual const PictureDecoder* Pictures() const { return nullptr; }

  // The language list beside the title page's hints: its size, its place
  // and whether it is shown.
  virtual TwipsSize LanguageListSize() const = 0;
  virtual void PlaceLanguageList(const LanguageListPlacement& placement) = 0;
  virtual void SetLanguageListVisible(bool visible) = 0;
};

}  // namespace vireo
