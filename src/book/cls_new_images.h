#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "book/picture.h"

namespace vireo {

class PictureFiles;

// The image store: finds the picture references of a book's text, rewrites
// each into a numbered placeholder "[IMG=" n "]" and holds the pictures for
// the life of the book. One store serves the whole program. Every procedure
// traps its own errors under module "clsNewImages".
//
// References run from "[IMG" to the next "]" in a packed book, from "<IMG"
// to the next ">" in HTML; the file name is the quoted value after "SRC".
// Whether a reference gets a number depends only on whether its file exists;
// a file that exists but is no picture (or too large) keeps its number and
// holds an empty picture, which is drawn as nothing.
class clsNewImages {
 public:
  // Where files are looked for (not owned; nullptr: no file exists) and what
  // decodes them (not owned; nullptr: every picture stays empty). Both must
  // outlive the calls that use them.
  void SetFiles(PictureFiles* files) { files_ = files; }
  void SetDecoder(const PictureDecoder* decoder) { decoder_ = decoder; }

  // Rewrites the references in text and loads their pictures. folder ends
  // with a separator; a name is looked for as folder + name, then as name
  // alone. A reference whose file exists neither way is cut out of the text
  // and takes no number. After a rewritten reference the search resumes at
  // the old closer's position counted in the rewritten text (so an opener
  // that follows a long reference closely is passed over). An opener without
  // a closer ends the rewriting. Linear in the length of text.
  void LoadAllImages(const std::string& folder, std::string& text, bool packed);
  // Loads the pictures of paths in order, numbered from 0; a path whose file
  // has gone since is skipped (and takes no number).
  void LoadImagesFromList(const std::vector<std::string>& paths);
  // Drops every picture.
  void ClearAll();

  // Picture number (from 0), or nullptr when the store holds none (logged).
  const Picture* Image(int number) const;
  int ImageCount() const;
  double ImageTop() const;
  void SetImageTop(double twips);
  double ImageLeft() const;
  void SetImageLeft(double twips);

  // The file name inside a reference: the text between the first pair of
  // double quotes after "SRC" (or of single quotes when there is no double
  // quote), with every "/" turned into "\". "" when there is no such pair.
  static std::string ExtractFileName(std::string_view reference);

 private:
  // The path under which name exists, or "" when it exists neither way.
  std::string FindFile(const std::string& folder, const std::string& name) const;
  SharedPicture LoadPicture(const std::string& path, int64_t& pixels_left) const;

  PictureFiles* files_ = nullptr;
  const PictureDecoder* decoder_ = nullptr;
  std::vector<SharedPicture> images_;
  double image_top_ = 0;
  double image_left_ = 0;
};

// All pictures of one book together may hold at most this many pixels; the
// pictures past it stay empty.
inline constexpr int64_t kMaxBookPicturePixels = 2 * kMaxPicturePixels;

}  // namespace vireo
