#!/usr/bin/env bash
# Sets up, builds, and writes pictures of the sample book as the reader shows
# it at the default window size: the whole window, the first spread in
# two-page and in single-page mode, the title page of a reader without a
# book, the settings dialog, the font dialog, the about window, the
# error-report form, the Create ebook dialog, the Open dialog, the help window
# and the print preview; the sample book with pictures (its cover, a spread
# with pictures); the title page, the options menu and the settings dialog in
# Spanish and in German.
#   scripts/pictures.sh [OUTPUT_FOLDER]   (default: build/pictures)
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh release >/dev/null
bin="build/release/bin"
out="${1:-build/pictures}"
mkdir -p "$out"
out=$(cd "$out" && pwd)  # the reader runs from another folder
# A clean program folder, so that no earlier preferences change the look.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$bin/vireo-tool" "$bin/Vireo" "$bin/Genesis" "$bin/Birdsong" "$bin/libvHtml.so" "$bin"/paper*.jpg "$work/"
cp -r "$bin/languages" "$work/"
export XDG_RUNTIME_DIR="$work" XDG_DATA_HOME="$work/xdg"
QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 VIREO_SCREENSHOT="$out/main-window.png" \
  "$work/Genesis" >/dev/null
rm -f "$work/Vireo.ini" "$work/BookMarks.ini"
QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 VIREO_SETTINGS_SCREENSHOT="$out/settings-dialog.png" \
  "$work/Genesis" >/dev/null
# The about window (frmAbout) and the error-report form (fSHAREDErrorRpt, with an
# example error), each over the window.
for dialog in about:about-window report:error-report; do
  QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 VIREO_DIALOG="${dialog%%:*}" \
    VIREO_SCREENSHOT="$out/${dialog#*:}.png" "$work/Genesis" >/dev/null
done
# The Create ebook dialog (frmMakeEbook) with the picture book's text, its
# pictures folder and its cover chosen.
cp -r "$bin/samples/birdsong" "$work/"
QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 VIREO_DIALOG=ebook \
  VIREO_EBOOK_TEXT="$work/birdsong/birdsong.txt" VIREO_EBOOK_IMAGES="$work/birdsong/pictures" \
  VIREO_EBOOK_COVER="$work/birdsong/pictures/cover.png" VIREO_SCREENSHOT="$out/create-ebook.png" \
  "$work/Genesis" >/dev/null
# The Open dialog (Ctrl+O), in the program's folder.
QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 VIREO_DIALOG=open \
  VIREO_SCREENSHOT="$out/open-book.png" "$work/Genesis" >/dev/null
# The manual's help window (F1) and the print preview of the first two pages.
cp -r "$bin/manual" "$work/"
for dialog in help:help-window print-preview:print-preview; do
  QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 VIREO_DIALOG="${dialog%%:*}" \
    VIREO_SCREENSHOT="$out/${dialog#*:}.png" "$work/Genesis" >/dev/null
done
# The font dialog (frmFontSel) with all installed fonts: a machine without the
# recommended fonts has none to list.
printf 'SHOWALLFONTS,True\r\n' >"$work/Vireo.ini"
QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 VIREO_DIALOG=font \
  VIREO_SCREENSHOT="$out/font-dialog.png" "$work/Genesis" >/dev/null
rm -f "$work/Vireo.ini" "$work/BookMarks.ini"
"$work/vireo-tool" render "$work/Genesis" --page 1 -o "$out/first-spread.png"
"$work/vireo-tool" render "$work/Genesis" --page 1 --single -o "$out/first-page-single.png"
"$work/vireo-tool" render "$work/Vireo" --page 1 -o "$out/title-page.png" 2>/dev/null
# The sample book with pictures: its cover over the first page, and a spread
# with pictures on its pages.
"$work/vireo-tool" render "$work/Birdsong" --page 1 -o "$out/cover-over-first-page.png"
"$work/vireo-tool" render "$work/Birdsong" --page 3 -o "$out/spread-with-pictures.png"
# The title page (the reader without a book), the options menu and the
# settings dialog in each shipped language, as the remembered choice.
for language in es de; do
  printf 'LANGUAGE,%s\r\n' "$language" >"$work/Vireo.ini"
  QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 VIREO_SCREENSHOT="$out/title-page-$language.png" \
    "$work/Vireo" >/dev/null 2>&1
  QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 VIREO_DIALOG=menu \
    VIREO_SCREENSHOT="$out/options-menu-$language.png" "$work/Genesis" >/dev/null
  QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 \
    VIREO_SETTINGS_SCREENSHOT="$out/settings-dialog-$language.png" "$work/Genesis" >/dev/null
done
rm -f "$work/Vireo.ini" "$work/BookMarks.ini"
