#!/usr/bin/env bash
# Installs what is missing (scripts/bootstrap.sh; --no-bootstrap or TWC_NO_BOOTSTRAP=1 skips that),
# builds everything that is tested (autotests, fuzz corpus replays, the Designer plugin,
# benchmarks) and runs every test headless. With --sanitize it builds with AddressSanitizer and
# UndefinedBehaviorSanitizer into build-sanitize (or $BUILD_DIR) and runs the suite there, with
# LeakSanitizer on and Qt's and the system's own leaks suppressed (scripts/lsan.supp). With --qt6
# (or TWC_QT_MAJOR=6) it installs what Qt 6 needs and builds with Qt 6 into build-qt6 (or
# $BUILD_DIR); the same tests run there, against the Qt 6 screenshot references. Other arguments go
# to ctest.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
sanitize=0
ctest_args=()
for argument in "$@"; do
    case "$argument" in
    --sanitize) sanitize=1 ;;
    --qt6) export TWC_QT_MAJOR=6 ;;
    --no-bootstrap) export TWC_NO_BOOTSTRAP=1 ;;
    *) ctest_args+=("$argument") ;;
    esac
done
major="${TWC_QT_MAJOR:-5}"
"$top/scripts/bootstrap.sh" test
if [ "$major" != 5 ]; then
    export BUILD_DIR="${BUILD_DIR:-$top/build-qt$major}"
fi
options=(-DBUILD_TESTING=ON -DTWC_BUILD_FUZZ_REPLAYS=ON -DTWC_BUILD_BENCHMARKS=ON)
if [ "$sanitize" -eq 1 ]; then
    export BUILD_DIR="${BUILD_DIR:-$top/build-sanitize}"
    # Of the benchmarks only the leak rounds are built there, as a test (benchmarks/CMakeLists.txt).
    "$top/scripts/build.sh" "${options[@]}" -DTWC_SANITIZE=ON
    export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:detect_stack_use_after_return=0"
    export LSAN_OPTIONS="suppressions=$top/scripts/lsan.supp:print_suppressions=0"
    export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
    # Under the X server (the mouse-drag tests) Qt would load Mesa's GLX driver for every window;
    # the driver keeps memory that LeakSanitizer reports without a frame to tell whose it is. No
    # test draws with OpenGL.
    export QT_XCB_GL_INTEGRATION=none
else
    # The Designer plugin and its test add about half a minute of compiling to the build.
    "$top/scripts/build.sh" "${options[@]}" -DTWC_BUILD_DESIGNER_PLUGIN=ON
fi
export QT_QPA_PLATFORM=offscreen
cd "${BUILD_DIR:-$top/build}"
ctest --output-on-failure --parallel "$(nproc)" ${ctest_args[@]+"${ctest_args[@]}"}
