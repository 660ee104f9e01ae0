#!/usr/bin/env bash
# Draws from the .svg sources: each icon at its own size and, as @2x, at twice the pixels; the mark of the logo as the
# program's own icon, in the sizes that desktops ask for. Run it after changing a source, and commit all: so the build
# needs neither a renderer nor the Liberation fonts. Needs rsvg-convert (Debian: librsvg2-bin) and fonts-liberation.
set -euo pipefail
cd "$(dirname "$0")"
themed=$PWD/../../packaging/icons/hicolor
id=org.clockwright.ZN64Clockwright

for drawing in *.svg; do
    rsvg-convert "$drawing" -o "${drawing%.svg}.png"
    rsvg-convert --zoom 2 "$drawing" -o "${drawing%.svg}@2x.png"
done

rm -rf "$themed"
scalable=$themed/scalable/apps/$id.svg
mkdir -p "$(dirname "$scalable")"
# The logo without its text, cut to the square around the mark.
sed -e '1s/width="[0-9]*" height="[0-9]*" viewBox="[0-9 ]*"/width="64" height="64" viewBox="9 5 50 50"/' \
    -e '/<text /d' Logo_1.svg >"$scalable"
for size in 16 22 24 32 48 64 96 128 256 512; do
    mkdir -p "$themed/${size}x$size/apps"
    rsvg-convert --width $size --height $size "$scalable" -o "$themed/${size}x$size/apps/$id.png"
done
