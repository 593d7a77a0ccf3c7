#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace vireo {

// What the paginator tells its owner while it runs (the main window listens).
// Handlers run on the paginator's thread, inside NewReindexFile; they may
// yield to the message loop.
class ReindexEvents {
 public:
  virtual ~ReindexEvents() = default;
  // The paginator is a few pages past the reader's position (or, for a short
  // book, at its end): the reader's page can be shown. Raised once per run.
  virtual void PassedPage(int32_t position) { (void)position; }
  // Pagination has ended; the page index is complete.
  virtual void FinishedReindex() {}
  // Progress: raised after every word while the page count is a multiple of
  // 25, and once more at the end. Keep the handler cheap.
  virtual void CurrentPage(int32_t page_count) { (void)page_count; }
};

// The height of image `number` of the image store, in the units of the line
// height, or nothing when the store holds no such image.
using ImageHeightFunction = std::function<std::optional<double>(int32_t number)>;

}  // namespace vireo
