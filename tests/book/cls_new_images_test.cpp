#include "book/cls_new_images.h"

#include <gtest/gtest.h>

#include "picture_test_files.h"
#include "render/fake_page_buffers.h"

namespace vireo::test {
namespace {

// On this system the folder ends with "/"; the store turns "/" in names into "\".
const std::map<std::string, std::string> kFiles = {
    {"/book/A.PNG", "PIC 10 20"},
    {"/book/PICS\\B.PNG", "PIC 30 40"},
    {"C.PNG", "PIC 5 5"},
    {"/book/FAKE.PNG", "not a picture"},
};

// The store over kFiles, decoding with the fake decoder.
struct Store {
  Store() {
    images.SetFiles(&files);
    images.SetDecoder(&decoder);
  }
  FakePictureFiles files{kFiles};
  FakePictureDecoder decoder;
  clsNewImages images;
};

std::string Rewritten(std::string text, bool packed = true) {
  Store store;
  store.images.LoadAllImages("/book/", text, packed);
  return text;
}

// Long enough that the search after a reference never passes over the next one.
const std::string F = " and so the tale goes on for a while ";

TEST(ImageStoreRewriting, ReferencesBecomeNumberedPlaceholders) {
  struct Case {
    std::string text;
    std::string expected;
  };
  const Case cases[] = {
      {"a [IMG SRC=\"a.png\"] b", "a [IMG=0] b"},
      // A missing file is cut out and takes no number.
      {"[IMG SRC=\"gone.png\"]" + F + "[IMG SRC=\"a.png\"]", F + "[IMG=0]"},
      // "/" is read as "\"; a name alone is found when folder + name is not.
      {"[IMG SRC=\"pics/b.png\"]" + F + "[IMG SRC=\"c.png\"]", "[IMG=0]" + F + "[IMG=1]"},
      // Lower case, single quotes.
      {"[img src='A.png']", "[IMG=0]"},
      {"[Img Src = 'a.PNG' alt=\"\"]", ""},        // the double quotes win: an empty name
      {"[IMG ALT=\"x\" SRC='a.png']", "[IMG=0]"},  // but only after SRC
      // No quote pair, no name: cut out.
      {"[IMG SRC=a.png]" + F + "[IMG SRC=\"a.png]", F},
      // An opener without a closer ends the rewriting.
      {"[IMG SRC='a.png']" + F + "[IMG SRC='a.png'", "[IMG=0]" + F + "[IMG SRC='a.png'"},
      // The search resumes at the old closer's position in the rewritten
      // text, here 9 characters after the placeholder.
      {"[IMG SRC=\"a.png\"]123456789[IMG SRC=\"a.png\"]", "[IMG=0]123456789[IMG=1]"},
      {"[IMG SRC=\"a.png\"]12345678[IMG SRC=\"a.png\"]", "[IMG=0]12345678[IMG SRC=\"a.png\"]"},
      // A cut reference passes over as much as it was long, less one.
      {"[IMG SRC='x']1234[IMG SRC='a.png']", "1234[IMG SRC='a.png']"},
      // Placeholders already in the text hold no name.
      {"[IMG=3]", ""},
  };
  for (const Case& c : cases) EXPECT_EQ(Rewritten(c.text), c.expected) << c.text;
  EXPECT_EQ(Rewritten("<p><img src=\"a.png\">[IMG SRC='a.png']", false),
            "<p>[IMG=0][IMG SRC='a.png']");
}

TEST(ImageStore, NumbersFollowThePlaceholdersBadFilesKeepTheirsAndGoneOnesAreSkipped) {
  Store store;
  clsNewImages& images = store.images;
  std::string text = "[IMG SRC='fake.png']" + F + "[IMG SRC='gone.png']" + F +
                     "[IMG SRC='pics/b.png']" + F + "[IMG SRC='a.png']";
  images.LoadAllImages("/book/", text, true);
  EXPECT_EQ(text, "[IMG=0]" + F + F + "[IMG=1]" + F + "[IMG=2]");
  ASSERT_EQ(images.ImageCount(), 3);
  EXPECT_TRUE(images.Image(0)->empty());  // exists, is no picture: drawn as nothing
  EXPECT_EQ(images.Image(1)->width, 30);
  EXPECT_EQ(images.Image(2)->height, 20);
  EXPECT_EQ(images.Image(3), nullptr);
  images.ClearAll();
  EXPECT_EQ(images.ImageCount(), 0);
  store.files.Remove("C.PNG");  // gone before loading
  images.LoadImagesFromList({"/book/A.PNG", "C.PNG", "/book/PICS\\B.PNG"});
  EXPECT_EQ(images.ImageCount(), 2);
}

TEST(ImageStore, TenThousandReferencesToOnePictureDecodeItOnce) {
  Store store;
  clsNewImages& images = store.images;
  std::string text;
  for (int i = 0; i < 10000; ++i) text += "[IMG SRC='a.png']0123456789";
  images.LoadAllImages("/book/", text, true);
  EXPECT_EQ(images.ImageCount(), 10000);
  EXPECT_EQ(store.files.reads, 1);
  EXPECT_EQ(images.Image(9999), images.Image(0));
  EXPECT_TRUE(text.ends_with("[IMG=9999]0123456789"));
}

}  // namespace
}  // namespace vireo::test
