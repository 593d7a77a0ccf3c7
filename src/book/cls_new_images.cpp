#include "book/cls_new_images.h"

#include <map>
#include <optional>

#include "book/picture_files.h"
#include "support/error_trap.h"
#include "support/logging.h"
#include "support/runtime_error.h"
#include "support/text_helpers.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "clsNewImages";
constexpr std::string_view kPlaceholderOpener = "[IMG=";
// Failed pictures are logged one by one up to this many per book, then counted.
constexpr int kFailuresLogged = 10;

char AsciiUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// The first opener at or after from, in any letter case. The openers start
// with a bracket and go on in ASCII capitals, and no other Windows-1252
// letter upper-cases to an ASCII one.
size_t FindOpener(std::string_view text, std::string_view opener, size_t from) {
  for (size_t at = text.find(opener.front(), from);
       at != std::string_view::npos && at + opener.size() <= text.size();
       at = text.find(opener.front(), at + 1)) {
    size_t k = 1;
    while (k < opener.size() && AsciiUpper(text[at + k]) == opener[k]) ++k;
    if (k == opener.size()) return at;
  }
  return std::string_view::npos;
}

}  // namespace

void clsNewImages::ClearAll() {
  Trap("clearall", kModule, [&] { images_.clear(); });
}

const Picture* clsNewImages::Image(int number) const {
  const Picture* picture = nullptr;
  Trap("get image", kModule, [&] {
    Require(number >= 0 && number < static_cast<int>(images_.size()),
            ErrorNumber::kSubscriptOutOfRange);
    picture = images_[static_cast<size_t>(number)].get();
  });
  return picture;
}

int clsNewImages::ImageCount() const { return static_cast<int>(images_.size()); }
double clsNewImages::ImageTop() const { return image_top_; }
void clsNewImages::SetImageTop(double twips) { image_top_ = twips; }
double clsNewImages::ImageLeft() const { return image_left_; }
void clsNewImages::SetImageLeft(double twips) { image_left_ = twips; }

std::string clsNewImages::ExtractFileName(std::string_view reference) {
  std::string name;
  Trap("function extractfilename", kModule, [&] {
    const size_t src = reference.find("SRC");
    const std::string_view after =
        src == std::string_view::npos ? reference : reference.substr(src + 3);
    char quote = '"';
    size_t open = after.find(quote);
    if (open == std::string_view::npos) {
      quote = '\'';
      open = after.find(quote);
    }
    if (open == std::string_view::npos) return;
    const size_t close = after.find(quote, open + 1);
    if (close == std::string_view::npos) return;
    name = after.substr(open + 1, close - open - 1);
    for (char& c : name) {
      if (c == '/') c = '\\';
    }
  });
  return name;
}

std::string clsNewImages::FindFile(const std::string& folder, const std::string& name) const {
  if (files_ == nullptr || name.empty()) return "";
  if (std::string path = folder + name; files_->IsFile(path)) return path;
  if (files_->IsFile(name)) return name;
  return "";
}

void clsNewImages::LoadAllImages(const std::string& folder, std::string& text, bool packed) {
  Trap("loadallimages", kModule, [&] {
    const std::string_view opener = packed ? "[IMG" : "<IMG";
    const char closer = packed ? ']' : '>';
    ClearAll();
    std::vector<std::string> paths;
    std::string out;
    size_t copied = 0;
    size_t start = FindOpener(text, opener, 0);
    while (start != std::string::npos) {
      const size_t end = text.find(closer, start);
      if (end == std::string::npos) break;
      const std::string name =
          ExtractFileName(UpperCase(std::string_view(text).substr(start, end - start + 1)));
      out.append(text, copied, start - copied);
      copied = end + 1;
      size_t placeholder_length = 0;
      if (std::string path = FindFile(folder, name); !path.empty()) {
        paths.push_back(std::move(path));
        const std::string placeholder =
            std::string(kPlaceholderOpener) + std::to_string(paths.size() - 1) + "]";
        out += placeholder;
        placeholder_length = placeholder.size();
      }
      // Resume at the old closer's position counted in the rewritten text.
      const size_t resume_in_rewritten = end;
      const size_t rest_start_in_rewritten = start + placeholder_length;
      const size_t skipped = resume_in_rewritten > rest_start_in_rewritten
                                 ? resume_in_rewritten - rest_start_in_rewritten
                                 : 0;
      start = FindOpener(text, opener, end + 1 + skipped);
    }
    if (copied > 0) {
      out.append(text, copied);
      text = std::move(out);
    }
    LogDebug("Loaded " + std::to_string(paths.size()) + " images", "loadallimages", kModule);
    LoadImagesFromList(paths);
  });
}

SharedPicture clsNewImages::LoadPicture(const std::string& path, int64_t& pixels_left) const {
  auto picture = std::make_shared<Picture>();
  std::string why = "not a picture";
  const std::optional<std::string> bytes = files_->Read(path);
  if (!bytes) {
    why = "cannot be read";
  } else if (pixels_left <= 0) {
    why = "the book's pictures are too large together";
  } else if (decoder_ != nullptr) {
    *picture = decoder_->Decode(*bytes, why);
  }
  const int64_t pixels = static_cast<int64_t>(picture->width) * picture->height;
  if (pixels > pixels_left) {
    *picture = Picture{};
    why = "the book's pictures are too large together";
  }
  pixels_left -= pixels;
  if (picture->empty() && decoder_ != nullptr) throw RuntimeError(ErrorNumber::kInternal, why);
  return picture;
}

void clsNewImages::LoadImagesFromList(const std::vector<std::string>& paths) {
  Trap("loadimagesfromlist", kModule, [&] {
    ClearAll();
    if (files_ == nullptr) return;
    std::map<std::string, SharedPicture> loaded;  // a picture named twice is decoded once
    int64_t pixels_left = kMaxBookPicturePixels;
    int failures = 0;
    for (const std::string& path : paths) {
      if (!files_->IsFile(path)) continue;
      SharedPicture& picture = loaded[path];
      if (!picture) {
        try {
          picture = LoadPicture(path, pixels_left);
        } catch (const RuntimeError& error) {
          picture = std::make_shared<Picture>();
          if (++failures <= kFailuresLogged) {
            LogAction("Picture " + path + " is drawn as nothing: " + error.description());
          }
        }
      }
      images_.push_back(picture);
    }
    if (failures > kFailuresLogged) {
      LogAction(std::to_string(failures) + " pictures of this book are drawn as nothing");
    }
  });
}

}  // namespace vireo
