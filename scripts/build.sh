#!/usr/bin/env bash
# Configures and builds the project into build/ (or $BUILD_DIR). Arguments go to the configure step,
# for example -DBUILD_TESTING=ON. TWC_WARNINGS_AS_ERRORS=ON in the environment makes every compiler
# warning an error (CI sets it).
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
build_dir="${BUILD_DIR:-$top/build}"
options=()
if [ -n "${TWC_WARNINGS_AS_ERRORS:-}" ]; then
    options+=("-DTWC_WARNINGS_AS_ERRORS=$TWC_WARNINGS_AS_ERRORS")
fi
cmake -S "$top" -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE="${BUILD_TYPE:-RelWithDebInfo}" \
    ${options[@]+"${options[@]}"} "$@"
cmake --build "$build_dir" --parallel "$(nproc)"
