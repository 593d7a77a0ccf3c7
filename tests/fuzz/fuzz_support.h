#pragma once

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

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
