#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "layout/font_metrics.h"
#include "layout/page_index.h"
#include "layout/reindex_events.h"

namespace vireo::test {

// Records the events with the page count and busy flag at each: "passed 7 at 5 (busy)".
class EventRecorder : public ReindexEvents {
 public:
  EventRecorder(const PageIndex& index, std::function<bool()> busy)
      : index_(index), busy_(std::move(busy)) {}

  void PassedPage(int32_t position) override {
    Add("passed " + std::to_string(position) + " at " + std::to_string(index_.count));
  }
  void FinishedReindex() override { Add("finished at " + std::to_string(index_.count)); }
  void CurrentPage(int32_t count) override { Add("current " + std::to_string(count)); }

  std::vector<std::string> events;

 private:
  void Add(std::string text) {
    if (busy_()) text += " (busy)";
    events.push_back(std::move(text));
  }
  const PageIndex& index_;
  std::function<bool()> busy_;
};

// Tables whose character of code 1..kTableSize is width(code, bold) wide in either slant.
template <typename Width>
clsFontMetrics MetricsOf(Width width) {
  clsFontMetrics metrics;
  for (int style = 0; style < 4; ++style) {
    std::array<double, clsFontMetrics::kTableSize> table;
    for (int code = 1; code <= clsFontMetrics::kTableSize; ++code) {
      table[code - 1] = width(code, (style & 1) != 0);
    }
    metrics.SetTable(style & 1, style & 2, table);
  }
  return metrics;
}

// One line per page, "start bold italic underline", as vireo-tool prints it.
inline std::vector<std::string> DumpPages(const PageIndex& index) {
  std::vector<std::string> pages;
  for (int32_t p = 1; p <= index.count; ++p) {
    pages.push_back(std::to_string(index.PageStart(p)) + " " + (index.Bold(p) ? "1" : "0") + " " +
                    (index.Italic(p) ? "1" : "0") + " " + (index.Underline(p) ? "1" : "0"));
  }
  return pages;
}

}  // namespace vireo::test
