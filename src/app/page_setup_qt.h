#pragma once

#include <QString>
#include <memory>

#include "app/frm_main.h"
#include "prefs/settings_dialog.h"

class QWidget;

namespace vireo {

// The settings dialog filled from the reader's preferences, the textures
// beside the program and the system colours, its OK applied to the reader.
std::unique_ptr<frmSettings> MakePageSetup(frmMain& logic, UserInteraction& user, QWidget* parent);

// "Settings" and "Page Setup": shows the dialog modally. Refused while the
// book is paginated; in the non-interactive mode it is cancelled at once.
void ShowPageSetup(frmMain& logic, UserInteraction& user, QWidget* parent);

// Shows the dialog without waiting, saves a picture of it to path and closes
// it; false when the picture cannot be written.
bool SavePageSetupPicture(frmMain& logic, UserInteraction& user, const QString& path);

}  // namespace vireo
