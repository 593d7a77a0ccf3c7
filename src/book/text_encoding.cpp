#include "book/text_encoding.h"

#include <cstdint>
#include <cstring>

#include "support/windows1252.h"

namespace vireo {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LittleEndianMark = "\xFF\xFE";
constexpr std::string_view kUtf16BigEndianMark = "\xFE\xFF";
constexpr char32_t kReplacementCharacter = 0xFFFD;

bool AllAscii(std::string_view bytes, size_t index) {
  uint64_t eight;
  std::memcpy(&eight, bytes.data() + index, sizeof(eight));
  return (eight & 0x8080808080808080u) == 0;
}

}  // namespace

TextEncoding DetectEncoding(std::string_view bytes) {
  if (bytes.starts_with(kUtf16LittleEndianMark)) return TextEncoding::kUtf16LittleEndian;
  if (bytes.starts_with(kUtf16BigEndianMark)) return TextEncoding::kUtf16BigEndian;
  if (bytes.starts_with(kUtf8Mark)) return TextEncoding::kUtf8;
  bool non_ascii = false;
  for (size_t index = 0; index < bytes.size();) {
    if (bytes.size() - index >= 8 && AllAscii(bytes, index)) {  // eight at a time
      index += 8;
      continue;
    }
    if (static_cast<uint8_t>(bytes[index]) >= 0x80) non_ascii = true;
    if (!NextUtf8(bytes, index)) return TextEncoding::kWindows1252;
  }
  return non_ascii ? TextEncoding::kUtf8 : TextEncoding::kWindows1252;
}

std::string EncodingName(TextEncoding encoding) {
  switch (encoding) {
    case TextEncoding::kUtf8:
      return "UTF-8";
    case TextEncoding::kUtf16LittleEndian:
      return "UTF-16 (little-endian)";
    case TextEncoding::kUtf16BigEndian:
      return "UTF-16 (big-endian)";
    case TextEncoding::kWindows1252:
      break;
  }
  return "Windows-1252";
}

std::string Utf8FromUtf16(std::string_view bytes, TextEncoding encoding) {
  const bool little = encoding == TextEncoding::kUtf16LittleEndian;
  if (bytes.starts_with(little ? kUtf16LittleEndianMark : kUtf16BigEndianMark)) {
    bytes.remove_prefix(2);
  }
  const auto unit = [&](size_t at) -> char32_t {
    const auto first = static_cast<uint8_t>(bytes[at]);
    const auto second = static_cast<uint8_t>(bytes[at + 1]);
    return little ? (second << 8 | first) : (first << 8 | second);
  };
  std::string out;
  out.reserve(bytes.size());
  const size_t units = bytes.size() / 2;
  for (size_t i = 0; i < units; ++i) {
    char32_t value = unit(2 * i);
    if (value >= 0xD800 && value <= 0xDBFF && i + 1 < units) {
      const char32_t low = unit(2 * (i + 1));
      if (low >= 0xDC00 && low <= 0xDFFF) {
        value = 0x10000 + ((value - 0xD800) << 10) + (low - 0xDC00);
        ++i;
      }
    }
    if (value >= 0xD800 && value <= 0xDFFF) value = kReplacementCharacter;
    AppendUtf8(out, value);
  }
  if (bytes.size() % 2 != 0) AppendUtf8(out, kReplacementCharacter);
  return out;
}

}  // namespace vireo
