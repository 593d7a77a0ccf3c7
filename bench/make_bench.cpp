// Making an ebook from a 64 MB text: the packing in memory (conversion to
// the packable form, word contraction, scrambling) and the whole maker with
// its writing to disk, in wall-clock time, since the contraction runs on
// every core. Peak memory of the tool: bench/make_memory.sh.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>

#include "sample_text.h"
#include "book/book_maker.h"
#include "support/file_io.h"

namespace vireo {
namespace {

constexpr size_t kTextSize = 64 * 1000 * 1000;

struct BigText {
  std::filesystem::path folder = std::filesystem::temp_directory_path() / "vireo-make-bench";
  std::string text;
  BigText() {
    std::mt19937 random(4);
    text = samples::ProseLikeText(random, kTextSize);
    std::filesystem::create_directories(folder);
    WriteFileAtomically((folder / "text.txt").string(), text);
    // A stub without a symbol table, so that no strip runs.
    WriteFileAtomically((folder / "stub").string(), "\x7f" "ELF" + std::string(1 << 20, 'x'));
  }
  ~BigText() { std::filesystem::remove_all(folder); }
};

const BigText& TheText() {
  static const BigText text;
  return text;
}

void BM_PackBigText(benchmark::State& state) {
  const std::string& text = TheText().text;
  for (auto _ : state) {
    std::string file = EbookFileStart("stub");
    AppendPackedBody(file, PackableText(text, DetectEncoding(text)), "Author", "Title");
    benchmark::DoNotOptimize(file.data());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}
BENCHMARK(BM_PackBigText)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

void BM_MakeEbookBigText(benchmark::State& state) {
  const BigText& big = TheText();
  const MakeRequest request{(big.folder / "text.txt").string(), (big.folder / "book").string(),
                            (big.folder / "stub").string(), "Author", "Title"};
  for (auto _ : state) {
    const MakeResult result = MakeEbook(request);
    if (!result.ok) state.SkipWithError(result.message.c_str());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * big.text.size()));
}
BENCHMARK(BM_MakeEbookBigText)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

}  // namespace
}  // namespace vireo
