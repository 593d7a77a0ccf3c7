#!/usr/bin/env bash
# Renders the PNG sizes of the application icon from its SVG (needs
# rsvg-convert from librsvg2-bin). The PNGs are kept in the repository.
set -euo pipefail
cd "$(dirname "$0")/../data/icons"
name=org.example.vireo_reader.Vireo
for size in 48 128 256; do
  mkdir -p "$size"
  rsvg-convert -w "$size" -h "$size" "$name.svg" -o "$size/$name.png"
done
