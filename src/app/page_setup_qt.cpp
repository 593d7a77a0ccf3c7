#include "app/page_setup_qt.h"

#include <QApplication>
#include <cstdio>

#include "app/interaction_qt.h"
#include "render/book_view.h"

namespace vireo {

std::unique_ptr<frmSettings> MakePageSetup(frmMain& logic, UserInteraction& user, QWidget* parent) {
  std::array<std::string, 4> textures;
  for (const TextureFile& file : LoadTextures(logic.context().location.DataFolder())) {
    textures.at(static_cast<size_t>(file.slot)) = file.path;
  }
  const WindowColours& system = logic.context().system_colours;
  return std::make_unique<frmSettings>(
      logic.preferences(), SystemColours{system.window, system.window_text}, textures, user,
      [&logic](const SettingsOutcome& outcome) { logic.view_commands().ApplyPageSetup(outcome); },
      parent);
}

void ShowPageSetup(frmMain& logic, UserInteraction& user, QWidget* parent) {
  if (logic.paginator_busy()) return;
  if (NonInteractiveMode()) {
    std::fprintf(stderr, "[input] Page Setup: cancelled\n");
    return;
  }
  MakePageSetup(logic, user, parent)->exec();
}

bool SavePageSetupPicture(frmMain& logic, UserInteraction& user, const QString& path) {
  const std::unique_ptr<frmSettings> dialog = MakePageSetup(logic, user, nullptr);
  dialog->show();
  QApplication::processEvents();
  const bool saved = dialog->grab().save(path);
  dialog->close();
  return saved;
}

}  // namespace vireo
