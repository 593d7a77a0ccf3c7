// What the Create ebook dialog suggests and where it writes, without a window.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/ebook_maker_form.h"
#include "app/fake_services.h"
#include "app/fake_window.h"

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

TEST(SuggestDetails, FromLabelledOrByLinesElseFromTheFileName) {
  struct Case {
    std::string path, head, title, author;
  };
  const Case cases[] = {
      {"/b/x.txt", "Title: Moby Dick\nAuthor: Herman Melville\n", "Moby Dick", "Herman Melville"},
      {"/b/x.txt", "\r\n  TITLE:  Emma \r\n  by Jane Austen\r\n", "Emma", "Jane Austen"},
      {"/b/the_old-house.txt", "Chapter 1\nIt went by the old house again and again.\n",
       "the old house", ""},
  };
  for (const Case& c : cases) {
    const SuggestedDetails details = SuggestDetails(c.path, c.head);
    EXPECT_EQ(details.title, c.title) << c.head;
    EXPECT_EQ(details.author, c.author) << c.head;
  }
}

// A form run from a reader in the folder, whose open book is "Book"; the books it offers to
// open are kept.
class EbookMakerFormTest : public testing::Test {
 protected:
  test::TempFolder folder;
  test::FakeUser user;
  std::vector<std::string> opened;
  EbookMakerForm form{user, [this](const std::string& path) { opened.push_back(path); },
                      folder.File("Vireo"), folder.File("Book")};
};

TEST_F(EbookMakerFormTest, OutputAndPicturesFollowTheTextAndTheFormAndAreCheckedOnlyForAnEbook) {
  form.ChooseText(folder.File("missing.txt"));
  EXPECT_EQ(user.messages.size(), 1u) << "an unreadable text is said so";
  EXPECT_EQ(form.Problem(), "Choose the text file first.");

  test::WriteFile(folder.File("tale.txt"), "caf\xE9");
  test::WriteFile(folder.File("cover.png"), "not really a picture");
  form.ChooseText(folder.File("tale.txt"));
  EXPECT_EQ(form.encoding_name(), "Windows-1252");
  EXPECT_EQ(form.pictures_folder, folder.str());
  EXPECT_EQ(form.out_path, folder.File("tale"));
  form.SetForm(MakeForm::kBrn);
  EXPECT_EQ(form.out_path, folder.File("tale.brn"));
  form.out_path = folder.File("mine.brn");
  form.SetForm(MakeForm::kEbook);
  EXPECT_EQ(form.out_path, folder.File("mine.brn")) << "a typed output stays";

  struct Case {
    std::string pictures, cover;
    MakeForm make;
    std::string problem;  // the start of it
  };
  const Case cases[] = {
      {"", folder.File("cover.png"), MakeForm::kEbook, "A cover is packed with the pictures"},
      {folder.File("gone"), "", MakeForm::kEbook, "The pictures folder cannot be found: "},
      {folder.str(), folder.File("gone.png"), MakeForm::kEbook,
       "The cover picture cannot be found: "},
      {folder.File("gone"), folder.File("gone.png"), MakeForm::kBrn, ""},
  };
  for (const Case& c : cases) {
    form.pictures_folder = c.pictures;
    form.cover_path = c.cover;
    form.SetForm(c.make);
    EXPECT_EQ(form.Problem().substr(0, c.problem.size()), c.problem) << c.pictures << c.cover;
    EXPECT_EQ(form.packs_pictures(), c.make == MakeForm::kEbook);
  }
}

TEST_F(EbookMakerFormTest, TheChooseButtonsAskTheCommonDialogsAndACancelKeepsTheField) {
  test::FakeServices dialogs;
  test::WriteFile(folder.File("tale.txt"), "Title: A Tale\nMore.");
  dialogs.open_answer = FileChoice{folder.File("tale.txt")};
  form.PickText(dialogs);
  EXPECT_EQ(form.title, "A Tale");
  form.PickPictures(dialogs);  // cancelled
  EXPECT_EQ(form.pictures_folder, folder.str());
  dialogs.folder_answer = "/pictures";
  form.PickPictures(dialogs);
  dialogs.open_answer = FileChoice{"/pictures/front.png"};
  form.PickCover(dialogs);
  dialogs.save_answer = FileChoice{"/books/Tale"};
  form.PickOutput(dialogs);
  EXPECT_EQ(form.pictures_folder, "/pictures");
  EXPECT_EQ(form.cover_path, "/pictures/front.png");
  EXPECT_EQ(form.out_path, "/books/Tale");
  EXPECT_THAT(dialogs.asked, ::testing::ElementsAre("Choose the text file: ",
                                                    "Choose the pictures folder: " + folder.str(),
                                                    "Choose the pictures folder: " + folder.str(),
                                                    "Choose the cover picture: /pictures",
                                                    "Write the book to: " + folder.File("tale")));
}

// The dialog itself is run by the real program (e2e book pictures test).
TEST_F(EbookMakerFormTest, AMadeBookIsReportedAndOfferedButNeverWrittenOverTheProgramOrItsBook) {
  test::WriteFile(folder.File("small.txt"), SmallBookUtf16());
  form.ChooseText(folder.File("small.txt"));
  EXPECT_EQ(form.encoding_name(), "UTF-16 (little-endian)");
  EXPECT_EQ(form.title, "The Small Book");
  form.SetForm(MakeForm::kBrn);
  const auto quietly = [](std::string_view, int, int) {};
  for (const char* kept : {"Vireo", "Book"}) {
    test::WriteFile(folder.File(kept), kept);
    form.out_path = folder.File(kept);
    EXPECT_FALSE(form.Make(quietly));
    EXPECT_THAT(user.messages.back(), HasSubstr("it is in use by the reader")) << kept;
    EXPECT_EQ(test::ReadFile(folder.File(kept)), kept);
  }

  form.out_path = folder.File("small.brn");
  ASSERT_TRUE(form.Make(quietly));
  EXPECT_THAT(
      form.report(),
      testing::Contains(HasSubstr("1 \xC3\x97 \xCE\xA9 had no place in the book and show as ?")));
  user.yes = true;
  form.OfferToOpen();
  EXPECT_EQ(opened, std::vector<std::string>{folder.File("small.brn")});
}

}  // namespace
}  // namespace vireo
