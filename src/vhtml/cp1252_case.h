#pragma once

#include <array>
#include <cstdint>

namespace vireo {

// Upper case of a Windows-1252 character: a-z, the accented small letters
// 224-254 (but not 247, the division sign), and the four letters whose
// capitals sit in 128-159 (š, œ, ž, ÿ). Header-only so that the helper
// library and the core share one table.
constexpr std::array<uint8_t, 256> MakeUpperTable() {
  std::array<uint8_t, 256> table{};
  for (int c = 0; c < 256; ++c) table[c] = static_cast<uint8_t>(c);
  for (int c = 'a'; c <= 'z'; ++c) table[c] = static_cast<uint8_t>(c - 32);
  for (int c = 224; c <= 254; ++c) {
    if (c != 247) table[c] = static_cast<uint8_t>(c - 32);
  }
  table[154] = 138;
  table[156] = 140;
  table[158] = 142;
  table[255] = 159;
  return table;
}

inline constexpr std::array<uint8_t, 256> kUpperCase1252 = MakeUpperTable();

constexpr char UpperCase1252(char c) {
  return static_cast<char>(kUpperCase1252[static_cast<uint8_t>(c)]);
}

}  // namespace vireo
