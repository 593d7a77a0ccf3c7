#pragma once

#include <optional>

#include "render/book_view.h"
#include "render/print_page.h"

namespace vireo {

class clsNewImages;
struct Picture;

// The size a picture takes on a page, in twips: its own size (15 twips to a
// pixel), made smaller with its proportions kept when it is wider than a
// line or taller than the text area. 0 x 0 for an empty picture.
TwipsSize PictureSizeOnPage(const Picture& picture, const PageTextArea& area);

// The image store as pagination and the composer see it: pictures at the
// size they take on the page. images and area are not owned and must
// outlive this; area may change between calls.
class PagePictures : public ComposerImageStore {
 public:
  PagePictures(clsNewImages& images, const PageTextArea& area) : images_(images), area_(area) {}

  int ImageCount() const override;
  std::optional<double> ImageWidth(int number) const override;
  void SetImageLeft(double twips) override;
  // Height in twips of picture number on the page; nullopt when the store
  // holds no such picture.
  std::optional<double> ImageHeight(int number) const;

 private:
  std::optional<TwipsSize> SizeOf(int number) const;

  clsNewImages& images_;
  const PageTextArea& area_;
};

}  // namespace vireo
