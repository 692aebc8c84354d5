#!/usr/bin/env bash
# Opens Qt Designer with the toolkit widgets in their real look: builds the Designer plugin into
# build/ (or $BUILD_DIR) when needed and starts Designer with QT_PLUGIN_PATH pointing at the
# build's plugin folder. Arguments go to Designer, e.g.
#   scripts/designer.sh tests/values/TestVirtualSlider.ui
# Without a display, run it under a virtual one: xvfb-run -a scripts/designer.sh FORM.ui
# With TWC_QT_MAJOR=6 it builds the plugin with Qt 6 (into build-qt6) and opens Qt 6's Designer.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
major="${TWC_QT_MAJOR:-5}"
if [ "$major" = 5 ]; then
    build_dir="${BUILD_DIR:-$top/build}"
else
    build_dir="${BUILD_DIR:-$top/build-qt$major}"
fi

# Designer and its plugin headers come with qttools5-dev-tools and qttools5-dev (Qt 6:
# qt6-tools-dev-tools and qt6-tools-dev).
"$top/scripts/bootstrap.sh" designer

if ! grep -qs '^TWC_BUILD_DESIGNER_PLUGIN:BOOL=ON' "$build_dir/CMakeCache.txt"; then
    cmake -S "$top" -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE="${BUILD_TYPE:-RelWithDebInfo}" \
        -DTWC_BUILD_DESIGNER_PLUGIN=ON -DTWC_QT_MAJOR="$major"
fi
cmake --build "$build_dir" --target vnwidgetsdesigner

qmake_bin=qmake
if [ "$major" != 5 ]; then
    qmake_bin="qmake$major"
fi
designer_bin="$("$qmake_bin" -query QT_INSTALL_BINS 2>/dev/null || true)/designer"
if [ ! -x "$designer_bin" ]; then
    designer_bin="/usr/lib/qt$major/bin/designer"
fi
export QT_PLUGIN_PATH="$build_dir/plugins${QT_PLUGIN_PATH:+:$QT_PLUGIN_PATH}"
exec "$designer_bin" "$@"
