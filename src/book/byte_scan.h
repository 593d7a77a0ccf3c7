#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace vireo {

// A set of byte values, for scanning text quickly to the next byte of
// interest.
class ByteSet {
 public:
  constexpr ByteSet(std::initializer_list<int> bytes) {
    for (int byte : bytes) members_[static_cast<uint8_t>(byte)] = 1;
  }
  constexpr bool Contains(char c) const { return members_[static_cast<uint8_t>(c)] != 0; }

  // The index of the first byte of text at or after index that is in the
  // set, or text.size(). Eight bytes at a time while none of them is.
  size_t Next(std::string_view text, size_t index) const {
    const uint8_t* data = reinterpret_cast<const uint8_t*>(text.data());
    const size_t size = text.size();
    while (index + 8 <= size) {
      const uint8_t* p = data + index;
      if ((members_[p[0]] | members_[p[1]] | members_[p[2]] | members_[p[3]] | members_[p[4]] |
           members_[p[5]] | members_[p[6]] | members_[p[7]]) != 0) {
        break;
      }
      index += 8;
    }
    while (index < size && members_[data[index]] == 0) ++index;
    return index;
  }

 private:
  std::array<uint8_t, 256> members_{};
};

}  // namespace vireo
