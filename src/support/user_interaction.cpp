#include "support/user_interaction.h"

#include <cmath>

namespace vireo {

void Delay(MessagePump& pump, double seconds) {
  pump.SleepMilliseconds(static_cast<int>(std::nearbyint(seconds * 1000)));
}

}  // namespace vireo
