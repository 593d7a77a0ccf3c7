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

// The page drawing that the page cache, the page turns and page navigation
// ask for: a page, the paper alone, the title page and the cover. The page
// plotter implements it, drawing through the page buffers; tests fake it.
// Box numbers are 0..7. These procedures trap their own errors.
class BookDisplay {
 public:
  virtual ~BookDisplay() = default;

  // Draws page `page` into box's buffer for the given side (the book view's
  // PlotOnPage) and shows it. With no book loaded the title page is drawn
  // instead; a page outside 1..page count draws nothing and the buffer keeps
  // its contents.
  virtual void PlotOnPage(PageSide side, int box, int page) = 0;
  // Repaints box's buffer with its paper only (colour and texture).
  virtual void ClearPage(int box) = 0;
  // The welcome page of an empty book (hints and title).
  virtual void DrawTitlePage() = 0;

  // The book's cover picture over the first page, and taking it away.
  virtual void ShowCover() = 0;
  virtual void HideCover() = 0;

  // True while a book is loaded (otherwise the title page is shown).
  virtual bool BookLoaded() const = 0;
};

}  // namespace vireo
