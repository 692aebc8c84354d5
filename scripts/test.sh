#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test headless.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
"$top/scripts/bootstrap.sh"
"$top/scripts/build.sh" -DBUILD_TESTING=ON
export QT_QPA_PLATFORM=offscreen
cd "${BUILD_DIR:-$top/build}"
ctest --output-on-failure --parallel "$(nproc)" "$@"
