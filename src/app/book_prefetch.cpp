#include "app/book_prefetch.h"

#include <utility>

namespace vireo {

BookPrefetch::~BookPrefetch() {
  if (reader_.joinable()) reader_.join();
}

void BookPrefetch::Start(const std::string& path, const FormattingOptions& options,
                         const PictureLoading& pictures) {
  if (reader_.joinable()) return;
  path_ = path;
  options_ = options;
  done_ = false;
  reader_ = std::thread([this, pictures] { Read(pictures); });
}

void BookPrefetch::Read(const PictureLoading& pictures) {
  BookReadResult book;
  {
    const HoldBackLogging held(log_);
    book = ReadBookFile(path_, options_,
                        [this](std::string_view caption, int value, int maximum) {
                          const std::lock_guard lock(mutex_);
                          progress_.push_back({std::string(caption), value, maximum});
                          changed_.notify_one();
                        },
                        pictures);
  }
  const std::lock_guard lock(mutex_);
  book_ = std::move(book);
  done_ = true;
  changed_.notify_one();
}

void BookPrefetch::Wait(const ProgressHandler& progress) {
  std::unique_lock lock(mutex_);
  for (;;) {
    changed_.wait(lock, [this] { return done_ || !progress_.empty(); });
    std::vector<Progress> told;
    told.swap(progress_);
    const bool done = done_;
    lock.unlock();
    for (const Progress& step : told) {
      if (progress) progress(step.caption, step.value, step.maximum);
    }
    if (done) return;
    lock.lock();
  }
}

std::optional<BookReadResult> BookPrefetch::Take(const std::string& path,
                                                 const FormattingOptions& options,
                                                 const ProgressHandler& progress) {
  if (!reader_.joinable()) return std::nullopt;
  Wait(progress);
  reader_.join();
  if (path != path_ || options != options_) {
    log_ = HeldBackLog();
    return std::nullopt;
  }
  log_.WriteOut();
  return std::move(book_);
}

}  // namespace vireo
