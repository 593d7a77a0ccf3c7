// The manual's window, the clipboard, the about window, the error-report form and the
// questions that default to No, on the real window offscreen.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QMessageBox>
#include <filesystem>

#include "app/error_report_dialog.h"
#include "app/reader_window_fixture.h"
#include "support/error_trap.h"

namespace vireo {
namespace {

using test::Answering;

TEST(DangerousQuestions, DeleteAnsweredByEnterKeepsTheBookFile) {
  QtUserInteraction person;
  test::ReaderWindow reader(test::NumberedProse(10), "", &person);
  person.set_parent(&reader.window());
  reader.Start();
  QString asked;
  ASSERT_TRUE(Answering<QMessageBox>([&] { test::Trigger(reader, "mnuErasefile"); },
                                     [&](QMessageBox& box) {
                                       asked = box.text();
                                       QTest::keyClick(&box, Qt::Key_Return);
                                     }));
  EXPECT_TRUE(asked.startsWith("Do you really want to erase")) << asked.toStdString();
  EXPECT_TRUE(std::filesystem::exists(reader.book()));
  EXPECT_TRUE(reader.logic().book_pages().loaded);
}

TEST(ErrorReportForm, ShowsTheErrorAndLogAndOpensTheReportAndTheMail) {
  test::TempFolder folder;
  std::vector<QUrl> opened;
  fSHAREDErrorRpt form(folder.str(), [&](const QUrl& address) { opened.push_back(address); });
  form.ShowError("Overflow in sub showpage(6) of module frmMain");
  EXPECT_EQ(form.txtLog->toPlainText(), "No log file");
  test::WriteFile(folder.File("log.txt"), "12:00:00      Startup\r\n");
  form.ShowError("Overflow in sub showpage(6) of module frmMain");
  EXPECT_EQ(form.txtLog->toPlainText(), "12:00:00      Startup\n");
  EXPECT_EQ(form.txtError->toPlainText(), "Overflow in sub showpage(6) of module frmMain");
  QTest::keyClicks(form.txtNote, "I turned a page");
  form.cmdViewReport->click();
  form.cmdEmail->click();
  ASSERT_EQ(opened.size(), 2u);
  EXPECT_EQ(opened[0].toLocalFile().toStdString(), folder.File("fulllog.txt"));
  EXPECT_NE(test::ReadFile(folder.File("fulllog.txt"))
                .find("frmMain\r\n\r\nI turned a page\r\n\r\n12:00:00      Startup"),
            std::string::npos);
  EXPECT_EQ(opened[1].scheme(), "mailto");
  EXPECT_TRUE(opened[1].toString(QUrl::FullyEncoded).contains("I%20turned%20a%20page%0D%0A"));
}

TEST(HelpDialogs, AboutDescribesTheBookAndTheErrorReportComesUpForAnErrorAndFromTheMenu) {
  test::ReaderWindow reader(test::NumberedProse(10));
  reader.Start();
  reader.window().bar().cmdAbout->click();
  auto* about = reader.window().findChild<frmAbout*>("frmAbout");
  ASSERT_NE(about, nullptr);
  EXPECT_TRUE(about->isVisible());
  EXPECT_TRUE(about->lblBook->text().startsWith("Title, by Author: "));
  about->cmdOK->click();

  SetErrorObserver([&](const std::string& entry) { reader.window().help().ErrorReached(entry); });
  const auto shown_error = [&](const std::function<void()>& action) {
    QString error;
    Answering<fSHAREDErrorRpt>(action, [&](fSHAREDErrorRpt& form) {
      error = form.txtError->toPlainText();
      form.cmdClose->click();
    });
    return error.toStdString();
  };
  EXPECT_EQ(
      shown_error([] {
        RecordError(RuntimeError(ErrorNumber::kPathFileAccess), "sub x", "frmMain");
        QApplication::processEvents();
      }),
      RuntimeError(ErrorNumber::kPathFileAccess).description() + " in sub x(75) of module frmMain");
  SetErrorObserver(nullptr);
  EXPECT_EQ(
      shown_error([&] { test::Trigger(reader, "mnuReportProblem"); }),
      RuntimeError(ErrorNumber::kPathFileAccess).description() + " in sub x(75) of module frmMain")
      << "the menu reports the last error";
}

TEST(ServicesWindow, F1OpensTheManualWhoseContentsMoveThroughItAndCopyPageFillsTheClipboard) {
  test::ReaderWindow reader(test::NumberedProse(80), test::kInstant);
  std::filesystem::copy(std::filesystem::path(test::BinFolder()) / "manual",
                        reader.folder().path() / "manual");
  reader.Start();
  test::Press(reader, Qt::Key_F1);
  HelpWindow* help = reader.window().services().help_window();
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->isVisible());
  EXPECT_TRUE(help->browser()->source().path().endsWith("manual/index.html"));
  ASSERT_GE(help->contents()->count(), 10);
  QListWidgetItem* keys = help->contents()->findItems("Keys", Qt::MatchExactly).value(0);
  ASSERT_NE(keys, nullptr);
  emit help->contents()->itemClicked(keys);
  EXPECT_TRUE(help->browser()->source().path().endsWith("manual/keys.html"));
  EXPECT_TRUE(help->browser()->toPlainText().contains("F1"));
  help->close();

  // Copy Page: the page under the menu goes to the clipboard as picture and text.
  reader.logic().commands().Page_Mouse(
      {PageMouseEventKind::kUp, kLeftPageBox, PageMouseButton::kRight, false, false, 1000});
  reader.window().menu().hide();
  test::Trigger(reader, "mnuCopyPage");
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  ASSERT_NE(copied, nullptr);
  const QImage image = qvariant_cast<QImage>(copied->imageData());
  EXPECT_EQ(image, test::BoxPicture(reader, kLeftPageBox).convertToFormat(image.format()));
  EXPECT_TRUE(copied->text().startsWith("Paragraph 1 tells ")) << copied->text().toStdString();
}

}  // namespace
}  // namespace vireo
