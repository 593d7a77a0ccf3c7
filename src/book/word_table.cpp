#include "book/word_table.h"

#include <algorithm>
#include <cstring>

namespace vireo {
namespace {

// Rows 1-38 of the table; the quirks are deliberate: "er" twice, the blank
// (32) standing for "f", 231 for a blank, the full stop (46) for "r" and
// 233 for a full stop.
struct FixedRow {
  uint8_t code;
  std::string_view word;
};
constexpr FixedRow kFixedRows[38] = {
    {201, "tion"}, {202, "the"},  {203, "aid"},     {204, "and"}, {205, "shout"}, {206, "tr"},
    {207, "ea"},   {208, "st"},   {209, "er"},      {210, "re"},  {211, "you"},   {212, "Clunk"},
    {213, "Hal"},  {214, "can"},  {215, "console"}, {216, "to"},  {217, "that"},  {218, "not"},
    {219, "his"},  {220, "what"}, {221, "oo"},      {222, "l"},   {223, "a"},     {224, "\t"},
    {225, "d"},    {226, "e"},    {227, "ch"},      {228, "s"},   {229, "p"},     {230, "er"},
    {231, " "},    {32, "f"},     {232, ","},       {233, "."},   {46, "r"},      {234, "\""},
    {235, "c"},    {236, "Th"}};

}  // namespace

WordTable SetupWords() {
  WordTable table;
  for (int row = 1; row <= 38; ++row) {
    table[row] = {kFixedRows[row - 1].code, std::string(kFixedRows[row - 1].word)};
  }
  // The number-to-text conversion puts a blank before a non-negative number.
  for (int digit = 0; digit <= 9; ++digit) {
    const char digit_char = static_cast<char>('0' + digit);
    table[39 + digit] = {static_cast<uint8_t>(digit_char + 131), std::string{' ', digit_char}};
  }
  return table;
}

const ExpansionTable& Expansions() {
  static const ExpansionTable table = [] {
    ExpansionTable composed;
    for (int byte = 0; byte < 256; ++byte) composed[byte] = std::string(1, static_cast<char>(byte));
    // Running the rows in unpacking order over every byte's current
    // expansion composes the 48 whole-text replacements into one table.
    const WordTable words = SetupWords();
    for (int row = kWordRows; row >= 1; --row) {
      for (std::string& expansion : composed) {
        std::string next;
        for (char c : expansion) {
          if (static_cast<uint8_t>(c) == words[row].code) {
            next += words[row].word;
          } else {
            next.push_back(c);
          }
        }
        expansion = std::move(next);
      }
    }
    return composed;
  }();
  return table;
}

namespace {

// The expansions packed for the one-pass expansion: up to eight bytes each,
// written eight at a time, so that a code costs one load and one store
// whatever its length.
struct PackedExpansions {
  std::array<uint64_t, 256> bytes{};
  std::array<uint8_t, 256> length{};
  PackedExpansions() {
    for (int code = 0; code < 256; ++code) {
      const std::string& expansion = Expansions()[code];
      if (expansion.size() > kExpansionSlack) throw "a word of the table is too long";
      std::memcpy(&bytes[code], expansion.data(), expansion.size());
      length[code] = static_cast<uint8_t>(expansion.size());
    }
  }
};

const PackedExpansions& Packed() {
  static const PackedExpansions packed;
  return packed;
}

// The expanded length of every pair of codes, so that counting takes one
// look-up per two bytes.
struct PairLengths {
  std::array<uint8_t, 65536> length{};
  PairLengths() {
    const std::array<uint8_t, 256>& single = Packed().length;
    for (size_t pair = 0; pair < length.size(); ++pair) {
      uint8_t bytes[2];
      const uint16_t value = static_cast<uint16_t>(pair);
      std::memcpy(bytes, &value, sizeof(bytes));
      length[pair] = static_cast<uint8_t>(single[bytes[0]] + single[bytes[1]]);
    }
  }
};

}  // namespace

size_t ExpandedLength(std::string_view text) {
  static const PairLengths pairs;
  const uint8_t* in = reinterpret_cast<const uint8_t*>(text.data());
  const size_t size = text.size();
  // Four sums, so the additions do not wait on each other.
  size_t sums[4] = {0, 0, 0, 0};
  size_t i = 0;
  for (; i + 8 <= size; i += 8) {
    uint16_t pair[4];
    std::memcpy(pair, in + i, sizeof(pair));
    for (size_t k = 0; k < 4; ++k) sums[k] += pairs.length[pair[k]];
  }
  for (; i < size; ++i) sums[0] += Packed().length[in[i]];
  return sums[0] + sums[1] + sums[2] + sums[3];
}

// One code: its expansion written eight bytes at once, the output moved on
// by its length. Both are read before the write, which could otherwise (as
// far as the compiler knows) change them.
inline char* ExpandCode(const PackedExpansions& packed, uint8_t code, char* out) {
  const uint64_t bytes = packed.bytes[code];
  const size_t length = packed.length[code];
  std::memcpy(out, &bytes, sizeof(bytes));
  return out + length;
}

char* ExpandInto(std::string_view text, char* out) {
  const PackedExpansions& packed = Packed();
  const uint8_t* in = reinterpret_cast<const uint8_t*>(text.data());
  const size_t size = text.size();
  size_t i = 0;
  for (; i + 4 <= size; i += 4) {
    const uint8_t codes[4] = {in[i], in[i + 1], in[i + 2], in[i + 3]};
    for (uint8_t code : codes) out = ExpandCode(packed, code, out);
  }
  for (; i < size; ++i) out = ExpandCode(packed, in[i], out);
  return out;
}

std::string ExpandWords(std::string_view text) {
  const size_t length = ExpandedLength(text);
  std::string out(length + kExpansionSlack, '\0');
  ExpandInto(text, out.data());
  out.resize(length);
  return out;
}

}  // namespace vireo
