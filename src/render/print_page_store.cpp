// StoreSentences: the page text laid out into lines, with the paginator's word
// loop and the composer's own differences (hyphens as break points anywhere,
// markers deleted from words, pictures announced, long words split, words
// measured with their actual delimiter).

#include <optional>
#include <vector>

#include "layout/font_metrics.h"
#include "layout/long_word.h"
#include "layout/word_scan.h"
#include "render/print_page.h"
#include "render/print_page_text.h"
#include "render/split_word.h"
#include "support/error_trap.h"
#include "support/text_helpers.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "clsPrintPage";
constexpr std::string_view kIndent = "   ";
// A long word shrinks by this many characters at a time before it grows back.
constexpr size_t kShrinkStep = 25;
constexpr char kLineFeed = '\n';
constexpr char kPageBreak = '\x86';

// The markers a word holds, found in one pass over it.
struct WordMarks {
  explicit WordMarks(std::string_view word) {
    for (const char c : word) {
      switch (c) {
        case kLineFeed:
          line_feed = true;
          break;
        case kPageBreak:
          page_break = true;
          break;
        case '\x80':
          bold_on = true;
          break;
        case '\x81':
          bold_off = true;
          break;
        case '\x82':
          italic_on = true;
          break;
        case '\x83':
          italic_off = true;
          break;
        case '[':
          bracket = true;
          break;  // a page-number tag or a picture
        default:
          break;
      }
    }
  }
  bool line_feed = false;
  bool page_break = false;
  bool bold_on = false;
  bool bold_off = false;
  bool italic_on = false;
  bool italic_off = false;
  bool bracket = false;
};

// The whole number at the start of text (an optional sign, then digits), 0
// when there is none; error 6 when it does not fit 32 bits.
int LeadingInteger(std::string_view text) {
  size_t at = 0;
  const bool negative = !text.empty() && text[0] == '-';
  if (!text.empty() && (text[0] == '-' || text[0] == '+')) at = 1;
  int64_t value = 0;
  for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) {
    value = value * 10 + (text[at] - '0');
    Require(value <= INT32_MAX, ErrorNumber::kOverflow);
  }
  return static_cast<int>(negative ? -value : value);
}

}  // namespace

// One run of the word loop over one page text.
class PageLineComposer {
 public:
  PageLineComposer(clsPrintPage& page, const PageSettings& settings, const clsFontMetrics& metrics)
      : page_(page),
        settings_(settings),
        metrics_(metrics),
        text_(settings.page_text),
        bold_(settings.bold),
        italic_(settings.italic),
        space_at_(text_.find(' ')),
        hyphen_at_(text_.find('-')) {}

  void Run() {
    do {
      const std::string word = split_.pending() ? NextPiece() : NextTextWord();
      LayOut(word);
      // The closing word itself is still measured in the style; the codes
      // count as they stand in the word laid out.
      const WordMarks laid_out(word);
      if (laid_out.bold_off) bold_ = false;
      if (laid_out.italic_off) italic_ = false;
    } while (!end_of_text_);
  }

 private:
  double Width(std::string_view text) const {
    double width = 0;
    for (const char c : text)
      width += metrics_.Width(bold_, italic_, static_cast<unsigned char>(c));
    return width;
  }

  // The next word of the text, its codes read and applied, split when long.
  std::string NextTextWord() {
    std::string word = NextWord();
    Process(word);
    return word;
  }

  void Process(std::string& word) {
    const WordMarks marks(word);
    Inspect(marks);
    Prepare(word, marks);
    if (const std::optional<size_t> piece = LongWordPiece(word)) {
      split_.Start(std::move(word));
      word = CutPiece(*piece);
    }
  }

  // The text up to the next space, or up to a hyphen before it (any hyphen,
  // also the first character); the rest of the text when no space is left.
  // Both delimiters are remembered, so the text is scanned once.
  std::string NextWord() {
    if (space_at_ != std::string_view::npos && space_at_ < scan_) {
      space_at_ = text_.find(' ', scan_);
    }
    if (hyphen_at_ != std::string_view::npos && hyphen_at_ < scan_) {
      hyphen_at_ = text_.find('-', scan_);
    }
    found_space_ = space_at_ != std::string_view::npos;
    if (!found_space_) {
      end_of_text_ = true;
      newline_ = true;
      hyphen_ = false;
      std::string word(text_.substr(scan_));
      scan_ = text_.size();
      return word;
    }
    hyphen_ = hyphen_at_ < space_at_;
    const size_t end = hyphen_ ? hyphen_at_ : space_at_;
    std::string word(text_.substr(scan_, end - scan_));
    scan_ = end + 1;
    return word;
  }

