#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vireo {

// One kind of character the maker could not put into the book as itself.
struct CharacterReplacement {
  char32_t code_point = 0;
  std::string written;  // what stands in the book instead ("?", "EUR", "" when left out)
  size_t count = 0;
};

// Counts the replacements of one making, per character.
class ReplacementTally {
 public:
  void Count(char32_t code_point, std::string_view written);
  bool empty() const { return kinds_.empty(); }
  // Every kind, in code point order.
  std::vector<CharacterReplacement> Kinds() const;

 private:
  std::map<char32_t, CharacterReplacement> kinds_;
};

// One line per kind for the person, in UTF-8 and translated, such as
// "3 × Ω had no place in the book and show as ?" or "2 × € are written as
// EUR". Characters that do not show by themselves (controls, spaces,
// combining marks) are named by their code, as "U+200B".
std::vector<std::string> ReplacementReport(const std::vector<CharacterReplacement>& kinds);

}  // namespace vireo
