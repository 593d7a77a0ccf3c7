#include "app/book_printer_qt.h"

#include <QPainter>
#include <QPrintPreviewDialog>
#include <QProgressDialog>
#include <memory>

#include "app/interaction_qt.h"
#include "app/print_job.h"
#include "app/printer_surface_qt.h"
#include "prefs/settings_get_set.h"
#include "render/book_display.h"
#include "support/logging.h"
#include "support/translate_form_qt.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr double kDefaultMarginMillimetres = 15;
constexpr const char* kMarginKeys[] = {"PrintMarginLeft", "PrintMarginTop", "PrintMarginRight",
                                       "PrintMarginBottom"};

// The sheets of one job on a painter that is open on the printer.
class PrinterSheets : public PrintSheets {
 public:
  PrinterSheets(QPrinter& printer, QPainter& painter, frmMain& logic, QProgressDialog* progress)
      : printer_(printer), painter_(painter), logic_(logic), progress_(progress) {}

  bool NewSheet() override { return printer_.newPage(); }
  void PrintBookPage(int page) override {
    const Surface& box = logic_.context().buffers.Box(kLeftPageBox);
    const QRectF target(QPointF(0, 0),
                        printer_.pageLayout().paintRectPixels(printer_.resolution()).size());
    PrinterSurface surface(painter_, target, box.ScaleWidth(), box.ScaleHeight());
    logic_.spread().plotter().PrintOnPage(page, surface);
  }
  void Progress(int done, int total) override {
    if (progress_ == nullptr) return;
    progress_->setMaximum(total);
    progress_->setValue(done);
  }
  bool Cancelled() override { return progress_ != nullptr && progress_->wasCanceled(); }

 private:
  QPrinter& printer_;
  QPainter& painter_;
  frmMain& logic_;
  QProgressDialog* progress_;
};

}  // namespace

BookPrinter::BookPrinter(QWidget* parent, frmMain& logic, QtCommonDialogs& dialogs,
                         UserInteraction& user)
    : parent_(parent), logic_(logic), dialogs_(dialogs), user_(user) {}

void BookPrinter::ApplyLayout(QPrinter& printer) const {
  double margins[4];
  for (int side = 0; side < 4; ++side) {
    margins[side] = sget(kMarginKeys[side], kDefaultMarginMillimetres).ToNumber();
  }
  printer.setPageOrientation(sget("PrintLandscape", false).ToBoolean() ? QPageLayout::Landscape
                                                                       : QPageLayout::Portrait);
  printer.setPageMargins(QMarginsF(margins[0], margins[1], margins[2], margins[3]),
                         QPageLayout::Millimeter);
}

void BookPrinter::PageSetup() {
  QPrinter printer(QPrinter::HighResolution);
  ApplyLayout(printer);
  if (!dialogs_.AskPageSetup(printer)) return;
  const QMarginsF margins = printer.pageLayout().margins(QPageLayout::Millimeter);
  const double values[4] = {margins.left(), margins.top(), margins.right(), margins.bottom()};
  for (int side = 0; side < 4; ++side) sset(kMarginKeys[side], values[side]);
  sset("PrintLandscape", printer.pageLayout().orientation() == QPageLayout::Landscape);
}

void BookPrinter::Print(int page_count) {
  QPrinter printer(QPrinter::HighResolution);
  ApplyLayout(printer);
  if (!dialogs_.AskPrint(printer, page_count)) return;
  PrintPages(printer, page_count, !NonInteractiveMode());
}

void BookPrinter::PrintPages(QPrinter& printer, int page_count, bool progress) {
  const PageRange range = PrintedPages(printer.fromPage(), printer.toPage(), page_count);
  QPainter painter;
  if (!painter.begin(&printer)) {
    return PrinterError(printer.outputFileName().isEmpty()
                            ? Tr("The printer could not be started:") + " " + printer.printerName()
                            : Tr("The file could not be written:") + " " +
                                  printer.outputFileName());
  }
  std::unique_ptr<QProgressDialog> dialog;
  if (progress) {
    dialog = std::make_unique<QProgressDialog>(Tr("Printing..."), Tr("Cancel"), 0, range.count(),
                                               parent_);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setMinimumDuration(500);
  }
  PrinterSheets sheets(printer, painter, logic_, dialog.get());
  const PrintOutcome outcome = RunPrintJob(range, sheets, logic_.context().pump);
  if (outcome == PrintOutcome::kCancelled) printer.abort();
  painter.end();
  if (outcome == PrintOutcome::kFailed) {
    PrinterError(Tr("The printer stopped taking pages."));
  }
}

QWidget* BookPrinter::Preview(int first, int last) {
  auto* printer = new QPrinter(QPrinter::HighResolution);
  ApplyLayout(*printer);
  printer->setFromTo(first, last);
  auto* preview = new QPrintPreviewDialog(printer, parent_);
  QObject::connect(preview, &QObject::destroyed, [printer] { delete printer; });
  const int page_count = logic_.book_pages().PageCount();
  QObject::connect(
      preview, &QPrintPreviewDialog::paintRequested,
      [this, page_count](QPrinter* target) { PrintPages(*target, page_count, false); });
  return preview;
}

void BookPrinter::PrinterError(const QString& description) {
  LogAction("Printer Error! " + description.toStdString());
  user_.ShowMessage(ToWindows1252(description), GetTranslation("Printer Error!"));
}

}  // namespace vireo
