#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vireo {

// The book-text helpers. Book text is a std::string of Windows-1252 bytes.

enum class Case { kSensitive, kIgnore };

// The paragraph mark: a blank, a line feed, a blank.
constexpr std::string_view ParaMark() { return " \n "; }
constexpr std::string_view CR() { return "\r"; }
constexpr std::string_view LF() { return "\n"; }

// Replaces every occurrence of find in text, left to right, without
// rescanning inserted text; text is rewritten in place through the vHtml
// library (error 48 when it is not loaded). The output is sized once.
void MyReplace(std::string& text, std::string_view find, std::string_view replacement,
               Case compare = Case::kSensitive);

// MyReplace ignoring case.
void MyReplaceNoCaps(std::string& text, std::string_view find, std::string_view replacement);

// Number of non-overlapping occurrences of find in text.
size_t CountOccurrences(std::string_view text, std::string_view find,
                        Case compare = Case::kSensitive);

// Several replacements in one pass: at each position the first pair whose
// find matches wins.
using Replacements = std::vector<std::pair<std::string, std::string>>;
void MyReplaceMulti(std::string& text, const Replacements& pairs, Case compare = Case::kSensitive);

// Windows-1252 upper case of a whole string.
std::string UpperCase(std::string_view text);

}  // namespace vireo
