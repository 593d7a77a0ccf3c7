#include "book/html_references.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <string_view>

#include "book/html_entity_table.h"
#include "support/windows1252.h"

namespace vireo {
namespace {

constexpr char32_t kLastCodePoint = 0x10FFFF;

char ByteFor(char32_t code_point) {
  if (code_point <= 255) return static_cast<char>(code_point);
  const std::optional<uint8_t> byte = UnicodeToWindows1252(code_point);
  return byte ? static_cast<char>(*byte) : '?';
}

int DigitValue(char c, int base) {
  if (c >= '0' && c <= '9') return c - '0';
  if (base == 16 && c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (base == 16 && c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool IsNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

// A reference starting at the "&" at index: its length and the byte it
// stands for, or nullopt when it is not one.
struct Reference {
  size_t length;
  char byte;
};
using Reader = std::optional<Reference> (*)(std::string_view text, size_t index);

std::optional<Reference> ReadNumeric(std::string_view text, size_t index) {
  size_t at = index + 1;
  if (at >= text.size() || text[at] != '#') return std::nullopt;
  ++at;
  int base = 10;
  if (at < text.size() && (text[at] == 'x' || text[at] == 'X')) {
    base = 16;
    ++at;
  }
  const size_t first_digit = at;
  char32_t value = 0;
  for (int digit; at < text.size() && (digit = DigitValue(text[at], base)) >= 0; ++at) {
    value = std::min<char32_t>(value * base + static_cast<char32_t>(digit), kLastCodePoint + 1);
  }
  if (at == first_digit || at >= text.size() || text[at] != ';') return std::nullopt;
  return Reference{at + 1 - index, ByteFor(value)};
}

std::optional<Reference> ReadNamed(std::string_view text, size_t index) {
  size_t at = index + 1;
  while (at < text.size() && IsNameCharacter(text[at])) ++at;
  if (at == index + 1 || at >= text.size() || text[at] != ';') return std::nullopt;
  const std::string_view name = text.substr(index + 1, at - index - 1);
  const auto entities = HtmlEntities();
  const auto found = std::lower_bound(
      entities.begin(), entities.end(), name,
      [](const HtmlEntity& entity, std::string_view key) { return entity.name < key; });
  if (found == entities.end() || found->name != name) return std::nullopt;
  return Reference{at + 1 - index, ByteFor(found->code_point)};
}

void ReplaceReferences(std::string& text, Reader read) {
  const char* data = text.data();
  const size_t size = text.size();
  const void* first = std::memchr(data, '&', size);
  if (first == nullptr) return;
  std::string out;
  out.reserve(size);
  size_t copied = 0;
  for (size_t index = static_cast<const char*>(first) - data; index < size;) {
    const std::optional<Reference> reference = read(text, index);
    if (reference) {
      out.append(text, copied, index - copied);
      out.push_back(reference->byte);
      copied = index + reference->length;
      index = copied;
    } else {
      ++index;
    }
    const void* next = index < size ? std::memchr(data + index, '&', size - index) : nullptr;
    if (next == nullptr) break;
    index = static_cast<const char*>(next) - data;
  }
  out.append(text, copied);
  text = std::move(out);
}

}  // namespace

void HtmlToChar(std::string& text) { ReplaceReferences(text, ReadNumeric); }

void HtmlConstToChar(std::string& text) { ReplaceReferences(text, ReadNamed); }

}  // namespace vireo
