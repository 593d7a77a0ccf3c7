#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "book/load_file.h"
#include "support/user_interaction.h"

namespace vireo {

// What the main window's logic needs from the window system: the splash,
// captions, system colours and the end of the program. The Qt main window
// implements it; tests fake it.
class MainWindowView {
 public:
  virtual ~MainWindowView() = default;
  virtual void ShowSplash() = 0;
  virtual void SetSplashStatus(std::string_view text) = 0;
  virtual void UnloadSplash() = 0;
  virtual void SetExitCaption(std::string_view caption) = 0;
  // The window system's window background and window text colours (0x00BBGGRR).
  virtual uint32_t SystemWindowColour() = 0;
  virtual uint32_t SystemWindowTextColour() = 0;
  // Unloads every open window, from the last in the program's list to the first.
  virtual void UnloadAllWindows() = 0;
  // Ends the program's message loop with the exit status.
  virtual void EndProgram(int status) = 0;
};

// Where the program runs from.
struct ProgramLocation {
  std::string folder;           // without a trailing separator
  std::string executable_path;  // full path of the running executable
};

// The main window's logic: start-up, shutdown and the commands of the shell.
// Module name in the log: "frmMain".
class frmMain : public LoadFileHost {
 public:
  frmMain(MainWindowView& view, UserInteraction& user, MessagePump& pump, ProgramLocation location);

  // The start-up sequence. Returns false when the program must end at once
  // (the helper library is missing); the message has been shown then.
  bool Form_Load();

  // Exit: stores the preferences and closes, unless the window is busy.
  void Quit();
  // A close from the title bar: returns true to refuse it.
  bool Form_QueryUnload(bool closed_by_user);
  // Load (menu, button, key L).
  void mnuLoad_Click();

  // LoadFileHost: the main window's side of loading a book.
  void ShowLoadMessage(std::string_view text) override;
  void ShowProgress(std::string_view caption, int value, int maximum) override;
  FormattingOptions Formatting() override;
  void BookLoaded(std::string text, std::string author, std::string title) override;
  void ReadBookmark() override;
  void ReindexFile(bool keep_position) override;
  void HideLanguageList() override;

  bool busy() const { return busy_; }
  bool book_loaded() const { return book_loaded_; }
  bool paginator_busy() const { return paginator_busy_; }
  const std::string& settings_path() const { return settings_path_; }
  const std::string& program_folder() const { return program_folder_; }
  const std::string& book_text() const { return book_text_; }
  const std::string& author() const { return author_; }
  const std::string& title() const { return title_; }
  const std::string& caption() const { return caption_; }
  bool book_menus_enabled() const { return book_menus_enabled_; }
  bool language_list_visible() const { return language_list_visible_; }

  // "Exit Vireo " + major.minor.revision.
  static std::string ExitCaption();
  // The program-folder string: a folder that ends in a separator (a drive's
  // root) becomes "C:", whatever it was.
  static std::string ProgramFolderString(const std::string& folder);

 private:
  bool CheckRequiredLibrary();
  void RunStartupSteps();
  void StartupStep(auto&& step);
  void StoreSettings();
  void ClosingRoutine();

  MainWindowView& view_;
  UserInteraction& user_;
  MessagePump& pump_;
  ProgramLocation location_;
  std::string settings_path_;
  std::string program_folder_;
  uint32_t default_paper_colour_ = 0xFFFFFF;
  uint32_t default_ink_colour_ = 0;
  bool busy_ = true;
  bool book_loaded_ = false;
  bool paginator_busy_ = false;
  bool reformat_ = true;
  // FIXME: set from "UnderScores" and "ExtraParagraphLine" by ReadSettings
  // and by their menu items once the preferences land.
  bool underscores_ = false;
  bool extra_line_ = false;
  std::string book_text_;
  std::string author_;
  std::string title_;
  std::string caption_;
  bool book_menus_enabled_ = false;  // Save, Copy Page and their companion
  bool language_list_visible_ = true;
};

// Closes the program: unloads every window, lists the recent actions into
// the log, logs "Shutdown" and ends. Module "modConstVRO".
void ShutdownProg(MainWindowView& view);

}  // namespace vireo
