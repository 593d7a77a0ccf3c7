#!/usr/bin/env bash
# Makes an ebook from a generated text of SIZE_MB megabytes with vireo-tool
# and reports its speed and peak memory (maximum resident set size, from
# /usr/bin/time -v) against the size of the text. The wall time includes
# writing the book to disk and waiting for it (fsync) and, on a shared
# machine, for the processor; the processor time does not.
#   bench/make_memory.sh [BUILD_BIN_FOLDER] [SIZE_MB]
set -euo pipefail
bin="${1:-build/release/bin}"
size_mb="${2:-100}"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
python3 - "$work/text.txt" "$size_mb" <<'PY'
import random, sys
random.seed(1)
words = ("the and of to that in he shall unto for i his a lord they be is him not them it with "
         "all thou thy was god which my me said but ye their have will thee from as are when this "
         "out were upon man you by Israel king son there up people came house into one come before "
         "caf\u00e9 na\u00efve \u2014 \u201cquoted\u201d").split()
line = " ".join(random.choice(words) for _ in range(4000)) + "\n"
block = (line * 64).encode("utf-8")
with open(sys.argv[1], "wb") as out:
    need = int(sys.argv[2]) * 1000 * 1000
    while need > 0:
        out.write(block[:need])
        need -= len(block)
PY
bytes=$(stat -c %s "$work/text.txt")
/usr/bin/time -v "$bin/vireo-tool" make "$work/text.txt" -o "$work/book" 2>"$work/time" >/dev/null
seconds=$(awk -F': ' '/Elapsed \(wall clock\)/ {n = split($2, t, ":"); s = 0; for (i = 1; i <= n; ++i) s = s * 60 + t[i]; print s}' "$work/time")
peak_kb=$(awk -F': ' '/Maximum resident set size/ {print $2}' "$work/time")
cpu=$(awk -F': ' '/User time|System time/ {s += $2} END {print s}' "$work/time")
awk -v b="$bytes" -v s="$seconds" -v c="$cpu" -v k="$peak_kb" 'BEGIN {
  printf "text: %.1f MB, wall time %.2f s, %.0f MB/s\n", b / 1e6, s, b / 1e6 / s
  printf "processor time (user + system): %.2f s, %.0f MB/s\n", c, b / 1e6 / c
  printf "peak memory: %.1f MB, %.2f x the text\n", k * 1024 / 1e6, k * 1024 / b
}'
