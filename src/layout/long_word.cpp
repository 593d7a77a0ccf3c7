#include "layout/long_word.h"

namespace vireo {
namespace {

// Prefix widths never shrink: the first prefix wider than the line decides
// both the test and the piece.
LongWordFit FitMonotone(const double* table, std::string_view word, double line_width) {
  LongWordFit fit;
  double fitting = 0;  // width of the longest prefix seen that fits
  for (size_t i = 0; i < word.size(); ++i) {
    const double next = fitting + table[static_cast<unsigned char>(word[i])];
    if (next > line_width) {
      fit.wider = true;
      if (i > 0 && !(fitting < line_width)) {
        fit.piece = i;  // fits exactly: no overhang
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
                       std::vector<double>& prefix) {
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
  while (prefix[n] > line_width && n > 1) --n;
  while (prefix[n] < line_width && n < word.size()) ++n;
  fit.piece = n;
  fit.piece_width = prefix[n];
  return fit;
}

}  // namespace

LongWordFit FitLongWord(const double* table, std::string_view word, double line_width,
                        bool monotone, std::vector<double>& scratch) {
  return monotone ? FitMonotone(table, word, line_width)
                  : FitGeneral(table, word, line_width, scratch);
}

}  // namespace vireo
