// The image store's reference rewriting on random text with a made-up file
// system, checked against the rewriting done literally (the whole text
// rebuilt and upper-cased again after each reference); and the picture
// section read from the end of random file bytes.

#include <map>
#include <optional>
#include <string>

#include "book/cls_new_images.h"
#include "book/picture_files.h"
#include "book/picture_section.h"
#include "fuzz_support.h"
#include "support/text_helpers.h"

namespace {

// A name exists when it starts with a letter from A to M; under the book's
// folder only when it is short.
class MadeUpFiles : public vireo::PictureFiles {
 public:
  bool IsFile(const std::string& path) override {
    std::string name = path;
    if (name.starts_with(kFolder)) {
      name.erase(0, kFolder.size());
      if (name.size() > 6) return false;
    }
    return !name.empty() && name[0] >= 'A' && name[0] <= 'M';
  }
  std::optional<std::string> Read(const std::string& path) override {
    if (!IsFile(path)) return std::nullopt;
    return path;
  }
  static inline const std::string kFolder = "/book/";
};

// The rewriting step by step as described, 1-based positions and all.
std::string Literal(std::string text, bool packed) {
  const std::string opener = packed ? "[IMG" : "<IMG";
  const std::string closer = packed ? "]" : ">";
  MadeUpFiles files;
  int count = 0;
  size_t s = vireo::UpperCase(text).find(opener);
  while (s != std::string::npos) {
    const size_t e = text.find(closer, s);
    if (e == std::string::npos) break;
    const std::string name =
        vireo::clsNewImages::ExtractFileName(vireo::UpperCase(text.substr(s, e - s + 1)));
    const bool found =
        !name.empty() && (files.IsFile(MadeUpFiles::kFolder + name) || files.IsFile(name));
    const std::string placeholder = found ? "[IMG=" + std::to_string(count++) + "]" : "";
    text = text.substr(0, s) + placeholder + text.substr(e + 1);
    s = vireo::UpperCase(text).find(opener, e);
  }
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const bool started = (vireo::fuzz::StartUp(), true);
  (void)started;
  if (size == 0) return 0;
  const bool packed = (data[0] & 1) == 0;
  const std::string input(reinterpret_cast<const char*>(data) + 1, size - 1);

  MadeUpFiles files;
  vireo::clsNewImages images;
  images.SetFiles(&files);
  std::string text = input;
  images.LoadAllImages(MadeUpFiles::kFolder, text, packed);
  if (input.size() <= 4096) {
    vireo::fuzz::Check(text == Literal(input, packed), "rewriting differs from the literal steps");
  }
  for (int n = 0; n < images.ImageCount(); ++n) {
    vireo::fuzz::Check(text.find("[IMG=" + std::to_string(n) + "]") != std::string::npos,
                       "a loaded picture without its placeholder");
  }

  std::string file = input;
  const vireo::PackedPictures pictures = vireo::TakePictureSection(file);
  vireo::fuzz::Check(file.size() <= input.size(), "the section grew the file");
  vireo::fuzz::Check(!pictures.cover || *pictures.cover < pictures.pictures.size(),
                     "a cover that is not a picture");
  return 0;
}
