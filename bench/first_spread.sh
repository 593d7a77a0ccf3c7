#!/usr/bin/env bash
# Times the reader from process start to the first spread on screen and to
# the end of pagination, on an ebook (default: the whole-Bible sample, about
# 4.3 MB of text), beside the floor: a bare Qt window of the same size from
# start to its first frame. Prints medians of several runs in milliseconds,
# the peak memory of both (maximum resident set size), and where the reader's
# start-up time goes: each VIREO_TIMING milestone, in the order of their
# median times from process start, with the time since the one before (the
# book is read on a second thread, so its steps interleave with the window's).
#   bench/first_spread.sh [BUILD_BIN_FOLDER] [BOOK] [RUNS]
set -euo pipefail
bin="${1:-build/release/bin}"
book="${2:-$bin/Bible}"
runs="${3:-7}"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$book" "$bin/libvHtml.so" "$bin"/paper*.jpg "$work/" 2>/dev/null || cp "$book" "$bin/libvHtml.so" "$work/"
name=$(basename "$book")

# Runs a program with timing on; prints "<ms to the milestone> <peak KB>"
# and appends every milestone of the run to $work/steps (the bare window's to
# $work/bare_steps) as "<ms> <name>".
timed_run() {
  local milestone="$1"
  shift
  local start
  start=$(date +%s%3N)
  QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 VIREO_TIMING=1 VIREO_QUIT_AFTER_MS=0 \
    XDG_DATA_HOME="$work/xdg" XDG_RUNTIME_DIR="$work" \
    /usr/bin/time -f "[peak] %M" "$@" 2>"$work/err" >/dev/null
  local at peak
  at=$(awk -v m="$milestone" 'index($0, "[timing] " m " ") == 1 {print $NF}' "$work/err")
  peak=$(awk '/^\[peak\]/ {print $2}' "$work/err")
  echo "$((at - start)) $peak"
  local steps="$work/steps"
  [ "$milestone" = "first spread" ] || steps="$work/bare_steps"
  awk -v s="$start" '/^\[timing\] / {n = $NF; $1 = ""; $NF = ""; gsub(/^ +| +$/, ""); print n - s, $0}' \
    "$work/err" >>"$steps"
}
median() { sort -n | awk '{a[NR]=$1} END {print a[int((NR+1)/2)]}'; }

: >"$work/reader"
: >"$work/bare"
: >"$work/steps"
: >"$work/bare_steps"
for _ in $(seq "$runs"); do
  timed_run "first frame" "$bin/vireo_bare_window" >>"$work/bare"
  timed_run "first spread" "$work/$name" >>"$work/reader"
done
step_median() {
  awk -v m="$1" '{t = $1; $1 = ""; sub(/^ /, "")} $0 == m {print t}' "${2:-$work/steps}" | median
}
text=$("$bin/vireo-tool" info "$work/$name" | awk '/^unpacked:/ {print $2}')
echo "first spread on screen: $(cut -d' ' -f1 "$work/reader" | median) ms (median of $runs)"
echo "pagination finished:    $(step_median "pagination finished") ms"
echo "bare window first frame: $(cut -d' ' -f1 "$work/bare" | median) ms (main entered at $(step_median "main entered" "$work/bare_steps") ms)"
echo "peak memory: reader $(cut -d' ' -f2 "$work/reader" | median) KB, bare window $(cut -d' ' -f2 "$work/bare" | median) KB, book text $((text / 1024)) KB"
echo "where the start-up time goes (median ms from process start; the time since the milestone before):"
previous=0
while read -r at milestone; do
  printf '  %-20s %6s %6s\n' "$milestone" "$at" "$((at - previous))"
  previous=$at
done < <(awk '{$1 = ""; sub(/^ /, ""); print}' "$work/steps" | awk '!seen[$0]++' |
  while read -r milestone; do echo "$(step_median "$milestone") $milestone"; done | sort -n)
