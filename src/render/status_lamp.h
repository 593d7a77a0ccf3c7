#pragma once

#include "render/page_buffers.h"
#include "support/user_interaction.h"

namespace vireo {

// The status lamp: red while drawing, turning or paginating, orange while the
// cache fills, green when pagination has finished, grey when idle. Each
// operation sets the lamp and then yields once so that the colour shows at
// once. Errors are logged ("sub redshape" ... of "frmMain") and swallowed.
void RedShape(PageBuffers& buffers, MessagePump& pump);
void GreenShape(PageBuffers& buffers, MessagePump& pump);
void OrangeShape(PageBuffers& buffers, MessagePump& pump);
void NoShape(PageBuffers& buffers, MessagePump& pump);

}  // namespace vireo
