#pragma once

#include <string>

#include "book/formatting_options.h"

namespace vireo {

// The paragraph reformatting every book passes through once before
// pagination (class clsStripCR of the reader): line ends become paragraph
// marks, quotes, dashes and ellipses are normalised, underscores may become
// italics, and scene breaks are set apart.
class clsStripCR {
 public:
  // Rewrites text (Windows-1252 bytes) in place, in twelve steps: underscores
  // (when options.underscores), line ends to CR, tabs, quotes, paragraph
  // ends after closing quotes and markers, sentence ends, blank lines, the
  // remaining line ends (joined when options.reformat, else each a
  // paragraph), doubled paragraph marks (options.extra_line), dashes and
  // ellipses, scene breaks. Runs in a fixed number of linear passes whose
  // output is byte-identical to the twelve whole-text replacement steps. An
  // error is logged under "replaceknownchar" of "clsStripCR"; the text keeps
  // the passes completed so far.
  static void ReplaceKnownChar(std::string& text, const FormattingOptions& options);
};

}  // namespace vireo
