#!/usr/bin/env bash
# Runs the tour of a built preset on a virtual screen with a window manager, as on a desktop.
# Usage: scripts/tour.sh [preset]
set -euo pipefail
cd "$(dirname "$0")/.."
tour=build/${1:-release}/bin/tour

if [ "${2:-}" = --inside ]; then
    openbox &
    manager=$!
    trap 'kill "$manager"' EXIT
    "$tour"
    exit
fi
exec xvfb-run --auto-servernum --server-args "-screen 0 1600x1000x24" "$0" "${1:-release}" --inside
