#include "book/load_file.h"

#include <string_view>

namespace vireo {
namespace {

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

}  // namespace vireo
