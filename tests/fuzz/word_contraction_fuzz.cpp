// Bytes -> word contraction: expanding the contraction gives the text back
// for any text free of the table's codes, however it is split into pieces.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "book/word_table.h"

namespace {

bool IsCode(uint8_t byte) { return (byte >= 179 && byte <= 188) || (byte >= 201 && byte <= 236); }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string text;
  for (size_t i = 0; i < size; ++i) {
    if (!IsCode(data[i])) text.push_back(static_cast<char>(data[i]));
  }
  const std::string whole = vireo::ContractWords(text);
  if (vireo::ExpandWords(whole) != text) std::abort();
  // The same text in three pieces contracts to the same bytes.
  const size_t first = size > 0 ? data[0] % (text.size() + 1) : 0;
  const size_t second = first + (size > 1 ? data[1] % (text.size() - first + 1) : 0);
  const std::string_view view(text);
  const std::string_view pieces[] = {view.substr(0, first), view.substr(first, second - first),
                                     view.substr(second)};
  std::string joined;
  vireo::AppendContracted(joined, pieces);
  if (joined != whole) std::abort();
  return 0;
}
