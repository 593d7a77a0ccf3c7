#pragma once

#include <QPrinter>
#include <QWidget>

#include "app/common_dialogs_qt.h"
#include "app/frm_main.h"

namespace vireo {

// Prints the open book: the print dialog chooses the printer (or a PDF
// file), the pages and the copies; each book page goes on a sheet of its
// own with the lines it has on screen, scaled to fit inside the margins.
// The margins and orientation chosen in Print Setup are kept in the
// preferences ("PrintMarginLeft", "PrintMarginTop", "PrintMarginRight",
// "PrintMarginBottom" in millimetres, "PrintLandscape"). A printer that
// cannot be used is reported in a "Printer Error!" box.
class BookPrinter {
 public:
  BookPrinter(QWidget* parent, frmMain& logic, QtCommonDialogs& dialogs, UserInteraction& user);

  void Print(int page_count);
  void PageSetup();
  // The print preview of pages first..last (for pictures); the caller owns
  // and shows it.
  QWidget* Preview(int first, int last);

 private:
  void ApplyLayout(QPrinter& printer) const;
  // Prints the printer's chosen pages (all of a book of page_count pages
  // when none were chosen) with progress when `progress` is set.
  void PrintPages(QPrinter& printer, int page_count, bool progress);
  void PrinterError(const QString& description);

  QWidget* parent_;
  frmMain& logic_;
  QtCommonDialogs& dialogs_;
  UserInteraction& user_;
};

}  // namespace vireo
