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
  QFileDialog* dialog = NewOpenBookDialog(parent, folder);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  if (dialog->exec() != QDialog::Accepted || dialog->selectedFiles().isEmpty()) {
    return std::nullopt;
  }
  return dialog->selectedFiles().front().toLocal8Bit().toStdString();
}

QFileDialog* NewOpenBookDialog(QWidget* parent, const std::string& folder) {
  auto* dialog = new QFileDialog(parent, QString::fromStdString(GetTranslation("Open a book")),
                                 QString::fromLocal8Bit(folder.c_str()),
                                 QString::fromStdString(OpenDialogFilter()));
  dialog->setFileMode(QFileDialog::ExistingFile);
  dialog->setAcceptMode(QFileDialog::AcceptOpen);
  return dialog;
}

}  // namespace vireo
