#!/usr/bin/env bash
# Builds the release preset and runs every benchmark, then prints the table
# of the README's performance section: figure, target, measured, pass
# (medians of three repetitions; the raw results stay in build/bench/),
# followed by where the start-up time goes for the King James ebook and for
# a 30 MB ebook made here from its text seven times over.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh release "$@" >/dev/null
out=build/bench
mkdir -p "$out"
bin=build/release/bin
echo "load average before: $(cut -d' ' -f1-3 /proc/loadavg)" >"$out/load.txt"
# The settings load runs in a process of its own, as at start-up: after the
# big benchmarks the allocator keeps their memory, which the small settings
# files reuse and the biggest cannot, and the growth it shows is the heap's.
run_bench() {
  QT_QPA_PLATFORM=offscreen "$bin/vireo_bench" --benchmark_repetitions=3 \
    --benchmark_report_aggregates_only=true --benchmark_filter="$1" \
    --benchmark_out="$out/$2.json" --benchmark_out_format=json >"$out/$2.txt"
}
run_bench '-BM_LoadDescendingSettings' bench
run_bench 'BM_LoadDescendingSettings' settings
bench/first_spread.sh "$bin" "$bin/Bible" 7 >"$out/first_spread.txt"
for _ in 1 2 3 4 5 6 7; do cat "$bin/samples/kjv.txt"; done >"$out/big.txt"
"$bin/vireo-tool" make "$out/big.txt" -o "$out/BigBible" >/dev/null
rm "$out/big.txt"
bench/first_spread.sh "$bin" "$out/BigBible" 5 >"$out/big_book.txt"
rm "$out/BigBible"
bench/make_memory.sh "$bin" 100 >"$out/make_memory.txt"
echo "load average after: $(cut -d' ' -f1-3 /proc/loadavg)" >>"$out/load.txt"
python3 bench/bench_table.py "$out/bench.json,$out/settings.json" "$out/first_spread.txt" "$out/make_memory.txt" \
  "$out/big_book.txt" | tee "$out/table.md"
echo
echo "King James ebook:"
cat "$out/first_spread.txt"
echo
echo "30 MB ebook:"
cat "$out/big_book.txt"
echo
cat "$out/load.txt"
