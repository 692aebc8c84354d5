#!/usr/bin/env bash
# Configures and builds the project into build/ (or $BUILD_DIR).
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
build_dir="${BUILD_DIR:-$top/build}"
cmake -S "$top" -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE="${BUILD_TYPE:-RelWithDebInfo}" "$@"
cmake --build "$build_dir" --parallel "$(nproc)"
