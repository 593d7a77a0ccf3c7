#include "app/frm_main.h"

#include "app/file_types.h"
#include "prefs/settings_get_set.h"
#include "support/error_trap.h"
#include "support/logging.h"
#include "support/platform.h"
#include "support/translation.h"
#include "support/vhtml_library.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

// The maker's home page, named in the helper-library message.
constexpr std::string_view kMakerHomePage = "https://vireo-reader.example.org";

}  // namespace

frmMain::frmMain(MainWindowView& view, UserInteraction& user, MessagePump& pump,
                 ProgramLocation location)
    : view_(view), user_(user), pump_(pump), location_(std::move(location)) {}

std::string frmMain::ExitCaption() { return "Exit Vireo " + AppVersion(); }

std::string frmMain::ProgramFolderString(const std::string& folder) {
  if (!folder.empty() && (folder.back() == '\\' || folder.back() == '/')) return "C:";
  return folder;
}

void frmMain::ShowLoadMessage(std::string_view text) { user_.ShowMessage(text, "Vireo"); }

void frmMain::ShowProgress(std::string_view caption, int value, int maximum) {
  const int percent = maximum > 0 ? value * 100 / maximum : 0;
  view_.SetSplashStatus(std::string(caption) + " " + std::to_string(percent) + "%");
  pump_.Yield();
}

FormattingOptions frmMain::Formatting() { return {reformat_, underscores_, extra_line_}; }

void frmMain::BookLoaded(std::string text, std::string author, std::string title) {
  book_text_ = std::move(text);
  author_ = std::move(author);
  title_ = std::move(title);
  // FIXME: the window shows the caption once the view has a caption call.
  caption_ = title_;
  book_loaded_ = true;
  book_menus_enabled_ = true;
}

void frmMain::ReadBookmark() {
  // FIXME: picks up the reading position from the bookmarks once they land.
}

void frmMain::ReindexFile(bool keep_position) {
  // FIXME: runs the paginator once it lands.
  static_cast<void>(keep_position);
}

void frmMain::HideLanguageList() { language_list_visible_ = false; }

bool frmMain::CheckRequiredLibrary() {
  if (TheVHtml().Load(location_.folder)) return true;
  user_.ShowMessage(VHtmlLibrary::FileName() +
                        " is required. This DLL is contained in the Vireo installer at " +
                        std::string(kMakerHomePage),
                    "Vireo");
  return false;
}

// One start-up step under the error convention: an error is logged and the
// sequence goes on with the next step.
void frmMain::StartupStep(auto&& step) {
  try {
    step();
  } catch (const RuntimeError& error) {
    if (error.number() == static_cast<int>(ErrorNumber::kObjectNotSet)) {
      LogAction("Error 91 in Form_Load - " + error.description());
    } else {
      RecordError(error, "sub form_load", kModule);
    }
  } catch (...) {
    RecordCurrentException("sub form_load", kModule);
  }
}

bool frmMain::Form_Load() {
  SetLogFolder(location_.folder);
  if (!CheckRequiredLibrary()) return false;
  RunStartupSteps();
  return true;
}

void frmMain::RunStartupSteps() {
  StartupStep([&] { settings_path_ = JoinPath(location_.folder, "Vireo.ini"); });
  StartupStep([&] { LogAction("Resetting cache"); });
  StartupStep([&] { LogAction("Setting up"); });
  StartupStep([&] {
    LogAction("Startup", LogFile::kNew);
    default_paper_colour_ = view_.SystemWindowColour();
    default_ink_colour_ = view_.SystemWindowTextColour();
  });
  StartupStep([&] {
    LogAction("Showing splash");
    view_.ShowSplash();
    pump_.Yield();
  });
  StartupStep([&] {
    view_.SetSplashStatus("Loading Settings");
    pump_.Yield();
    LoadSettings(settings_path_);
  });
  StartupStep([&] { view_.SetSplashStatus("Setting up"); });
  StartupStep([&] {
    LogAction(GetTranslation("Registering File Extensions"));
    RegisterFileTypes(location_.executable_path);
  });
  StartupStep([&] {
    view_.SetSplashStatus(GetTranslation("Loading Textures"));
    LogAction(GetTranslation("Loading Textures"));
  });
  StartupStep([&] {
    LogAction("Scanning fonts");
    view_.SetSplashStatus("Scanning fonts...");
  });
  StartupStep([&] { view_.SetSplashStatus("Setting up image containers..."); });
  StartupStep([&] { program_folder_ = ProgramFolderString(location_.folder); });
  StartupStep([&] {
    view_.SetSplashStatus("Reading settings");
    LogAction("Reading settings");
  });
  StartupStep([&] { reformat_ = sget("Reformat", true).ToBoolean(); });
  StartupStep([&] { LogAction("Drawing blank book"); });
  StartupStep([&] {
    LogAction("Attempting to load Vireo" + std::string(kExecutableSuffix));
    view_.SetSplashStatus("Loading book");
    pump_.Yield();
  });
  StartupStep([&] { busy_ = false; });
  StartupStep([&] { LoadFile(location_.executable_path, *this); });
  StartupStep([&] { view_.SetExitCaption(ExitCaption()); });
  StartupStep([&] {
    LogAction("Startup complete");
    pump_.Yield();
    view_.UnloadSplash();
  });
}

void frmMain::Quit() {
  Trap("sub quit", kModule, [&] {
    if (busy_) return;
    StoreSettings();
    ClosingRoutine();
  });
}

void frmMain::StoreSettings() {
  Trap("sub storesettings", kModule, [&] { savesettings(settings_path_); });
}

void frmMain::ClosingRoutine() {
  Trap("sub closingroutine", kModule, [&] {
    pump_.Yield();
    ShutdownProg(view_);
  });
}

bool frmMain::Form_QueryUnload(bool closed_by_user) {
  bool cancel = false;
  Trap("sub form_queryunload", kModule, [&] {
    if (paginator_busy_) {
      cancel = true;
      return;
    }
    if (!busy_ && closed_by_user) Quit();
  });
  return cancel;
}

void frmMain::mnuLoad_Click() {
  Trap("sub mnuload_click", kModule, [&] {
    user_.ShowMessage(GetTranslation("Loading is not supported in this version."), "Vireo");
  });
}

void ShutdownProg(MainWindowView& view) {
  Trap("sub shutdownprog", "modConstVRO", [&] {
    view.UnloadAllWindows();
    ListActions();
    LogAction("Shutdown");
    view.EndProgram(0);
  });
}

}  // namespace vireo
