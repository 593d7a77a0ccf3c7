#pragma once

#include <string>
#include <string_view>

#include "fake_pump.h"
#include "support/logging.h"

namespace vireo::test {

// True when an entry of the action ring holds text.
inline bool ActionLogged(std::string_view text) {
  for (const std::string& entry : Actions().text) {
    if (entry.find(text) != std::string::npos) return true;
  }
  return false;
}

}  // namespace vireo::test
