#include "support/user_folders.h"

#include <gtest/gtest.h>

#include <map>

#include "test_support.h"

namespace vireo {
namespace {

UserFolderFacts Facts(bool writable, bool installed, std::map<std::string, std::string> env) {
  UserFolderFacts facts;
  facts.program_folder = "/opt/vireo";
  facts.program_folder_writable = writable;
  facts.installed = installed;
  facts.environment = [env = std::move(env)](const char* name) -> const char* {
    const auto found = env.find(name);
    return found == env.end() ? nullptr : found->second.c_str();
  };
  return facts;
}

TEST(UserFolders, ProgramFolderOnlyWhenWritableAndNotInstalledElseTheUsersFolders) {
  struct Case {
    UserFolderFacts facts;
    std::string settings, state;
  };
  const std::map<std::string, std::string> home{{"HOME", "/home/ann"}};
  const std::map<std::string, std::string> xdg{
      {"HOME", "/home/ann"}, {"XDG_CONFIG_HOME", "/cfg"}, {"XDG_STATE_HOME", "/st"}};
  const Case cases[] = {
      {Facts(true, false, home), "/opt/vireo", "/opt/vireo"},
      {Facts(false, false, home), "/home/ann/.config/vireo", "/home/ann/.local/state/vireo"},
      {Facts(true, true, home), "/home/ann/.config/vireo", "/home/ann/.local/state/vireo"},
      {Facts(false, false, xdg), "/cfg/vireo", "/st/vireo"},
      // Relative XDG values are ignored, as the base directory rules say.
      {Facts(false, false, {{"HOME", "/home/ann"}, {"XDG_CONFIG_HOME", "cfg"}}),
       "/home/ann/.config/vireo", "/home/ann/.local/state/vireo"},
      {Facts(false, true, {}), "/opt/vireo", "/opt/vireo"},
  };
  for (const Case& c : cases) {
    const UserFolders chosen = ChooseUserFolders(c.facts);
    EXPECT_EQ(chosen.settings, c.settings);
    EXPECT_EQ(chosen.state, c.state);
    EXPECT_EQ(chosen.beside_program, c.settings == "/opt/vireo");
  }
}

TEST(UserFolders, PortableFilesAreCopiedOnceAndNeverOverAUsersOwn) {
  test::TempFolder program, user;
  test::WriteFile(program.File("Vireo.ini"), "[Settings]\nFontSize=14\n");
  test::WriteFile(program.File("BookMarks.ini"), "old marks");
  const UserFolders folders{user.File("config"), user.File("state"), false};
  PrepareUserFolders(folders, program.str());
  EXPECT_EQ(test::ReadFile(user.File("config/Vireo.ini")), "[Settings]\nFontSize=14\n");
  EXPECT_TRUE(test::FileExists(user.File("state")));

  test::WriteFile(user.File("config/BookMarks.ini"), "the user's marks");
  test::WriteFile(program.File("BookMarks.ini"), "changed beside the program");
  PrepareUserFolders(folders, program.str());
  EXPECT_EQ(test::ReadFile(user.File("config/BookMarks.ini")), "the user's marks");
}

}  // namespace
}  // namespace vireo
