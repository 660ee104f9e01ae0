#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it. Without a display it runs the tour instead.
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

install_packages
# With the manuals, which "Open Manual" opens.
build release manual
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    say "There is no display (neither DISPLAY nor WAYLAND_DISPLAY is set)"
    run_tour release
else
    say "Starting build/release/bin/zn64-clockwright"
    exec build/release/bin/zn64-clockwright
fi
