#include "vhtml/vhtml.h"

#include <cstring>

#include "vhtml/cp1252_case.h"

namespace {

constexpr size_t kTooSmall = static_cast<size_t>(-1);

bool MatchesAt(const unsigned char* text, const unsigned char* find, size_t length,
               bool ignore_case) {
  if (!ignore_case) return std::memcmp(text, find, length) == 0;
  for (size_t i = 0; i < length; ++i) {
    if (vireo::kUpperCase1252[text[i]] != vireo::kUpperCase1252[find[i]]) return false;
  }
  return true;
}

// Position of the next occurrence at or after from, or text_length.
size_t Next(const unsigned char* text, size_t text_length, size_t from, const unsigned char* find,
            size_t find_length, bool ignore_case) {
  if (find_length == 0 || find_length > text_length) return text_length;
  const size_t last = text_length - find_length;
  if (!ignore_case) {
    while (from <= last) {
      const void* hit = std::memchr(text + from, find[0], last - from + 1);
      if (hit == nullptr) return text_length;
      from = static_cast<size_t>(static_cast<const unsigned char*>(hit) - text);
      if (std::memcmp(text + from, find, find_length) == 0) return from;
      ++from;
    }
    return text_length;
  }
  for (; from <= last; ++from) {
    if (MatchesAt(text + from, find, find_length, true)) return from;
  }
  return text_length;
}

size_t ReplaceMulti(const unsigned char* text, size_t text_length, const VhtmlPair* pairs,
                    size_t pair_count, unsigned char* out, size_t out_capacity, bool ignore_case) {
  size_t written = 0;
  auto put = [&](const unsigned char* bytes, size_t length) {
    if (length > out_capacity - written) return false;
    if (length != 0) std::memcpy(out + written, bytes, length);
    written += length;
    return true;
  };
  for (size_t i = 0; i < text_length;) {
    const VhtmlPair* match = nullptr;
    for (size_t p = 0; p < pair_count && match == nullptr; ++p) {
      const VhtmlPair& pair = pairs[p];
      if (pair.find_length != 0 && pair.find_length <= text_length - i &&
          MatchesAt(text + i, pair.find, pair.find_length, ignore_case)) {
        match = &pair;
      }
    }
    if (match != nullptr) {
      if (!put(match->replacement, match->replacement_length)) return kTooSmall;
      i += match->find_length;
    } else {
      if (!put(text + i, 1)) return kTooSmall;
      ++i;
    }
  }
  return written;
}

}  // namespace

extern "C" {

size_t cStringCount(const unsigned char* text, size_t text_length, const unsigned char* find,
                    size_t find_length, int ignore_case) {
  size_t count = 0;
  for (size_t at = Next(text, text_length, 0, find, find_length, ignore_case != 0);
       at < text_length;
       at = Next(text, text_length, at + find_length, find, find_length, ignore_case != 0)) {
    ++count;
  }
  return count;
}

size_t cReplace(const unsigned char* text, size_t text_length, const unsigned char* find,
                size_t find_length, const unsigned char* replacement, size_t replacement_length,
                int ignore_case, unsigned char* out, size_t out_capacity) {
  size_t written = 0;
  size_t from = 0;
  auto put = [&](const unsigned char* bytes, size_t length) {
    if (length > out_capacity - written) return false;
    if (length != 0) std::memcpy(out + written, bytes, length);
    written += length;
    return true;
  };
  while (from < text_length) {
    const size_t at = Next(text, text_length, from, find, find_length, ignore_case != 0);
    if (!put(text + from, at - from)) return kTooSmall;
    if (at == text_length) break;
    if (!put(replacement, replacement_length)) return kTooSmall;
    from = at + find_length;
  }
  return written;
}

size_t cReplaceMulti(const unsigned char* text, size_t text_length, const VhtmlPair* pairs,
                     size_t pair_count, unsigned char* out, size_t out_capacity) {
  return ReplaceMulti(text, text_length, pairs, pair_count, out, out_capacity, false);
}

size_t cReplaceMultiIgnoreCaps(const unsigned char* text, size_t text_length,
                               const VhtmlPair* pairs, size_t pair_count, unsigned char* out,
                               size_t out_capacity) {
  return ReplaceMulti(text, text_length, pairs, pair_count, out, out_capacity, true);
}

}  // extern "C"
