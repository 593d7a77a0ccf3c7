#include "app/print_job.h"

#include <algorithm>

#include "support/user_interaction.h"

namespace vireo {

PageRange PrintedPages(int from, int to, int page_count) {
  if (from <= 0 && to <= 0) return {1, page_count};
  if (to <= 0) to = page_count;
  if (from <= 0) from = 1;
  if (from > to) std::swap(from, to);
  return {std::max(from, 1), std::min(to, page_count)};
}

PrintOutcome RunPrintJob(const PageRange& range, PrintSheets& sheets, MessagePump& pump) {
  const int total = range.count();
  for (int done = 0; done < total; ++done) {
    sheets.Progress(done, total);
    pump.Yield();
    if (sheets.Cancelled()) return PrintOutcome::kCancelled;
    if (done > 0 && !sheets.NewSheet()) return PrintOutcome::kFailed;
    sheets.PrintBookPage(range.first + done);
  }
  sheets.Progress(total, total);
  return PrintOutcome::kPrinted;
}

}  // namespace vireo
