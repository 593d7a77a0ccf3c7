#pragma once

#include <string>
#include <string_view>

namespace vireo {

// Small string steps of the page composer. Only blanks count as spaces here,
// as in the book text's own trimming.

inline std::string_view TrimSpaces(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

inline std::string_view RightTrimSpaces(std::string_view text) {
  const size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

// Deletes every occurrence of find, left to right, without rescanning.
inline void EraseAll(std::string& text, std::string_view find) {
  if (find.empty() || text.find(find) == std::string::npos) return;
  std::string kept;
  kept.reserve(text.size());
  size_t from = 0;
  for (size_t at = text.find(find); at != std::string::npos; at = text.find(find, from)) {
    kept.append(text, from, at - from);
    from = at + find.size();
  }
  kept.append(text, from, std::string::npos);
  text = std::move(kept);
}

// Deletes every character that is one of chars.
inline void EraseChars(std::string& text, std::string_view chars) {
  std::erase_if(text, [chars](char c) { return chars.find(c) != std::string_view::npos; });
}

}  // namespace vireo
