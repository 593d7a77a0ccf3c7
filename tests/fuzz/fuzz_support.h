#pragma once

#include <cstdio>
#include <cstdlib>

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

}  // namespace vireo::fuzz
