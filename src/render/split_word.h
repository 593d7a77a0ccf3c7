#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vireo {

// Page-number tags: the composer deletes them wherever they stand in a word.
inline constexpr std::array<std::string_view, 3> kPageNumberTags = {"[npn=r]", "[npn=n]",
                                                                    "[npn=d]"};

// The rest of a long word that the page composer lays out piece by piece.
// Each piece is taken as a word of its own, whose codes, page-number tags and
// pictures count; what that needs to know about the rest is found once per
// word (the last position of each), so that a piece costs its own length and
// not the rest's.
class SplitWord {
 public:
  // Keeps word; nothing of it is laid out yet.
  void Start(std::string word);
  void Clear();
  bool pending() const { return !text_.empty(); }

  // The characters not yet laid out.
  std::string_view Rest() const { return std::string_view(text_).substr(at_); }
  // Takes the first length characters of the rest. When they are the whole
  // rest, the one-character rest "0" follows, as after the paginator's split.
  std::string Cut(size_t length);

  bool RestHoldsBoldOn() const { return Holds(last_bold_on_); }
  bool RestHoldsItalicOn() const { return Holds(last_italic_on_); }
  // "[npn=r]", "[npn=n]" or "[npn=d]" (only ever made by deleting others).
  bool RestHoldsPageNumberTag() const { return Holds(last_tag_); }
  bool RestHoldsImage() const { return Holds(last_image_); }
  // What read gives for the characters after the first "=" of the rest (for
  // a rest without one, for the whole rest). The "=" is found, and read
  // called, once for all the pieces before it; read may throw.
  int NumberAfterEquals(int (*read)(std::string_view));

 private:
  void Remember();
  bool Holds(size_t last) const { return last != std::string::npos && last >= at_; }

  std::string text_;
  size_t at_ = 0;
  size_t last_bold_on_ = std::string::npos;
  size_t last_italic_on_ = std::string::npos;
  size_t last_tag_ = std::string::npos;
  size_t last_image_ = std::string::npos;
  size_t equals_ = std::string::npos;  // first "=" at or after at_, once searched
  std::optional<int> number_;          // read after equals_
};

}  // namespace vireo
