// Whole file bytes -> book text: the reader's loading path must end in its
// message or a logged error for any file, never crash or hang.

#include <cstdint>
#include <string>

#include "book/book_reader.h"
#include "fuzz_support.h"

namespace {
std::string g_path;
}

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  vireo::fuzz::StartUp();
  g_path = vireo::fuzz::ScratchPath("load-file");
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (!vireo::fuzz::WriteInput(g_path, data, size)) return 0;
  const uint8_t options = size > 0 ? data[size - 1] : 0;
  const vireo::BookReadResult book =
      vireo::ReadEmbeddedBook(g_path, {(options & 1) != 0, (options & 2) != 0, (options & 4) != 0});
  if (!book.has_book && book.message.empty()) std::abort();
  return 0;
}
