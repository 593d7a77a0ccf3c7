#pragma once

#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <functional>
#include <string>
#include <string_view>

#include "support/error_report.h"

namespace vireo {

// The error-report form: the error, the program log and a box for the
// person's note; View report writes "fulllog.txt" and opens it, E-mail opens
// a mail to the maker. What the report holds is decided by the core
// (support/error_report.h); the form only shows it and passes the note on.
class fSHAREDErrorRpt : public QDialog {
  Q_OBJECT

 public:
  // folder: the program's folder, where "log.txt" is read and the report
  // written. open: how a file or mail link is opened (OpenAddress).
  fSHAREDErrorRpt(std::string folder, std::function<void(const QUrl&)> open,
                  QWidget* parent = nullptr);

  // Puts the error into the error box and the log (or "No log file") into
  // the log box.
  void ShowError(std::string_view error);

  QPlainTextEdit* txtError;
  QPlainTextEdit* txtLog;
  QPlainTextEdit* txtNote;
  QPushButton* cmdViewReport;
  QPushButton* cmdEmail;
  QPushButton* cmdClose;

 private:
  ErrorReport Report() const;
  void ViewReport();
  void Email();

  std::string folder_;
  std::function<void(const QUrl&)> open_;
  ErrorReport shown_;
};

// Shows the error-report form for error over parent and waits until it is
// closed; in the non-interactive mode writes "[error] Vireo: " and the error
// to standard error instead.
void ShowErr(QWidget* parent, std::string_view error, const std::string& folder);

}  // namespace vireo
