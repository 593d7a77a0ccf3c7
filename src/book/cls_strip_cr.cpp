#include "book/cls_strip_cr.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <unordered_map>

#include "support/error_trap.h"
#include "support/text_helpers.h"

// The twelve steps are defined as whole-text replacements, each over the
// result of the one before. They are run here as three passes:
//   A. steps 1-4, which only map single characters (and pair apostrophes);
//   B. steps 5-9, which only act around line ends and double quotes: the
//      text is cut into small windows around those characters, and the
//      steps run literally on each window (results are remembered, since
//      the same few windows recur all through a book);
//   C. steps 10-12, which only act on paragraph marks, runs of "-" and ".",
//      and scene breaks.

namespace vireo {
namespace {

constexpr char kCarriageReturn = '\r';
constexpr char kLineFeed = '\n';
constexpr char kQuote = '"';
constexpr char kApostrophe = '\'';
constexpr char kBoldOff = '\x81';
constexpr char kItalicOn = '\x82';
constexpr char kItalicOff = '\x83';
constexpr char kCentred = '\x84';
constexpr char kEllipsis = '\x85';
constexpr char kUnderlineOff = '\x88';
constexpr char kEmDash = '\x97';
constexpr std::string_view kSceneBreakStars = "* * *";

// ---- Pass A: steps 1-4 ---------------------------------------------------

std::array<bool, 256> PassAStops() {
  std::array<bool, 256> stops{};
  for (int c :
       {int{'_'}, int{'\r'}, int{'\n'}, int{'\t'}, int{'`'}, int{'\''}, 145, 146, 147, 148}) {
    stops[static_cast<size_t>(c)] = true;
  }
  return stops;
}

std::string UnderscoresLineEndsTabsQuotes(std::string_view text, bool underscores) {
  static const std::array<bool, 256> stops = PassAStops();
  std::string out;
  out.reserve(text.size() + text.size() / 64);
  bool next_italic_on = true;
  // An apostrophe at the end of the output is always an unpaired one: a
  // pair becomes a double quote at once ("''" to Q, left to right).
  auto apostrophe = [&] {
    if (!out.empty() && out.back() == kApostrophe) {
      out.back() = kQuote;
    } else {
      out.push_back(kApostrophe);
    }
  };
  const size_t size = text.size();
  for (size_t index = 0; index < size;) {
    size_t run = index;
    while (run < size && !stops[static_cast<uint8_t>(text[run])]) ++run;
    out.append(text, index, run - index);
    if (run == size) break;
    const char c = text[run];
    index = run + 1;
    switch (static_cast<uint8_t>(c)) {
      case '_':
        if (underscores) {
          out.push_back(next_italic_on ? kItalicOn : kItalicOff);
          next_italic_on = !next_italic_on;
        } else {
          out.push_back(c);
        }
        break;
      case '\r':
        out.push_back(kCarriageReturn);
        if (index < size && text[index] == kLineFeed) ++index;
        break;
      case '\n':
        out.push_back(kCarriageReturn);
        break;
      case '\t':
        out.append("   ");
        break;
      case 147:
      case 148:
        out.push_back(kQuote);
        break;
      default:  // ` ' 145 146
        apostrophe();
        break;
    }
  }
  return out;
}

// ---- Pass B: steps 5-9 ---------------------------------------------------

void ReplaceAll(std::string& text, std::string_view find, std::string_view replacement) {
  size_t at = text.find(find);
  if (at == std::string::npos) return;
  std::string out;
  size_t from = 0;
  for (; at != std::string::npos; at = text.find(find, from)) {
    out.append(text, from, at - from);
    out.append(replacement);
    from = at + find.size();
  }
  out.append(text, from);
  text = std::move(out);
}

// Steps 5 to 9 exactly as written, on one window.
void LineEndSteps(std::string& text, bool reformat) {
  const std::string cr(CR());
  const std::string mark(ParaMark());
  const std::string quote(1, kQuote);
  for (int i = 0; i <= 5; ++i) {
    const std::string blanks(static_cast<size_t>(i), ' ');
    for (char closer : {kQuote, kApostrophe, kItalicOff, kBoldOff, kUnderlineOff}) {
      ReplaceAll(text, closer + blanks + cr, closer + mark);
    }
    ReplaceAll(text, quote + blanks + quote, quote + mark + quote);
  }
  for (char closer : {kItalicOff, kBoldOff, kUnderlineOff}) {
    ReplaceAll(text, closer + cr, closer + mark);
  }
  for (char end : {'.', '!', '?'}) ReplaceAll(text, end + cr, end + mark);
  for (int i = 1; i <= 5; ++i) ReplaceAll(text, cr + std::string(i, ' ') + cr, mark);
  if (reformat) {
    ReplaceAll(text, cr + cr, mark);
    ReplaceAll(text, cr, " ");
  } else {
    ReplaceAll(text, cr, mark);
  }
}

// Characters that can stand before the blanks of a match ending at a line
// end or a double quote.
bool CanOpenMatch(char c) {
  switch (static_cast<uint8_t>(c)) {
    case '"':
    case '\'':
    case '\r':
    case '.':
    case '!':
    case '?':
    case 129:
    case 131:
    case 136:
      return true;
    default:
      return false;
  }
}

// Every match of steps 5-9 ends at a line end or a double quote and reaches
// back over at most five blanks to one more character; replacements only
// insert paragraph marks, whose line feed no pattern crosses. So the windows
// made of those reaches, merged where they overlap, never share a match,
// and the steps can run on each window alone.
class LineEndWindows {
 public:
  LineEndWindows(std::string_view text, bool reformat) : text_(text), reformat_(reformat) {
    out_.reserve(text.size() + text.size() / 16);
  }

