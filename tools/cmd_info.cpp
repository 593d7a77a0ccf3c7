// vireo-tool info: author, title and sizes of an ebook.

#include <cstdio>

#include "book/book_reader.h"
#include "book_commands.h"
#include "support/windows1252.h"

namespace vireo::tool {

int RunInfo(const Arguments& arguments) {
  if (arguments.size() != 1 || arguments[0].starts_with("-")) {
    return Fail("usage: vireo-tool info FILE");
  }
  const BookReadResult book = ReadEmbeddedBook(arguments[0], FormattingOptions{});
  if (const std::string why = UnshowableBook(arguments[0], book); !why.empty()) return Fail(why);
  std::printf("author: %s\n", Utf8FromWindows1252(book.author).c_str());
  std::printf("title: %s\n", Utf8FromWindows1252(book.stored_title).c_str());
  std::printf("stored: %zu bytes\n", book.stored_size);
  std::printf("unpacked: %zu characters\n", book.text.size());
  return 0;
}

}  // namespace vireo::tool
