#pragma once

#include <string>

namespace vireo {

class MessagePump;

// Book pages first..last (1-based, inclusive).
struct PageRange {
  int first = 1;
  int last = 0;
  int count() const { return last >= first ? last - first + 1 : 0; }
};

// The pages a print dialog's choice stands for: from/to of 0 mean the whole
// book; the range is put in order and kept within 1..page_count.
PageRange PrintedPages(int from, int to, int page_count);

// Where a print job's pages go, one sheet each.
class PrintSheets {
 public:
  virtual ~PrintSheets() = default;
  // Starts the next sheet (the first sheet needs none); false when the
  // printer refuses it.
  virtual bool NewSheet() = 0;
  virtual void PrintBookPage(int page) = 0;
  // Progress shown to the person: `done` of `total` pages printed.
  virtual void Progress(int done, int total) = 0;
  // True once the person has cancelled the job.
  virtual bool Cancelled() = 0;
};

enum class PrintOutcome { kPrinted, kCancelled, kFailed };

// Prints the pages of `range` one to a sheet, showing progress and letting
// pending messages run between pages so that Cancel is heard.
PrintOutcome RunPrintJob(const PageRange& range, PrintSheets& sheets, MessagePump& pump);

}  // namespace vireo
