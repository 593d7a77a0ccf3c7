#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "render/book_view.h"
#include "render/title_page.h"

namespace vireo {

class Surface;

// The text of one page and the styles open at its top.
struct PageContent {
  std::string text;  // the book text from the page's start to the next page's start
  bool bold = false;
  bool italic = false;
  bool underline = false;
};

// What the book view's drawing needs from the main window: its eight page
// boxes (0 and 1 on show, 2 and 3 for the turn animation, 4..7 the cache),
// the page index and the controls beside the pages.
class PageBoxes {
 public:
  static constexpr int kBoxCount = 8;

  virtual ~PageBoxes() = default;
  // Page(box), box 0..7; owned by the window.
  virtual Surface& Box(int box) = 0;
  virtual void SetBoxBackColour(int box, uint32_t bgr) = 0;
  // Sets the box's background picture: texture slot 0..3 (an empty slot
  // shows no texture), or nullopt for none. Like assigning a picture box's
  // picture, this repaints the box with its back colour and the texture.
  virtual void SetBoxTexture(int box, std::optional<int> slot) = 0;

  virtual bool BookLoaded() const = 0;
  virtual int PageCount() const = 0;
  // Page `page`, 1..PageCount().
  virtual PageContent Page(int page) const = 0;
  // The search label's text; "" when no term has been entered.
  virtual std::string SearchTerm() const = 0;

  // Hooks run after a page has been composed into box: the book's cover over
  // the page when it calls for one, and the search label.
  virtual void ShowCover(int box, int page) = 0;
  virtual void UpdateSearchLabel() = 0;

  // The language list beside the title page's hints.
  virtual TwipsSize LanguageListSize() const = 0;
  virtual void PlaceLanguageList(const LanguageListPlacement& placement) = 0;
};

}  // namespace vireo
