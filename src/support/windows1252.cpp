#include "support/windows1252.h"

namespace vireo {
namespace {

// Characters of 128-159; 0 marks the five unused codes.
constexpr char32_t kHighRow[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                   0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

}  // namespace

char32_t Windows1252ToUnicode(uint8_t code) {
  if (code >= 128 && code < 160 && kHighRow[code - 128] != 0) return kHighRow[code - 128];
  return code;
}

std::optional<uint8_t> UnicodeToWindows1252(char32_t code_point) {
  if (code_point < 128 || (code_point >= 160 && code_point < 256)) {
    return static_cast<uint8_t>(code_point);
  }
  for (int i = 0; i < 32; ++i) {
    if (kHighRow[i] == code_point) return static_cast<uint8_t>(128 + i);
    if (kHighRow[i] == 0 && code_point == static_cast<char32_t>(128 + i)) {
      return static_cast<uint8_t>(code_point);
    }
  }
  return std::nullopt;
}

void AppendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out.push_back(static_cast<char>(c));
  } else if (c < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (c >> 6)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  } else if (c < 0x10000) {
    out.push_back(static_cast<char>(0xE0 | (c >> 12)));
    out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  } else {
    out.push_back(static_cast<char>(0xF0 | (c >> 18)));
    out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  }
}

std::string Utf8FromWindows1252(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  for (char byte : bytes) AppendUtf8(out, Windows1252ToUnicode(static_cast<uint8_t>(byte)));
  return out;
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

std::optional<std::string> Windows1252FromUtf8(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (size_t index = 0; index < utf8.size();) {
    const std::optional<char32_t> code_point = NextUtf8(utf8, index);
    if (!code_point) return std::nullopt;
    const std::optional<uint8_t> byte = UnicodeToWindows1252(*code_point);
    if (!byte) return std::nullopt;
    out.push_back(static_cast<char>(*byte));
  }
  return out;
}

}  // namespace vireo
