#!/usr/bin/env bash
# Configures and builds the project into build/ (or $BUILD_DIR). Arguments go to the configure step,
# for example -DBUILD_TESTING=ON. TWC_WARNINGS_AS_ERRORS=ON in the environment makes every compiler
# warning an error (CI sets it). --qt6 (or TWC_QT_MAJOR=6) builds with Qt 6 instead of Qt 5.15,
# into build-qt6/ unless BUILD_DIR says otherwise.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
major="${TWC_QT_MAJOR:-5}"
configure_args=()
for argument in "$@"; do
    if [ "$argument" = --qt6 ]; then
        major=6
    else
        configure_args+=("$argument")
    fi
done
if [ "$major" = 5 ]; then
    build_dir="${BUILD_DIR:-$top/build}"
else
    build_dir="${BUILD_DIR:-$top/build-qt$major}"
fi
options=("-DTWC_QT_MAJOR=$major")
if [ -n "${TWC_WARNINGS_AS_ERRORS:-}" ]; then
    options+=("-DTWC_WARNINGS_AS_ERRORS=$TWC_WARNINGS_AS_ERRORS")
fi
cmake -S "$top" -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE="${BUILD_TYPE:-RelWithDebInfo}" \
    "${options[@]}" ${configure_args[@]+"${configure_args[@]}"}
cmake --build "$build_dir" --parallel "$(nproc)"
