#include "support/user_folders.h"

#include <unistd.h>

#include <exception>
#include <filesystem>
#include <system_error>

#include "support/file_io.h"
#include "support/platform.h"

namespace vireo {
namespace {

std::string XdgFolder(const UserFolderFacts& facts, const char* variable,
                      std::string_view fallback_under_home) {
  if (const char* set = facts.environment(variable); set != nullptr && *set == '/') {
    return JoinPath(set, "vireo");
  }
  const char* home = facts.environment("HOME");
  if (home == nullptr || *home != '/') return "";
  return JoinPath(JoinPath(home, fallback_under_home), "vireo");
}

}  // namespace

UserFolders ChooseUserFolders(const UserFolderFacts& facts) {
  const UserFolders beside{facts.program_folder, facts.program_folder, true};
  if (facts.program_folder_writable && !facts.installed) return beside;
  UserFolders own{XdgFolder(facts, "XDG_CONFIG_HOME", ".config"),
                  XdgFolder(facts, "XDG_STATE_HOME", ".local/state"), false};
  if (own.settings.empty() || own.state.empty()) return beside;
  return own;
}

UserFolderFacts FactsOfProgramFolder(const std::string& program_folder) {
  UserFolderFacts facts;
  facts.program_folder = program_folder;
  facts.program_folder_writable = ::access(program_folder.c_str(), W_OK) == 0;
  facts.installed = FileExists(JoinPath(program_folder, kInstalledMarker));
  return facts;
}

void PrepareUserFolders(const UserFolders& folders, const std::string& program_folder) {
  if (folders.beside_program) return;
  namespace fs = std::filesystem;
  std::error_code error;
  fs::create_directories(folders.settings, error);
  fs::create_directories(folders.state, error);
  for (const char* name : {"Vireo.ini", "BookMarks.ini"}) {
    const std::string from = JoinPath(program_folder, name);
    const std::string to = JoinPath(folders.settings, name);
    if (fs::exists(to, error) || !fs::is_regular_file(from, error)) continue;
    try {
      WriteFileAtomically(to, ReadWholeFile(from));
    } catch (const std::exception&) {
      // The program starts with defaults; the old file stays where it was.
    }
  }
}

}  // namespace vireo
