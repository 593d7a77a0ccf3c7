#pragma once

#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>

namespace vireo {

// The file an installation puts beside the installed program. Its presence
// means the program's folder belongs to the system: the user's files live in
// the user's own folders and the desktop integration is the installation's.
inline constexpr std::string_view kInstalledMarker = "Vireo.installed";

// Where the reader keeps the files it writes: "Vireo.ini" and "BookMarks.ini"
// in the settings folder, "log.txt" and the report file in the state folder.
struct UserFolders {
  std::string settings;
  std::string state;
  bool beside_program = true;  // the portable layout: both are the program's folder
};

// What the choice looks at; the environment lookup is a seam for tests.
struct UserFolderFacts {
  std::string program_folder;
  bool program_folder_writable = true;
  bool installed = false;
  std::function<const char*(const char*)> environment = [](const char* name) {
    return std::getenv(name);
  };
};

// A writable program folder that is not an installation keeps the files
// beside the program. Otherwise they go to $XDG_CONFIG_HOME/vireo (else
// ~/.config/vireo) and $XDG_STATE_HOME/vireo (else ~/.local/state/vireo).
// With no home folder known, the program's folder is kept.
UserFolders ChooseUserFolders(const UserFolderFacts& facts);

// The facts of the running program's folder.
UserFolderFacts FactsOfProgramFolder(const std::string& program_folder);

// Creates the user's folders and, the first time only, copies the settings
// and bookmarks a portable run left in the program's folder. Nothing here
// throws: a folder that cannot be made shows later as a file that cannot be
// written, which the writers report.
void PrepareUserFolders(const UserFolders& folders, const std::string& program_folder);

}  // namespace vireo
