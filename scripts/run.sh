#!/usr/bin/env bash
# Installs what is missing, builds, and opens the panel. Without a display it writes screenshots of
# the panel and of every dialog into build/screenshots instead. Arguments go to the application.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
"$top/scripts/bootstrap.sh"
"$top/scripts/build.sh"
app="${BUILD_DIR:-$top/build}/app/testwidgetcollection"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$app" "$@"
fi
shots="${BUILD_DIR:-$top/build}/screenshots"
echo "No display: writing screenshots to $shots"
QT_QPA_PLATFORM=offscreen exec "$app" --screenshot "$shots" "$@"
