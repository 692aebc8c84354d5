#!/usr/bin/env bash
# Makes the current look of every window the reference: builds the collection and the screenshot
# test into build/ (or $BUILD_DIR), takes the screenshots in the test's own fixed environment and
# writes them into autotests/app/screenshots, removing references of windows that are gone. The
# panel and the gallery's tabs at two device pixels per pixel (--scale 2) go into its subfolder 2x,
# and the look audit's status matrix becomes autotests/app/audit-matrix.png.
# With --qt6 (or TWC_QT_MAJOR=6) it does the same for Qt 6, built into build-qt6 (or $BUILD_DIR),
# whose references are autotests/app/screenshots-qt6 and autotests/app/audit-matrix-qt6.png.
# Review the result with `git status autotests/app` (and an image diff tool), then commit it.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
major="${TWC_QT_MAJOR:-5}"
if [ "${1:-}" = --qt6 ]; then
    major=6
fi
if [ "$major" = 5 ]; then
    build_dir="${BUILD_DIR:-$top/build}"
    references=(autotests/app/screenshots autotests/app/audit-matrix.png)
else
    build_dir="${BUILD_DIR:-$top/build-qt$major}"
    references=("autotests/app/screenshots-qt$major" "autotests/app/audit-matrix-qt$major.png")
fi
if [ -f "$build_dir/CMakeCache.txt" ]; then
    cmake -S "$top" -B "$build_dir" -DBUILD_TESTING=ON -DTWC_QT_MAJOR="$major" > /dev/null
else
    cmake -S "$top" -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE="${BUILD_TYPE:-RelWithDebInfo}" -DBUILD_TESTING=ON \
        -DTWC_QT_MAJOR="$major"
fi
cmake --build "$build_dir" --target testwidgetcollection tst_screenshots tst_audit
cd "$build_dir"
TWC_ACCEPT_SCREENSHOTS=1 ctest -R '^(tst_screenshots|audit_report)$' --output-on-failure
git -C "$top" status --short --untracked-files=all -- "${references[@]}"
