#!/bin/sh
# Installs the game into a temporary folder as a package or `make install` would, and checks the tree:
# the desktop entry and metainfo are valid, every shipped file is there, and the installed program,
# moved away from its prefix, paints its first table from that tree and writes nothing into it.
set -eu
build=$(cd "$1" && pwd)
source=$(cd "$(dirname "$0")/../.." && pwd)
tmp=$(mktemp -d)
# A component install keeps the manifest of a real `make install` intact.
trap 'rm -rf "$tmp" "$build/install_manifest_Unspecified.txt"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

root=$tmp/root/usr/local
DESTDIR=$tmp/root cmake --install "$build" --prefix /usr/local --component Unspecified >/dev/null
desktop=$root/share/applications/com.corvane.holdem.desktop
for f in bin/holdem share/man/man6/holdem.6 share/icons/hicolor/scalable/apps/holdem.svg \
         share/applications/com.corvane.holdem.desktop share/metainfo/com.corvane.holdem.metainfo.xml; do
    [ -f "$root/$f" ] || fail "$f is not installed"
done
for size in 16 22 24 32 48 64 128 256; do
    f=share/icons/hicolor/${size}x$size/apps/holdem.png
    file -b "$root/$f" | grep -q "PNG image data, $size x $size," || fail "$f is not a $size-pixel PNG"
done
(cd "$source/assets" && find . -type f ! -name '.*') | while read -r f; do
    cmp -s "$source/assets/$f" "$root/share/holdem/$f" || fail "share/holdem/$f is missing or differs"
done

desktop-file-validate "$desktop" || fail "desktop entry"
appstreamcli validate --no-net "$root/share/metainfo/com.corvane.holdem.metainfo.xml" >"$tmp/as" 2>&1 ||
    { cat "$tmp/as"; fail "metainfo"; }
[ -x "$root/bin/$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$desktop")" ] || fail "Exec= names no installed program"
[ "$(sed -n 's/^Icon=//p' "$desktop")" = holdem ] || fail "Icon= names no installed icon"

# The installed program under a virtual display, with a home of its own.
mkdir "$tmp/home"
touch "$tmp/stamp"
display="env QT_QPA_PLATFORM=offscreen"
if command -v xvfb-run >/dev/null && command -v Xvfb >/dev/null; then display="xvfb-run -a"; fi
env -u XDG_DATA_HOME -u XDG_CONFIG_HOME -u QT_QPA_PLATFORM HOME="$tmp/home" timeout 120 $display \
    strace -f -qq -e trace=%file -o "$tmp/trace" "$root/bin/holdem" --quit-after-first-paint >"$tmp/out" ||
    fail "the installed program did not start"
grep -q '^rss-kb: [0-9]' "$tmp/out" || fail "the installed program painted no table"

# Every file looked for in its data folder is there; settings and pictures come
# from it, and nothing from the build or the sources.
data=$root/share/holdem
grep -F "\"$data/" "$tmp/trace" | grep -F ' = -1 ' && fail "looked for above but not installed"
for f in settings.dft pictures/table.png; do
    grep -qF "\"$data/$f\"" "$tmp/trace" || fail "$f was not read from the installed tree"
done
grep -F -e "\"$build/" -e "\"$source/" "$tmp/trace" && fail "files opened outside the installed tree"
grep -F "\"$tmp/root/" "$tmp/trace" | grep -E 'O_(WRONLY|RDWR|CREAT)' && fail "wrote into the installed tree"
[ -z "$(find "$tmp/root" -newer "$tmp/stamp")" ] || fail "the installed tree changed"
echo "install check passed"
