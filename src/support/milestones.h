#pragma once

#include <string_view>

namespace vireo {

// With VIREO_TIMING set in the environment, writes "[timing] <what> <ms>"
// to standard error, <ms> being the wall clock in milliseconds since the
// epoch, so that a script that noted when it started the program can tell
// how long each step of the start-up took. Without it, does nothing.
void WriteMilestone(std::string_view what);

}  // namespace vireo
