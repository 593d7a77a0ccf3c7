#!/usr/bin/env bash
# Builds the release preset and runs every benchmark, then prints the table
# of the README's performance section: figure, target, measured, pass
# (medians of three repetitions; the raw results stay in build/bench/).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh release "$@" >/dev/null
out=build/bench
mkdir -p "$out"
bin=build/release/bin
QT_QPA_PLATFORM=offscreen "$bin/vireo_bench" --benchmark_repetitions=3 \
  --benchmark_report_aggregates_only=true --benchmark_out="$out/bench.json" \
  --benchmark_out_format=json >"$out/bench.txt"
bench/first_spread.sh "$bin" "$bin/Bible" 7 >"$out/first_spread.txt"
bench/make_memory.sh "$bin" 100 >"$out/make_memory.txt"
python3 bench/bench_table.py "$out/bench.json" "$out/first_spread.txt" "$out/make_memory.txt" |
  tee "$out/table.md"
