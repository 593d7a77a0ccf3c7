#include "book/cover_picture.h"

#include <array>
#include <string_view>

#include "book/cls_bin.h"
#include "book/picture_files.h"

namespace vireo {
namespace {

constexpr std::array<std::string_view, 5> kExtensions = {".jpg", ".jpeg", ".png", ".gif", ".bmp"};

// The file name of path without its folder and its extension.
std::string Stem(const std::string& path) {
  const size_t slash = path.find_last_of("/\\");
  std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  const size_t dot = name.rfind('.');
  if (dot != std::string::npos && dot > 0) name.resize(dot);
  return name;
}

}  // namespace

std::optional<std::string> CoverPictureBytes(const std::string& packed_cover,
                                             const std::string& book_path, PictureFiles& files) {
  if (!packed_cover.empty()) return packed_cover;
  const std::string folder = BookFolderOf(book_path);
  for (const std::string& stem : {Stem(book_path), std::string("cover")}) {
    for (const std::string_view extension : kExtensions) {
      if (std::optional<std::string> bytes = files.Read(folder + stem + std::string(extension))) {
        return bytes;
      }
    }
  }
  return std::nullopt;
}

}  // namespace vireo
