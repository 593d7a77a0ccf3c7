// The fast passes of the paragraph reformatting against the twelve steps
// written out literally: any difference is a finding.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "../book/replace_known_char_reference.h"
#include "book/cls_strip_cr.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  vireo::fuzz::StartUp();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const vireo::FormattingOptions options{(data[0] & 1) != 0, (data[0] & 2) != 0,
                                         (data[0] & 4) != 0};
  const std::string input(reinterpret_cast<const char*>(data) + 1, size - 1);
  std::string fast = input;
  vireo::clsStripCR::ReplaceKnownChar(fast, options);
  std::string literal = input;
  vireo::test::ReplaceKnownCharStepByStep(literal, options);
  if (fast != literal) std::abort();
  return 0;
}
