// StoreSentences: the page text laid out into lines, with the paginator's word
// loop and the composer's own differences (hyphens as break points anywhere,
// markers deleted from words, pictures announced, long words split, words
// measured with their actual delimiter).

#include <array>

#include "layout/font_metrics.h"
#include "render/print_page.h"
#include "render/print_page_text.h"
#include "support/error_trap.h"
#include "support/text_helpers.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "clsPrintPage";
constexpr std::string_view kIndent = "   ";
// Only a word of more than this many characters is ever split.
constexpr size_t kLongWordLength = 20;
// A long word shrinks by this many characters at a time before it grows back.
constexpr size_t kShrinkStep = 25;
constexpr std::array<std::string_view, 3> kPageNumberTags = {"[npn=r]", "[npn=n]", "[npn=d]"};
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
        hyphen_at_(text_.find('-')) {}

  void Run() {
    do {
      std::string word = NextWord();
      const WordMarks marks(word);
      Inspect(marks);
      Prepare(word, marks);
      if (word.size() > kLongWordLength && Width(word) > settings_.line_width) SplitLongWord(word);
      LayOut(word);
      // The closing word itself is still measured in the style; the codes
      // count as they stand in the word laid out.
      if (marks.bold_off || marks.italic_off) {
        const WordMarks laid_out(word);
        if (laid_out.bold_off) bold_ = false;
        if (laid_out.italic_off) italic_ = false;
      }
    } while (!end_of_text_);
  }

 private:
  double Width(std::string_view text) const {
    double width = 0;
    for (const char c : text)
      width += metrics_.Width(bold_, italic_, static_cast<unsigned char>(c));
    return width;
  }

  // The next word: a pending piece of a split word, else the text up to the
  // next space, or up to a hyphen before it (any hyphen, also the first
  // character); the rest of the text when no space is left.
  std::string NextWord() {
    if (!leftover_.empty()) {
      std::string word = std::move(leftover_);
      leftover_.clear();
      hyphen_ = false;
      if (!found_space_) end_of_text_ = true;
      return word;
    }
    const size_t space = text_.find(' ', scan_);
    if (hyphen_at_ != std::string_view::npos && hyphen_at_ < scan_) {
      hyphen_at_ = text_.find('-', scan_);  // remembered, so the text is scanned once
    }
    found_space_ = space != std::string_view::npos;
    if (!found_space_) {
      end_of_text_ = true;
      newline_ = true;
      hyphen_ = false;
      std::string word(text_.substr(scan_));
      scan_ = text_.size();
      return word;
    }
    hyphen_ = hyphen_at_ < space;
    const size_t end = hyphen_ ? hyphen_at_ : space;
    std::string word(text_.substr(scan_, end - scan_));
    scan_ = end + 1;
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
    const int number = LeadingInteger(std::string_view(word).substr(word.find('=') + 1));
    if (number > page_.images_->ImageCount()) return;
    const std::optional<double> image_width = page_.images_->ImageWidth(number);
    if (!image_width) return;
    page_.images_->SetImageLeft((settings_.line_width - *image_width) / 2);
    page_.RaiseAddImage(settings_.page_side, number, settings_.left);
    word = ParaMark();
  }

  // Cuts the shortest prefix at least as wide as the line off a long word:
  // shrink 25 characters at a time until it fits, then grow one at a time.
  void SplitLongWord(std::string& word) {
    leftover_ = word;
    size_t length = word.size();
    while (length > 1 &&
           Width(std::string_view(leftover_).substr(0, length)) > settings_.line_width) {
      length = length > kShrinkStep ? length - kShrinkStep : 1;
    }
    while (length < leftover_.size() &&
           Width(std::string_view(leftover_).substr(0, length)) < settings_.line_width) {
      ++length;
    }
    word = leftover_.substr(0, length);
    // As in the paginator, a word that needs all its characters leaves "0".
    leftover_ = length < leftover_.size() ? leftover_.substr(length) : "0";
    end_of_text_ = false;
    newline_ = true;
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
  size_t hyphen_at_;
  std::string leftover_;
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
