// What the Create ebook dialog suggests and where it writes, without a window.

#include <gtest/gtest.h>

#include "app/ebook_maker_form.h"
#include "app/fake_window.h"

namespace vireo {
namespace {

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

TEST(EbookMakerForm, TheOutputFollowsTheTextAndTheFormUntilItIsTyped) {
  test::TempFolder folder;
  test::FakeUser user;
  EbookMakerForm form(
      user, [](const std::string&) {}, "/opt/Vireo", "");
  form.ChooseText(folder.File("missing.txt"));
  EXPECT_EQ(user.messages.size(), 1u) << "an unreadable text is said so";
  EXPECT_EQ(form.Problem(), "Choose the text file first.");

  test::WriteFile(folder.File("tale.txt"), "caf\xE9");
  form.ChooseText(folder.File("tale.txt"));
  EXPECT_EQ(form.encoding_name(), "Windows-1252");
  EXPECT_EQ(form.out_path, folder.File("tale"));
  form.SetForm(MakeForm::kBrn);
  EXPECT_EQ(form.out_path, folder.File("tale.brn"));
  form.out_path = folder.File("mine.brn");
  form.SetForm(MakeForm::kEbook);
  EXPECT_EQ(form.out_path, folder.File("mine.brn")) << "a typed output stays";
}

}  // namespace
}  // namespace vireo
