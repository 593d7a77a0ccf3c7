#include "layout/pagination_pass.h"

#include <cmath>
#include <limits>

#include "layout/image_lines.h"
#include "layout/long_word.h"
#include "layout/reindex.h"
#include "layout/word_run.h"
#include "support/error_trap.h"

// The word loop's two hottest steps are worth inlining into it.
#if defined(__GNUC__)
#define VIREO_HOT_INLINE [[gnu::always_inline]] inline
#else
#define VIREO_HOT_INLINE inline
#endif

namespace vireo {
namespace {

constexpr std::string_view kModule = "clsReindex";
constexpr std::string_view kImageTag = "[IMG=";
constexpr size_t kNone = std::numeric_limits<size_t>::max();
constexpr int32_t kProgressStep = 25;
constexpr int32_t kPagesBeyondReader = 3;
constexpr int32_t kFirstPassedPageCount = 5;

}  // namespace

PaginationPass::PaginationPass(clsReindex& owner, std::string& text, PageIndex& index,
                               const PassSettings& settings)
    : owner_(owner), text_(text), index_(index), settings_(settings), cursor_(text) {
  tables_.Load(owner.metrics_, text.size());
  split_last_.fill(kNone);
  run_rules_ = OrdinaryRunRules();
}

// Runs of ordinary words compare whole units with the line width: a sum of
// units is wider than the line exactly when it exceeds the line width's
// units rounded down. Without exact tables, or for a line width far outside
// any sum, the word loop does all the work.
std::optional<RunRules> PaginationPass::OrdinaryRunRules() const {
  const double limit = std::floor(settings_.line_width * StyleTables::kUnitsPerTwip);
  if (!tables_.exact() || !(std::fabs(limit) < 0x1p62)) return std::nullopt;
  RunRules rules;
  rules.limit = static_cast<int64_t>(limit);
  rules.lines_per_page = settings_.lines_per_page;
  return rules;
}

void PaginationPass::Run() {
  do {
    TakeNextWord();
    if (word_classes_ == 0 && !from_leftover_ && word_.length <= kLongWordLength) {
      // Most words carry no code and are short: inspecting, placing an image,
      // splitting and closing styles have nothing to do, and the width read
      // with the word is the one to lay out.
      LayOut();
    } else {
      InspectWord();
      if (HoldsImage()) PlaceImage();
      SplitLongWord();
      LayOut();
      CloseStyles();
    }
    CheckReadersPage();
    ReportProgress();
    if (!end_of_text_) LayOutOrdinaryRun();
  } while (!end_of_text_);
}

// The common case of the word loop without its per-word bookkeeping: for
// ordinary words the loop only places them on the line. Nothing any other
// step reads changes for them: the page count stays (the run stops in front
// of the word that completes a page), so the reader's page check would find
// what it found after the last word; progress is left to the full loop while
// it has a page number to report after every word. The run adds widths in
// whole units, so it needs tables whose sums are exact.
void PaginationPass::LayOutOrdinaryRun() {
  if (leftover_pending_ || newline_ || !run_rules_) return;
  if (index_.count % kProgressStep == 0 && owner_.events_ != nullptr) return;
  const double line_units = line_width_ * StyleTables::kUnitsPerTwip;
  if (!(std::fabs(line_units) < 0x1p62)) return;
  RunRules rules = *run_rules_;
  rules.units = tables_.UnitsFor(bold_, italic_);
  rules.space = rules.units[static_cast<unsigned char>(' ')];
  RunLine line{static_cast<int64_t>(line_units), line_count_.value(), false};
  if (static_cast<double>(line.width) != line_units) return;
  const size_t next = LayOutOrdinaryWords(text_, static_cast<size_t>(scan_ - 1), rules, line);
  scan_ = static_cast<int64_t>(next) + 1;
  line_width_ = static_cast<double>(line.width) / StyleTables::kUnitsPerTwip;
  line_count_ = Int16(line.lines);
  if (line.broken) {
    page_marks_.Append(line_marks_);
    line_marks_.Clear();
  }
}

std::string_view PaginationPass::View(const WordRange& range) const {
  if (range.zero) return "0";
  if (range.begin >= text_.size()) return {};
  return std::string_view(text_).substr(range.begin, range.length);
}

// Step 1: the leftover of a split word, or the text up to the next blank (or
// to a hyphen inside the word while a blank still follows).
void PaginationPass::TakeNextWord() {
  if (leftover_pending_) {
    TakeLeftover();
  } else {
    TakeWordFromText();
  }
}

void PaginationPass::TakeLeftover() {
  word_ = leftover_;
  leftover_pending_ = false;
  from_leftover_ = true;
  hyphen_ = false;
  if (!space_found_) end_of_text_ = true;
  word_classes_ = word_.zero ? 0 : SuffixClasses(word_.begin);
  measured_ = false;
}

namespace {

// Where a word read from the text ends, with its width and byte classes.
template <typename Sum>
struct WordEnd {
  size_t end = 0;        // index of the delimiter, or the text size
  bool stopped = false;  // ended at a delimiter rather than the end of the text
  bool hyphen = false;   // the delimiter is a hyphen
  Sum width = 0;
  uint16_t classes = 0;
};

// The word ends at the next blank, or at the first hyphen at or after begin
// when that is not the word's first character and a blank still follows it
// (last_space is the 1-based position of the text's last blank).
template <typename Sum>
WordEnd<Sum> ReadWord(const char* data, size_t begin, size_t size, int64_t last_space,
                      const Sum* table) {
  const auto& classes = ByteClasses();
  WordEnd<Sum> word;
  bool first_hyphen = true;
  size_t i = begin;
  for (; i < size; ++i) {
    const auto code = static_cast<unsigned char>(data[i]);
    const uint16_t byte_class = classes[code];
    if (byte_class & kDelimiterClasses) {
      if (byte_class & kBlankClass) {
        word.stopped = true;
        break;
      }
      if (first_hyphen) {
        first_hyphen = false;
        if (i > begin && static_cast<int64_t>(i) + 1 < last_space) {
          word.stopped = true;
          word.hyphen = true;
          break;
        }
      }
    }
    word.width += table[code];
    word.classes = static_cast<uint16_t>(word.classes | byte_class);
  }
  word.end = i;
  return word;
}

}  // namespace

// Reads the word and sums its width in one pass, in whole units when the
// tables allow it (the same value, found faster).
VIREO_HOT_INLINE void PaginationPass::TakeWordFromText() {
  const size_t size = text_.size();
  const size_t begin = static_cast<size_t>(scan_ - 1);
  WordEnd<double> word;
  if (tables_.exact()) {
    const WordEnd<int64_t> units =
        ReadWord(text_.data(), begin, size, cursor_.LastSpace(), tables_.UnitsFor(bold_, italic_));
    word = {units.end, units.stopped, units.hyphen,
            static_cast<double>(units.width) / StyleTables::kUnitsPerTwip, units.classes};
  } else {
    word = ReadWord(text_.data(), begin, size, cursor_.LastSpace(), Table());
  }
  from_leftover_ = false;
  hyphen_ = word.hyphen;
  if (word.stopped) {
    word_ = {begin, word.end - begin, false};
    scan_ = static_cast<int64_t>(word.end) + 2;
    space_found_ = true;
  } else {
    word_ = {begin, begin < size ? size - begin : 0, false};
    end_of_text_ = true;
    newline_ = true;
    space_found_ = false;
  }
  word_width_ = word.width;
  word_classes_ = static_cast<uint16_t>(word.classes & kRememberedClasses);
  measured_ = true;
  measured_bold_ = bold_;
  measured_italic_ = italic_;
}

uint16_t PaginationPass::SuffixClasses(size_t begin) const {
  uint16_t classes = 0;
  for (int bit = 0; bit < kByteClassCount; ++bit) {
    if (split_last_[bit] != kNone && split_last_[bit] >= begin) {
      classes = static_cast<uint16_t>(classes | (1 << bit));
    }
  }
  return classes;
}

// Step 2: line feed, style openers and the forced page break.
void PaginationPass::InspectWord() {
  const uint16_t classes = word_classes_;
  if (classes == 0) return;
  if (classes & kLineFeedClass) newline_ = true;
  if (classes & kBoldOnClass) bold_ = true;
  if (classes & kItalicOnClass) italic_ = true;
  if (classes & kUnderlineOnClass) underline_ = true;
  if (classes & kPageBreakClass) {
    line_count_ = Int16(static_cast<int64_t>(settings_.lines_per_page) - 1);
    newline_ = true;
  }
  // Code 0 lies outside the width tables: measuring it is logged (once per word).
  if (classes & kNulClass) (void)owner_.metrics_.CharWidth(false, false, std::string_view("", 1));
}

bool PaginationPass::HoldsImage() const {
  if ((word_classes_ & kBracketClass) == 0) return false;
  if (from_leftover_) return split_last_image_ != kNone && split_last_image_ >= word_.begin;
  return View(word_).find(kImageTag) != std::string_view::npos;
}

int32_t PaginationPass::WordImageNumber() {
  if (!from_leftover_ || word_.zero) return ImageNumber(View(word_));
  // Every piece's rest runs to the end of the split word, so the number after
  // a given "=" is the same for all the pieces before it.
  const size_t end = word_.begin + word_.length;
  if (split_equals_ == kNone || split_equals_ < word_.begin) {
    const size_t equals = text_.find('=', word_.begin);
    if (equals == std::string::npos || equals >= end) return 0;
    split_equals_ = equals;
    split_image_number_ = ImageNumber(std::string_view(text_).substr(equals, end - equals));
  }
  return split_equals_ < end ? split_image_number_ : 0;
}

// Step 3: blank lines for the image, on this page or at the top of the next,
// inserted after the placeholder; the placeholder itself then counts as an
// empty word. A placeholder the image store does not know stays text.
void PaginationPass::PlaceImage() {
  const int32_t number = WordImageNumber();
  std::optional<double> height;
  if (owner_.image_heights_) height = owner_.image_heights_(number);
  owner_.Yield();
  if (!height) {
    RecordError(RuntimeError(ErrorNumber::kObjectNotSet), "sub newreindexfile", kModule);
    return;
  }
  const Int16 lines = ImageLines(*height, settings_.line_height);
  const Int16 per_page = settings_.lines_per_page;
  const int64_t after_image = scan_ - 1;
  if (lines <= per_page && Int16(line_count_ + lines) <= per_page) {
    AddLines(after_image, lines);
    line_count_ = Int16(line_count_ + lines);
  } else {
    AddLines(after_image, Int16(per_page - line_count_));
    AddPage();
    AddLines(after_image, lines <= per_page ? lines : per_page);
  }
  word_ = {};
  word_classes_ = 0;
  word_width_ = 0;
  measured_ = true;
  measured_bold_ = bold_;
  measured_italic_ = italic_;
}

void PaginationPass::AddLines(int64_t position, int count) {
  const bool changes = owner_.InsertAllowed() && position >= 1;
  const auto old_size = static_cast<int64_t>(text_.size());
  split_equals_ = kNone;
  owner_.AddLines(text_, static_cast<int32_t>(position), count);
  if (changes) {
    cursor_.TextChanged(position, count < 1 ? 0 : 3 * static_cast<int64_t>(count), old_size);
  }
}

void PaginationPass::MeasureWord() {
  if (measured_ && measured_bold_ == bold_ && measured_italic_ == italic_) return;
  word_width_ = SumWidths(Table(), View(word_));
  measured_ = true;
  measured_bold_ = bold_;
  measured_italic_ = italic_;
}

// Step 4: a word of more than 20 characters wider than the line is laid out
// piece by piece, each piece on a line of its own.
void PaginationPass::SplitLongWord() {
  if (word_.zero || word_.length <= kLongWordLength) {
    MeasureWord();
    return;
  }
  const bool known = measured_ && measured_bold_ == bold_ && measured_italic_ == italic_;
  if (known && !(word_width_ > settings_.line_width)) return;
  const LongWordFit fit =
      FitLongWord(Table(), View(word_), settings_.line_width, tables_.monotone(), scratch_);
  measured_ = true;
  measured_bold_ = bold_;
  measured_italic_ = italic_;
  if (!fit.wider) {
    word_width_ = fit.width;
    return;
  }
  if (!from_leftover_) RememberSplitWord();
  if (fit.piece < word_.length) {
    leftover_ = {word_.begin + fit.piece, word_.length - fit.piece, false};
  } else {
    leftover_ = {0, 0, true};  // the whole word made the piece: a "0" follows
  }
  leftover_pending_ = true;
  word_.length = fit.piece;
  word_width_ = fit.piece_width;
  word_classes_ = ClassesOf(View(word_));
  end_of_text_ = false;
  newline_ = true;
}

void PaginationPass::RememberSplitWord() {
  split_last_.fill(kNone);
  const auto& classes = ByteClasses();
  const std::string_view word = View(word_);
  for (size_t i = 0; i < word.size(); ++i) {
    uint16_t c = classes[static_cast<unsigned char>(word[i])] & kRememberedClasses;
    for (int bit = 0; c != 0; ++bit, c = static_cast<uint16_t>(c >> 1)) {
      if (c & 1) split_last_[bit] = word_.begin + i;
    }
  }
  const size_t image = word.rfind(kImageTag);
  split_last_image_ = image == std::string_view::npos ? kNone : word_.begin + image;
}

// Step 5: the word joins the line, or ends it (a line feed, page break or
// long-word piece ends it after the word; a word that does not fit starts
// the next line); a full page opens the next.
VIREO_HOT_INLINE void PaginationPass::LayOut() {
  const double* table = Table();
  const double space = table[static_cast<unsigned char>(' ')];
  const double width = word_width_ + space;
  const StyleMarks word_marks =
      (word_classes_ & kStyleClasses) ? StyleMarks::Of(View(word_)) : StyleMarks();
  if (!(line_width_ + width > settings_.line_width) && !newline_) {
    line_marks_.Append(word_marks);
    line_width_ += width;
    return;
  }
  if (end_of_text_) {
    line_marks_.Append(word_marks);
    page_marks_.Append(line_marks_);
  } else if (newline_) {
    newline_ = false;
    page_marks_.Append(line_marks_);
    page_marks_.Append(word_marks);
    line_marks_.Clear();
    double indent = 0;  // the three-blank first-line indent
    for (int i = 0; i < 3; ++i) indent += space;
    line_width_ = indent;
  } else {
    page_marks_.Append(line_marks_);
    line_marks_ = word_marks;
    line_width_ = word_width_ + (hyphen_ ? table[static_cast<unsigned char>('-')] : space);
  }
  line_count_ += 1;
  if (line_count_ >= settings_.lines_per_page) AddPage();
}

// Step 6: closing codes take effect after the word has been measured.
void PaginationPass::CloseStyles() {
  if (word_classes_ & kBoldOffClass) bold_ = false;
  if (word_classes_ & kItalicOffClass) italic_ = false;
  if (word_classes_ & kUnderlineOffClass) underline_ = false;
}

// Step 7: the reader's page is shown once the paginator is three pages past it.
void PaginationPass::CheckReadersPage() {
  if (passed_ || index_.count < kFirstPassedPageCount) return;
  if (index_.PageStart(index_.count - kPagesBeyondReader) <= settings_.reading_position) return;
  passed_ = true;
  if (owner_.events_ != nullptr) owner_.events_->PassedPage(settings_.reading_position);
}

// Step 8: repeated after every word while the count stays on a multiple of 25.
void PaginationPass::ReportProgress() {
  if (index_.count % kProgressStep == 0 && owner_.events_ != nullptr) {
    owner_.events_->CurrentPage(index_.count);
  }
}

void PaginationPass::AddPage() {
  // Each step logs its own error and the next still runs.
  Trap("sub addpage", kModule, [&] {
    index_.count += 1;
    if (index_.count >= index_.UpperBound()) index_.Grow(index_.count + PageIndex::kGrowthStep);
  });
  Trap("sub addpage", kModule, [&] { index_.SetPageStart(index_.count, NewPageStart()); });
  Trap("sub addpage", kModule, [&] {
    index_.SetStyles(index_.count, page_marks_.Open(StyleMarks::kBold),
                     page_marks_.Open(StyleMarks::kItalic),
                     page_marks_.Open(StyleMarks::kUnderline));
  });
  page_marks_.Clear();
  line_count_ = 0;
}

// The delimiter in front of the word that opened the page: the last blank or
// line feed at or before scan position - 2. A search from -1 covers the whole
// text; from 0 it is an invalid call (error 5), from past the end it finds
// nothing. The end of the text opens its page at the last character.
int32_t PaginationPass::NewPageStart() {
  const auto size = static_cast<int64_t>(text_.size());
  if (end_of_text_) return static_cast<int32_t>(size);
  int64_t from = scan_ - 2;
  if (from == -1) from = size;
  Require(from >= 1, ErrorNumber::kInvalidProcedureCall);
  if (from > size) return 0;
  return static_cast<int32_t>(cursor_.LastDelimiterAtOrBefore(from));
}

}  // namespace vireo
