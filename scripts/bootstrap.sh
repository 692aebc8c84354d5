#!/usr/bin/env bash
# Makes sure that what the project needs is there: programs, Qt 5.15 modules (their CMake packages)
# and the screenshot fonts. When everything is there it changes nothing, on any system. When
# something is missing it installs it with apt-get where it can (Debian, as root or with sudo);
# otherwise it names what to install and fails. TWC_NO_BOOTSTRAP=1 skips it.
#
#   scripts/bootstrap.sh [build|test|designer]
#
# build: configure and build the collection and its host (scripts/build.sh, scripts/run.sh);
# test: also everything scripts/test.sh and CI use (the default); designer: build plus Qt Designer.
set -euo pipefail

purpose="${1:-test}"
case "$purpose" in
build | test | designer) ;;
*)
    echo "usage: $0 [build|test|designer]" >&2
    exit 2
    ;;
esac
if [ "${TWC_NO_BOOTSTRAP:-0}" != "0" ]; then
    exit 0
fi

# Qt's own tools and CMake packages, as this Qt 5 installation reports them.
qmake=""
for candidate in qmake-qt5 qmake /usr/lib/qt5/bin/qmake; do
    if command -v "$candidate" > /dev/null &&
        "$candidate" -query QT_VERSION 2> /dev/null | grep -q '^5\.'; then
        qmake="$candidate"
        break
    fi
done
qt_bins=""
qt_libs=""
if [ -n "$qmake" ]; then
    qt_bins="$("$qmake" -query QT_INSTALL_BINS)"
    qt_libs="$("$qmake" -query QT_INSTALL_LIBS)"
fi

# Where find_package(Qt5 ...) may find a module: CMAKE_PREFIX_PATH, Qt5_DIR, qmake's library
# folder and the usual system folders.
cmake_package_dirs() {
    local prefix
    local IFS=:
    for prefix in ${CMAKE_PREFIX_PATH:-}; do
        echo "$prefix" "$prefix/cmake" "$prefix/lib/cmake" "$prefix/lib64/cmake" "$prefix"/lib/*/cmake
    done
    if [ -n "${Qt5_DIR:-}" ]; then
        dirname "$Qt5_DIR"
    fi
    if [ -n "$qt_libs" ]; then
        echo "$qt_libs/cmake"
    fi
    echo /usr/local/lib/cmake /usr/lib/cmake /usr/lib64/cmake /usr/lib/*/cmake
}

has_qt_module() {
    local dir
    for dir in $(cmake_package_dirs); do
        if [ -f "$dir/Qt5$1/Qt5$1Config.cmake" ]; then
            if [ "$1" = Core ]; then
                # The project needs Qt 5.15.
                grep -qs 'set(PACKAGE_VERSION 5\.1[5-9]' "$dir/Qt5Core/Qt5CoreConfigVersion.cmake" || continue
            fi
            return 0
        fi
    done
    return 1
}

has_command() {
    command -v "$1" > /dev/null
}

# A Qt tool where the build looks for it (cmake/MockTranslation.cmake): on the PATH or in Qt's folder.
has_qt_tool() {
    has_command "$1-qt5" || has_command "$1" || { [ -n "$qt_bins" ] && [ -x "$qt_bins/$1" ]; } ||
        [ -x "/usr/lib/qt5/bin/$1" ]
}

has_compiler() {
    has_command "${CXX:-c++}" || has_command g++ || has_command clang++
}

has_fonts() {
    [ -f /usr/share/fonts/truetype/dejavu/DejaVuSans.ttf ]
}

# need <required|optional> <check...> -- <Debian package> <what it is>
missing_required=()
missing_optional=()
packages=()
need() {
    local kind="$1"
    shift
    local check=()
    while [ "$1" != "--" ]; do
        check+=("$1")
        shift
    done
    local package="$2" what="$3"
    if "${check[@]}"; then
        return
    fi
    if [ "$kind" = required ]; then
        missing_required+=("$what (Debian package $package)")
    else
        missing_optional+=("$what (Debian package $package)")
    fi
    packages+=("$package")
}

