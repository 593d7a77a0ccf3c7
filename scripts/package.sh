#!/usr/bin/env bash
# Builds the release preset for an installation under /usr, makes the Debian
# package with CPack and checks it with lintian; the package lands in
# build/release. Extra arguments go to the configure step.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh release -DCMAKE_INSTALL_PREFIX=/usr "$@"
(cd build/release && cpack -G DEB >/dev/null)
deb=$(ls -t build/release/vireo_*.deb | head -1)
echo "Package: $deb"
# Errors fail the run; warnings and notes are listed.
lintian --fail-on error --tag-display-limit 0 "$deb" || {
  echo "lintian found errors in $deb" >&2
  exit 1
}
