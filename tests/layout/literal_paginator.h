#pragma once

// The pagination rules word for word (whole strings, backward searches): the
// linear paginator's oracle. Quadratic on purpose; small texts only.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "layout/font_metrics.h"
#include "layout/page_index.h"
#include "layout/reindex_events.h"
#include "support/checked_int16.h"
#include "support/error_trap.h"

namespace vireo::test {

class LiteralPaginator {
 public:
  clsFontMetrics metrics;
  ReindexEvents* events = nullptr;
  ImageHeightFunction image_heights;
  bool no_insert = false;
  bool busy = false;
  int yields = 0;

  void NewReindexFile(std::string& text, bool allow_insert, PageIndex& index,
                      int32_t reading_position, double line_width, int16_t lines_per_page,
                      double line_height) {
    Run run(*this, text, index, reading_position, line_width, lines_per_page, line_height);
    Trap("sub newreindexfile", "clsReindex", [&] {
      if (!allow_insert) no_insert = true;
      busy = true;
      ++yields;
      index.Recreate(2000);
      index.SetPageStart(index.count, 1);
      run.Loop();
    });
    Trap("sub newreindexfile", "clsReindex", [&] {
      if (events) events->CurrentPage(index.count);
    });
    busy = false;
    Trap("sub newreindexfile", "clsReindex", [&] {
      if (!run.passed && events) events->PassedPage(reading_position);
    });
    Trap("sub newreindexfile", "clsReindex", [&] {
      if (events) events->FinishedReindex();
    });
  }

  void AddLines(std::string& text, int64_t position, int count) {
    Trap("sub addlines", "clsReindex", [&] {
      if (no_insert) return;
      std::string lines;
      for (int i = 0; i < count; ++i) lines += " \n ";
      // Left(text, position - 1) & lines & Mid(text, position + 1)
      Require(position >= 1, ErrorNumber::kInvalidProcedureCall);
      const size_t left = static_cast<size_t>(position - 1);
      std::string result = text.substr(0, std::min(left, text.size())) + lines;
      if (left + 1 < text.size()) result += text.substr(left + 1);
      text = result;
    });
  }

  // 1-based InStr(start, text, find): 0 when not found.
  static int64_t InStr(int64_t start, const std::string& text, char find) {
    if (start > static_cast<int64_t>(text.size())) return 0;
    const size_t at = text.find(find, static_cast<size_t>(start - 1));
    return at == std::string::npos ? 0 : static_cast<int64_t>(at) + 1;
  }

  // InStrRev(text, find, start) as the run time does it: start -1 means the
  // whole text, 0 or below -1 is error 5, past the end finds nothing.
  static int64_t InStrRev(const std::string& text, char find, int64_t start) {
    const auto size = static_cast<int64_t>(text.size());
    if (start == -1) start = size;
    Require(start >= 1, ErrorNumber::kInvalidProcedureCall);
    if (start > size) return 0;
    const size_t at = text.rfind(find, static_cast<size_t>(start - 1));
    return at == std::string::npos ? 0 : static_cast<int64_t>(at) + 1;
  }

  static bool Has(const std::string& word, int code) {
    return word.find(static_cast<char>(code)) != std::string::npos;
  }

  static int64_t LastOf(const std::string& text, int code) {
    const size_t at = text.rfind(static_cast<char>(code));
    return at == std::string::npos ? 0 : static_cast<int64_t>(at) + 1;
  }

 private:
  struct Run {
    Run(LiteralPaginator& owner_in, std::string& text_in, PageIndex& index_in, int32_t reading,
        double width, int16_t lines, double height)
        : owner(owner_in),
          text(text_in),
          index(index_in),
          reading_position(reading),
          line_width(width),
          lines_per_page(lines),
          line_height(height) {}

    LiteralPaginator& owner;
    std::string& text;
    PageIndex& index;
    int32_t reading_position;
    double line_width;
    int16_t lines_per_page;
    double line_height;

    int64_t q = 1;
    std::string word, leftover, line, page;
    bool hyphen = false, end_of_text = false, newline = false, found = true;
    bool bold = false, italic = false, underline = false;
    double line_w = 0;
    Int16 line_count = 0;
    bool passed = false;

    double Width(const std::string& s) const { return owner.metrics.WordWidth(bold, italic, s); }

    void Loop() {
      do {
        TakeWord();
        Inspect();
        if (word.find("[IMG=") != std::string::npos) Image();
        LongWord();
        LayOut();
        if (Has(word, 129)) bold = false;
        if (Has(word, 131)) italic = false;
        if (Has(word, 136)) underline = false;
        if (!passed && index.count >= 5 && index.PageStart(index.count - 3) > reading_position) {
          passed = true;
          if (owner.events) owner.events->PassedPage(reading_position);
        }
        if (index.count % 25 == 0 && owner.events) owner.events->CurrentPage(index.count);
      } while (!end_of_text);
    }

