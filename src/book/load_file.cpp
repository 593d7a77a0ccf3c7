#include "book/load_file.h"

#include "book/book_reader.h"
#include "support/error_trap.h"
#include "support/logging.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

// Narrows a UTF-16 literal of ASCII characters to bytes at run time. The
// volatile read keeps the compiler from folding the result into a byte
// constant, which would put the marker into the executable.
std::string Narrow(std::u16string_view wide) {
  std::string bytes(wide.size(), '\0');
  const volatile char16_t* source = wide.data();
  for (size_t i = 0; i < wide.size(); ++i) bytes[i] = static_cast<char>(source[i]);
  return bytes;
}

}  // namespace

std::string HeaderMarker() { return Narrow(u"[START][HEADER]"); }
std::string BookMarker() { return Narrow(u"[START][BOOK]"); }

void LoadFile(const std::string& path, LoadFileHost& host) {
  FormattingOptions options;
  Trap("sub loadfile", kModule, [&] { options = host.Formatting(); });
  BookReadResult book =
      ReadEmbeddedBook(path, options, [&host](std::string_view caption, int value, int maximum) {
        host.ShowProgress(caption, value, maximum);
      });
  Trap("sub loadfile", kModule, [&] {
    if (!book.has_book) {
      if (book.show_message) host.ShowLoadMessage(book.message);
      return;
    }
    host.BookLoaded(std::move(book.text), std::move(book.author), std::move(book.title));
    host.ReadBookmark();
    LogAction("Reindexing file");
    host.ReindexFile(true);
    host.HideLanguageList();
  });
}

}  // namespace vireo
