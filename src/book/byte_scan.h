#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace vireo {

// A small set of byte values, for scanning text quickly to the next byte of
// interest. Make one with MakeByteSet('a', '\r', 147).
template <size_t kCount>
class ByteSet {
 public:
  constexpr explicit ByteSet(const std::array<uint8_t, kCount>& bytes) : bytes_(bytes) {
    for (uint8_t byte : bytes) members_[byte] = 1;
  }
  constexpr bool Contains(char c) const { return members_[static_cast<uint8_t>(c)] != 0; }

  // The index of the first byte of text at or after index that is in the
  // set, or text.size(). Sixteen bytes at a time while none of them is.
  size_t Next(std::string_view text, size_t index) const {
    const uint8_t* data = reinterpret_cast<const uint8_t*>(text.data());
    const size_t size = text.size();
#if defined(__GNUC__)
    // One compare per member over a block of sixteen bytes (SSE2 on x86,
    // NEON on ARM); the byte itself is found in the block by the table.
    using Block = uint8_t __attribute__((vector_size(16)));
    while (index + sizeof(Block) <= size) {
      Block block;
      std::memcpy(&block, data + index, sizeof(Block));
      auto hits = block == bytes_[0];
      for (size_t k = 1; k < kCount; ++k) hits |= block == bytes_[k];
      uint64_t halves[2];
      std::memcpy(halves, &hits, sizeof(halves));
      if ((halves[0] | halves[1]) != 0) {
        if constexpr (std::endian::native != std::endian::little) break;
        // A member byte compares to 0xFF; the first one is the lowest.
        return index + (halves[0] != 0 ? std::countr_zero(halves[0]) / 8
                                       : 8 + std::countr_zero(halves[1]) / 8);
      }
      index += sizeof(Block);
    }
#else
    while (index + 8 <= size) {
      const uint8_t* p = data + index;
      if ((members_[p[0]] | members_[p[1]] | members_[p[2]] | members_[p[3]] | members_[p[4]] |
           members_[p[5]] | members_[p[6]] | members_[p[7]]) != 0) {
        break;
      }
      index += 8;
    }
#endif
    while (index < size && members_[data[index]] == 0) ++index;
    return index;
  }

 private:
  std::array<uint8_t, kCount> bytes_;
  std::array<uint8_t, 256> members_{};
};

template <typename... Bytes>
constexpr ByteSet<sizeof...(Bytes)> MakeByteSet(Bytes... bytes) {
  return ByteSet<sizeof...(Bytes)>({static_cast<uint8_t>(bytes)...});
}

}  // namespace vireo
