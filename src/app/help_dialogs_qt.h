#pragma once

#include <QObject>
#include <QWidget>
#include <string>

#include "app/about_dialog.h"
#include "app/frm_main.h"

namespace vireo {

// The windows the Help side of the menu opens over the main window: the
// about window and the error-report form, which also comes up by itself
// when an error reaches the person.
class HelpDialogs : public QObject {
  Q_OBJECT

 public:
  HelpDialogs(QWidget* window, frmMain& logic);

  // The about window, describing the book on show; it does not block.
  frmAbout* ShowAbout();
  // The error-report form for the last error of this run, if any.
  void ReportProblem();
  // An error was recorded: the form shows it once the current command is
  // done, one form at a time; errors while it is up are only logged.
  void ErrorReached(const std::string& entry);

 private:
  void ShowReport(const std::string& error);

  QWidget* window_;
  frmMain& logic_;
  std::string last_error_;
  bool report_due_ = false;
};

}  // namespace vireo
