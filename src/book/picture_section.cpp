#include "book/picture_section.h"

#include <cstdint>
#include <limits>

#include "support/logging.h"
#include "support/runtime_error.h"
#include "support/text_helpers.h"

namespace vireo {
namespace {

constexpr std::string_view kTag = "VireoPix";
constexpr uint32_t kNoCover = 0xFFFFFFFF;
constexpr size_t kTrailerLength = 4 + 4 + 8 + kTag.size();

void AppendNumber(std::string& out, uint64_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out += static_cast<char>((value >> (8 * i)) & 0xFF);
}

void AppendLength(std::string& out, size_t length) {
  Require(length <= std::numeric_limits<uint32_t>::max(), ErrorNumber::kOverflow);
  AppendNumber(out, length, 4);
}

// Reads little-endian numbers and byte runs from a span, never past its end.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}
  std::optional<uint64_t> Number(int size) {
    if (bytes_.size() - at_ < static_cast<size_t>(size)) return std::nullopt;
    uint64_t value = 0;
    for (int i = size - 1; i >= 0; --i) {
      value = (value << 8) | static_cast<uint8_t>(bytes_[at_ + static_cast<size_t>(i)]);
    }
    at_ += static_cast<size_t>(size);
    return value;
  }
  std::optional<std::string_view> Run(uint64_t length) {
    if (bytes_.size() - at_ < length) return std::nullopt;
    const std::string_view run = bytes_.substr(at_, static_cast<size_t>(length));
    at_ += static_cast<size_t>(length);
    return run;
  }
  bool AtEnd() const { return at_ == bytes_.size(); }

 private:
  std::string_view bytes_;
  size_t at_ = 0;
};

// One picture entry, or nothing when the entry runs past the section.
std::optional<PackedPicture> ReadEntry(ByteReader& reader) {
  const std::optional<uint64_t> name_length = reader.Number(4);
  if (!name_length) return std::nullopt;
  const std::optional<std::string_view> name = reader.Run(*name_length);
  if (!name) return std::nullopt;
  const std::optional<uint64_t> byte_count = reader.Number(4);
  if (!byte_count) return std::nullopt;
  const std::optional<std::string_view> bytes = reader.Run(*byte_count);
  if (!bytes) return std::nullopt;
  return PackedPicture{std::string(*name), std::string(*bytes)};
}

}  // namespace

std::string PackedPictureName(std::string_view name) {
  std::string packed = UpperCase(name);
  for (char& c : packed) {
    if (c == '/') c = '\\';
  }
  return packed;
}

size_t PackedPictures::Add(std::string_view name, std::string bytes) {
  std::string packed_name = PackedPictureName(name);
  const auto [place, added] = by_name_.emplace(packed_name, pictures.size());
  if (added) pictures.push_back(PackedPicture{std::move(packed_name), std::move(bytes)});
  return place->second;
}

const PackedPicture* PackedPictures::Find(std::string_view name) const {
  const auto found = by_name_.find(PackedPictureName(name));
  return found == by_name_.end() ? nullptr : &pictures[found->second];
}

const PackedPicture* PackedPictures::Cover() const {
  if (!cover || *cover >= pictures.size()) return nullptr;
  return &pictures[*cover];
}

void AppendPictureSection(std::string& out, const PackedPictures& pictures) {
  const size_t start = out.size();
  for (const PackedPicture& picture : pictures.pictures) {
    AppendLength(out, picture.name.size());
    out += picture.name;
    AppendLength(out, picture.bytes.size());
    out += picture.bytes;
  }
  const size_t length = out.size() - start;
  AppendLength(out, pictures.pictures.size());
  AppendNumber(out, pictures.cover ? *pictures.cover : kNoCover, 4);
  AppendNumber(out, length, 8);
  out += kTag;
}

PackedPictures TakePictureSection(std::string& file) {
  PackedPictures packed;
  if (file.size() < kTrailerLength || !std::string_view(file).ends_with(kTag)) return packed;
  ByteReader trailer(std::string_view(file).substr(file.size() - kTrailerLength));
  const uint64_t count = *trailer.Number(4);
  const uint64_t cover = *trailer.Number(4);
  const uint64_t length = *trailer.Number(8);
  const size_t available = file.size() - kTrailerLength;
  if (length > available) {
    LogAction("The pictures packed with the book are damaged: their section is too long");
    file.resize(available);
    return packed;
  }
  ByteReader reader(std::string_view(file).substr(available - length, length));
  uint64_t read = 0;
  for (; read < count && !reader.AtEnd(); ++read) {
    std::optional<PackedPicture> picture = ReadEntry(reader);
    if (!picture) break;
    packed.Add(picture->name, std::move(picture->bytes));
  }
  if (read != count || !reader.AtEnd()) {
    LogAction("The pictures packed with the book are damaged: " + std::to_string(read) + " of " +
              std::to_string(count) + " read");
  }
  if (cover < packed.pictures.size()) packed.cover = static_cast<size_t>(cover);
  file.resize(available - static_cast<size_t>(length));
  return packed;
}

const PackedPicture* PackedPictureFiles::Packed(const std::string& path) const {
  if (packed_.pictures.empty()) return nullptr;
  if (const PackedPicture* picture = packed_.Find(path)) return picture;
  // The packed names hold "" only; the folder may end with either separator.
  for (size_t at = path.find_first_of("/\\"); at != std::string::npos;
       at = path.find_first_of("/\\", at + 1)) {
    if (const PackedPicture* picture = packed_.Find(std::string_view(path).substr(at + 1))) {
      return picture;
    }
  }
  return nullptr;
}

bool PackedPictureFiles::IsFile(const std::string& path) {
  return Packed(path) != nullptr || behind_.IsFile(path);
}

std::optional<std::string> PackedPictureFiles::Read(const std::string& path) {
  if (const PackedPicture* picture = Packed(path)) return picture->bytes;
  return behind_.Read(path);
}

}  // namespace vireo
