#include "app/program_lifecycle.h"

#include "app/file_types.h"
#include "nav/bookmarks.h"
#include "prefs/settings_get_set.h"
#include "support/error_trap.h"
#include "support/logging.h"
#include "support/maker.h"
#include "support/milestones.h"
#include "support/platform.h"
#include "support/translation.h"
#include "support/vhtml_library.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

// One start-up step under the error convention: an error is logged and the
// sequence goes on with the next step.
void StartupStep(auto&& step) {
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

}  // namespace

ProgramLifecycle::ProgramLifecycle(ReaderContext& context, BookSpread& spread, BookSession& session,
                                   BookLoader& loader, WindowPreferences& preferences,
                                   LanguageCommands& languages)
    : context_(context),
      spread_(spread),
      session_(session),
      loader_(loader),
      preferences_(preferences),
      languages_(languages) {}

std::string ProgramLifecycle::ExitCaption() {
  return GetTranslation("Exit Vireo") + " " + AppVersion();
}

std::string ProgramLifecycle::ProgramFolderString(const std::string& folder) {
  if (!folder.empty() && (folder.back() == '\\' || folder.back() == '/')) return "C:";
  return folder;
}

bool ProgramLifecycle::CheckRequiredLibrary() {
  if (TheVHtml().Load(context_.location.DataFolder())) return true;
  context_.user.ShowMessage(VHtmlLibrary::FileName() +
                                " is required. This DLL is contained in the Vireo installer at " +
                                std::string(kMakerHomePage),
                            "Vireo");
  return false;
}

bool ProgramLifecycle::Form_Load() {
  SetLogFolder(context_.location.StateFolder());
  if (!CheckRequiredLibrary()) return false;
  RunStartupSteps();
  return true;
}

void ProgramLifecycle::RunStartupSteps() {
  MainWindowView& view = context_.view;
  MessagePump& pump = context_.pump;
  const std::string& folder = context_.location.folder;
  StartupStep([&] { settings_path_ = JoinPath(context_.location.SettingsFolder(), "Vireo.ini"); });
  StartupStep([&] {
    LogAction("Resetting cache");
    spread_.cache().ResetCache();
  });
  StartupStep([&] {
    LogAction("Setting up");
    session_.EnableBookItems(false);  // the print menu and its kin wait for a book
  });
  StartupStep([&] {
    LogAction("Startup", LogFile::kNew);
    context_.system_colours = view.SystemColours();
  });
  StartupStep([&] {
    LogAction("Showing splash");
    view.ShowSplash();
    pump.Yield();
  });
  StartupStep([&] {
    view.ShowProgress(GetTranslation("Loading Settings"));
    pump.Yield();
    LoadSettings(settings_path_);
    SetBookmarksFolder(context_.location.SettingsFolder());
  });
  StartupStep([&] {
    view.ShowProgress(GetTranslation("Setting up"));
    languages_.FillLanguages();
  });
  StartupStep([&] {
    if (context_.location.installed) {
      LogAction("File extensions are registered by the installation");
      return;
    }
    LogAction(GetTranslation("Registering File Extensions"));
    RegisterFileTypes(context_.location.executable_path);
  });
  StartupStep([&] {
    view.ShowProgress(GetTranslation("Loading Textures"));
    LogAction(GetTranslation("Loading Textures"));
    spread_.LoadPaperTextures();
  });
  WriteMilestone("textures loaded");
  StartupStep([&] {
    LogAction("Scanning fonts");
    view.ShowProgress(GetTranslation("Scanning fonts..."));
  });
  StartupStep([&] {
    view.ShowProgress(GetTranslation("Setting up image containers..."));
    context_.images.SetDecoder(context_.buffers.Pictures());
  });
  // The book is read while the preferences are applied and the window shown.
  StartupStep([&] { loader_.PrefetchBook(context_.location.executable_path); });
  StartupStep([&] { program_folder_ = ProgramFolderString(folder); });
  StartupStep([&] { ApplyPreferences(); });
  WriteMilestone("settings read");
  StartupStep([&] {
    context_.reformat = sget("Reformat", true).ToBoolean();
    view.SetMenuTick("mnuFormatting", context_.reformat);
  });
  StartupStep([&] {
    LogAction("Drawing blank book");
    spread_.LayOutBook();
  });
  StartupStep([&] {
    LogAction("Attempting to load Vireo" + std::string(kExecutableSuffix));
    view.ShowProgress(GetTranslation("Loading book"));
    pump.Yield();
  });
  StartupStep([&] {
    spread_.plotter().DrawTitlePage();
    ReadDefaultPath(context_.prefs, folder);
    context_.busy = false;
    view.ShowMainWindow();
  });
  WriteMilestone("window shown");
  StartupStep([&] { loader_.OpenBook(context_.location.executable_path); });
  StartupStep([&] { view.SetExitCaption(ExitCaption()); });
  StartupStep([&] {
    LogAction("Startup complete");
    pump.Yield();
    view.UnloadSplash();
  });
}

void ProgramLifecycle::ApplyPreferences() {
  context_.view.ShowProgress(GetTranslation("Reading settings"));
  LogAction("Reading settings");
  ReadSettings(context_.prefs, preferences_,
               {context_.system_colours.window, context_.system_colours.window_text});
  context_.view.SetBarVisible(!context_.prefs.bar_hidden);
  context_.reading.mode = context_.prefs.single_page_mode ? PageMode::kSingle : PageMode::kDouble;
  for (int box = 0; box < PageBuffers::kBoxCount; ++box) spread_.plotter().SetTexture(box);
}

void ProgramLifecycle::Quit() {
  Trap("sub quit", kModule, [&] {
    // The window is busy while it starts, while a font change is applied and
    // while the book is paginated; closing then would cut the work short.
    if (context_.busy || context_.font_guard || context_.reindex.Busy()) return;
    StoreSettings();
    ClosingRoutine();
  });
}

void ProgramLifecycle::StoreSettings() {
  Trap("sub storesettings", kModule, [&] {
    Trap("sub storesettings", kModule, [&] { session_.StoreCurrentBookmark(); });
    vireo::StoreSettings(context_.prefs, preferences_, settings_path_);
    Trap("sub storesettings", kModule, [&] { SaveBookmarks(); });
  });
}

void ProgramLifecycle::ClosingRoutine() {
  Trap("sub closingroutine", kModule, [&] {
    context_.images.ClearAll();
    context_.pump.Yield();
    ShutdownProg(context_.view);
  });
}

bool ProgramLifecycle::Form_QueryUnload(bool closed_by_user) {
  bool cancel = false;
  Trap("sub form_queryunload", kModule, [&] {
    if (context_.reindex.Busy()) {
      cancel = true;
      return;
    }
    if (!context_.busy && closed_by_user) Quit();
  });
  return cancel;
}

void ProgramLifecycle::mnuLoad_Click() {
  Trap("sub mnuload_click", kModule, [&] {
    context_.user.ShowMessage(GetTranslation("Loading is not supported in this version."), "Vireo");
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
