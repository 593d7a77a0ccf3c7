#include "book/picture_section.h"

#include <gtest/gtest.h>

#include "book/picture_files.h"
#include "test_support.h"

namespace vireo::test {
namespace {

PackedPictures TwoPictures() {
  PackedPictures packed;
  packed.Add("pics/a.png", "AAAA");
  packed.cover = packed.Add("cover:c.jpg", std::string("C\0C", 3));
  return packed;
}

TEST(PictureSection, DamagedSectionsNeverReadPastTheFile) {
  std::string whole = "book";
  AppendPictureSection(whole, TwoPictures());
  const size_t trailer = whole.size() - 24;
  struct Case {
    const char* what;
    size_t at;  // byte changed
    char value;
    size_t pictures;  // read before the damage
  };
  const Case cases[] = {
      {"pictures part longer than the file", trailer + 15, '\x7F', 0},
      {"more pictures than written", trailer, '\x09', 2},
      {"first name length past the part", 4, '\x7F', 0},
      {"second byte count past the part", 4 + 4 + 10 + 4 + 4 + 4 + 11, '\x40', 1},
  };
  for (const Case& c : cases) {
    std::string file = whole;
    file[c.at] = c.value;
    const PackedPictures read = TakePictureSection(file);
    EXPECT_EQ(read.pictures.size(), c.pictures) << c.what;
    EXPECT_LE(file.size(), whole.size() - 24) << c.what;
  }
}

// Names found whatever their case, under folders named with "\", are the e2e picture test's.
TEST(DiskPictureFiles, OnlyRegularFilesThatExistAreFiles) {
  TempFolder folder;
  DiskPictureFiles disk;
  for (const std::string& path :
       {folder.str(), folder.str() + "/NONE.PNG", std::string("/dev/zero"), std::string()}) {
    EXPECT_FALSE(disk.IsFile(path)) << path;
  }
}

}  // namespace
}  // namespace vireo::test
