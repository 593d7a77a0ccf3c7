#pragma once

#include <string>

namespace vireo {

// The book file types the reader registers for itself at start-up.
inline constexpr const char* kBookFileTypes[] = {".text", ".vrtxt", ".vrhtm", ".bfl", ".brn"};

// Registers the book file types for the executable with the desktop: a
// shared-mime-info package and a .desktop entry in the user's XDG data folder
// ($XDG_DATA_HOME, else ~/.local/share). Files are rewritten only when their
// content changes. The path is quoted and escaped in the entry, so any file
// name stays one argument on one line. Returns false (nothing thrown) when
// they cannot be written or the path holds a control character other than
// a line end or tab.
bool RegisterFileTypes(const std::string& executable_path);

}  // namespace vireo
