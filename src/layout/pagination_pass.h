#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "layout/page_index.h"
#include "layout/text_cursor.h"
#include "layout/word_run.h"
#include "layout/word_scan.h"
#include "support/checked_int16.h"

namespace vireo {

class clsReindex;

struct PassSettings {
  int32_t reading_position;
  double line_width;
  int16_t lines_per_page;
  double line_height;
};

// One run of the paginator's word loop over the book text, step by step as
// the loop reads: take the next word, inspect its codes, place an image,
// split a long word, lay the word out, close styles, check the reader's page,
// report progress. Only what the page and style rules need is kept: no
// string is built per word, line or page. Errors propagate to the caller.
class PaginationPass {
 public:
  PaginationPass(clsReindex& owner, std::string& text, PageIndex& index,
                 const PassSettings& settings);

  void Run();

  // True once PassedPage has been raised by the word loop.
  bool passed() const { return passed_; }

 private:
  // Where the current word's characters are: a stretch of the text, or the
  // one-character "0" left over by a split that used a whole word.
  struct WordRange {
    size_t begin = 0;  // 0-based index into the text
    size_t length = 0;
    bool zero = false;
  };

  // Lays out the ordinary words that follow, as the full loop would, with
  // the loop state in locals.
  void LayOutOrdinaryRun();
  std::optional<RunRules> OrdinaryRunRules() const;
  void TakeNextWord();
  void TakeLeftover();
  void TakeWordFromText();
  void InspectWord();
  bool HoldsImage() const;
  int32_t WordImageNumber();
  void PlaceImage();
  void MeasureWord();
  void SplitLongWord();
  void RememberSplitWord();
  void LayOut();
  void CloseStyles();
  void CheckReadersPage();
  void ReportProgress();
  void AddPage();
  int32_t NewPageStart();
  void AddLines(int64_t position, int count);

  std::string_view View(const WordRange& range) const;
  uint16_t SuffixClasses(size_t begin) const;
  const double* Table() const { return tables_.For(bold_, italic_); }

  clsReindex& owner_;
  std::string& text_;
  PageIndex& index_;
  PassSettings settings_;
  StyleTables tables_;
  TextCursor cursor_;
  std::vector<double> scratch_;
  std::optional<RunRules> run_rules_;

  int64_t scan_ = 1;  // 1-based scan position
  WordRange word_;
  uint16_t word_classes_ = 0;
  double word_width_ = 0;
  bool measured_ = false;
  bool measured_bold_ = false;
  bool measured_italic_ = false;
  bool from_leftover_ = false;

  bool leftover_pending_ = false;
  WordRange leftover_;
  // For the pieces of a split word: the last index of each byte class in the
  // whole word, and of the start of "[IMG=" (SIZE_MAX when absent).
  std::array<size_t, kByteClassCount> split_last_{};
  size_t split_last_image_ = SIZE_MAX;
  // The first "=" of the piece's rest and the image number after it, found
  // once for all the pieces before it (SIZE_MAX: not yet; a text change
  // forgets it).
  size_t split_equals_ = SIZE_MAX;
  int32_t split_image_number_ = 0;

  bool hyphen_ = false;
  bool end_of_text_ = false;
  bool newline_ = false;
  bool space_found_ = true;
  bool bold_ = false;
  bool italic_ = false;
  bool underline_ = false;
  double line_width_ = 0;
  StyleMarks line_marks_;
  StyleMarks page_marks_;
  Int16 line_count_ = 0;
  bool passed_ = false;
};

}  // namespace vireo
