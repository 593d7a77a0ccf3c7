#pragma once

#include <cstdint>

namespace vireo {

// The eight page boxes Page(0)..Page(7) of the main window, all of one size.
// Boxes 0, 2, 4, 6 sit in PageFrame(0) (the left or only page), boxes 1, 3,
// 5, 7 in PageFrame(1); each at left 0, top 0 with its frame's size.
inline constexpr int kLeftPageBox = 0;        // page on show; the only page in single mode
inline constexpr int kRightPageBox = 1;       // right page on show (double mode)
inline constexpr int kLeftWorkBox = 2;        // work surfaces of the sweep
inline constexpr int kRightWorkBox = 3;       //
inline constexpr int kLowerCacheFirst = 4;    // LeftCacheLower's image
inline constexpr int kLowerCacheSecond = 5;   // LeftCacheHigher's image
inline constexpr int kHigherCacheFirst = 6;   // RightCacheLower's image
inline constexpr int kHigherCacheSecond = 7;  // RightCacheHigher's image

inline constexpr int kLeftFrame = 0;   // PageFrame(0)
inline constexpr int kRightFrame = 1;  // PageFrame(1)

// The page context a page is composed for: the left-hand or right-hand page.
enum class PageSide : int { kLeft = 0, kRight = 1 };

enum class PageMode { kSingle, kDouble };

enum class Visibility { kHidden, kShown };

// The status lamp on the control bar.
enum class Lamp { kRed, kGreen, kOrange, kGrey };

// The lamp's colour as 0x00BBGGRR.
constexpr uint32_t LampColour(Lamp lamp) {
  switch (lamp) {
    case Lamp::kRed:
      return 255;
    case Lamp::kGreen:
      return 45056;  // 0x00B000
    case Lamp::kOrange:
      return 33023;  // 0x0080FF
    case Lamp::kGrey:
      return 0x808080;
  }
  return 0x808080;
}

// What the page cache, the page turns and page navigation drive on the main
// window: the page boxes as image buffers shown through movable boxes, the
// status lamp and the cover. The Qt main window implements it with one image
// buffer per box; tests fake it. Lengths are twips. Box numbers are 0..7,
// frame numbers 0..1; anything else is a programming error.
//
// A box is a window onto its buffer: the buffer always has the full page
// size, and a box narrowed for the sweep shows the buffer's left part,
// starting at the box's own left edge. Drawing and copying always address
// the whole buffer. PlotOnPage, ClearPage and DrawTitlePage are procedures of
// the book view and trap their own errors; the other methods may throw
// RuntimeError, which the calling procedure traps under its own name.
//
// Drawing onto a visible box must show at once (a synchronous repaint): the
// sweep pauses between its steps without always yielding to the event loop.
class BookDisplay {
 public:
  virtual ~BookDisplay() = default;

  // Draws page `page` into box's buffer for the given side (the book view's
  // PlotOnPage). With no book loaded the title page is drawn instead; a page
  // outside 1..page count draws nothing and the buffer keeps its contents.
  virtual void PlotOnPage(PageSide side, int box, int page) = 0;
  // Repaints box's buffer with its paper only (colour and texture).
  virtual void ClearPage(int box) = 0;
  // Copies the source buffer 1:1 onto the destination buffer at (0, 0)
  // (a BitBlt, SRCCOPY); the box shows the result at once.
  virtual void CopyPage(int source_box, int destination_box) = 0;
  // Draws the whole source buffer squeezed horizontally into the rectangle
  // (0, 0, destination_width_twips, full height) of the destination buffer
  // (a StretchBlt, SRCCOPY). The rest of the destination buffer is left as
  // it is. A width of 0 draws nothing.
  virtual void StretchPage(int source_box, int destination_box, double destination_width_twips) = 0;
  // The welcome page of an empty book (hints and title).
  virtual void DrawTitlePage() = 0;

  // Width of PageFrame(frame).
  virtual double FrameWidth(int frame) const = 0;
  // Width and left edge of a box inside its frame; a box wider than its
  // frame or partly left of it is clipped by the frame.
  virtual void SetBoxWidth(int box, double twips) = 0;
  virtual void SetBoxLeft(int box, double twips) = 0;
  virtual void SetBoxVisible(int box, Visibility visibility) = 0;
  // Puts box on top of the other boxes of its frame.
  virtual void RaiseBox(int box) = 0;

  // Shows both lamp shapes (Shape1, Shape2) and gives Shape1 LampColour(lamp).
  virtual void SetLamp(Lamp lamp) = 0;

  // The book's cover picture over the first page, and taking it away.
  // FIXME: hooks only until the cover picture is loaded and shown.
  virtual void ShowCover() = 0;
  virtual void HideCover() = 0;

  // True while a book is loaded (otherwise the title page is shown).
  virtual bool BookLoaded() const = 0;
};

}  // namespace vireo
