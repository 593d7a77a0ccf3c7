#pragma once

// The paragraph reformatting as whole-text replacements through the text
// helpers, step by step: the oracle for clsStripCR's fast passes and round trips.

#include <string>
#include <vector>

#include "book/formatting_options.h"
#include "support/text_helpers.h"

namespace vireo::test {

inline void ReplaceIfPresent(std::string& text, const std::string& find,
                             const std::string& replacement) {
  if (CountOccurrences(text, find) > 0) MyReplace(text, find, replacement);
}

inline void ReplaceKnownCharStepByStep(std::string& text, const FormattingOptions& options) {
  const std::string q = "\"";
  const std::string cr = "\r";
  const std::string pm(ParaMark());
  const std::string scene_break = "\x84* * *";
  // Closing quotes, then italic, bold and underline off.
  const std::string closers[] = {q, "'", "\x83", "\x81", "\x88"};
  // 1. Underscores alternate between italic on and off.
  if (options.underscores) {
    bool on = true;
    for (char& c : text) {
      if (c == '_') {
        c = on ? '\x82' : '\x83';
        on = !on;
      }
    }
  }
  // 2. Line ends.
  MyReplace(text, "\r\n", "\r");
  MyReplaceNoCaps(text, "\n", "\r");
  // 3. Tabs.
  ReplaceIfPresent(text, "\t", "   ");
  // 4. Quotes.
  for (const char* quote : {"`", "\x91", "\x92"}) MyReplace(text, quote, "'");
  for (const char* quote : {"\x93", "\x94"}) MyReplace(text, quote, q);
  ReplaceIfPresent(text, "''", q);
  // 5. Paragraph ends after closing quotes and closing markers.
  for (int i = 0; i <= 5; ++i) {
    const std::string s(static_cast<size_t>(i), ' ');
    for (const std::string& mark : closers) ReplaceIfPresent(text, mark + s + cr, mark + pm);
    ReplaceIfPresent(text, q + s + q, q + pm + q);
  }
  // 6. The closing markers once more.
  for (int i = 2; i < 5; ++i) MyReplace(text, closers[i] + cr, closers[i] + pm);
  // 7. Sentence ends at line ends.
  for (const std::string end : {".", "!", "?"}) MyReplace(text, end + cr, end + pm);
  // 8. Lines of one to five blanks.
  for (int i = 1; i <= 5; ++i)
    MyReplace(text, cr + std::string(static_cast<size_t>(i), ' ') + cr, pm);
  // 9. The remaining line ends.
  if (options.reformat) {
    MyReplace(text, cr + cr, pm);
    MyReplace(text, cr, " ");
  } else {
    MyReplace(text, cr, pm);
  }
  // 10. Extra line.
  if (options.extra_line) MyReplace(text, pm, pm + pm);
  // 11. Dashes and ellipses.
  MyReplace(text, "--", "\x97");
  MyReplace(text, "...", "\x85");
  // 12. Scene breaks.
  MyReplace(text, pm + pm + scene_break, pm + scene_break);
  MyReplace(text, scene_break, pm + scene_break + pm);
  MyReplace(text, pm + scene_break + pm, "");
}

// All eight combinations of the formatting options.
inline std::vector<FormattingOptions> AllFormattingOptions() {
  std::vector<FormattingOptions> all;
  for (int bits = 0; bits < 8; ++bits) {
    all.push_back({(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0});
  }
  return all;
}

}  // namespace vireo::test
