#pragma once

#include <string>

#include "support/user_folders.h"

namespace vireo {

// Where the program runs from, and where it keeps the files it writes.
// Empty user folders mean the program's folder (the portable layout).
struct ProgramLocation {
  std::string folder;           // without a trailing separator
  std::string executable_path;  // full path of the running executable
  std::string data_folder{};  // the helper library, textures and other files; "" = folder
  UserFolders user_folders{};
  bool installed = false;  // the installation owns the desktop integration

  const std::string& DataFolder() const { return data_folder.empty() ? folder : data_folder; }
  const std::string& SettingsFolder() const {
    return user_folders.settings.empty() ? folder : user_folders.settings;
  }
  const std::string& StateFolder() const {
    return user_folders.state.empty() ? folder : user_folders.state;
  }
};

// The running program's location, its user folders chosen and prepared. A
// copy of the reader outside the installation (an ebook made by the installed
// tool) finds the helper library and textures in the installed folder.
ProgramLocation LocateRunningProgram();

}  // namespace vireo
