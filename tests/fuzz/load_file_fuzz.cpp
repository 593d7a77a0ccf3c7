// Whole file bytes -> book text: the reader's loading path must end in its
// message or a logged error for any file, never crash or hang.

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <string>

#include "book/book_reader.h"
#include "fuzz_support.h"

namespace {
std::string g_path;
}

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  vireo::fuzz::StartUp();
  g_path = "/tmp/vireo-load-file-fuzz-" + std::to_string(getpid());
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FILE* file = std::fopen(g_path.c_str(), "wb");
  if (file == nullptr) return 0;
  std::fwrite(data, 1, size, file);
  std::fclose(file);
  const uint8_t options = size > 0 ? data[size - 1] : 0;
  const vireo::BookReadResult book =
      vireo::ReadEmbeddedBook(g_path, {(options & 1) != 0, (options & 2) != 0, (options & 4) != 0});
  if (!book.has_book && book.message.empty()) std::abort();
  return 0;
}
