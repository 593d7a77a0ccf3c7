// Contraction of a text by the word table in one pass over the text.
//
// The table's definition runs 48 whole-text replacements, row 1 first, each
// on the result of the one before. The same result comes from the input
// directly:
// - A single-character row replaces every remaining character equal to its
//   word, so all of them compose into one byte map for the bytes that no
//   longer row took.
// - A longer row meets the text as the maps of the rows before it left it:
//   its word stands for one run of input bytes (or none, when an earlier row
//   took away one of its characters). Its matches are the occurrences of that
//   run that touch no byte an earlier longer row took, taken left to right
//   without overlapping each other.
// - A byte that no run holds ends no match, so a cut after such a byte splits
//   the text into pieces that contract independently. The text goes through
//   in pieces of about kChunk bytes, and memory stays small whatever its size.
//   A big text is cut the same way into one part per processor core, and the
//   parts are contracted at the same time.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <exception>
#include <span>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "book/word_table.h"

namespace vireo {
namespace {

constexpr size_t kChunk = 64 * 1024;
// Below this a text is contracted by one thread: starting another would cost
// more than it saves.
constexpr size_t kSmallestSplit = 4 * kChunk;

// A row of two or more characters, as a run of input bytes (at most eight,
// compared as one masked 64-bit load).
struct RunRow {
  std::string run;
  char code;
  uint64_t bytes = 0;
  uint64_t mask = 0;
};

struct ContractionPlan {
  std::vector<RunRow> rows;           // in table order; rows that can never match left out
  std::array<char, 256> single{};     // what a byte that no run took becomes
  std::array<bool, 256> cut_after{};  // bytes in no run
  // The rows whose run starts with a pair of bytes (the pair read as a
  // 16-bit value): indices into rows, from pair_begin[pair] to pair_begin[pair + 1].
  std::vector<uint16_t> pair_begin;
  std::vector<uint8_t> pair_rows;
};

uint16_t PairAt(const char* at) {
  uint16_t pair;
  std::memcpy(&pair, at, sizeof(pair));
  return pair;
}

// The input byte that the current character c stands for after the
// single-character rows so far (map), or -1 when none does.
int SoleSource(const std::array<uint8_t, 256>& map, uint8_t c) {
  int source = -1;
  for (int byte = 0; byte < 256; ++byte) {
    if (map[byte] != c) continue;
    if (source >= 0) throw "two bytes stand for one character of a word";
    source = byte;
  }
  return source;
}

// The run of input bytes a longer row's word stands for at its turn, or ""
// when an earlier row took one of its characters away.
std::string RunOf(const std::array<uint8_t, 256>& map, const WordRow& row) {
  // A code is never part of a later word, so a taken run is opaque.
  if (row.code < 0x80) throw "a code of a longer word is an ASCII character";
  std::string run;
  for (char c : row.word) {
    if (static_cast<uint8_t>(c) >= 0x80) throw "a longer word holds a non-ASCII character";
    const int source = SoleSource(map, static_cast<uint8_t>(c));
    if (source < 0) return "";
    run.push_back(static_cast<char>(source));
  }
  return run;
}

ContractionPlan MakePlan() {
  const WordTable words = SetupWords();
  ContractionPlan plan;
  std::array<uint8_t, 256> map{};
  for (int byte = 0; byte < 256; ++byte) map[byte] = static_cast<uint8_t>(byte);
  for (int row = 1; row <= kWordRows; ++row) {
    const WordRow& word = words[row];
    if (word.word.size() == 1) {
      // Codes of longer rows are never ASCII, so this touches none of them.
      if (static_cast<uint8_t>(word.word[0]) >= 0x80) throw "a single-character word is not ASCII";
      for (uint8_t& current : map) {
        if (current == static_cast<uint8_t>(word.word[0])) current = word.code;
      }
    } else if (std::string run = RunOf(map, word); !run.empty()) {
      plan.rows.push_back({std::move(run), static_cast<char>(word.code)});
    }
  }
  plan.cut_after.fill(true);
  std::vector<std::vector<uint8_t>> by_pair(65536);
  for (size_t index = 0; index < plan.rows.size(); ++index) {
    RunRow& row = plan.rows[index];
    if (row.run.size() > sizeof(uint64_t)) throw "a word of the table is too long";
    for (char c : row.run) plan.cut_after[static_cast<uint8_t>(c)] = false;
    std::memcpy(&row.bytes, row.run.data(), row.run.size());
    std::memset(&row.mask, 0xFF, row.run.size());
    by_pair[PairAt(row.run.data())].push_back(static_cast<uint8_t>(index));
  }
  for (const std::vector<uint8_t>& rows : by_pair) {
    plan.pair_begin.push_back(static_cast<uint16_t>(plan.pair_rows.size()));
    plan.pair_rows.insert(plan.pair_rows.end(), rows.begin(), rows.end());
  }
  plan.pair_begin.push_back(static_cast<uint16_t>(plan.pair_rows.size()));
  for (int byte = 0; byte < 256; ++byte) plan.single[byte] = static_cast<char>(map[byte]);
  return plan;
}

const ContractionPlan& Plan() {
  static const ContractionPlan plan = MakePlan();
  return plan;
}

// Contracts one piece that no run crosses, appending to out.
class ChunkContractor {
 public:
  explicit ChunkContractor(const ContractionPlan& plan) : plan_(plan), found_(plan.rows.size()) {}

