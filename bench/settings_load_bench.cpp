// Loading a settings file whose keys come in descending order, the worst
// order for a store kept sorted: 1x, 4x and 16x keys should take about 4x
// and 16x the time.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "prefs/shared_settings.h"
#include "support/file_io.h"
#include "support/logging.h"

namespace vireo {
namespace {

std::string DescendingSettingsFile(int64_t keys) {
  const std::string path =
      (std::filesystem::temp_directory_path() / ("vireo-settings-bench-" + std::to_string(keys)))
          .string();
  std::string content;
  for (int64_t i = keys; i >= 1; --i) {
    content += "KEY" + std::to_string(10'000'000 + i) + "," + std::to_string(i) + "\r\n";
  }
  WriteFileAtomically(path, content);
  return path;
}

void BM_LoadDescendingSettings(benchmark::State& state) {
  SetLoggingDisabled(true);
  const std::string path = DescendingSettingsFile(state.range(0));
  for (auto _ : state) {
    cSHAREDSettings store;
    store.LoadSettings(path);
    benchmark::DoNotOptimize(store.SettingsCount());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
  state.SetComplexityN(state.range(0));
  std::filesystem::remove(path);
}
BENCHMARK(BM_LoadDescendingSettings)
    ->Arg(25'000)
    ->Arg(100'000)
    ->Arg(400'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

}  // namespace
}  // namespace vireo
