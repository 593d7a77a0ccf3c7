#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vireo {

// What the maker writes for characters the 8-bit book text cannot carry as
// themselves.
//
// Codes 128-136 of Windows-1252 are the book's formatting codes (bold,
// italics, centring, page break, underlining), so the characters that have
// them (€ ‚ ƒ „ … † ‡ ˆ, and the unused 129) are written as plain text:
//   €  "EUR"   ‚  "'"   ƒ  "f"    „  "\""   …  "..." (which reformatting
//   turns into the book's own ellipsis)   †  "+"   ‡  "++"   ˆ  "^"
//   129 (no character)  "?"
// Characters outside Windows-1252 get a well-known fallback where there is
// one: Latin letters without their accents (only for letters that
// Windows-1252 lacks), ligatures spelt out, dashes, quotes, spaces, arrows
// and a few signs in ASCII; everything else becomes "?".

// Whether a Windows-1252 byte is one of the book's formatting codes.
constexpr bool IsFormattingCode(uint8_t byte) { return byte >= 128 && byte <= 136; }

// The plain text written for a code point that has no byte of its own in
// the book: a formatting code's character, a character outside
// Windows-1252 or a C1 control. The text is ASCII ("" for characters that
// are left out, such as a zero-width space).
std::string_view PlainTextFallback(char32_t code_point);

// Whether the code point is a combining mark (U+0300-U+036F).
constexpr bool IsCombiningMark(char32_t code_point) {
  return code_point >= 0x300 && code_point <= 0x36F;
}

// The Windows-1252 letter that an ASCII letter followed by a combining mark
// spells (e + U+0301 gives é), or nullopt when Windows-1252 has none.
std::optional<uint8_t> ComposedLetter(uint8_t base, char32_t mark);

}  // namespace vireo
