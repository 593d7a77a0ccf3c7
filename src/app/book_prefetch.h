#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "book/book_reader.h"
#include "support/logging.h"

namespace vireo {

// Reads and unpacks a book on a second thread while the window is still
// being set up and shown, so that opening it only waits for what is left.
// Everything the reading logs is held back and written when the book is
// taken, where reading it there and then would have written it; its
// progress is passed on, step by step, by the thread waiting for it.
// Whoever starts it keeps its picture store and files untouched until the
// book is taken.
class BookPrefetch {
 public:
  BookPrefetch() = default;
  ~BookPrefetch();
  BookPrefetch(const BookPrefetch&) = delete;
  BookPrefetch& operator=(const BookPrefetch&) = delete;

  void Start(const std::string& path, const FormattingOptions& options,
             const PictureLoading& pictures);
  // Waits for the reading to end, passing each step of its progress on to
  // progress in order, and gives its book when it was started for path with
  // options; nullopt when none was started, or for another file or other
  // options (that reading is dropped, its log with it).
  std::optional<BookReadResult> Take(const std::string& path, const FormattingOptions& options,
                                     const ProgressHandler& progress);

 private:
  struct Progress {
    std::string caption;
    int value = 0;
    int maximum = 0;
  };
  void Read(const PictureLoading& pictures);
  void Wait(const ProgressHandler& progress);

  std::string path_;
  FormattingOptions options_;
  std::thread reader_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::vector<Progress> progress_;  // told by the reading, not yet passed on
  bool done_ = false;
  BookReadResult book_;
  HeldBackLog log_;
};

}  // namespace vireo
