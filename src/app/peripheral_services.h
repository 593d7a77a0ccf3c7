#pragma once

#include <string>

#include "app/speech_engine.h"
#include "support/common_dialogs.h"

namespace vireo {

// The platform's services beyond the window that the reader's commands use:
// the manual, the printer, the clipboard, the web browser, the common
// dialogs and speech. The Qt layer implements it; tests fake it.
class PeripheralServices {
 public:
  virtual ~PeripheralServices() = default;
  // The help window on the manual's contents page.
  virtual void ShowManual() = 0;
  // The print dialog for pages 1..page_count, then the printing of the
  // chosen pages with progress; errors are shown as "Printer Error!".
  virtual void PrintBook(int page_count) = 0;
  // The picture of page box `box` and `text` (UTF-8) go to the clipboard together.
  virtual void CopyPage(int box, const std::string& text) = 0;
  // Opens a web address in the desktop's browser.
  virtual void OpenWebPage(const std::string& address) = 0;
  virtual CommonDialogs& Dialogs() = 0;
  virtual SpeechEngine& Speech() = 0;
};

}  // namespace vireo
