#include "render/status_lamp.h"

#include <string_view>

#include "support/error_trap.h"

namespace vireo {
namespace {

void SetLampAndYield(std::string_view procedure, Lamp lamp, BookDisplay& display,
                     MessagePump& pump) {
  Trap(procedure, "frmMain", [&] {
    display.SetLamp(lamp);
    pump.Yield();
  });
}

}  // namespace

void RedShape(BookDisplay& display, MessagePump& pump) {
  SetLampAndYield("sub redshape", Lamp::kRed, display, pump);
}

void GreenShape(BookDisplay& display, MessagePump& pump) {
  SetLampAndYield("sub greenshape", Lamp::kGreen, display, pump);
}

void OrangeShape(BookDisplay& display, MessagePump& pump) {
  SetLampAndYield("sub orangeshape", Lamp::kOrange, display, pump);
}

void NoShape(BookDisplay& display, MessagePump& pump) {
  SetLampAndYield("sub noshape", Lamp::kGrey, display, pump);
}

}  // namespace vireo
