#pragma once

#include <QWidget>
#include <optional>
#include <string>

namespace vireo {

// The platform's file dialog for Open..., filtered on the book types with
// an "All files" choice, starting in folder. The chosen file's path, or
// nullopt when cancelled. In the non-interactive mode no dialog is shown:
// the file named by VIREO_OPEN_FILE is chosen (written to standard error as
// "[input] Open: PATH"), or the dialog counts as cancelled.
std::optional<std::string> ChooseBookFile(QWidget* parent, const std::string& folder);

}  // namespace vireo
