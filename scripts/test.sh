#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test headless. With --sanitize it builds with
# AddressSanitizer and UndefinedBehaviorSanitizer into build-sanitize (or $BUILD_DIR) and runs the
# suite there, with LeakSanitizer on and Qt's and the system's own leaks suppressed
# (scripts/lsan.supp). Other arguments go to ctest.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
sanitize=0
ctest_args=()
for argument in "$@"; do
    if [ "$argument" = "--sanitize" ]; then
        sanitize=1
    else
        ctest_args+=("$argument")
    fi
done
"$top/scripts/bootstrap.sh"
if [ "$sanitize" -eq 1 ]; then
    export BUILD_DIR="${BUILD_DIR:-$top/build-sanitize}"
    "$top/scripts/build.sh" -DBUILD_TESTING=ON -DTWC_SANITIZE=ON
    export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:detect_stack_use_after_return=0"
    export LSAN_OPTIONS="suppressions=$top/scripts/lsan.supp:print_suppressions=0"
    export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
else
    # The Designer plugin and its test add about half a minute of compiling to the build.
    "$top/scripts/build.sh" -DBUILD_TESTING=ON -DTWC_BUILD_DESIGNER_PLUGIN=ON
fi
export QT_QPA_PLATFORM=offscreen
cd "${BUILD_DIR:-$top/build}"
ctest --output-on-failure --parallel "$(nproc)" ${ctest_args[@]+"${ctest_args[@]}"}
