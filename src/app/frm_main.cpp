#include "app/frm_main.h"

#include "app/file_types.h"
#include "nav/bookmarks.h"
#include "prefs/settings_get_set.h"
#include "render/book_view.h"
#include "support/error_trap.h"
#include "support/logging.h"
#include "support/maker.h"
#include "support/platform.h"
#include "support/translation.h"
#include "support/vhtml_library.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

}  // namespace

frmMain::frmMain(MainWindowView& view, UserInteraction& user, MessagePump& pump,
                 ProgramLocation location)
    : view_(view),
      user_(user),
      pump_(pump),
      location_(std::move(location)),
      composer_(pump),
      plotter_(*this, prefs_, composer_, reindex_.FontMetrics()),
      cache_(*this, pump, reading_),
      turner_(*this, pump, cache_, reading_, turn_settings_),
      navigator_(*this, reading_) {
  reindex_.SetEvents(this);
  reindex_.SetMessagePump(&pump);
}

frmMain::~frmMain() = default;

std::string frmMain::ExitCaption() { return "Exit Vireo " + AppVersion(); }

std::string frmMain::ProgramFolderString(const std::string& folder) {
  if (!folder.empty() && (folder.back() == '\\' || folder.back() == '/')) return "C:";
  return folder;
}

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
  StartupStep([&] {
    LogAction("Resetting cache");
    cache_.ResetCache();
  });
  StartupStep([&] { LogAction("Setting up"); });
  StartupStep([&] {
    LogAction("Startup", LogFile::kNew);
    system_colours_ = {view_.SystemWindowColour(), view_.SystemWindowTextColour()};
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
    SetBookmarksFolder(location_.folder);
  });
  // FIXME: the language list and menu are filled once translation files land.
  StartupStep([&] { view_.SetSplashStatus("Setting up"); });
  StartupStep([&] {
    LogAction(GetTranslation("Registering File Extensions"));
    RegisterFileTypes(location_.executable_path);
  });
  StartupStep([&] {
    view_.SetSplashStatus(GetTranslation("Loading Textures"));
    LogAction(GetTranslation("Loading Textures"));
    LoadPaperTextures();
  });
  StartupStep([&] {
    LogAction("Scanning fonts");
    view_.SetSplashStatus("Scanning fonts...");
  });
  // FIXME: the image store is created here once pictures in books land.
  StartupStep([&] { view_.SetSplashStatus("Setting up image containers..."); });
  StartupStep([&] { program_folder_ = ProgramFolderString(location_.folder); });
  StartupStep([&] {
    view_.SetSplashStatus("Reading settings");
    LogAction("Reading settings");
    ReadSettings(prefs_, *this, system_colours_);
    view_.SetBarVisible(!prefs_.bar_hidden);
    SyncTurnSettings();
    reading_.mode = prefs_.single_page_mode ? PageMode::kSingle : PageMode::kDouble;
    for (int box = 0; box < kBoxCount; ++box) plotter_.SetTexture(box);
  });
  StartupStep([&] {
    reformat_ = sget("Reformat", true).ToBoolean();
    view_.SetMenuTick("mnuFormatting", reformat_);
  });
  StartupStep([&] {
    LogAction("Drawing blank book");
    LayOutBook();
  });
  StartupStep([&] {
    LogAction("Attempting to load Vireo" + std::string(kExecutableSuffix));
    view_.SetSplashStatus("Loading book");
    pump_.Yield();
  });
  StartupStep([&] {
    DrawTitlePage();
    ReadDefaultPath(prefs_, location_.folder);
    busy_ = false;
    view_.ShowMainWindow();
  });
  StartupStep([&] { OpenBook(location_.executable_path); });
  StartupStep([&] { view_.SetExitCaption(ExitCaption()); });
  StartupStep([&] {
    LogAction("Startup complete");
    pump_.Yield();
    view_.UnloadSplash();
  });
}

void frmMain::LoadPaperTextures() {
  Trap("sub loadtextures", kModule, [&] {
    for (const TextureFile& file : LoadTextures(location_.folder)) {
      view_.LoadTexture(file.slot, file.path);
    }
  });
}

void frmMain::Quit() {
  Trap("sub quit", kModule, [&] {
    // The window is busy while it starts, while a font change is applied and
    // while the book is paginated; closing then would cut the work short.
    if (busy_ || font_guard_ || reindex_.Busy()) return;
    StoreSettings();
    ClosingRoutine();
  });
}

void frmMain::StoreSettings() {
  Trap("sub storesettings", kModule, [&] { vireo::StoreSettings(prefs_, *this, settings_path_); });
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
    if (reindex_.Busy()) {
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
