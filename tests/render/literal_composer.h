#pragma once

// The composer's line rules written out literally on whole strings (pieces by
// shrinking 25 and growing 1, each prefix measured afresh): slow on purpose,
// the oracle for clsPrintPage::StoreSentences on small pages.

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "layout/font_metrics.h"
#include "render/print_page.h"
#include "support/text_helpers.h"

namespace vireo::test {

struct LiteralPage {
  std::vector<std::string> lines;
  std::vector<std::pair<int, size_t>> images;  // picture number, line index
};

class LiteralComposer {
 public:
  LiteralComposer(const PageSettings& settings, const clsFontMetrics& metrics,
                  ComposerImageStore* images)
      : settings_(settings),
        metrics_(metrics),
        images_(images),
        bold_(settings.bold),
        italic_(settings.italic) {}

  // Stops, as the composer does, when lines per page + 10 are full or a picture number overflows.
  LiteralPage Run() {
    try {
      Loop();
    } catch (const std::length_error&) {
    }
    return std::move(page_);
  }

 private:
  static bool Holds(std::string_view word, char c) { return word.find(c) != word.npos; }

  double Width(std::string_view text) const {
    double width = 0;
    for (char c : text) width += metrics_.Width(bold_, italic_, static_cast<unsigned char>(c));
    return width;
  }

  void Loop() {
    const std::string_view text = settings_.page_text;
    do {
      std::string word;
      if (!leftover_.empty()) {
        word = std::exchange(leftover_, "");
        hyphen_ = false;
        if (!found_space_) end_of_text_ = true;
      } else {
        const size_t space = text.find(' ', scan_);
        found_space_ = space != text.npos;
        if (!found_space_) {
          end_of_text_ = newline_ = true;
          hyphen_ = false;
          word = text.substr(scan_);
          scan_ = text.size();
        } else {
          const size_t hyphen = text.find('-', scan_);
          hyphen_ = hyphen < space;
          word = text.substr(scan_, (hyphen_ ? hyphen : space) - scan_);
          scan_ += word.size() + 1;
        }
      }
      ends_paragraph_ = Holds(word, '\n') || Holds(word, '\x86');
      if (ends_paragraph_) newline_ = true;
      if (Holds(word, '\x80')) bold_ = true;
      if (Holds(word, '\x82')) italic_ = true;
      std::erase_if(word, [](char c) { return c == '\n' || c == '\x86'; });
      for (const char* tag : {"[npn=r]", "[npn=n]", "[npn=d]"}) MyReplaceLiterally(word, tag);
      if (word.find("[IMG=") != word.npos && images_ != nullptr) PlaceImage(word);
      if (word.size() > 20 && Width(word) > settings_.line_width) Split(word);
      LayOut(word);
      if (Holds(word, '\x81')) bold_ = false;
      if (Holds(word, '\x83')) italic_ = false;
    } while (!end_of_text_);
  }

  static void MyReplaceLiterally(std::string& word, std::string_view tag) {
    std::string kept;
    size_t from = 0;
    for (size_t at = word.find(tag); at != word.npos; at = word.find(tag, from)) {
      kept += word.substr(from, at - from);
      from = at + tag.size();
    }
    word = kept + word.substr(from);
  }

  void PlaceImage(std::string& word) {
    long long number = 0;
    std::string_view digits = std::string_view(word).substr(word.find('=') + 1);
    const bool negative = !digits.empty() && digits[0] == '-';
    if (!digits.empty() && (digits[0] == '-' || digits[0] == '+')) digits.remove_prefix(1);
    for (size_t i = 0; i < digits.size() && digits[i] >= '0' && digits[i] <= '9'; ++i) {
      number = number * 10 + (digits[i] - '0');
      if (number > INT32_MAX) throw std::length_error("overflow");
    }
    const int n = static_cast<int>(negative ? -number : number);
    if (n > images_->ImageCount() || !images_->ImageWidth(n)) return;
    page_.images.emplace_back(n, page_.lines.size());
    word = ParaMark();
  }

  void Split(std::string& word) {
    leftover_ = word;
    size_t n = word.size();
    while (n > 1 && Width(leftover_.substr(0, n)) > settings_.line_width) n = n > 25 ? n - 25 : 1;
    while (n < leftover_.size() && Width(leftover_.substr(0, n)) < settings_.line_width) ++n;
    word = leftover_.substr(0, n);
    leftover_ = n < leftover_.size() ? leftover_.substr(n) : "0";
    end_of_text_ = false;
    newline_ = true;
  }

  void LayOut(const std::string& word) {
    const std::string piece = word + (hyphen_ ? "-" : " ");
    if (line_width_ + Width(piece) <= settings_.line_width && !newline_) {
      line_ += piece;
      line_width_ += Width(piece);
      return;
    }
    if (end_of_text_) {
      Store(line_ + piece, ends_paragraph_);
      line_.clear();
    } else if (newline_) {
      newline_ = false;
      Store(line_ + " " + word, ends_paragraph_);
      line_ = "   ";
      indented_ = true;
    } else {
      Store(line_, false);
      line_ = piece;
      indented_ = false;
    }
    line_width_ = Width(line_);
  }

  void Store(const std::string& line, bool ends_paragraph) {
    const auto trim = [](std::string_view s) {
      const size_t first = s.find_first_not_of(' ');
      if (first == s.npos) return std::string();
      return std::string(s.substr(first, s.find_last_not_of(' ') - first + 1));
    };
    std::string stored =
        indented_ && line.starts_with("   ") ? "   " + trim(line.substr(3)) : trim(line);
    if (ends_paragraph) stored += '\n';
    const bool blank = stored.find_first_not_of(" \n") == stored.npos;
    if (page_.lines.empty() && page_.images.empty() && blank) {
      return;
    }
    if (page_.lines.size() >= static_cast<size_t>(std::max(0, settings_.lines_per_page + 10))) {
      throw std::length_error("line array full");
    }
    page_.lines.push_back(std::move(stored));
  }

  const PageSettings& settings_;
  const clsFontMetrics& metrics_;
  ComposerImageStore* images_;
  LiteralPage page_;
  bool bold_;
  bool italic_;
  size_t scan_ = 0;
  std::string leftover_;
  bool found_space_ = true;
  bool hyphen_ = false;
  bool end_of_text_ = false;
  bool newline_ = false;
  bool ends_paragraph_ = false;
  std::string line_;
  double line_width_ = 0;
  bool indented_ = false;
};

}  // namespace vireo::test
