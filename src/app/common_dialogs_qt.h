#pragma once

#include <QWidget>

class QFileDialog;

#include "support/common_dialogs.h"

class QPrinter;

namespace vireo {

// The platform's common dialogs (file, colour, print, page setup) in one
// place. In the non-interactive mode no dialog is shown: each is answered
// from the environment and written to standard error as "[file] title:
// answer" ("[colour]", "[print]"), or "cancelled" when the variable is not set:
//   VIREO_ANSWER_FILE=PATH     the file (or folder) chosen in a file dialog
//   VIREO_ANSWER_FILTER=N      the kind of file chosen with it (0-based)
//   VIREO_ANSWER_COLOUR=#RRGGBB
//   VIREO_ANSWER_PRINT=FILE.pdf  print to that PDF file
//   VIREO_ANSWER_PAGES=FROM-TO   the pages chosen in the print dialog (all by default)
// Page setup keeps the printer's settings in the non-interactive mode.
class QtCommonDialogs : public CommonDialogs {
 public:
  enum class FileDialogKind { kOpen, kSave, kFolder };

  explicit QtCommonDialogs(QWidget* parent) : parent_(parent) {}

  std::optional<FileChoice> AskSaveFile(std::string_view title, std::string_view suggested_path,
                                        const std::vector<std::string>& filters) override;
  std::optional<FileChoice> AskOpenFile(std::string_view title, std::string_view folder,
                                        const std::vector<std::string>& filters) override;
  std::optional<std::string> AskFolder(std::string_view title, std::string_view folder) override;
  std::optional<uint32_t> AskColour(std::string_view title, uint32_t initial) override;

  // The file dialog the Ask methods show, not yet shown and owned by the
  // parent (the pictures show it over the window).
  QFileDialog* NewFileDialog(FileDialogKind kind, std::string_view title, std::string_view start,
                             const std::vector<std::string>& filters);

  // The print dialog for pages 1..page_count on printer; false when cancelled.
  bool AskPrint(QPrinter& printer, int page_count);
  // The page setup dialog (paper, orientation, margins); false when cancelled.
  bool AskPageSetup(QPrinter& printer);

 private:
  std::optional<FileChoice> AskFile(FileDialogKind kind, std::string_view title,
                                    std::string_view start,
                                    const std::vector<std::string>& filters);
  QWidget* parent_;
};

}  // namespace vireo
