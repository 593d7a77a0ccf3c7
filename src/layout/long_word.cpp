#include "layout/long_word.h"

#include <algorithm>

namespace vireo {
namespace {

// The length at which the shrink stops when every prefix up to `fitting`
// characters fits: the largest of length, length - step, length - 2 step ...
// that is at most `fitting`, and never below one character.
size_t ShrinkStop(size_t length, size_t step, size_t fitting) {
  const size_t steps = (length - fitting + step - 1) / step;
  return steps * step < length ? length - steps * step : 1;
}

// Prefix widths never shrink: the first prefix wider than the line decides
// both the test and the piece, so one forward pass finds what the shrink and
// the grow would.
LongWordFit FitMonotone(const double* table, std::string_view word, double line_width,
                        size_t shrink_step) {
  LongWordFit fit;
  double fitting = 0;   // width of the longest prefix seen that fits
  size_t reaching = 0;  // length of the first prefix at least as wide as the line
  for (size_t i = 0; i < word.size(); ++i) {
    if (reaching == 0 && i > 0 && !(fitting < line_width)) reaching = i;
    const double next = fitting + table[static_cast<unsigned char>(word[i])];
    if (next > line_width) {
      fit.wider = true;
      if (reaching != 0) {
        // Prefixes from `reaching` to i fit exactly (they differ by
        // characters of no width): the grow starts wherever the shrink
        // stopped among them, or climbs to the first of them.
        fit.piece = std::max(reaching, ShrinkStop(word.size(), shrink_step, i));
        fit.piece_width = fitting;
      } else {
        fit.piece = i + 1;  // one past the fitting prefix, or the lone first character
        fit.piece_width = next;
      }
      return fit;
    }
    fitting = next;
  }
  fit.width = fitting;
  return fit;
}

LongWordFit FitGeneral(const double* table, std::string_view word, double line_width,
                       size_t shrink_step, std::vector<double>& prefix) {
  prefix.assign(word.size() + 1, 0.0);
  for (size_t i = 0; i < word.size(); ++i) {
    prefix[i + 1] = prefix[i] + table[static_cast<unsigned char>(word[i])];
  }
  LongWordFit fit;
  size_t n = word.size();
  if (!(prefix[n] > line_width)) {
    fit.width = prefix[n];
    return fit;
  }
  fit.wider = true;
  while (prefix[n] > line_width && n > 1) n = n > shrink_step ? n - shrink_step : 1;
  while (prefix[n] < line_width && n < word.size()) ++n;
  fit.piece = n;
  fit.piece_width = prefix[n];
  return fit;
}

}  // namespace

LongWordFit FitLongWord(const double* table, std::string_view word, double line_width,
                        bool monotone, std::vector<double>& scratch, size_t shrink_step) {
  shrink_step = std::max<size_t>(shrink_step, 1);
  return monotone ? FitMonotone(table, word, line_width, shrink_step)
                  : FitGeneral(table, word, line_width, shrink_step, scratch);
}

}  // namespace vireo
