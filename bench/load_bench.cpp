// Loading a ~5 MB ebook: read the file, find the markers, unpack, reformat
// and convert the references, as the reader does at start-up. The book is
// made here from the King James text of the sample books when it has been
// built (bin/samples/kjv.txt), else from generated prose.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>

#include "sample_text.h"
#include "book/book_maker.h"
#include "book/book_reader.h"
#include "book/cls_bin.h"
#include "book/cls_strip_cr.h"
#include "book/html_references.h"
#include "support/file_io.h"
#include "support/vhtml_library.h"

namespace vireo {
namespace {

constexpr size_t kBookSize = 5 * 1000 * 1000;
constexpr size_t kStubSize = 1000 * 1000;

std::string BookText() {
  const std::string sample = std::string(VIREO_BIN_DIR) + "/samples/kjv.txt";
  std::string text;
  if (std::filesystem::exists(sample)) {
    const std::string kjv = ReadWholeFile(sample);
    while (text.size() < kBookSize) text += kjv;
  } else {
    std::mt19937 random(1);
    text = samples::ProseLikeText(random, kBookSize);
  }
  text.resize(kBookSize);
  return text;
}

// The ebook file, made once, with a stub of the size of a small program.
struct Book {
  std::string text = BookText();
  std::string path = (std::filesystem::temp_directory_path() / "vireo-load-bench-book").string();
  std::string body;
  Book() {
    TheVHtml().Load(VIREO_BIN_DIR);
    std::string stub(kStubSize, '\0');
    std::mt19937 random(2);
    for (char& c : stub) c = static_cast<char>(random() % 200);
    body = PackBody(PackableText(text, TextEncoding::kWindows1252), "King James Version", "Bible");
    WriteFileAtomically(path, EbookFile(std::move(stub), body));
  }
};

const Book& TheBook() {
  static const Book book;
  return book;
}

void BM_LoadBook(benchmark::State& state) {
  const Book& book = TheBook();
  for (auto _ : state) {
    BookReadResult result = ReadEmbeddedBook(book.path, FormattingOptions{});
    benchmark::DoNotOptimize(result.text.data());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * book.text.size()));
}
BENCHMARK(BM_LoadBook)->Unit(benchmark::kMillisecond);

void BM_UnpackOnly(benchmark::State& state) {
  const Book& book = TheBook();
  for (auto _ : state) {
    clsBIN bin;
    bin.set_body(book.body);
    bin.DecodeAndExtract();
    benchmark::DoNotOptimize(bin.body().data());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * book.text.size()));
}
BENCHMARK(BM_UnpackOnly)->Unit(benchmark::kMillisecond);

void BM_ReplaceKnownChar(benchmark::State& state) {
  const Book& book = TheBook();
  for (auto _ : state) {
    std::string text = book.text;
    clsStripCR::ReplaceKnownChar(text, FormattingOptions{});
    benchmark::DoNotOptimize(text.data());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * book.text.size()));
}
BENCHMARK(BM_ReplaceKnownChar)->Unit(benchmark::kMillisecond);

void BM_HtmlReferences(benchmark::State& state) {
  const Book& book = TheBook();
  for (auto _ : state) {
    std::string text = book.text;
    HtmlToChar(text);
    HtmlConstToChar(text);
    benchmark::DoNotOptimize(text.data());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * book.text.size()));
}
BENCHMARK(BM_HtmlReferences)->Unit(benchmark::kMillisecond);

// A file of noise without markers: the whole file is searched once.
void BM_NoiseFile(benchmark::State& state) {
  const std::string path = (std::filesystem::temp_directory_path() / "vireo-noise-bench").string();
  std::string noise(static_cast<size_t>(state.range(0)) << 20, '\0');
  std::mt19937 random(3);
  for (char& c : noise) c = static_cast<char>(random());
  WriteFileAtomically(path, noise);
  for (auto _ : state) {
    BookReadResult result = ReadEmbeddedBook(path, FormattingOptions{});
    benchmark::DoNotOptimize(result.has_book);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * noise.size()));
  std::filesystem::remove(path);
}
BENCHMARK(BM_NoiseFile)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
}  // namespace vireo
