#!/usr/bin/env bash
# Makes what robots now see in every window the object-map baseline: builds the collection and the
# object-map test into build/ (or $BUILD_DIR), maps every window in the test's own fixed environment
# and writes one file per window into autotests/app/objectmap, removing files of windows that are
# gone. Review the result with `git diff autotests/app/objectmap`, then commit it.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
build_dir="${BUILD_DIR:-$top/build}"
if [ -f "$build_dir/CMakeCache.txt" ]; then
    cmake -S "$top" -B "$build_dir" -DBUILD_TESTING=ON > /dev/null
else
    cmake -S "$top" -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE="${BUILD_TYPE:-RelWithDebInfo}" -DBUILD_TESTING=ON
fi
cmake --build "$build_dir" --target testwidgetcollection tst_objectmap
cd "$build_dir"
TWC_ACCEPT_OBJECT_MAP=1 ctest -R '^tst_objectmap$' --output-on-failure
git -C "$top" status --short -- autotests/app/objectmap
echo "Review the changes with: git diff -- autotests/app/objectmap (new windows show as untracked), then commit them."
