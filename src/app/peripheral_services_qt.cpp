#include "app/peripheral_services_qt.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include "app/help_manual.h"
#include "app/interaction_qt.h"
#include "support/translation.h"

namespace vireo {

QtPeripheralServices::QtPeripheralServices(QWidget* window, BookCanvasWidget& canvas,
                                           UserInteraction& user)
    : window_(window), canvas_(canvas), user_(user), dialogs_(window), speech_(window) {}

void QtPeripheralServices::SetLogic(frmMain& logic) {
  program_folder_ = logic.context().location.folder;
  printer_ = std::make_unique<BookPrinter>(window_, logic, dialogs_, user_);
}

void QtPeripheralServices::ShowManual() {
  if (help_ == nullptr) {
    help_ = new HelpWindow(window_);
    help_->setAttribute(Qt::WA_DeleteOnClose);
  }
  const std::string folder = ManualFolder(program_folder_);
  if (!help_->Open(folder)) {
    delete help_;
    user_.ShowMessage(
        GetTranslation("The manual was not found. It belongs in the folder") + " " + folder,
        "Vireo");
    return;
  }
  help_->show();
  help_->raise();
  help_->activateWindow();
}

void QtPeripheralServices::PrintBook(int page_count) { printer_->Print(page_count); }

void QtPeripheralServices::CopyPage(int box, const std::string& text) {
  auto* data = new QMimeData;
  data->setImageData(canvas_.BoxImage(box));
  data->setText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
  QApplication::clipboard()->setMimeData(data);
}

void QtPeripheralServices::OpenWebPage(const std::string& address) {
  OpenAddress(QUrl(QString::fromStdString(address)));
}

}  // namespace vireo
