#pragma once

#include "render/book_display.h"
#include "support/user_interaction.h"

namespace vireo {

// The status lamp: red while drawing, turning or paginating, orange while the
// cache fills, green when pagination has finished, grey when idle. Each
// operation sets the lamp and then yields once so that the colour shows at
// once. Errors are logged ("sub redshape" ... of "frmMain") and swallowed.
void RedShape(BookDisplay& display, MessagePump& pump);
void GreenShape(BookDisplay& display, MessagePump& pump);
void OrangeShape(BookDisplay& display, MessagePump& pump);
void NoShape(BookDisplay& display, MessagePump& pump);

}  // namespace vireo
