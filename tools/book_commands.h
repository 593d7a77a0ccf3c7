#pragma once

#include "tool_commands.h"

namespace vireo::tool {

// vireo-tool make TEXT -o OUT [--stub PATH] [--author A] [--title T]
int RunMake(const Arguments& arguments);
// vireo-tool text FILE [--no-reformat] [--underscores] [--extra-line] [--brn|--bfl]
int RunText(const Arguments& arguments);
// vireo-tool info FILE
int RunInfo(const Arguments& arguments);

}  // namespace vireo::tool
