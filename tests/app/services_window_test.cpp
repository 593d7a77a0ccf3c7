// The manual's window and the clipboard on the real window offscreen.

#include <gtest/gtest.h>

#include <QClipboard>
#include <filesystem>

#include "app/reader_window_fixture.h"

namespace vireo {
namespace {

using test::kInstant;

TEST(ServicesWindow, F1OpensTheManualWhoseContentsMoveThroughItAndCopyPageFillsTheClipboard) {
  test::ReaderWindow reader(test::NumberedProse(80), kInstant);
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
