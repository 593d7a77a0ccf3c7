#include "book/picture_packing.h"

#include "book/cls_new_images.h"
#include "book/picture.h"
#include "book/picture_files.h"
#include "support/file_io.h"
#include "support/platform.h"
#include "support/runtime_error.h"

namespace vireo {
namespace {

// The files of one folder, by the names the book gives them; remembers what
// was asked for and found.
class FolderPictures : public PictureFiles {
 public:
  explicit FolderPictures(std::string folder) : folder_(std::move(folder)) {}

  bool IsFile(const std::string& name) override {
    if (!disk_.IsFile(folder_ + name)) return false;
    found_.push_back(name);
    return true;
  }
  std::optional<std::string> Read(const std::string& name) override {
    return disk_.Read(folder_ + name);
  }
  const std::vector<std::string>& found() const { return found_; }

 private:
  std::string folder_;
  DiskPictureFiles disk_;
  std::vector<std::string> found_;
};

std::string ReadPicture(const std::string& path) {
  std::string bytes = ReadWholeFile(path);
  Require(static_cast<int64_t>(bytes.size()) <= kMaxPictureBytes, ErrorNumber::kOverflow);
  return bytes;
}

}  // namespace

PackedPictures PackBookPictures(std::string_view text, const std::string& folder,
                                const std::string& cover_path) {
  PackedPictures packed;
  if (!folder.empty()) {
    Require(FolderExists(folder), ErrorNumber::kFileNotFound);
    FolderPictures files(folder.back() == '/' || folder.back() == '\\' ? folder : folder + "/");
    clsNewImages references;
    references.SetFiles(&files);
    std::string copy(text);
    // With "" as the book's folder the name alone is asked for first.
    references.LoadAllImages("", copy, true);
    for (const std::string& name : files.found()) {
      if (packed.Find(name) == nullptr) {
        const std::optional<std::string> bytes = files.Read(name);
        Require(bytes.has_value(), ErrorNumber::kOverflow);
        packed.Add(name, *bytes);
      }
    }
  }
  if (!cover_path.empty()) {
    packed.cover = packed.Add("cover:" + FileNamePart(cover_path), ReadPicture(cover_path));
  }
  return packed;
}

void AppendBookPictures(std::string& file, std::string_view text, const std::string& folder,
                        const std::string& cover_path) {
  const PackedPictures packed = PackBookPictures(text, folder, cover_path);
  if (!packed.pictures.empty()) AppendPictureSection(file, packed);
}

}  // namespace vireo
