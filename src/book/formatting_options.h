#pragma once

namespace vireo {

// The three formatting options a book is loaded with (the preferences
// "Reformat", "UnderScores" and "ExtraParagraphLine").
struct FormattingOptions {
  bool reformat = true;      // join the lines of a paragraph
  bool underscores = false;  // underscores become italic on / off markers
  bool extra_line = false;   // an empty line between paragraphs

  bool operator==(const FormattingOptions&) const = default;
};

}  // namespace vireo
