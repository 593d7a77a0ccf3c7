#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include "support/large_buffer.h"

namespace vireo {

// Where a left-to-right rewriting pass writes its result. Both kinds offer
// the same operations, so a pass is written once as a template.

// Writes over the text being read, behind the reading position: for passes
// that never make a piece longer than what it replaces, so that no second
// buffer of the book's size is needed. Finish() cuts the text to what was
// written.
class InPlaceOutput {
 public:
  static constexpr bool kCanGrow = false;
  explicit InPlaceOutput(std::string& text) : text_(text), data_(text.data()) {}

  // Appends text[index, index + length), which lies at or after the end.
  void AppendOwn(size_t index, size_t length) {
    if (index != size_) std::memmove(data_ + size_, data_ + index, length);
    size_ += length;
  }
  void Append(std::string_view piece) {
    std::memcpy(data_ + size_, piece.data(), piece.size());
    size_ += piece.size();
  }
  void Push(char c) { data_[size_++] = c; }
  void AppendRepeated(size_t count, char c) {
    std::memset(data_ + size_, c, count);
    size_ += count;
  }
  size_t size() const { return size_; }
  std::string_view view() const { return std::string_view(data_, size_); }
  char& back() { return data_[size_ - 1]; }
  void Shrink(size_t length) { size_ -= length; }
  void Finish() { text_.resize(size_); }

 private:
  std::string& text_;
  char* data_;
  size_t size_ = 0;
};

// Writes into a new string, for passes that may grow the text. The string
// is sized ahead and written through a pointer (growing when a piece does
// not fit), since a std::string append per piece costs more than the copy.
class StringOutput {
 public:
  static constexpr bool kCanGrow = true;
  StringOutput(std::string_view source, size_t capacity) : source_(source) {
    ReserveLarge(out_, capacity);
    out_.resize(capacity);
  }

  void AppendOwn(size_t index, size_t length) { Append(source_.substr(index, length)); }
  void Append(std::string_view piece) {
    std::memcpy(Room(piece.size()), piece.data(), piece.size());
    size_ += piece.size();
  }
  void Push(char c) {
    *Room(1) = c;
    ++size_;
  }
  void AppendRepeated(size_t count, char c) {
    std::memset(Room(count), c, count);
    size_ += count;
  }
  size_t size() const { return size_; }
  std::string_view view() const { return std::string_view(out_.data(), size_); }
  char& back() { return out_[size_ - 1]; }
  void Shrink(size_t length) { size_ -= length; }
  std::string Take() {
    out_.resize(size_);
    return std::move(out_);
  }

 private:
  // Where the next length characters go, after growing if need be.
  char* Room(size_t length) {
    if (out_.size() - size_ < length) out_.resize(2 * out_.size() + length);
    return out_.data() + size_;
  }

  std::string_view source_;
  std::string out_;
  size_t size_ = 0;
};

}  // namespace vireo
