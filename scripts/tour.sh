#!/usr/bin/env bash
# Runs the tour of a built preset on a virtual screen with a window manager, as on a desktop.
# Usage: scripts/tour.sh [preset]
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-release}

if [ "${2:-}" != --inside ]; then
    exec xvfb-run --auto-servernum --server-args "-screen 0 1600x1000x24" "$0" "$preset" --inside
fi

openbox --config-file /dev/null 2>/dev/null &
manager=$!
trap 'kill "$manager"' EXIT
# A window that comes up before the manager is ready is never shown.
until xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; do
    kill -0 "$manager" || { echo "tour: the window manager did not start" >&2; exit 1; }
    sleep 0.1
done
"build/$preset/bin/tour"
