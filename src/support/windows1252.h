#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vireo {

// Book text is Windows-1252. Codes 129, 141, 143, 144 and 157 have no
// character; they map to the C1 control of the same number, as browsers do.

// The Unicode code point of a Windows-1252 byte.
char32_t Windows1252ToUnicode(uint8_t code);

// The Windows-1252 byte of a code point, or nullopt when it has none.
std::optional<uint8_t> UnicodeToWindows1252(char32_t code_point);

// Appends a code point (at most U+10FFFF) as UTF-8.
void AppendUtf8(std::string& out, char32_t code_point);

// Windows-1252 bytes as UTF-8.
std::string Utf8FromWindows1252(std::string_view bytes);

// UTF-8 as Windows-1252 bytes; nullopt when the text is not UTF-8 or holds a
// character without a byte.
std::optional<std::string> Windows1252FromUtf8(std::string_view utf8);

// The next UTF-8 character at index (advancing it), or nullopt when the
// bytes there are not valid UTF-8. index must be below bytes.size().
std::optional<char32_t> NextUtf8(std::string_view bytes, size_t& index);

}  // namespace vireo
