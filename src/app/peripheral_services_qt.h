#pragma once

#include <QPointer>
#include <QWidget>

#include "app/book_canvas_widget.h"
#include "app/book_printer_qt.h"
#include "app/common_dialogs_qt.h"
#include "app/help_window.h"
#include "app/peripheral_services.h"
#include "app/speech_engine_qt.h"

namespace vireo {

// The reader's peripheral services on the desktop: the help window, the
// printer, the clipboard, the browser, the common dialogs and speech.
class QtPeripheralServices : public PeripheralServices {
 public:
  QtPeripheralServices(QWidget* window, BookCanvasWidget& canvas, UserInteraction& user);
  // The logic the printer draws with; set once the main window's logic exists.
  void SetLogic(frmMain& logic);

  void ShowManual() override;
  void PrintBook(int page_count) override;
  void CopyPage(int box, const std::string& text) override;
  void OpenWebPage(const std::string& address) override;
  CommonDialogs& Dialogs() override { return dialogs_; }
  SpeechEngine& Speech() override { return speech_; }

  QtCommonDialogs& common_dialogs() { return dialogs_; }
  BookPrinter& printer() { return *printer_; }
  // The help window once opened, else nullptr.
  HelpWindow* help_window() const { return help_; }

 private:
  QWidget* window_;
  BookCanvasWidget& canvas_;
  UserInteraction& user_;
  std::string program_folder_;
  QtCommonDialogs dialogs_;
  QtSpeechEngine speech_;
  std::unique_ptr<BookPrinter> printer_;
  QPointer<HelpWindow> help_;
};

}  // namespace vireo