check_all() {
    missing_required=()
    missing_optional=()
    packages=()
    need required has_command cmake -- cmake "CMake 3.16 or later (cmake)"
    need required has_command ninja -- ninja-build "Ninja (ninja)"
    need required has_compiler -- build-essential "a C++17 compiler (c++, g++ or clang++)"
    need required has_qt_module Core -- qtbase5-dev "Qt 5.15 Core (CMake package Qt5Core)"
    need required has_qt_module Gui -- qtbase5-dev "Qt 5 Gui (CMake package Qt5Gui)"
    need required has_qt_module Widgets -- qtbase5-dev "Qt 5 Widgets (CMake package Qt5Widgets)"
    need required has_qt_module Xml -- qtbase5-dev "Qt 5 Xml (CMake package Qt5Xml)"
    need required has_qt_module Svg -- libqt5svg5-dev "Qt 5 Svg (CMake package Qt5Svg)"
    need optional has_command ccache -- ccache "ccache, for faster rebuilds"
    if [ "$purpose" = build ]; then
        need optional has_qt_tool lupdate -- qttools5-dev-tools "lupdate, for --mock-locale"
        need optional has_qt_tool lrelease -- qttools5-dev-tools "lrelease, for --mock-locale"
    else
        need required has_qt_tool lupdate -- qttools5-dev-tools "Qt 5 lupdate"
        need required has_qt_tool lrelease -- qttools5-dev-tools "Qt 5 lrelease"
        need required has_qt_module Designer -- qttools5-dev "Qt 5 Designer (CMake package Qt5Designer)"
        need required has_qt_module UiPlugin -- qttools5-dev "Qt 5 UiPlugin (CMake package Qt5UiPlugin)"
    fi
    if [ "$purpose" = designer ]; then
        need required has_qt_tool designer -- qttools5-dev-tools "Qt 5 Designer (designer)"
    fi
    if [ "$purpose" = test ]; then
        need required has_qt_module Test -- qtbase5-dev "Qt 5 Test (CMake package Qt5Test)"
        need required has_qt_module UiTools -- qttools5-dev "Qt 5 UiTools (CMake package Qt5UiTools)"
        need required has_fonts -- fonts-dejavu-core "the DejaVu fonts in /usr/share/fonts/truetype/dejavu"
        need optional has_command clang-format -- clang-format "clang-format, for scripts/check-format.sh"
        need optional has_command xvfb-run -- xvfb "xvfb-run, for the mouse-drag tests"
        need optional has_command xauth -- xauth "xauth, for xvfb-run"
    fi
}

report() {
    local item
    for item in "$@"; do
        echo "    $item" >&2
    done
}

check_all
if [ ${#packages[@]} -eq 0 ]; then
    exit 0
fi

# Install with apt-get on Debian and its derivatives, as root or through sudo.
sudo=()
can_install=0
if has_command apt-get && has_command dpkg-query; then
    if [ "$(id -u)" -eq 0 ]; then
        can_install=1
    elif has_command sudo && { sudo -n true 2> /dev/null || [ -t 0 ]; }; then
        sudo=(sudo)
        can_install=1
    fi
fi
if [ "$can_install" -eq 1 ]; then
    mapfile -t packages < <(printf '%s\n' "${packages[@]}" | sort -u)
    echo "bootstrap: installing ${packages[*]}"
    export DEBIAN_FRONTEND=noninteractive
    "${sudo[@]}" apt-get update -q
    "${sudo[@]}" apt-get install -y -q --no-install-recommends "${packages[@]}"
    check_all
fi

if [ ${#missing_optional[@]} -gt 0 ]; then
    echo "bootstrap: optional, not found:" >&2
    report "${missing_optional[@]}"
fi
if [ ${#missing_required[@]} -gt 0 ]; then
    echo "bootstrap: missing, please install:" >&2
    report "${missing_required[@]}"
    if [ "$can_install" -eq 0 ]; then
        echo "bootstrap: cannot install them here (that takes apt-get, and root or sudo). Install them, or" \
            "skip this check with --no-bootstrap (or TWC_NO_BOOTSTRAP=1). A Qt 5.15 outside the system folders is found" \
            "through CMAKE_PREFIX_PATH." >&2
    fi
    exit 1
fi
