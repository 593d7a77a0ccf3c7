#pragma once

// vHtml: the text-helper library of the reader, loaded at run time from the
// program's folder. Strings are 8-bit (Windows-1252) byte runs with explicit
// lengths; nothing is NUL-terminated and NUL bytes are ordinary characters.

#include <stddef.h>

#if defined(_WIN32)
#define VHTML_API __declspec(dllexport)
#else
#define VHTML_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

// One find/replacement pair of cReplaceMulti.
typedef struct VhtmlPair {
  const unsigned char* find;
  size_t find_length;
  const unsigned char* replacement;
  size_t replacement_length;
} VhtmlPair;

// Number of non-overlapping occurrences of find in text, scanning left to
// right. An empty find occurs 0 times. ignore_case: compare Windows-1252 upper
// cases.
VHTML_API size_t cStringCount(const unsigned char* text, size_t text_length,
                              const unsigned char* find, size_t find_length, int ignore_case);

// Writes text with every occurrence of find (left to right, never rescanning
// inserted text) replaced into out. Returns the length written, or (size_t)-1
// when out_capacity is too small (nothing useful is in out then).
VHTML_API size_t cReplace(const unsigned char* text, size_t text_length, const unsigned char* find,
                          size_t find_length, const unsigned char* replacement,
                          size_t replacement_length, int ignore_case, unsigned char* out,
                          size_t out_capacity);

// One left-to-right pass replacing several finds at once: at each position
// the first pair (in the given order) whose find matches there wins. Returns
// the length written or (size_t)-1 when out is too small.
VHTML_API size_t cReplaceMulti(const unsigned char* text, size_t text_length,
                               const VhtmlPair* pairs, size_t pair_count, unsigned char* out,
                               size_t out_capacity);

// cReplaceMulti comparing Windows-1252 upper cases.
VHTML_API size_t cReplaceMultiIgnoreCaps(const unsigned char* text, size_t text_length,
                                         const VhtmlPair* pairs, size_t pair_count,
                                         unsigned char* out, size_t out_capacity);

#ifdef __cplusplus
}
#endif
