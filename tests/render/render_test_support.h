#pragma once

#include <string>
#include <string_view>

#include "support/logging.h"
#include "support/user_interaction.h"

namespace vireo::test {

// A message pump that only counts.
class CountingPump : public MessagePump {
 public:
  void Yield() override { ++yields; }
  void SleepMilliseconds(int) override {}
  int yields = 0;
};

// True when an entry of the action ring holds text.
inline bool ActionLogged(std::string_view text) {
  for (const std::string& entry : Actions().text) {
    if (entry.find(text) != std::string::npos) return true;
  }
  return false;
}

}  // namespace vireo::test
