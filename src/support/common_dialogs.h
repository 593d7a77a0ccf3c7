#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vireo {

// A file the person chose, and which of the offered kinds (0-based index
// into the filters) was selected with it.
struct FileChoice {
  std::string path;
  int filter_index = 0;
};

// The platform's common dialogs as the core asks them. Filters are lines
// such as "Text files (*.txt)". Every method returns nullopt when the person
// cancels. The Qt layer shows the real dialogs; the non-interactive mode
// answers from the environment; tests fake them.
class CommonDialogs {
 public:
  virtual ~CommonDialogs() = default;
  virtual std::optional<FileChoice> AskSaveFile(std::string_view title,
                                                std::string_view suggested_path,
                                                const std::vector<std::string>& filters) = 0;
  virtual std::optional<FileChoice> AskOpenFile(std::string_view title, std::string_view folder,
                                                const std::vector<std::string>& filters) = 0;
  // A folder, starting from `folder`.
  virtual std::optional<std::string> AskFolder(std::string_view title, std::string_view folder) = 0;
  // A colour as 0x00BBGGRR, starting from `initial`.
  virtual std::optional<uint32_t> AskColour(std::string_view title, uint32_t initial) = 0;
};

}  // namespace vireo