  // Writes the contracted chunk at `into` (never more bytes than the chunk
  // has) and returns the end. chunk must be followed by kPadding zero bytes
  // (no run holds a zero).
  char* Contract(std::string_view chunk, char* into) {
    FindRuns(chunk);
    TakeRowByRow(chunk.size());
    return Write(chunk, into);
  }

  static constexpr size_t kPadding = sizeof(uint64_t);

 private:
  // Where each run occurs in chunk, per row, left to right.
  void FindRuns(std::string_view chunk) {
    for (std::vector<size_t>& positions : found_) positions.clear();
    const char* data = chunk.data();
    for (size_t at = 0; at + 1 < chunk.size(); ++at) {
      const uint16_t pair = PairAt(data + at);
      const size_t end = plan_.pair_begin[pair + 1u];
      size_t candidate = plan_.pair_begin[pair];
      if (candidate == end) continue;
      uint64_t bytes;
      std::memcpy(&bytes, data + at, sizeof(bytes));
      for (; candidate < end; ++candidate) {
        const uint8_t index = plan_.pair_rows[candidate];
        const RunRow& row = plan_.rows[index];
        if ((bytes & row.mask) == row.bytes) found_[index].push_back(at);
      }
    }
  }

  // Each row in table order takes its occurrences that touch nothing taken
  // before and do not overlap its own previous match. marks_ holds 1 + the
  // row at the start of a match, kInside at its other bytes.
  void TakeRowByRow(size_t size) {
    marks_.assign(size, 0);
    for (size_t index = 0; index < found_.size(); ++index) {
      const size_t length = plan_.rows[index].run.size();
      size_t free_from = 0;
      for (size_t at : found_[index]) {
        if (at < free_from) continue;
        uint8_t* const span = marks_.data() + at;
        if (std::any_of(span, span + length, [](uint8_t mark) { return mark != 0; })) continue;
        span[0] = static_cast<uint8_t>(index + 1);
        std::fill(span + 1, span + length, kInside);
        free_from = at + length;
      }
    }
  }

  char* Write(std::string_view chunk, char* written) const {
    for (size_t at = 0; at < chunk.size();) {
      if (const uint8_t mark = marks_[at]; mark != 0) {
        const RunRow& row = plan_.rows[mark - 1u];
        *written++ = row.code;
        at += row.run.size();
      } else {
        *written++ = plan_.single[static_cast<uint8_t>(chunk[at])];
        ++at;
      }
    }
    return written;
  }

  static constexpr uint8_t kInside = 0xFF;
  const ContractionPlan& plan_;
  std::vector<std::vector<size_t>> found_;
  std::vector<uint8_t> marks_;
};

// The concatenation of pieces, handed out in chunks that end after a byte
// in no run (or at the end).
class ChunkSource {
 public:
  ChunkSource(std::span<const std::string_view> pieces, const ContractionPlan& plan)
      : pieces_(pieces), plan_(plan) {}

  bool Next(std::string& chunk) {
    chunk.clear();
    while (piece_ < pieces_.size()) {
      const std::string_view rest = pieces_[piece_].substr(offset_);
      size_t take = std::min(rest.size(), kChunk - std::min(kChunk, chunk.size()));
      const bool full = chunk.size() + take >= kChunk;
      if (full) take = CutAfter(rest, take);
      chunk.append(rest.substr(0, take));
      offset_ += take;
      if (offset_ == pieces_[piece_].size()) ++piece_, offset_ = 0;
      if (full && take > 0 && plan_.cut_after[static_cast<uint8_t>(chunk.back())]) break;
    }
    return !chunk.empty();
  }

