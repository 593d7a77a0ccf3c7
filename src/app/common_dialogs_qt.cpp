#include "app/common_dialogs_qt.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "app/interaction_qt.h"
#include "render/qt_surface_qt.h"

namespace vireo {
namespace {

const char* Answer(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0' ? value : nullptr;
}

// Writes the non-interactive answer to standard error and returns it.
const char* Announce(const char* kind, std::string_view title, const char* answer) {
  std::fprintf(stderr, "[%s] %.*s: %s\n", kind, static_cast<int>(title.size()), title.data(),
               answer != nullptr ? answer : "cancelled");
  return answer;
}

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

std::optional<FileChoice> QtCommonDialogs::AskSaveFile(std::string_view title,
                                                       std::string_view suggested_path,
                                                       const std::vector<std::string>& filters) {
  return AskFile(FileDialogKind::kSave, title, suggested_path, filters);
}

std::optional<FileChoice> QtCommonDialogs::AskOpenFile(std::string_view title,
                                                       std::string_view folder,
                                                       const std::vector<std::string>& filters) {
  return AskFile(FileDialogKind::kOpen, title, folder, filters);
}

std::optional<std::string> QtCommonDialogs::AskFolder(std::string_view title,
                                                      std::string_view folder) {
  const auto chosen = AskFile(FileDialogKind::kFolder, title, folder, {});
  if (!chosen) return std::nullopt;
  return chosen->path;
}

QFileDialog* QtCommonDialogs::NewFileDialog(FileDialogKind kind, std::string_view title,
                                            std::string_view start,
                                            const std::vector<std::string>& filters) {
  auto* dialog = new QFileDialog(parent_, Text(title), Text(start));
  const bool save = kind == FileDialogKind::kSave;
  dialog->setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog->setFileMode(kind == FileDialogKind::kFolder ? QFileDialog::Directory
                      : save                          ? QFileDialog::AnyFile
                                                      : QFileDialog::ExistingFile);
  if (kind == FileDialogKind::kFolder) dialog->setOption(QFileDialog::ShowDirsOnly);
  QStringList kinds;
  for (const std::string& filter : filters) kinds << Text(filter);
  if (!kinds.isEmpty()) dialog->setNameFilters(kinds);
  if (save) dialog->selectFile(Text(start));
  return dialog;
}

std::optional<FileChoice> QtCommonDialogs::AskFile(FileDialogKind kind, std::string_view title,
                                                   std::string_view start,
                                                   const std::vector<std::string>& filters) {
  if (NonInteractiveMode()) {
    const char* path = Announce("file", title, Answer("VIREO_ANSWER_FILE"));
    if (path == nullptr) return std::nullopt;
    const char* filter = Answer("VIREO_ANSWER_FILTER");
    return FileChoice{path, filter != nullptr ? std::atoi(filter) : 0};
  }
  const std::unique_ptr<QFileDialog> dialog(NewFileDialog(kind, title, start, filters));
  if (dialog->exec() != QDialog::Accepted || dialog->selectedFiles().isEmpty()) return std::nullopt;
  return FileChoice{dialog->selectedFiles().first().toLocal8Bit().toStdString(),
                    static_cast<int>(dialog->nameFilters().indexOf(dialog->selectedNameFilter()))};
}

std::optional<uint32_t> QtCommonDialogs::AskColour(std::string_view title, uint32_t initial) {
  if (NonInteractiveMode()) {
    const char* answer = Announce("colour", title, Answer("VIREO_ANSWER_COLOUR"));
    const QColor colour(answer != nullptr ? answer : "");
    if (!colour.isValid()) return std::nullopt;
    return QtSurface::BgrFromColor(colour);
  }
  const QColor colour =
      QColorDialog::getColor(QtSurface::ColorFromBgr(initial), parent_, Text(title));
  if (!colour.isValid()) return std::nullopt;
  return QtSurface::BgrFromColor(colour);
}

bool QtCommonDialogs::AskPrint(QPrinter& printer, int page_count) {
  printer.setFromTo(0, 0);
  if (NonInteractiveMode()) {
    const char* file = Announce("print", "Print", Answer("VIREO_ANSWER_PRINT"));
    if (file == nullptr) return false;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromLocal8Bit(file));
    int from = 0;
    int to = 0;
    if (const char* pages = Answer("VIREO_ANSWER_PAGES")) std::sscanf(pages, "%d-%d", &from, &to);
    printer.setFromTo(from, to);
    return true;
  }
  QPrintDialog dialog(&printer, parent_);
  dialog.setMinMax(1, page_count);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, true);
  return dialog.exec() == QDialog::Accepted;
}

bool QtCommonDialogs::AskPageSetup(QPrinter& printer) {
  if (NonInteractiveMode()) return Announce("print", "Print Setup", nullptr) != nullptr;
  QPageSetupDialog dialog(&printer, parent_);
  return dialog.exec() == QDialog::Accepted;
}

}  // namespace vireo
