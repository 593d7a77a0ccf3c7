#include "support/text_helpers.h"

#include <algorithm>

#include "vhtml/cp1252_case.h"
#include "support/runtime_error.h"
#include "support/vhtml_library.h"
#include "vhtml/vhtml.h"

namespace vireo {
namespace {

const unsigned char* Bytes(std::string_view text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

void Produce(std::string& text, size_t capacity, auto&& write) {
  std::string out(capacity, '\0');
  const size_t written = write(reinterpret_cast<unsigned char*>(out.data()), out.size());
  if (written == static_cast<size_t>(-1)) throw RuntimeError(ErrorNumber::kOutOfMemory);
  out.resize(written);
  text = std::move(out);
}

}  // namespace

size_t CountOccurrences(std::string_view text, std::string_view find, Case compare) {
  return TheVHtml().count()(Bytes(text), text.size(), Bytes(find), find.size(),
                            compare == Case::kIgnore);
}

void MyReplace(std::string& text, std::string_view find, std::string_view replacement,
               Case compare) {
  const size_t count = CountOccurrences(text, find, compare);
  if (count == 0) return;
  size_t capacity = text.size() + 100;
  if (replacement.size() > find.size()) capacity += count * (replacement.size() - find.size());
  const auto replace = TheVHtml().replace();
  Produce(text, capacity, [&](unsigned char* out, size_t size) {
    return replace(Bytes(text), text.size(), Bytes(find), find.size(), Bytes(replacement),
                   replacement.size(), compare == Case::kIgnore, out, size);
  });
}

void MyReplaceNoCaps(std::string& text, std::string_view find, std::string_view replacement) {
  MyReplace(text, find, replacement, Case::kIgnore);
}

void MyReplaceMulti(std::string& text, const Replacements& pairs, Case compare) {
  std::vector<VhtmlPair> table;
  size_t growth = 0;
  for (const auto& [find, replacement] : pairs) {
    table.push_back({Bytes(find), find.size(), Bytes(replacement), replacement.size()});
    if (!find.empty() && replacement.size() > find.size()) {
      growth = std::max(growth, (replacement.size() + find.size() - 1) / find.size());
    }
  }
  // Every input byte yields at most `growth` times its share of output.
  const size_t capacity = text.size() * std::max<size_t>(growth, 1) + 100;
  const auto multi = compare == Case::kIgnore ? TheVHtml().replace_multi_ignore_caps()
                                              : TheVHtml().replace_multi();
  Produce(text, capacity, [&](unsigned char* out, size_t size) {
    return multi(Bytes(text), text.size(), table.data(), table.size(), out, size);
  });
}

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = UpperCase1252(c);
  return upper;
}

}  // namespace vireo
