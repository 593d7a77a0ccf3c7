// Bytes in any encoding -> packable text -> the references the reader turns
// back: never a formatting code, and a text of plain printable ASCII comes
// through unchanged.

#include <cstdint>
#include <string>

#include "book/book_maker.h"
#include "book/html_references.h"
#include "book/plain_text_fallback.h"
#include "support/runtime_error.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const bool started = (vireo::fuzz::StartUp(), true);
  (void)started;
  const std::string input(reinterpret_cast<const char*>(data), size);
  vireo::ReplacementTally tally;
  std::string text;
  try {
    text = vireo::PackableText(input, vireo::DetectEncoding(input), &tally);
  } catch (const vireo::RuntimeError&) {
    return 0;  // a UTF-8 byte-order mark before bytes that are not UTF-8: refused
  }
  vireo::HtmlToChar(text);
  vireo::HtmlConstToChar(text);
  bool plain_ascii = true;
  for (const char c : input) plain_ascii &= c >= ' ' && c <= '~' && c != '&';
  for (const char c : text) {
    vireo::fuzz::Check(!vireo::IsFormattingCode(static_cast<uint8_t>(c)), "a formatting code");
  }
  if (plain_ascii) vireo::fuzz::Check(text == input && tally.empty(), "plain text changed");
  return 0;
}
