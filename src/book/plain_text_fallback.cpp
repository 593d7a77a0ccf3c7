#include "book/plain_text_fallback.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace vireo {
namespace {

struct Fallback {
  char32_t code_point;
  std::string_view text;
};

// The formatting codes' characters.
constexpr Fallback kFormattingCodeFallbacks[] = {
    {0x20AC, "EUR"}, {0x201A, "'"}, {0x0192, "f"},  {0x201E, "\""},
    {0x2026, "..."}, {0x2020, "+"}, {0x2021, "++"}, {0x02C6, "^"},
};

// Characters outside Windows-1252, sorted by code point for a binary search.
constexpr Fallback kFallbacks[] = {
    {0x0132, "IJ"},  {0x0133, "ij"},  {0x0149, "'n"},  {0x0218, "S"},   {0x0219, "s"},
    {0x021A, "T"},   {0x021B, "t"},   {0x02B9, "'"},   {0x02BA, "\""},  {0x02BB, "'"},
    {0x02BC, "'"},   {0x02C8, "'"},   {0x02CB, "`"},   {0x02D0, ":"},   {0x1E9E, "SS"},
    {0x2000, " "},   {0x2001, " "},   {0x2002, " "},   {0x2003, " "},   {0x2004, " "},
    {0x2005, " "},   {0x2006, " "},   {0x2007, " "},   {0x2008, " "},   {0x2009, " "},
    {0x200A, " "},   {0x200B, ""},    {0x200C, ""},    {0x200D, ""},    {0x2010, "-"},
    {0x2011, "-"},   {0x2012, "-"},   {0x2015, "--"},  {0x2016, "||"},  {0x201B, "'"},
    {0x201F, "\""},  {0x2024, "."},   {0x2025, ".."},  {0x2027, "-"},   {0x202F, " "},
    {0x2032, "'"},   {0x2033, "\""},  {0x2035, "`"},   {0x2043, "-"},   {0x2044, "/"},
    {0x205F, " "},   {0x2060, ""},    {0x2116, "No."}, {0x2153, "1/3"}, {0x2154, "2/3"},
    {0x215B, "1/8"}, {0x215C, "3/8"}, {0x215D, "5/8"}, {0x215E, "7/8"}, {0x2190, "<-"},
    {0x2192, "->"},  {0x2194, "<->"}, {0x21D0, "<="},  {0x21D2, "=>"},  {0x2212, "-"},
    {0x2215, "/"},   {0x2217, "*"},   {0x2264, "<="},  {0x2265, ">="},  {0x3000, " "},
    {0xFB00, "ff"},  {0xFB01, "fi"},  {0xFB02, "fl"},  {0xFB03, "ffi"}, {0xFB04, "ffl"},
    {0xFB05, "st"},  {0xFB06, "st"},  {0xFEFF, ""},
};
static_assert(std::is_sorted(std::begin(kFallbacks), std::end(kFallbacks),
                             [](const Fallback& a, const Fallback& b) {
                               return a.code_point < b.code_point;
                             }));

// The letters of Latin Extended-A (U+0100-U+017F) without their accents;
// "?" where a letter has a longer fallback above or is in Windows-1252.
constexpr std::string_view kLatinExtendedA =
    "AaAaAaCcCcCcCcDd"
    "DdEeEeEeEeEeGgGg"
    "GgGgHhHhIiIiIiIi"
    "Ii??JjKkqLlLlLlL"
    "lLlNnNnNn?NnOoOo"
    "Oo??RrRrRrSsSsSs"
    "??TtTtTtUuUuUuUu"
    "UuUuWwYy?ZzZz??s";

// The Windows-1252 letters U+00C0-U+00FF as an ASCII letter and a combining
// mark: ` grave, ' acute, ^ circumflex, ~ tilde, : diaeresis, o ring,
// , cedilla; "?" for the letters that are not made so.
constexpr std::string_view kComposedBases =
    "AAAAAA?CEEEEIIII?NOOOOO??UUUUY??aaaaaa?ceeeeiiii?nooooo??uuuuy?y";
constexpr std::string_view kComposedMarks =
    "`'^~:o?,`'^:`'^:?~`'^~:??`'^:'??`'^~:o?,`'^:`'^:?~`'^~:??`'^:'?:";

char MarkSymbol(char32_t mark) {
  switch (mark) {
    case 0x300:
      return '`';
    case 0x301:
      return '\'';
    case 0x302:
      return '^';
    case 0x303:
      return '~';
    case 0x308:
      return ':';
    case 0x30A:
      return 'o';
    case 0x327:
      return ',';
    default:
      return 0;
  }
}

}  // namespace

std::string_view PlainTextFallback(char32_t code_point) {
  for (const Fallback& fallback : kFormattingCodeFallbacks) {
    if (fallback.code_point == code_point) return fallback.text;
  }
  if (code_point >= 0x100 && code_point < 0x180) {
    const char letter = kLatinExtendedA[code_point - 0x100];
    if (letter != '?') return kLatinExtendedA.substr(code_point - 0x100, 1);
  }
  static_assert(kLatinExtendedA.size() == 0x80);
  const auto found = std::lower_bound(
      std::begin(kFallbacks), std::end(kFallbacks), code_point,
      [](const Fallback& fallback, char32_t wanted) { return fallback.code_point < wanted; });
  if (found != std::end(kFallbacks) && found->code_point == code_point) return found->text;
  return "?";
}

std::optional<uint8_t> ComposedLetter(uint8_t base, char32_t mark) {
  static_assert(kComposedBases.size() == 64 && kComposedMarks.size() == 64);
  const char symbol = MarkSymbol(mark);
  if (symbol == 0) return std::nullopt;
  for (size_t i = 0; i < kComposedBases.size(); ++i) {
    if (kComposedBases[i] == static_cast<char>(base) && kComposedMarks[i] == symbol) {
      return static_cast<uint8_t>(0xC0 + i);
    }
  }
  return std::nullopt;
}

}  // namespace vireo
