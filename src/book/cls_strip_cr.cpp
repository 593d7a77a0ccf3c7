#include "book/cls_strip_cr.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <unordered_map>

#include "book/byte_scan.h"
#include "book/text_output.h"
#include "support/error_trap.h"
#include "support/text_helpers.h"

// The twelve steps are defined as whole-text replacements, each over the
// result of the one before. They are run here as three passes:
//   A. steps 1-4, which only map single characters (and pair apostrophes);
//      in place, as only a tab makes the text longer;
//   B. steps 5-9, which only act around line ends and double quotes: the
//      text is cut into small windows around those characters, and the
//      steps run literally on each window (results are remembered, since
//      the same few windows recur all through a book);
//   C. steps 10-12, which only act on paragraph marks, runs of "-" and ".",
//      and scene breaks; in place unless extra lines are asked for.
// So a load builds one new string of the book's size here, in pass B.

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

constexpr auto kPassAStops = MakeByteSet('_', '\r', '\n', '\t', '`', '\'', 145, 146, 147, 148);

// Steps 1-4 over text from index into out. Returns where it stopped: the end
// of the text, or a tab when out cannot grow (a tab becomes three blanks).
template <typename Output>
size_t UnderscoresLineEndsTabsQuotes(std::string_view text, size_t index, bool underscores,
                                     bool& next_italic_on, Output& out) {
  const size_t size = text.size();
  while (index < size) {
    const size_t run = kPassAStops.Next(text, index);
    out.AppendOwn(index, run - index);
    if (run == size) break;
    const char c = text[run];
    if constexpr (!Output::kCanGrow) {
      if (c == '\t') return run;
    }
    index = run + 1;
    switch (static_cast<uint8_t>(c)) {
      case '_':
        if (underscores) {
          out.Push(next_italic_on ? kItalicOn : kItalicOff);
          next_italic_on = !next_italic_on;
        } else {
          out.Push(c);
        }
        break;
      case '\r':
        out.Push(kCarriageReturn);
        if (index < size && text[index] == kLineFeed) ++index;
        break;
      case '\n':
        out.Push(kCarriageReturn);
        break;
      case '\t':
        out.Append("   ");
        break;
      case 147:
      case 148:
        out.Push(kQuote);
        break;
      default:  // ` ' 145 146
        // An apostrophe at the end of the output is always an unpaired
        // one: a pair becomes a double quote at once ("''" to Q, left to
        // right).
        if (out.size() > 0 && out.back() == kApostrophe) {
          out.back() = kQuote;
        } else {
          out.Push(kApostrophe);
        }
        break;
    }
  }
  return size;
}