  std::string Run() {
    const size_t size = text_.size();
    bool open = false;
    size_t start = 0;
    size_t end = 0;  // last index of the open window
    for (size_t index = 0; index < size; ++index) {
      const char c = text_[index];
      if (c != kCarriageReturn && c != kQuote) continue;
      size_t reach = index;
      size_t blanks = 0;
      while (blanks <= 5 && reach > 0 && text_[reach - 1] == ' ') --reach, ++blanks;
      if (blanks > 5) {
        reach = index;
      } else if (reach > 0) {
        --reach;
      }
      if (open && reach <= end) {
        end = index;
        continue;
      }
      if (open) Flush(start, end);
      open = true;
      start = reach;
      end = index;
    }
    if (open) Flush(start, end);
    out_.append(text_, copied_);
    return std::move(out_);
  }

 private:
  void Flush(size_t start, size_t end) {
    out_.append(text_, copied_, start - copied_);
    copied_ = end + 1;
    const std::string_view window = text_.substr(start, end - start + 1);
    // The common window: a line end after an ordinary character.
    if (window.size() == 2 && window[1] == kCarriageReturn && !CanOpenMatch(window[0]) &&
        window[0] != ' ') {
      out_.push_back(window[0]);
      out_.append(reformat_ ? std::string_view(" ") : ParaMark());
      return;
    }
    if (window.size() <= kRememberedSize) {
      auto found = remembered_.find(std::string(window));
      if (found == remembered_.end()) {
        std::string result(window);
        LineEndSteps(result, reformat_);
        found = remembered_.emplace(std::string(window), std::move(result)).first;
      }
      out_.append(found->second);
      return;
    }
    std::string result(window);
    LineEndSteps(result, reformat_);
    out_.append(result);
  }

  static constexpr size_t kRememberedSize = 24;
  std::string_view text_;
  bool reformat_;
  std::string out_;
  size_t copied_ = 0;
  std::unordered_map<std::string, std::string> remembered_;
};

// ---- Pass C: steps 10-12 -------------------------------------------------

size_t RunLength(std::string_view text, size_t index, char c) {
  size_t end = index;
  while (end < text.size() && text[end] == c) ++end;
  return end - index;
}

std::string ExtraLinesDashesSceneBreaks(std::string_view text, bool extra_line) {
  const std::string double_mark = std::string(ParaMark()) + std::string(ParaMark());
  std::string out;
  out.reserve(text.size() + text.size() / 16);
  // Output length just after the last scene break removed: the step that
  // drops one of two paragraph marks before a scene break looks at the text
  // that still holds the earlier breaks.
  size_t after_last_break = 0;
  const size_t size = text.size();
  for (size_t index = 0; index < size;) {
    size_t run = index;
    while (run < size) {
      const char c = text[run];
      if (c == kLineFeed || c == '-' || c == '.' || c == kCentred) break;
      ++run;
    }
    out.append(text, index, run - index);
    if (run == size) break;
    index = run;
    const char c = text[index];
    if (c == kLineFeed) {
      // Every line feed is the middle of a paragraph mark here.
      out.append(extra_line ? "\n  \n" : "\n");
      ++index;
    } else if (c == '-') {
      const size_t length = RunLength(text, index, '-');
      out.append(length / 2, kEmDash);
      out.append(length % 2, '-');
      index += length;
    } else if (c == '.') {
      const size_t length = RunLength(text, index, '.');
      out.append(length / 3, kEllipsis);
      out.append(length % 3, '.');
      index += length;
    } else if (text.substr(index + 1, kSceneBreakStars.size()) == kSceneBreakStars) {
      if (out.size() >= after_last_break + double_mark.size() &&
          std::string_view(out).ends_with(double_mark)) {
        out.resize(out.size() - ParaMark().size());
      }
      index += 1 + kSceneBreakStars.size();
      after_last_break = out.size();
    } else {
      out.push_back(c);
      ++index;
    }
  }
  return out;
}

}  // namespace

void clsStripCR::ReplaceKnownChar(std::string& text, const FormattingOptions& options) {
  Trap("replaceknownchar", "clsStripCR", [&] {
    text = UnderscoresLineEndsTabsQuotes(text, options.underscores);
    text = LineEndWindows(text, options.reformat).Run();
    text = ExtraLinesDashesSceneBreaks(text, options.extra_line);
  });
}

}  // namespace vireo
