#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "support/common_dialogs.h"

namespace vireo {

// The book file types the reader registers for itself at start-up.
inline constexpr const char* kBookFileTypes[] = {".text", ".vrtxt", ".vrhtm", ".bfl", ".brn"};

// The file dialog of Open...: its title, and its filters: the book types a
// page accepts, then "All files" (ebooks are programs without a book type
// in their name).
std::string OpenDialogTitle();
std::vector<std::string> OpenDialogFilters();

// Open...: asks dialogs for a book file, starting in folder; the chosen
// path, or nullopt when cancelled.
std::optional<std::string> ChooseBookFile(CommonDialogs& dialogs, const std::string& folder);

// Which program the book file types are registered for, when the program
// at executable_path runs: the reader itself when that is its name ("Vireo",
// with ".exe" on Windows), else the reader beside it (exists tells), so that
// an ebook copy is never named; nothing when there is no reader beside it or
// the program runs from inside temporary_folder (a copy there soon
// disappears).
std::optional<std::string> RegistrationTarget(
    const std::string& executable_path, const std::string& temporary_folder,
    const std::function<bool(const std::string&)>& exists);

// Registers the book file types for the running program as
// RegistrationTarget decides, with the system's temporary folder. Returns
// false when nothing was registered.
bool RegisterFileTypes(const std::string& executable_path);

// Registers the book file types for the reader at reader_path with the
// desktop: a shared-mime-info package and a .desktop entry in the user's XDG
// data folder ($XDG_DATA_HOME, else ~/.local/share). Files are rewritten only
// when their content changes, so a registration that already matches is
// left alone. The path is quoted and escaped in the entry, so any file name
// stays one argument on one line. Returns false (nothing thrown) when they
// cannot be written or the path holds a control character other than a line
// end or tab.
bool WriteFileTypeRegistration(const std::string& reader_path);

}  // namespace vireo
