#include "layout/word_run.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "layout/long_word.h"
#include "layout/word_scan.h"

namespace vireo {
namespace {

constexpr int64_t kIndentBlanks = 3;

// The widths of a block's bytes summed from its start, and the bytes that
// may end or hold back a word.
struct BlockScan {
  uint64_t marked = 0;
  std::array<int64_t, kRunBlock + 1> before{};  // width of the bytes in front of i
};

void SumBlock(const unsigned char* bytes, const int64_t* units, BlockScan& scan) {
  int64_t sum = 0;
  scan.before[0] = 0;
#pragma GCC unroll 8
  for (size_t i = 0; i < kRunBlock; ++i) {
    sum += units[bytes[i]];
    scan.before[i + 1] = sum;
  }
}

// A block of the text, or its last bytes followed by code 0, which stops a
// run like any code the run leaves to the word loop.
const unsigned char* BlockAt(std::string_view text, size_t block,
                             std::array<unsigned char, kRunBlock>& tail) {
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data()) + block;
  if (text.size() - block >= kRunBlock) return bytes;
  tail.fill(0);
  std::memcpy(tail.data(), bytes, text.size() - block);
  return tail.data();
}

}  // namespace

uint64_t MarkBlockBytewise(const unsigned char* bytes) {
  const auto& classes = ByteClasses();
  uint64_t marked = 0;
  for (size_t i = 0; i < kRunBlock; ++i) {
    marked |= uint64_t{classes[bytes[i]] != 0} << i;
  }
  return marked;
}

uint64_t MarkBlock(const unsigned char* bytes) {
#if defined(__SSE2__)
  // Every byte with a class is one of five values or lies in 128..136 but
  // for 132 and 133.
  const __m128i codes_base = _mm_set1_epi8(static_cast<char>(128));
  const __m128i codes_span = _mm_set1_epi8(136 - 128);
  uint64_t marked = 0;
  for (size_t part = 0; part < kRunBlock; part += 16) {
    const __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + part));
    __m128i hit = _mm_cmpeq_epi8(x, _mm_set1_epi8(' '));
    hit = _mm_or_si128(hit, _mm_cmpeq_epi8(x, _mm_set1_epi8('\n')));
    hit = _mm_or_si128(hit, _mm_cmpeq_epi8(x, _mm_set1_epi8('-')));
    hit = _mm_or_si128(hit, _mm_cmpeq_epi8(x, _mm_set1_epi8('[')));
    hit = _mm_or_si128(hit, _mm_cmpeq_epi8(x, _mm_setzero_si128()));
    const __m128i offset = _mm_sub_epi8(x, codes_base);
    const __m128i in_span = _mm_cmpeq_epi8(_mm_min_epu8(offset, codes_span), offset);
    const __m128i unused = _mm_or_si128(_mm_cmpeq_epi8(offset, _mm_set1_epi8(132 - 128)),
                                        _mm_cmpeq_epi8(offset, _mm_set1_epi8(133 - 128)));
    hit = _mm_or_si128(hit, _mm_andnot_si128(unused, in_span));
    marked |= uint64_t{static_cast<uint32_t>(_mm_movemask_epi8(hit))} << part;
  }
  return marked;
#else
  return MarkBlockBytewise(bytes);
#endif
}

size_t LayOutOrdinaryWords(std::string_view text, size_t begin, const RunRules& rules,
                           RunLine& line) {
  const auto& classes = ByteClasses();
  const int64_t space = rules.space;
  const int64_t limit = rules.limit;
  const int32_t last_line = rules.lines_per_page - 1;
  int64_t width = line.width;
  int32_t lines = line.lines;
  bool broken = false;
  const auto stop = [&](size_t at) {
    line = {width, lines, line.broken || broken};
    return at;
  };
  size_t word = begin;     // where the word being read begins
  int64_t word_front = 0;  // the block's running width at that point
  bool line_feed = false;  // the word holds a line feed
  BlockScan scan;
  std::array<unsigned char, kRunBlock> tail;
  for (size_t block = begin; block < text.size(); block += kRunBlock) {
    const unsigned char* bytes = BlockAt(text, block, tail);
    SumBlock(bytes, rules.units, scan);
    for (uint64_t marked = MarkBlock(bytes); marked != 0; marked &= marked - 1) {
      const auto i = static_cast<size_t>(std::countr_zero(marked));
      const unsigned char code = bytes[i];
      if (code != ' ') {
        if (classes[code] != kLineFeedClass) return stop(word);
        line_feed = true;
        continue;
      }
      if (block + i - word > kLongWordLength) return stop(word);
      const int64_t word_width = scan.before[i] - word_front + space;
      if (line_feed || width + word_width > limit) {
        if (lines >= last_line) return stop(word);
        lines += 1;
        broken = true;
        width = line_feed ? kIndentBlanks * space : word_width;
        line_feed = false;
      } else {
        width += word_width;
      }
      word = block + i + 1;
      word_front = scan.before[i + 1];
    }
    if (block + kRunBlock - word > kLongWordLength) return stop(word);
    word_front -= scan.before[kRunBlock];
  }
  return stop(word);
}

}  // namespace vireo
