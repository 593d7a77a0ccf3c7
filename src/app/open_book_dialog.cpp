#include "app/open_book_dialog.h"

#include <QFileDialog>
#include <cstdio>
#include <cstdlib>

#include "app/file_types.h"
#include "app/interaction_qt.h"
#include "support/translation.h"

namespace vireo {

std::optional<std::string> ChooseBookFile(QWidget* parent, const std::string& folder) {
  if (NonInteractiveMode()) {
    const char* chosen = std::getenv("VIREO_OPEN_FILE");
    std::fprintf(stderr, "[input] Open: %s\n", chosen != nullptr ? chosen : "cancelled");
    if (chosen == nullptr) return std::nullopt;
    return std::string(chosen);
  }
  const QString path = QFileDialog::getOpenFileName(
      parent, QString::fromStdString(GetTranslation("Open a book")),
      QString::fromLocal8Bit(folder.c_str()), QString::fromStdString(OpenDialogFilter()));
  if (path.isEmpty()) return std::nullopt;
  return path.toLocal8Bit().toStdString();
}

}  // namespace vireo
