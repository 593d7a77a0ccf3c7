#!/usr/bin/env bash
# Times the reader from process start to the first spread on screen, and to
# the end of pagination, on an ebook (default: the whole-Bible sample, about
# 4.3 MB of text). Prints the median of several runs in milliseconds.
#   bench/first_spread.sh [BUILD_BIN_FOLDER] [BOOK] [RUNS]
set -euo pipefail
bin="${1:-build/release/bin}"
book="${2:-$bin/Bible}"
runs="${3:-7}"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$book" "$bin/libvHtml.so" "$bin"/paper*.jpg "$work/" 2>/dev/null || cp "$book" "$bin/libvHtml.so" "$work/"
name=$(basename "$book")
firsts=()
finishes=()
for _ in $(seq "$runs"); do
  start=$(date +%s%3N)
  QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 VIREO_TIMING=1 VIREO_QUIT_AFTER_MS=0 \
    XDG_DATA_HOME="$work/xdg" XDG_RUNTIME_DIR="$work" "$work/$name" 2>"$work/err" >/dev/null
  first=$(awk '/\[timing\] first spread/ {print $4}' "$work/err")
  finish=$(awk '/\[timing\] pagination finished/ {print $4}' "$work/err")
  firsts+=($((first - start)))
  finishes+=($((finish - start)))
done
median() { printf '%s\n' "$@" | sort -n | awk '{a[NR]=$1} END {print a[int((NR+1)/2)]}'; }
echo "first spread on screen: $(median "${firsts[@]}") ms (median of $runs)"
echo "pagination finished:    $(median "${finishes[@]}") ms (median of $runs)"
