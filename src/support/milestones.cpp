#include "support/milestones.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace vireo {

void WriteMilestone(std::string_view what) {
  static const bool timing = std::getenv("VIREO_TIMING") != nullptr;
  if (!timing) return;
  const auto now = std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::system_clock::now().time_since_epoch());
  std::fprintf(stderr, "[timing] %.*s %lld\n", static_cast<int>(what.size()), what.data(),
               static_cast<long long>(now.count()));
}

}  // namespace vireo
