#pragma once

#include <string>

#include "app/book_loader.h"
#include "app/book_session.h"
#include "app/book_spread.h"
#include "app/language_commands.h"
#include "app/reader_context.h"
#include "app/window_preferences.h"

namespace vireo {

// The program's start-up sequence and its end: the helper library, the
// settings, the textures, the preferences, the empty book, the program's
// own book; storing the preferences and the bookmark and closing every
// window. Errors are logged under their procedures' logged names of module
// "frmMain".
class ProgramLifecycle {
 public:
  ProgramLifecycle(ReaderContext& context, BookSpread& spread, BookSession& session,
                   BookLoader& loader, WindowPreferences& preferences, LanguageCommands& languages);

  // The start-up sequence. Returns false when the program must end at once
  // (the helper library is missing); the message has been shown then.
  bool Form_Load();
  // Exit: stores the preferences and closes, unless the window is busy
  // (starting, applying a font change or paginating).
  void Quit();
  // A close from the title bar: returns true to refuse it.
  bool Form_QueryUnload(bool closed_by_user);
  // Load (menu, button, key L).
  void mnuLoad_Click();

  const std::string& settings_path() const { return settings_path_; }
  const std::string& program_folder() const { return program_folder_; }

  // "Exit Vireo " + major.minor.revision.
  static std::string ExitCaption();
  // The program-folder string: a folder that ends in a separator (a drive's
  // root) becomes "C:", whatever it was.
  static std::string ProgramFolderString(const std::string& folder);

 private:
  bool CheckRequiredLibrary();
  void RunStartupSteps();
  void ApplyPreferences();
  void StoreSettings();
  void ClosingRoutine();

  ReaderContext& context_;
  BookSpread& spread_;
  BookSession& session_;
  BookLoader& loader_;
  WindowPreferences& preferences_;
  LanguageCommands& languages_;
  std::string settings_path_;
  std::string program_folder_;
};

// Closes the program: unloads every window, lists the recent actions into
// the log, logs "Shutdown" and ends. Module "modConstVRO".
void ShutdownProg(MainWindowView& view);

}  // namespace vireo
