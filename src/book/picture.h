#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vireo {

// A decoded picture: width x height pixels, row by row from the top, each
// 0xAARRGGBB with the colour premultiplied by alpha. A picture that could not
// be decoded is empty (0 x 0) and is drawn as nothing.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<uint32_t> pixels;

  bool empty() const { return width <= 0 || height <= 0; }
};

using SharedPicture = std::shared_ptr<const Picture>;

// The largest picture a book may hold: more pixels or more bytes than this is
// refused before anything is allocated for it.
inline constexpr int64_t kMaxPicturePixels = 64LL * 1000 * 1000;
inline constexpr int64_t kMaxPictureBytes = 256LL * 1024 * 1024;

// Turns the bytes of a picture file into pixels. Implemented with the window
// system's image readers; tests use a fake. Never throws.
class PictureDecoder {
 public:
  virtual ~PictureDecoder() = default;
  // The decoded picture, or an empty one with why set to a short reason
  // ("not a picture", "too large: 20000 x 20000") when bytes are not a
  // picture, are damaged, or exceed the limits above.
  virtual Picture Decode(std::string_view bytes, std::string& why) const = 0;
};

}  // namespace vireo
