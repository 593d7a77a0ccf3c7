#pragma once

#include <optional>
#include <string>

namespace vireo {

class PictureFiles;

// Where a book's cover comes from, first found wins:
//   1. the cover packed with the book (packed_cover, "" for none);
//   2. a picture beside the book named after its file: the file name with
//      ".jpg", ".jpeg", ".png", ".gif" or ".bmp" in place of its extension
//      (the ebook "Genesis" has "Genesis.jpg");
//   3. "cover" with one of those extensions in the book's folder.
// Names are found in any letter case. The bytes of the cover, or nullopt.
std::optional<std::string> CoverPictureBytes(const std::string& packed_cover,
                                             const std::string& book_path, PictureFiles& files);

}  // namespace vireo
