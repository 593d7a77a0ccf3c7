#pragma once

#include <string>
#include <vector>

namespace vireo::tool {

using Arguments = std::vector<std::string>;

// One sub-command of vireo-tool: its name, a usage line and the function
// that runs it with the arguments after the name. Returns the exit status.
struct ToolCommand {
  const char* name;
  const char* usage;
  int (*run)(const Arguments& arguments);
};

// Prints "vireo-tool: message" to standard error and returns 1.
int Fail(const std::string& message);

}  // namespace vireo::tool
