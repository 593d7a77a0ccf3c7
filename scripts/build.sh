#!/usr/bin/env bash
# Configures and builds one preset (default: dev). Extra arguments go to the
# configure step, e.g. -DVIREO_WERROR=ON.
set -euo pipefail
cd "$(dirname "$0")/.."
preset="${1:-dev}"
shift || true
cmake --preset "$preset" "$@" >/dev/null
cmake --build --preset "$preset" -j "$(nproc)"
