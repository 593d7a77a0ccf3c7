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

void ReserveLarge(std::string& text, size_t size) {
  text.reserve(size);
#if defined(__linux__) && defined(MADV_HUGEPAGE)
  if (size < kLargeBuffer) return;
  // Only the whole huge pages inside the room can be backed by one.
  const auto begin = reinterpret_cast<uintptr_t>(text.data());
  const uintptr_t first = (begin + kHugePage - 1) & ~(kHugePage - 1);
  const uintptr_t last = (begin + size) & ~(kHugePage - 1);
  if (last > first) madvise(reinterpret_cast<void*>(first), last - first, MADV_HUGEPAGE);
#if defined(MADV_POPULATE_WRITE)
  // The room is written at once by its users; asking for all of its pages
  // in one call costs far less than a page fault for each (older kernels
  // refuse, and the pages then come one fault at a time as before).
  constexpr uintptr_t kPage = 4096;
  const uintptr_t start = begin & ~(kPage - 1);
  madvise(reinterpret_cast<void*>(start), begin + size - start, MADV_POPULATE_WRITE);
#endif
#endif
}

}  // namespace vireo
