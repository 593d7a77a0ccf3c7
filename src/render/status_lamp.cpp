#include "render/status_lamp.h"

#include <string_view>

#include "support/error_trap.h"

namespace vireo {
namespace {

void SetLampAndYield(std::string_view procedure, Lamp lamp, PageBuffers& buffers,
                     MessagePump& pump) {
  Trap(procedure, "frmMain", [&] {
    buffers.SetLamp(lamp);
    pump.Yield();
  });
}

}  // namespace

void RedShape(PageBuffers& buffers, MessagePump& pump) {
  SetLampAndYield("sub redshape", Lamp::kRed, buffers, pump);
}

void GreenShape(PageBuffers& buffers, MessagePump& pump) {
  SetLampAndYield("sub greenshape", Lamp::kGreen, buffers, pump);
}

void OrangeShape(PageBuffers& buffers, MessagePump& pump) {
  SetLampAndYield("sub orangeshape", Lamp::kOrange, buffers, pump);
}

void NoShape(PageBuffers& buffers, MessagePump& pump) {
  SetLampAndYield("sub noshape", Lamp::kGrey, buffers, pump);
}

}  // namespace vireo
