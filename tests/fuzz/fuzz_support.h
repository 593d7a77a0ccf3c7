#pragma once

#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "layout/font_metrics.h"
#include "support/logging.h"
#include "support/vhtml_library.h"

namespace vireo::fuzz {

// Loads the helper library the text routines call, or stops the run; the
// log is switched off so that findings are not drowned in entries.
inline void StartUp() {
  if (!TheVHtml().Load(VIREO_BIN_DIR)) {
    std::fprintf(stderr, "cannot load the helper library from %s\n", VIREO_BIN_DIR);
    std::abort();
  }
  SetLoggingDisabled(true);
}

// Stops the run with a finding when condition fails.
inline void Check(bool condition, const char* what) {
  if (!condition) {
    std::fprintf(stderr, "fuzz finding: %s\n", what);
    std::abort();
  }
}

// The next byte of the input; 0 once it is used up.
inline uint8_t TakeByte(const uint8_t*& data, size_t& size) {
  if (size == 0) return 0;
  --size;
  return *data++;
}

// Four width tables from a seed: width_of(r) gives each width from the next
// number r of a xorshift sequence.
template <typename WidthOf>
clsFontMetrics SeededTables(uint32_t seed, WidthOf width_of) {
  clsFontMetrics metrics;
  for (int style = 0; style < 4; ++style) {
    std::array<double, clsFontMetrics::kTableSize> table;
    for (double& width : table) {
      seed ^= seed << 13;
      seed ^= seed >> 17;
      seed ^= seed << 5;
      width = width_of(seed);
    }
    metrics.SetTable(style & 1, style & 2, table);
  }
  return metrics;
}

// Four kinds of width tables picked by mode: whole (base plus up to spread),
// fractional, partly zero (steps of zero_step, so that prefixes fit a line
// exactly over several lengths) or partly negative widths.
inline clsFontMetrics ModeTables(uint32_t seed, uint8_t mode, double base, uint32_t spread,
                                 double step, double zero_step) {
  return SeededTables(seed, [=](uint32_t r) {
    const double widths[] = {base + step * (r % spread), (r % 3000) / 7.0, (r % 3) * zero_step,
                             static_cast<double>(r % 400) - 40};
    return widths[mode % 4];
  });
}

// A scratch file of this process for a target that reads its input from a
// file, named after the target; in memory where the system offers it, since
// saves flush to disk.
inline std::string ScratchPath(const std::string& target) {
  const char* folder = access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp";
  return std::string(folder) + "/vireo-" + target + "-fuzz-" + std::to_string(getpid());
}

// Writes the input to path; false when the file cannot be made.
inline bool WriteInput(const std::string& path, const uint8_t* data, size_t size) {
  FILE* file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) return false;
  std::fwrite(data, 1, size, file);
  std::fclose(file);
  return true;
}

}  // namespace vireo::fuzz
