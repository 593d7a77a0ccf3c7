#pragma once

#include <string>

namespace vireo {

// The book file types the reader registers for itself at start-up.
inline constexpr const char* kBookFileTypes[] = {".text", ".vrtxt", ".vrhtm", ".bfl", ".brn"};

// Registers the book file types for the executable with the desktop: a
// shared-mime-info package and a .desktop entry in the user's XDG data folder
// ($XDG_DATA_HOME, else ~/.local/share). Files are rewritten only when their
// content changes. Returns false (nothing thrown) when they cannot be written.
bool RegisterFileTypes(const std::string& executable_path);

}  // namespace vireo
