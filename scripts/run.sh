#!/usr/bin/env bash
# Installs what is missing (scripts/bootstrap.sh; --no-bootstrap or TWC_NO_BOOTSTRAP=1 skips that),
# builds, and opens the panel. Without a display it writes screenshots of the panel and of every
# dialog into build/screenshots instead. Other arguments go to the application.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
app_args=()
for argument in "$@"; do
    if [ "$argument" = "--no-bootstrap" ]; then
        export TWC_NO_BOOTSTRAP=1
    else
        app_args+=("$argument")
    fi
done
"$top/scripts/bootstrap.sh" build
"$top/scripts/build.sh"
app="${BUILD_DIR:-$top/build}/app/testwidgetcollection"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$app" ${app_args[@]+"${app_args[@]}"}
fi
shots="${BUILD_DIR:-$top/build}/screenshots"
echo "No display: writing screenshots to $shots"
QT_QPA_PLATFORM=offscreen exec "$app" --screenshot "$shots" ${app_args[@]+"${app_args[@]}"}
