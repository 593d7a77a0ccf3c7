#!/usr/bin/env bash
# Installs what Vireo needs to build, test and run (Debian packages). Quiet and
# quick when everything is already there; safe to run any number of times.
set -euo pipefail

packages=(
  cmake ninja-build g++ clang libclang-rt-14-dev clang-format
  qt6-base-dev qt6-translations-l10n libgl-dev fonts-liberation2 fonts-dejavu-core xvfb xauth
  libgtest-dev libgmock-dev libbenchmark-dev libfmt-dev
  bible-kjv binutils time python3
  dpkg-dev file lintian desktop-file-utils appstream
  qt6-speech-dev qt6-declarative-dev poppler-utils
)
# A speech engine is optional: without one, reading aloud says what to install.

missing=()
for package in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$package")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
