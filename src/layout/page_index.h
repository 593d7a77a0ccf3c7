#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vireo {

// Where every page of the book begins, and the styles open at its top. Owned
// by the main window, filled by the paginator (clsReindex), read by the page
// composer, navigation, search and bookmarks. All page numbers are 1-based;
// entries from 1 to UpperBound() exist, those above `count` hold 0 / false.
struct PageIndex {
  static constexpr int32_t kInitialUpperBound = 2000;
  static constexpr int32_t kGrowthStep = 250;

  // Number of pages. On entry to a pagination: the number of the first text
  // page (1, or 2 when page 1 is the title page); on return: the page count.
  int32_t count = 1;

  // PageStart(p): 1-based character position in the book text at which page
  // p begins; 0 for a title page. Throws RuntimeError 9 outside 1..UpperBound().
  int32_t PageStart(int32_t page) const { return start_[Checked(page)]; }
  bool Bold(int32_t page) const { return bold_[Checked(page)] != 0; }
  bool Italic(int32_t page) const { return italic_[Checked(page)] != 0; }
  bool Underline(int32_t page) const { return underline_[Checked(page)] != 0; }

  void SetPageStart(int32_t page, int32_t position) { start_[Checked(page)] = position; }
  void SetStyles(int32_t page, bool bold, bool italic, bool underline);

  int32_t UpperBound() const { return static_cast<int32_t>(start_.size()) - 1; }

  // Clears every entry and makes the bounds 1..upper_bound.
  void Recreate(int32_t upper_bound);
  // Makes the bounds 1..upper_bound keeping the entries below it.
  void Grow(int32_t upper_bound);

 private:
  size_t Checked(int32_t page) const;

  // Index 0 is unused so that page p lives at [p].
  std::vector<int32_t> start_ = std::vector<int32_t>(kInitialUpperBound + 1, 0);
  std::vector<uint8_t> bold_ = std::vector<uint8_t>(kInitialUpperBound + 1, 0);
  std::vector<uint8_t> italic_ = std::vector<uint8_t>(kInitialUpperBound + 1, 0);
  std::vector<uint8_t> underline_ = std::vector<uint8_t>(kInitialUpperBound + 1, 0);
};

}  // namespace vireo
