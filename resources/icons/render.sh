#!/usr/bin/env bash
# Draws the .png icons from their .svg sources. Run it after changing one, and commit both: so the build needs neither
# a renderer nor the Liberation fonts. Needs rsvg-convert (Debian: librsvg2-bin) and fonts-liberation.
set -euo pipefail
cd "$(dirname "$0")"
for drawing in *.svg; do
    rsvg-convert "$drawing" -o "${drawing%.svg}.png"
done
