#pragma once

#include <functional>

#include "support/user_interaction.h"

namespace vireo::test {

// Counts yields and pauses; on_yield runs inside a yield (input arriving
// while the program lets messages through).
class RecordingPump : public MessagePump {
 public:
  void Yield() override {
    ++yields;
    if (on_yield) on_yield();
  }
  void SleepMilliseconds(int milliseconds) override {
    ++pauses;
    slept_ms += milliseconds;
  }

  std::function<void()> on_yield;
  int yields = 0;
  int pauses = 0;
  int slept_ms = 0;
};

}  // namespace vireo::test