 private:
  // How much of rest to take: at least `at_least` bytes, then on to just
  // after the next byte in no run (or all of rest).
  size_t CutAfter(std::string_view rest, size_t at_least) const {
    size_t end = at_least;
    if (end > 0 && plan_.cut_after[static_cast<uint8_t>(rest[end - 1])]) return end;
    while (end < rest.size() && !plan_.cut_after[static_cast<uint8_t>(rest[end])]) ++end;
    return std::min(end + 1, rest.size());
  }

  std::span<const std::string_view> pieces_;
  const ContractionPlan& plan_;
  size_t piece_ = 0;
  size_t offset_ = 0;
};

// Contracts the concatenation of pieces into the buffer at `into`; returns
// the end of what was written (at most as many bytes as the pieces hold).
char* ContractInto(std::span<const std::string_view> pieces, char* into,
                   const ContractionPlan& plan) {
  ChunkContractor contractor(plan);
  ChunkSource source(pieces, plan);
  std::string chunk;
  while (source.Next(chunk)) {
    const size_t size = chunk.size();
    chunk.append(ChunkContractor::kPadding, '\0');
    into = contractor.Contract(std::string_view(chunk).substr(0, size), into);
  }
  return into;
}

struct Part {
  std::vector<std::string_view> pieces;
  size_t size = 0;

  void Add(std::string_view piece) {
    pieces.push_back(piece);
    size += piece.size();
  }
};

// The concatenation of pieces in `count` parts of about equal size, each
// cut just after a byte in no run, so that the parts contract independently.
std::vector<Part> SplitAtCuts(std::span<const std::string_view> pieces, size_t total,
                              size_t count, const ContractionPlan& plan) {
  std::vector<Part> parts(1);
  size_t seen = 0;
  for (std::string_view piece : pieces) {
    while (!piece.empty()) {
      const size_t target = total * parts.size() / count;
      size_t at = target > seen ? target - seen : 0;
      if (parts.size() == count || at >= piece.size()) break;
      while (at < piece.size() && !plan.cut_after[static_cast<uint8_t>(piece[at])]) ++at;
      if (at == piece.size()) break;
      parts.back().Add(piece.substr(0, at + 1));
      seen += at + 1;
      piece.remove_prefix(at + 1);
      parts.emplace_back();
    }
    if (!piece.empty()) parts.back().Add(piece);
    seen += piece.size();
  }
  return parts;
}

}  // namespace

void AppendContracted(std::string& out, std::span<const std::string_view> pieces) {
  size_t total = 0;
  for (std::string_view piece : pieces) total += piece.size();
  const ContractionPlan& plan = Plan();
  const size_t cores = std::max(1u, std::thread::hardware_concurrency());
  const size_t count = total < kSmallestSplit ? 1 : std::min<size_t>(cores, 8);
  const std::vector<Part> parts = SplitAtCuts(pieces, total, count, plan);

  // Each part writes where its input would start, then the results close up.
  const size_t start = out.size();
  out.resize(start + total);
  std::vector<char*> ends(parts.size());
  std::vector<std::exception_ptr> failures(parts.size());
  const auto contract = [&](size_t index, char* into) {
    try {
      ends[index] = ContractInto(parts[index].pieces, into, plan);
    } catch (...) {
      failures[index] = std::current_exception();
    }
  };
  std::vector<std::thread> helpers;
  char* into = out.data() + start + parts.front().size;
  for (size_t index = 1; index < parts.size(); ++index) {
    helpers.emplace_back(contract, index, into);
    into += parts[index].size;
  }
  contract(0, out.data() + start);
  for (std::thread& helper : helpers) helper.join();
  for (const std::exception_ptr& failure : failures) {
    if (failure) std::rethrow_exception(failure);
  }
  char* end = ends.front();
  into = out.data() + start + parts.front().size;
  for (size_t index = 1; index < parts.size(); ++index) {
    const size_t length = static_cast<size_t>(ends[index] - into);
    std::memmove(end, into, length);
    end += length;
    into += parts[index].size;
  }
  out.resize(static_cast<size_t>(end - out.data()));
}

std::string ContractWords(std::string_view text) {
  std::string out;
  AppendContracted(out, std::span<const std::string_view>(&text, 1));
  return out;
}

}  // namespace vireo
