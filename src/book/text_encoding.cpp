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

std::optional<char32_t> NextUtf8(std::string_view bytes, size_t& index) {
  const uint8_t lead = static_cast<uint8_t>(bytes[index]);
  int length = 0;
  char32_t value = 0;
  if (lead < 0x80) {
    ++index;
    return lead;
  } else if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2, value = lead & 0x1F;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3, value = lead & 0x0F;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4, value = lead & 0x07;
  } else {
    return std::nullopt;
  }
  if (bytes.size() - index < static_cast<size_t>(length)) return std::nullopt;
  for (int i = 1; i < length; ++i) {
    const uint8_t next = static_cast<uint8_t>(bytes[index + static_cast<size_t>(i)]);
    if ((next & 0xC0) != 0x80) return std::nullopt;
    value = (value << 6) | (next & 0x3F);
  }
  const char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
  if (value < smallest[length] || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF)) {
    return std::nullopt;
  }
  index += static_cast<size_t>(length);
  return value;
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
