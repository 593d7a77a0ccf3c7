#pragma once

#include <string_view>

namespace vireo {

// Where long work reports how far it has come: the splash window while the
// program starts, the window's own status afterwards (a dropped book).
class ProgressDisplay {
 public:
  virtual ~ProgressDisplay() = default;
  // Shows a status text (already translated), e.g. "Unpacking 40%"; an empty
  // text takes the status away.
  virtual void ShowProgress(std::string_view text) = 0;
};

}  // namespace vireo
