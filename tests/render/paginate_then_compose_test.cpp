// Every page the paginator cuts, composed by the page composer, fills at most its lines.

#include <gtest/gtest.h>

#include <random>

#include "book/cls_strip_cr.h"
#include "sample_text.h"
#include "fake_pump.h"
#include "layout/font_metrics.h"
#include "layout/pagination_fixtures.h"
#include "layout/reindex.h"
#include "render/print_page.h"

namespace vireo {
namespace {

TEST(PaginateThenCompose, EveryPageFitsItsLines) {
  std::mt19937 random(2024);
  // Proportional widths from 45 to 150 twips, bold a tenth wider, line feeds of no width.
  const clsFontMetrics metrics = test::MetricsOf([](int code, bool bold) {
    return code == 10 ? 0 : (45 + code * 37 % 106) * (bold ? 1.1 : 1.0);
  });
  test::RecordingPump pump;
  for (int book = 0; book < 6; ++book) {
    std::string text = samples::ProseLikeText(random, 60'000);
    clsStripCR::ReplaceKnownChar(text, FormattingOptions{});
    const double line_width = 3000 + 700 * book;
    const int16_t lines_per_page = static_cast<int16_t>(12 + 5 * book);
    clsReindex paginator;
    paginator.FontMetrics() = metrics;
    paginator.SetMessagePump(&pump);
    PageIndex pages;
    paginator.NewReindexFile(text, InsertMode::kAllowed, pages, 0, line_width, lines_per_page, 240);
    ASSERT_GT(pages.count, 3);

    clsPrintPage composer(pump);
    for (int page = 1; page < pages.count; ++page) {
      PageSettings settings;
      const int32_t start = pages.PageStart(page);
      settings.page_text = text.substr(start - 1, pages.PageStart(page + 1) - start);
      settings.bold = pages.Bold(page);
      settings.italic = pages.Italic(page);
      settings.underline = pages.Underline(page);
      settings.line_width = line_width;
      settings.lines_per_page = lines_per_page;
      composer.StoreSentences(settings, metrics);
      EXPECT_LE(composer.lines().size(), static_cast<size_t>(lines_per_page))
          << "book " << book << ", page " << page;
    }
  }
}

}  // namespace
}  // namespace vireo
