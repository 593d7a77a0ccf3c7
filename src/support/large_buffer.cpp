#include "support/large_buffer.h"

#include <cstdint>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace vireo {
namespace {

constexpr size_t kHugePage = size_t{2} << 20;
// Below this, a few hundred small page faults cost less than asking.
constexpr size_t kLargeBuffer = size_t{4} << 20;

}  // namespace

void ReserveLarge(std::string& text, size_t size, size_t spare) {
  text.reserve(size + spare);
#if defined(__linux__) && defined(MADV_HUGEPAGE)
  if (size + spare < kLargeBuffer) return;
  // Only the whole huge pages inside the room can be backed by one.
  const auto begin = reinterpret_cast<uintptr_t>(text.data());
  const uintptr_t first = (begin + kHugePage - 1) & ~(kHugePage - 1);
  const uintptr_t last = (begin + size + spare) & ~(kHugePage - 1);
  if (last > first) madvise(reinterpret_cast<void*>(first), last - first, MADV_HUGEPAGE);
#if defined(MADV_POPULATE_WRITE)
  // Older kernels refuse; the pages then come one fault at a time.
  constexpr uintptr_t kPage = 4096;
  const uintptr_t start = begin & ~(kPage - 1);
  madvise(reinterpret_cast<void*>(start), begin + size - start, MADV_POPULATE_WRITE);
#endif
#endif
}

}  // namespace vireo
