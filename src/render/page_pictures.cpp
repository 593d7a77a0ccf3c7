#include "render/page_pictures.h"

#include <algorithm>

#include "book/cls_new_images.h"
#include "book/picture.h"

namespace vireo {
namespace {

constexpr double kTwipsPerPixel = 15;

}  // namespace

TwipsSize PictureSizeOnPage(const Picture& picture, const PageTextArea& area) {
  if (picture.empty()) return {0, 0};
  const double width = picture.width * kTwipsPerPixel;
  const double height = picture.height * kTwipsPerPixel;
  double scale = 1;
  if (area.text_width > 0) scale = std::min(scale, area.text_width / width);
  if (area.text_height > 0) scale = std::min(scale, area.text_height / height);
  return {width * scale, height * scale};
}

int PagePictures::ImageCount() const { return images_.ImageCount(); }

std::optional<TwipsSize> PagePictures::SizeOf(int number) const {
  const Picture* picture = images_.Image(number);
  if (picture == nullptr) return std::nullopt;
  return PictureSizeOnPage(*picture, area_);
}

std::optional<double> PagePictures::ImageWidth(int number) const {
  const std::optional<TwipsSize> size = SizeOf(number);
  if (!size) return std::nullopt;
  return size->width;
}

std::optional<double> PagePictures::ImageHeight(int number) const {
  const std::optional<TwipsSize> size = SizeOf(number);
  if (!size) return std::nullopt;
  return size->height;
}

void PagePictures::SetImageLeft(double twips) { images_.SetImageLeft(twips); }

}  // namespace vireo
