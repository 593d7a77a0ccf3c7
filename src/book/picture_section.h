#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "book/picture_files.h"

namespace vireo {

// Pictures packed after the book in an ebook file, so that a book with
// pictures is one file. Names are kept as the book's references spell them
// once read (upper case, "\" between folders).
struct PackedPicture {
  std::string name;
  std::string bytes;
};

struct PackedPictures {
  std::vector<PackedPicture> pictures;
  std::optional<size_t> cover;  // index of the book's cover picture

  // Adds a picture under PackedPictureName(name); a name already held keeps
  // its first picture. Returns the picture's index.
  size_t Add(std::string_view name, std::string bytes);

  // The picture of that name, compared without regard to letter case or
  // separator ("/" or "\"); nullptr when there is none.
  const PackedPicture* Find(std::string_view name) const;
  const PackedPicture* Cover() const;

 private:
  std::map<std::string, size_t, std::less<>> by_name_;
};

// A name as the section keeps it: Windows-1252 upper case, "\" separators.
std::string PackedPictureName(std::string_view name);

// The section written after the packed book:
//   for each picture: name length (4 bytes), name, byte count (4 bytes), bytes
//   then: picture count (4), cover index (4; all ones for none), length of
//   the pictures part (8) and the 8-byte tag that ends the file.
// Numbers are little-endian. Throws RuntimeError 6 when a picture or name
// does not fit in its length field.
void AppendPictureSection(std::string& out, const PackedPictures& pictures);

// Cuts the section off the end of file and returns its pictures; a file
// that does not end with the tag is left as it is. A damaged section is cut
// off as far as its trailer says and yields the pictures read before the
// damage (logged); lengths are checked against the file before any use.
PackedPictures TakePictureSection(std::string& file);

// The pictures of one book as the image store sees them: the packed ones
// first (a path names a packed picture when it is its name, or ends with a
// separator and its name, as the book's folder and the name do), then the
// files behind.
class PackedPictureFiles : public PictureFiles {
 public:
  // packed and behind are not owned and must outlive this.
  PackedPictureFiles(const PackedPictures& packed, PictureFiles& behind)
      : packed_(packed), behind_(behind) {}

  bool IsFile(const std::string& path) override;
  std::optional<std::string> Read(const std::string& path) override;

 private:
  const PackedPicture* Packed(const std::string& path) const;

  const PackedPictures& packed_;
  PictureFiles& behind_;
};

}  // namespace vireo
