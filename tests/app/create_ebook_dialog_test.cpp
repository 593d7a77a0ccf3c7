// The Create ebook dialog on the real window, offscreen.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/create_ebook_dialog.h"
#include "app/reader_window_fixture.h"

namespace vireo {
namespace {

using ::testing::HasSubstr;

// "Title: The Small Book", an author line and a text with a Greek letter, in UTF-16.
std::string SmallBookUtf16() {
  const std::u16string text =
      u"Title: The Small Book\r\nby Ann Writer\r\n\r\nOmega \u03A9 ends it.";
  std::string bytes = "\xFF\xFE";
  for (const char16_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

TEST(CreateEbookDialog, AChosenTextIsMadeIntoAPackedBookThatOpens) {
  test::ReaderWindow reader("The reader's own book.");
  reader.Start();
  const std::string text = reader.folder().File("small.txt");
  test::WriteFile(text, SmallBookUtf16());
  const auto dialog = MakeCreateEbookDialog(reader.logic(), reader.user(), &reader.window());
  dialog->ChooseText(text);
  EXPECT_EQ(dialog->lblEncoding->text(), "UTF-16 (little-endian)");
  EXPECT_EQ(dialog->txtTitle->text(), "The Small Book");
  EXPECT_EQ(dialog->txtPictures->text().toStdString(), reader.folder().str());
  dialog->optBrn->click();
  EXPECT_EQ(dialog->txtOut->text().toStdString(), reader.folder().File("small.brn"));
  EXPECT_FALSE(dialog->txtPictures->isEnabled()) << "a packed book alone carries no pictures";

  reader.user().yes = true;  // open it
  QTest::mouseClick(dialog->cmdMake, Qt::LeftButton);
  EXPECT_EQ(dialog->prgMake->value(), 100);
  EXPECT_THAT(dialog->txtReport->toPlainText().toStdString(),
              HasSubstr("1 \xC3\x97 \xCE\xA9 had no place in the book and show as ?"));
  EXPECT_EQ(reader.window().windowTitle(), "small.brn");
}

TEST(CreateEbookDialog, NeitherTheRunningProgramNorTheOpenBookIsWrittenOver) {
  test::ReaderWindow reader("The reader's own book.");
  reader.Start();
  const std::string text = reader.folder().File("small.txt");
  test::WriteFile(text, "A text.");
  const std::string program = test::ReadFile(reader.book());
  const auto dialog = MakeCreateEbookDialog(reader.logic(), reader.user(), &reader.window());
  dialog->ChooseText(text);
  dialog->optBrn->click();  // the fixture's program is no real stub
  dialog->txtOut->setText(QString::fromStdString(reader.book()));  // the running program
  QTest::mouseClick(dialog->cmdMake, Qt::LeftButton);
  EXPECT_THAT(reader.user().messages.back(), HasSubstr("it is in use by the reader"));
  EXPECT_EQ(test::ReadFile(reader.book()), program);
}

}  // namespace
}  // namespace vireo
