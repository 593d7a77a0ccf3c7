#include "app/error_report_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <cstdio>

#include "app/interaction_qt.h"
#include "support/error_trap.h"
#include "support/translate_form_qt.h"
#include "support/translation.h"

namespace vireo {
namespace {

// The boxes show the texts with plain line ends; the report keeps CR LF.
QString ForBox(std::string_view text) {
  return FromWindows1252(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

QPlainTextEdit* AddBox(QVBoxLayout* layout, const char* name, const char* caption) {
  auto* box = new QPlainTextEdit;
  box->setObjectName(name);
  layout->addWidget(new QLabel(Tr(caption)));
  layout->addWidget(box);
  return box;
}

QPushButton* AddButton(QHBoxLayout* row, const char* name, const char* caption) {
  auto* button = new QPushButton(Tr(caption));
  button->setObjectName(name);
  row->addWidget(button);
  return button;
}

}  // namespace

fSHAREDErrorRpt::fSHAREDErrorRpt(std::string folder, std::function<void(const QUrl&)> open,
                                 QWidget* parent)
    : QDialog(parent), folder_(std::move(folder)), open_(std::move(open)) {
  setObjectName("fSHAREDErrorRpt");
  setWindowTitle(Tr("Vireo - Error Report"));
  auto* layout = new QVBoxLayout(this);
  txtError = AddBox(layout, "txtError", Translatable("The error:"));
  txtLog = AddBox(layout, "txtLog", Translatable("The program's log:"));
  txtNote = AddBox(layout, "txtNote", Translatable("Your note:"));
  txtError->setReadOnly(true);
  txtError->setMaximumHeight(64);
  txtLog->setReadOnly(true);
  txtLog->setLineWrapMode(QPlainTextEdit::NoWrap);
  txtNote->setMaximumHeight(80);
  txtNote->setPlaceholderText(Tr("What were you doing when this happened?"));
  auto* buttons = new QHBoxLayout;
  cmdViewReport = AddButton(buttons, "cmdViewReport", Translatable("View report"));
  cmdEmail = AddButton(buttons, "cmdEmail", Translatable("E-mail report"));
  buttons->addStretch();
  cmdClose = AddButton(buttons, "cmdClose", Translatable("Close"));
  layout->addLayout(buttons);
  connect(cmdViewReport, &QPushButton::clicked, this, &fSHAREDErrorRpt::ViewReport);
  connect(cmdEmail, &QPushButton::clicked, this, &fSHAREDErrorRpt::Email);
  connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
  resize(560, 460);
}

void fSHAREDErrorRpt::ShowError(std::string_view error) {
  shown_.error = std::string(error);
  shown_.log = ReportLogText(folder_);
  txtError->setPlainText(ForBox(shown_.error));
  txtLog->setPlainText(ForBox(shown_.log));
}

ErrorReport fSHAREDErrorRpt::Report() const {
  ErrorReport report = shown_;
  report.note = ToWindows1252(txtNote->toPlainText().replace('\n', QLatin1String("\r\n")));
  return report;
}

void fSHAREDErrorRpt::ViewReport() {
  Trap("sub cmdviewreport_click", "fSHAREDErrorRpt", [&] {
    open_(QUrl::fromLocalFile(QString::fromLocal8Bit(WriteReportFile(folder_, Report()))));
  });
}

void fSHAREDErrorRpt::Email() {
  Trap("sub cmdemail_click", "fSHAREDErrorRpt",
       [&] { open_(QUrl(QString::fromLatin1(ReportMailLink(Report())), QUrl::StrictMode)); });
}

void ShowErr(QWidget* parent, std::string_view error, const std::string& folder) {
  Trap("showerr", "mSHAREDShowError", [&] {
    if (NonInteractiveMode()) {
      std::fprintf(stderr, "[error] Vireo: %.*s\n", static_cast<int>(error.size()), error.data());
      std::fflush(stderr);
      return;
    }
    fSHAREDErrorRpt form(
        folder, [](const QUrl& address) { OpenAddress(address); }, parent);
    form.ShowError(error);
    form.exec();
  });
}

}  // namespace vireo
