#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "layout/page_index.h"

namespace vireo {

enum class SearchDirection { kForward, kBackward };

// Finds the next or previous page that holds a term, without regard to case.
// The book is upper-cased once per text (not once per page tried), so one
// search is linear in the book's size.
class BookSearch {
 public:
  // Takes the book text to search (Windows-1252); call again when it changes.
  void SetText(std::string_view text);

  // The page a search from current_page moves to, or nullopt (no more
  // matches). Forward looks from the first character of the page after the
  // current one, so matches on the current page are never found. Backward
  // takes the last match lying wholly within the text up to and including
  // the first character of the page before the current one. A match belongs
  // to the page of its first character; a match on the last page maps to
  // page 1 through the page lookup, as callers clamp it.
  std::optional<int> Search(std::string_view term, SearchDirection direction, int current_page,
                            const PageIndex& pages) const;

 private:
  std::optional<int> Forward(const std::string& term, int current_page,
                             const PageIndex& pages) const;
  std::optional<int> Backward(const std::string& term, int current_page,
                              const PageIndex& pages) const;

  std::string upper_;
};

}  // namespace vireo
