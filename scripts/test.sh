#!/usr/bin/env bash
# Sets everything up, builds and runs the whole test suite of one preset
# (default: dev), ending with CTest's summary.
set -euo pipefail
cd "$(dirname "$0")/.."
preset="${1:-dev}"
shift || true
scripts/setup.sh
scripts/build.sh "$preset" "$@"
ctest --preset "$preset" -j "$(nproc)"