  // The next piece of a split word: its rest is taken as a word, as if it
  // stood in the text, but only its own piece is copied and measured. The
  // rest holds no line feed or page break (deleted before the split).
  std::string NextPiece() {
    hyphen_ = false;
    if (!found_space_) end_of_text_ = true;
    if (split_.RestHoldsPageNumberTag()) {
      // Deleting tags made new ones: the rest changes, so take it whole.
      std::string word(split_.Rest());
      split_.Clear();
      Process(word);
      return word;
    }
    ends_paragraph_ = false;
    if (split_.RestHoldsBoldOn()) bold_ = true;
    if (split_.RestHoldsItalicOn()) italic_ = true;
    if (split_.RestHoldsImage() && page_.images_ != nullptr &&
        PlaceImage(split_.NumberAfterEquals(LeadingInteger))) {
      split_.Clear();
      return std::string(ParaMark());
    }
    if (const std::optional<size_t> piece = LongWordPiece(split_.Rest())) return CutPiece(*piece);
    std::string word(split_.Rest());
    split_.Clear();
    return word;
  }

  // Line ends and the opening style codes, read before the word is changed.
  void Inspect(const WordMarks& marks) {
    ends_paragraph_ = marks.line_feed || marks.page_break;
    if (ends_paragraph_) newline_ = true;
    if (marks.bold_on) bold_ = true;
    if (marks.italic_on) italic_ = true;
  }

  // Deletes the line and page markers; a placed picture becomes a paragraph
  // mark.
  void Prepare(std::string& word, const WordMarks& marks) {
    if (marks.line_feed || marks.page_break) EraseChars(word, std::string_view("\n\x86", 2));
    if (!marks.bracket) return;
    for (const std::string_view tag : kPageNumberTags) EraseAll(word, tag);
    if (word.find("[IMG=") == std::string::npos || page_.images_ == nullptr) return;
    if (PlaceImage(LeadingInteger(std::string_view(word).substr(word.find('=') + 1)))) {
      word = ParaMark();
    }
  }

  // Announces picture number when the store holds it; false when it does not.
  bool PlaceImage(int number) {
    if (number > page_.images_->ImageCount()) return false;
    const std::optional<double> image_width = page_.images_->ImageWidth(number);
    if (!image_width) return false;
    page_.images_->SetImageLeft((settings_.line_width - *image_width) / 2);
    page_.RaiseAddImage(settings_.page_side, number, settings_.left);
    return true;
  }

  // The length of the first piece of a long word wider than the line: the
  // shortest prefix at least as wide as the line, as found by shrinking 25
  // characters at a time and growing one at a time; nullopt for a word that
  // is not split.
  std::optional<size_t> LongWordPiece(std::string_view word) {
    if (word.size() <= kLongWordLength) return std::nullopt;
    if (!tables_loaded_) {
      tables_.Load(metrics_, 0);
      tables_loaded_ = true;
    }
    const LongWordFit fit = FitLongWord(tables_.For(bold_, italic_), word, settings_.line_width,
                                        tables_.monotone(), scratch_, kShrinkStep);
    if (!fit.wider) return std::nullopt;
    return fit.piece;
  }

  // Cuts the next piece off the split word; the rest is still to be laid out.
  std::string CutPiece(size_t length) {
    end_of_text_ = false;
    newline_ = true;
    return split_.Cut(length);
  }

  void LayOut(const std::string& word) {
    const std::string piece = word + (hyphen_ ? '-' : ' ');
    const double width = Width(piece);
    if (line_width_ + width <= settings_.line_width && !newline_) {
      line_ += piece;
      line_width_ += width;
      return;
    }
    if (end_of_text_) {
      line_ += piece;
      CloseLine(line_, ends_paragraph_);
      line_.clear();
    } else if (newline_) {
      // The word that ends the line is counted on it; the next line starts
      // with the paragraph indent.
      newline_ = false;
      CloseLine(line_ + " " + word, ends_paragraph_);
      line_ = kIndent;
      line_indented_ = true;
    } else {
      CloseLine(line_, false);
      line_ = piece;
      line_indented_ = false;
    }
    line_width_ = Width(line_);
  }

  // Stores a finished line: the paragraph indent kept, otherwise trimmed; a
  // paragraph's last line ends with a line feed.
  void CloseLine(std::string_view line, bool ends_paragraph) {
    std::string stored;
    if (line_indented_ && line.starts_with(kIndent)) {
      stored = kIndent;
      stored += TrimSpaces(line.substr(kIndent.size()));
    } else {
      stored = TrimSpaces(line);
    }
    if (ends_paragraph) stored += kLineFeed;
    page_.StoreLine(std::move(stored));
  }

  clsPrintPage& page_;
  const PageSettings& settings_;
  const clsFontMetrics& metrics_;
  std::string_view text_;
  bool bold_;
  bool italic_;
  size_t scan_ = 0;
  size_t space_at_;
  size_t hyphen_at_;
  SplitWord split_;
  StyleTables tables_;
  bool tables_loaded_ = false;
  std::vector<double> scratch_;
  bool found_space_ = true;
  bool hyphen_ = false;
  bool end_of_text_ = false;
  bool newline_ = false;
  bool ends_paragraph_ = false;
  std::string line_;
  double line_width_ = 0;
  bool line_indented_ = false;
};

void clsPrintPage::StoreSentences(const PageSettings& settings, const clsFontMetrics& metrics) {
  Trap("sub storesentences", kModule, [&] { PageLineComposer(*this, settings, metrics).Run(); });
}

}  // namespace vireo
