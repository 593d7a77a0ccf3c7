#include "app/book_prefetch.h"

#include <gtest/gtest.h>

#include <thread>

#include "book/book_maker.h"
#include "support/error_trap.h"
#include "test_support.h"

namespace vireo {
namespace {

class BookPrefetchTest : public ::testing::Test {
 protected:
  void SetUp() override { ClearActions(); }
  void TearDown() override { SetErrorObserver(nullptr); }

  test::TempFolder folder_;
  std::string missing_ = folder_.File("missing");
  std::thread::id test_thread_ = std::this_thread::get_id();
};

TEST_F(BookPrefetchTest, TheBookItsProgressAndItsErrorsComeOnTheTakingThread) {
  const std::string path = folder_.File("Book");
  test::WriteFile(path, EbookFile("stub", PackBody(PackableText("Hello", TextEncoding::kWindows1252),
                                                   "An Author", "A Title")));
  const FormattingOptions options{true, true, false};
  BookPrefetch prefetch;
  prefetch.Start(path, options, {});
  int progress_here = 0;
  const auto book = prefetch.Take(path, options, [&](std::string_view, int, int) {
    progress_here += std::this_thread::get_id() == test_thread_ ? 1 : -1000;
  });
  ASSERT_TRUE(book && book->has_book);
  EXPECT_EQ(book->text, "Hello");
  EXPECT_GT(progress_here, 0);

  std::thread::id observed;
  SetErrorObserver([&](const std::string&) { observed = std::this_thread::get_id(); });
  BookPrefetch failing;
  failing.Start(missing_, {}, {});
  ASSERT_TRUE(failing.Take(missing_, {}, nullptr));
  EXPECT_EQ(Actions().text[1], "File not found in sub loadfile(53) of module frmMain");
  EXPECT_EQ(observed, test_thread_);
}

TEST_F(BookPrefetchTest, AReadingForAnotherFileOrFormattingIsDroppedWithItsLog) {
  BookPrefetch other_file;
  other_file.Start(missing_, {}, {});
  EXPECT_FALSE(other_file.Take(folder_.File("other"), {}, nullptr));
  BookPrefetch other_formatting;
  other_formatting.Start(missing_, {}, {});
  EXPECT_FALSE(other_formatting.Take(missing_, {false, false, true}, nullptr));
  EXPECT_EQ(Actions().position, 0);
  BookPrefetch none;
  EXPECT_FALSE(none.Take(missing_, {}, nullptr));
}

}  // namespace
}  // namespace vireo
