#pragma once

#include <string>
#include <string_view>

namespace vireo {

// The markers that open the header block and the packed book behind an
// executable. They exist in the program only as UTF-16 literals, so the
// reader never finds its own constants; these build their byte form.
std::string HeaderMarker();
std::string BookMarker();

// What LoadFile needs from the window that owns the book.
class LoadFileHost {
 public:
  virtual ~LoadFileHost() = default;
  // A message box (the text is already translated).
  virtual void ShowLoadMessage(std::string_view text) = 0;
};

// Loads the book appended to the file at path (the program's own executable
// at start-up, or a dropped file). Without the header marker it tells the
// person there is no ebook in the file and changes nothing.
void LoadFile(const std::string& path, LoadFileHost& host);

}  // namespace vireo
