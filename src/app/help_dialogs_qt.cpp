#include "app/help_dialogs_qt.h"

#include <QTimer>

#include "app/error_report_dialog.h"
#include "support/translation.h"

namespace vireo {

HelpDialogs::HelpDialogs(QWidget* window, frmMain& logic)
    : QObject(window), window_(window), logic_(logic) {}

frmAbout* HelpDialogs::ShowAbout() {
  const BookSession& session = logic_.book();
  AboutBook book;
  book.loaded = logic_.book_pages().loaded;
  book.title = session.stored_title().empty() ? session.title() : session.stored_title();
  book.author = session.author();
  book.stored_size = session.stored_size();
  auto* about = new frmAbout(book, window_);
  about->setAttribute(Qt::WA_DeleteOnClose);
  about->open();
  return about;
}

void HelpDialogs::ReportProblem() {
  ShowReport(last_error_.empty() ? GetTranslation("No error has been recorded in this run.")
                                 : last_error_);
}

void HelpDialogs::ErrorReached(const std::string& entry) {
  last_error_ = entry;
  if (report_due_) return;
  report_due_ = true;
  QTimer::singleShot(0, this, [this] { ShowReport(last_error_); });
}

void HelpDialogs::ShowReport(const std::string& error) {
  report_due_ = true;
  ShowErr(window_, error, logic_.context().location.StateFolder());
  report_due_ = false;
}

}  // namespace vireo
