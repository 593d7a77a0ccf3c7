#include "app/program_location.h"

#include "support/install_paths.h"
#include "support/platform.h"
#include "support/vhtml_library.h"

namespace vireo {

ProgramLocation LocateRunningProgram() {
  ProgramLocation location{ProgramFolder(), ExecutablePath()};
  const UserFolderFacts facts = FactsOfProgramFolder(location.folder);
  location.installed = facts.installed;
  const bool has_library = FileExists(JoinPath(location.folder, VHtmlLibrary::FileName()));
  if (!has_library && FolderExists(kInstalledProgramFolder)) {
    location.data_folder = kInstalledProgramFolder;
  }
  location.user_folders = ChooseUserFolders(facts);
  PrepareUserFolders(location.user_folders, location.folder);
  return location;
}

}  // namespace vireo
