#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vireo {

// The word table of the packed book form: 48 rows, each a one-character code
// and the word (or fragment) it stands for. Unpacking expands the codes from
// row 48 down to row 1; packing contracts the words from row 1 up to row 48.
struct WordRow {
  uint8_t code;
  std::string word;
};
inline constexpr int kWordRows = 48;
using WordTable = std::array<WordRow, kWordRows + 1>;  // 1-based; [0] unused

// Builds the table: rows 1-38 fixed, rows 39-48 " 0" .. " 9" with the codes
// of the digits plus 131.
WordTable SetupWords();

// What each byte of a stored body finally stands for after the 48
// expansions have run in order (row 48 first): the table composed into one.
using ExpansionTable = std::array<std::string, 256>;
const ExpansionTable& Expansions();

// Expands the word codes of text in one pass (the same result as replacing
// every code of row 48, then row 47, ... then row 1 in turn).
std::string ExpandWords(std::string_view text);

// The building blocks of ExpandWords, for expanding straight into a buffer
// that the caller has sized: the expanded length of text, and the expansion
// written at out (returns the end of what it wrote). ExpandInto may write up
// to kExpansionSlack bytes beyond the returned end, which the buffer must
// hold; later writes overwrite them.
inline constexpr size_t kExpansionSlack = 8;
size_t ExpandedLength(std::string_view text);
char* ExpandInto(std::string_view text, char* out);

// Contracts text for packing: every word of row 1, then row 2, ... row 48 is
// replaced by its code, left to right. ExpandWords(ContractWords(t)) == t for
// every t free of the codes 179-188 and 201-236. Runs in one pass, in time
// and extra memory linear in the text.
std::string ContractWords(std::string_view text);

// The contraction of the concatenated pieces appended to out, without
// building the concatenation.
void AppendContracted(std::string& out, std::span<const std::string_view> pieces);

}  // namespace vireo