// Steps 1-4 in place, as every change but a tab keeps the length or
// shortens; from the first tab on, the rest goes to a new string.
void UnderscoresLineEndsTabsQuotes(std::string& text, bool underscores) {
  bool next_italic_on = true;
  InPlaceOutput in_place(text);
  const size_t stop = UnderscoresLineEndsTabsQuotes(text, 0, underscores, next_italic_on, in_place);
  if (stop == text.size()) {
    in_place.Finish();
    return;
  }
  StringOutput grown(text, text.size() + text.size() / 64);
  grown.Append(in_place.view());
  UnderscoresLineEndsTabsQuotes(text, stop, underscores, next_italic_on, grown);
  text = grown.Take();
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
  LineEndWindows(std::string_view text, bool reformat)
      : text_(text), reformat_(reformat), out_(text, text.size() + text.size() / 16) {}

  std::string Run() {
    const size_t size = text_.size();
    bool open = false;
    size_t start = 0;
    size_t end = 0;  // last index of the open window
    static constexpr auto kAnchors = MakeByteSet('\r', '"');
    for (size_t index = kAnchors.Next(text_, 0); index < size;
         index = kAnchors.Next(text_, index + 1)) {
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
    out_.AppendOwn(copied_, text_.size() - copied_);
    return out_.Take();
  }

 private:
  void Flush(size_t start, size_t end) {
    out_.AppendOwn(copied_, start - copied_);
    copied_ = end + 1;
    const std::string_view window = text_.substr(start, end - start + 1);
    if (window.size() == 2 && FlushPair(window[0], window[1])) return;
    if (window.size() <= kRememberedSize) {
      auto found = remembered_.find(std::string(window));
      if (found == remembered_.end()) {
        std::string result(window);
        LineEndSteps(result, reformat_);
        found = remembered_.emplace(std::string(window), std::move(result)).first;
      }
      out_.Append(found->second);
      return;
    }
    std::string result(window);
    LineEndSteps(result, reformat_);
    out_.Append(result);
  }

  // The common windows: one character other than a blank, a line end or a
  // double quote, then a line end or a double quote. Before a line end, the
  // closing characters of steps 5 and 6 and the sentence ends of step 7
  // take a paragraph mark, any other character is left to step 9; before a
  // double quote nothing changes.
  bool FlushPair(char c, char anchor) {
    if (c == ' ' || c == kCarriageReturn || c == kQuote) return false;
    out_.Push(c);
    if (anchor == kQuote) {
      out_.Push(kQuote);
    } else {
      out_.Append(CanOpenMatch(c) || !reformat_ ? ParaMark() : std::string_view(" "));
    }
    return true;
  }

  static constexpr size_t kRememberedSize = 24;
  std::string_view text_;
  bool reformat_;
  StringOutput out_;
  size_t copied_ = 0;
  std::unordered_map<std::string, std::string> remembered_;
};

// ---- Pass C: steps 10-12 -------------------------------------------------

size_t RunLength(std::string_view text, size_t index, char c) {
  size_t end = index;
  while (end < text.size() && text[end] == c) ++end;
  return end - index;
}

// Steps 10-12 over text into out (in place unless extra_line, the only
// step here that makes the text longer).
template <typename Output>
void ExtraLinesDashesSceneBreaks(std::string_view text, bool extra_line, Output& out) {
  const std::string double_mark = std::string(ParaMark()) + std::string(ParaMark());
  // Output length just after the last scene break removed: the step that
  // drops one of two paragraph marks before a scene break looks at the text
  // that still holds the earlier breaks.
  size_t after_last_break = 0;
  const size_t size = text.size();
  static constexpr auto kStops = MakeByteSet(kLineFeed, '-', '.', kCentred);
  for (size_t index = 0; index < size;) {
    const size_t run = kStops.Next(text, index);
    out.AppendOwn(index, run - index);
    if (run == size) break;
    index = run;
    const char c = text[index];
    if (c == kLineFeed) {
      // Every line feed is the middle of a paragraph mark here.
      if constexpr (Output::kCanGrow) {
        out.Append(extra_line ? "\n  \n" : "\n");
      } else {
        out.Push(kLineFeed);
      }
      ++index;
    } else if (c == '-') {
      const size_t length = RunLength(text, index, '-');
      out.AppendRepeated(length / 2, kEmDash);
      out.AppendRepeated(length % 2, '-');
      index += length;
    } else if (c == '.') {
      const size_t length = RunLength(text, index, '.');
      out.AppendRepeated(length / 3, kEllipsis);
      out.AppendRepeated(length % 3, '.');
      index += length;
    } else if (text.substr(index + 1, kSceneBreakStars.size()) == kSceneBreakStars) {
      if (out.size() >= after_last_break + double_mark.size() &&
          out.view().ends_with(double_mark)) {
        out.Shrink(ParaMark().size());
      }
      index += 1 + kSceneBreakStars.size();
      after_last_break = out.size();
    } else {
      out.Push(c);
      ++index;
    }
  }
}

void ExtraLinesDashesSceneBreaks(std::string& text, bool extra_line) {
  if (extra_line) {
    StringOutput out(text, text.size() + text.size() / 16);
    ExtraLinesDashesSceneBreaks(text, extra_line, out);
    text = out.Take();
  } else {
    InPlaceOutput out(text);
    ExtraLinesDashesSceneBreaks(text, extra_line, out);
    out.Finish();
  }
}

}  // namespace

void clsStripCR::ReplaceKnownChar(std::string& text, const FormattingOptions& options) {
  Trap("replaceknownchar", "clsStripCR", [&] {
    UnderscoresLineEndsTabsQuotes(text, options.underscores);
    text = LineEndWindows(text, options.reformat).Run();
    ExtraLinesDashesSceneBreaks(text, options.extra_line);
  });
}

}  // namespace vireo
