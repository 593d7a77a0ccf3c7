#pragma once

#include <string>
#include <string_view>

#include "book/picture_section.h"

namespace vireo {

// The pictures a book's text names, read from folder for packing after the
// book: each reference is read as the reader reads it, its name looked for
// in folder (in any letter case), and every picture found is packed once
// under the name the reference gives. cover_path ("" for none) is packed as
// the cover. Throws RuntimeError 53 when the cover cannot be read or folder
// is not a folder; a picture larger than the reader accepts is error 6.
PackedPictures PackBookPictures(std::string_view text, const std::string& folder,
                                const std::string& cover_path);

// Packs the pictures as PackBookPictures does and appends their section to
// file. A text that names no picture found in folder, made without a cover,
// gets no section: the book is byte for byte the one made without pictures.
void AppendBookPictures(std::string& file, std::string_view text, const std::string& folder,
                        const std::string& cover_path);

}  // namespace vireo
