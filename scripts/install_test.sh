#!/usr/bin/env bash
# Installs a built preset (default: release) into a temporary prefix and runs
# the installed reader as a user who cannot write there: it must open a book,
# keep its bookmark and preferences in the user's own folders across two runs,
# and write nothing under the prefix. Also validates the desktop files.
set -euo pipefail
cd "$(dirname "$0")/.."
preset="${1:-release}"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix="$work/prefix"
home="$work/home"

desktop-file-validate data/*.desktop
appstreamcli validate --no-net data/*.metainfo.xml >/dev/null

cmake --install "build/$preset" --prefix "$prefix" >/dev/null
chmod -R a+rX "$work"
mkdir "$home"
chown nobody "$home"
as_user() {
  setpriv --reuid=nobody --regid=nogroup --clear-groups \
    env -i HOME="$home" PATH=/usr/bin:/bin QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 \
    XDG_RUNTIME_DIR="$home" "$@"
}
fail() { echo "install test: $*" >&2; exit 1; }
listing() { find "$prefix" -printf '%p %s %T@\n' | sort; }

before=$(listing)
cp build/"$preset"/bin/samples/genesis.txt "$home/"
as_user "$prefix/bin/vireo-tool" make "$home/genesis.txt" --brn -o "$home/Genesis.brn" >/dev/null
as_user env VIREO_KEYS=" " VIREO_QUIT_AFTER_MS=500 "$prefix/bin/vireo" "$home/Genesis.brn" \
  2>"$work/run1.err" || fail "first run failed: $(cat "$work/run1.err")"

marks="$home/.config/vireo/BookMarks.ini"
[ -f "$home/.config/vireo/Vireo.ini" ] || fail "no preferences in the user's folder"
[ -f "$home/.local/state/vireo/log.txt" ] || fail "no log in the user's state folder"
mark=$(grep -i "^GENESIS" "$marks" | cut -d, -f2 | tr -d '\r') || fail "no bookmark: $(cat "$marks")"
[ "${mark:-0}" -gt 1 ] || fail "the turned page was not kept (bookmark ${mark:-none})"

as_user env VIREO_QUIT_AFTER_MS=500 "$prefix/bin/vireo" "$home/Genesis.brn" \
  2>"$work/run2.err" || fail "second run failed: $(cat "$work/run2.err")"
again=$(grep -i "^GENESIS" "$marks" | cut -d, -f2 | tr -d '\r')
[ "$again" = "$mark" ] || fail "the second run did not open at the bookmark ($mark, then $again)"

[ "$(listing)" = "$before" ] || fail "files under the prefix changed"
echo "install test passed: bookmark $mark kept in $marks"
