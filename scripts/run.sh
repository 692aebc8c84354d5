#!/usr/bin/env bash
# Installs what is missing (scripts/bootstrap.sh; --no-bootstrap or TWC_NO_BOOTSTRAP=1 skips that),
# builds, and opens the panel. Without a display it writes screenshots of the panel and of every
# dialog into build/screenshots instead. --qt6 (or TWC_QT_MAJOR=6) builds and runs with Qt 6, in
# build-qt6. Other arguments go to the application.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
app_args=()
for argument in "$@"; do
    if [ "$argument" = "--no-bootstrap" ]; then
        export TWC_NO_BOOTSTRAP=1
    elif [ "$argument" = "--qt6" ]; then
        export TWC_QT_MAJOR=6
    else
        app_args+=("$argument")
    fi
done
"$top/scripts/bootstrap.sh" build
if [ "${TWC_QT_MAJOR:-5}" != 5 ]; then
    export BUILD_DIR="${BUILD_DIR:-$top/build-qt$TWC_QT_MAJOR}"
fi
"$top/scripts/build.sh"
app="${BUILD_DIR:-$top/build}/app/testwidgetcollection"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$app" ${app_args[@]+"${app_args[@]}"}
fi
shots="${BUILD_DIR:-$top/build}/screenshots"
echo "No display: writing screenshots to $shots"
QT_QPA_PLATFORM=offscreen exec "$app" --screenshot "$shots" ${app_args[@]+"${app_args[@]}"}