    void TakeWord() {
      if (!leftover.empty()) {
        word = leftover;
        leftover.clear();
        hyphen = false;
        if (!found) end_of_text = true;
        return;
      }
      int64_t s = InStr(q, text, ' ');
      const int64_t h = InStr(q, text, '-');
      if (h > q && h < s) {
        s = h;
        hyphen = true;
      } else {
        hyphen = false;
      }
      if (s > 0) {
        word = text.substr(static_cast<size_t>(q - 1), static_cast<size_t>(s - q));
        q = s + 1;
        found = true;
      } else {
        word = q - 1 < static_cast<int64_t>(text.size()) ? text.substr(static_cast<size_t>(q - 1))
                                                         : std::string();
        end_of_text = true;
        newline = true;
        found = false;
      }
    }

    void Inspect() {
      if (Has(word, 10)) newline = true;
      if (Has(word, 128)) bold = true;
      if (Has(word, 130)) italic = true;
      if (Has(word, 135)) underline = true;
      if (Has(word, 134)) {
        line_count = Int16(lines_per_page - 1);
        newline = true;
      }
    }

    void Image() {
      int64_t n = 0;
      const size_t equals = word.find('=');
      for (size_t i = equals + 1; i < word.size() && isdigit(static_cast<unsigned char>(word[i]));
           ++i) {
        n = std::min<int64_t>(n * 10 + (word[i] - '0'), INT32_MAX);
      }
      std::optional<double> height;
      if (owner.image_heights) height = owner.image_heights(static_cast<int32_t>(n));
      ++owner.yields;
      if (!height) {
        RecordError(RuntimeError(ErrorNumber::kObjectNotSet), "sub newreindexfile", "clsReindex");
        return;
      }
      if (line_height == 0) {
        throw RuntimeError(*height != 0 ? static_cast<ErrorNumber>(11) : ErrorNumber::kOverflow);
      }
      const Int16 k = Int16::FromDouble(*height / line_height + 1);
      const int64_t t = q - 1;
      if (k <= lines_per_page && Int16(line_count + k) <= lines_per_page) {
        owner.AddLines(text, t, k);
        line_count = Int16(line_count + k);
      } else if (k <= lines_per_page) {
        owner.AddLines(text, t, Int16(lines_per_page - line_count));
        AddPage();
        owner.AddLines(text, t, k);
      } else {
        owner.AddLines(text, t, Int16(lines_per_page - line_count));
        AddPage();
        owner.AddLines(text, t, lines_per_page);
      }
      word.clear();
    }

    void LongWord() {
      if (word.size() <= 20 || !(Width(word) > line_width)) return;
      leftover = word;
      size_t n = leftover.size();
      while (Width(leftover.substr(0, n)) > line_width) {
        if (n == 1) break;
        --n;
        word = leftover.substr(0, n);
      }
      while (Width(word) < line_width) {
        ++n;
        word = leftover.substr(0, n);
      }
      leftover = n < leftover.size() ? leftover.substr(n) : std::string("0");
      end_of_text = false;
      newline = true;
    }

    void LayOut() {
      const std::string delimiter = hyphen ? "-" : " ";
      const double w = Width(word + " ");
      if (line_w + w > line_width || newline) {
        if (end_of_text) {
          line += word + delimiter;
          page += line;
          line_w = Width(line);
        } else if (newline) {
          newline = false;
          page += line + " " + word;
          line = "   ";
          line_w = Width(line);
        } else {
          page += line;
          line = word + delimiter;
          line_w = Width(line);
        }
        line_count = Int16(line_count + 1);
        if (line_count >= lines_per_page) AddPage();
      } else {
        line += word + delimiter;
        line_w += w;
      }
    }

    void AddPage() {
      Trap("sub addpage", "clsReindex", [&] {
        index.count += 1;
        if (index.count >= index.UpperBound()) index.Grow(index.count + 250);
      });
      Trap("sub addpage", "clsReindex", [&] {
        int64_t start;
        if (end_of_text) {
          start = static_cast<int64_t>(text.size());
        } else {
          const int64_t blank = InStrRev(text, ' ', q - 2);
          const int64_t feed = InStrRev(text, '\n', q - 2);
          start = feed > blank ? feed : blank;
        }
        index.SetPageStart(index.count, static_cast<int32_t>(start));
      });
      Trap("sub addpage", "clsReindex", [&] {
        index.SetStyles(index.count, LastOf(page, 128) > LastOf(page, 129),
                        LastOf(page, 130) > LastOf(page, 131),
                        LastOf(page, 135) > LastOf(page, 136));
      });
      page.clear();
      line_count = 0;
    }
  };
};

}  // namespace vireo::test
