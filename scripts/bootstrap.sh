#!/usr/bin/env bash
# Makes sure that what the project needs is there: programs, the Qt modules (their CMake packages)
# of Qt 5.15 or, with --qt6 (or TWC_QT_MAJOR=6), of Qt 6, and the screenshot fonts. When everything is there it changes nothing, on any system. When
# something is missing it installs it with apt-get where it can (Debian, as root or with sudo);
# otherwise it names what to install and fails. TWC_NO_BOOTSTRAP=1 skips it.
#
#   scripts/bootstrap.sh [--qt6] [build|test|designer]
#
# build: configure and build the collection and its host (scripts/build.sh, scripts/run.sh);
# test: also everything scripts/test.sh and CI use (the default); designer: build plus Qt Designer.
set -euo pipefail

major="${TWC_QT_MAJOR:-5}"
if [ "${1:-}" = --qt6 ]; then
    major=6
    shift
fi
purpose="${1:-test}"
case "$purpose" in
build | test | designer) ;;
*)
    echo "usage: $0 [--qt6] [build|test|designer]" >&2
    exit 2
    ;;
esac
case "$major" in
5) minimum='5\.1[5-9]' ;;
6) minimum='6\.([4-9]|[1-9][0-9])' ;;
*)
    echo "$0: TWC_QT_MAJOR must be 5 or 6" >&2
    exit 2
    ;;
esac
if [ "${TWC_NO_BOOTSTRAP:-0}" != "0" ]; then
    exit 0
fi

# Qt's own tools and CMake packages, as this Qt installation reports them.
qmake=""
for candidate in "qmake-qt$major" "qmake$major" qmake "/usr/lib/qt$major/bin/qmake"; do
    if command -v "$candidate" > /dev/null &&
        "$candidate" -query QT_VERSION 2> /dev/null | grep -q "^$major\\."; then
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

# Where find_package(Qt5 ...) or find_package(Qt6 ...) may find a module: CMAKE_PREFIX_PATH,
# Qt5_DIR or Qt6_DIR, qmake's library folder and the usual system folders.
cmake_package_dirs() {
    local prefix
    local IFS=:
    for prefix in ${CMAKE_PREFIX_PATH:-}; do
        echo "$prefix" "$prefix/cmake" "$prefix/lib/cmake" "$prefix/lib64/cmake" "$prefix"/lib/*/cmake
    done
    local qt_dir="Qt${major}_DIR"
    if [ -n "${!qt_dir:-}" ]; then
        dirname "${!qt_dir}"
    fi
    if [ -n "$qt_libs" ]; then
        echo "$qt_libs/cmake"
    fi
    echo /usr/local/lib/cmake /usr/lib/cmake /usr/lib64/cmake /usr/lib/*/cmake
}

has_qt_module() {
    local dir
    for dir in $(cmake_package_dirs); do
        if [ -f "$dir/Qt$major$1/Qt$major$1Config.cmake" ]; then
            if [ "$1" = Core ]; then
                # The project needs Qt 5.15 or Qt 6.4 and later.
                grep -Eqs "set\(PACKAGE_VERSION \"?$minimum" "$dir/Qt${major}Core/Qt${major}CoreConfigVersion"*.cmake ||
                    continue
            fi
            return 0
        fi
    done
    return 1
}

has_command() {
    command -v "$1" > /dev/null
}

# A Qt tool where the build looks for it (cmake/MockTranslation.cmake): in Qt's folder or on the
# PATH (a plain name there runs Qt 5's tools through qtchooser, so it does not count for Qt 6).
has_qt_tool() {
    has_command "$1-qt$major" || { [ "$major" = 5 ] && has_command "$1"; } ||
        { [ -n "$qt_bins" ] && [ -x "$qt_bins/$1" ]; } || [ -x "/usr/lib/qt$major/bin/$1" ]
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
    local base=qtbase5-dev svg=libqt5svg5-dev tools=qttools5-dev linguist=qttools5-dev-tools
    local programs=qttools5-dev-tools
    if [ "$major" = 6 ]; then
        base=qt6-base-dev svg=qt6-svg-dev tools=qt6-tools-dev linguist=qt6-l10n-tools
        programs=qt6-tools-dev-tools
    fi
    local qt="Qt $major"
    need required has_qt_module Core -- $base "$qt Core (CMake package Qt${major}Core)"
    need required has_qt_module Gui -- $base "$qt Gui (CMake package Qt${major}Gui)"
    need required has_qt_module Widgets -- $base "$qt Widgets (CMake package Qt${major}Widgets)"
    need required has_qt_module Xml -- $base "$qt Xml (CMake package Qt${major}Xml)"
    need required has_qt_module Svg -- $svg "$qt Svg (CMake package Qt${major}Svg)"
    if [ "$major" = 6 ]; then
        need required has_qt_module Core5Compat -- qt6-5compat-dev "Qt 6 Core5Compat (CMake package Qt6Core5Compat)"
    fi
    need optional has_command ccache -- ccache "ccache, for faster rebuilds"
    if [ "$purpose" = build ]; then
        need optional has_qt_tool lupdate -- $linguist "lupdate, for --mock-locale"
        need optional has_qt_tool lrelease -- $linguist "lrelease, for --mock-locale"
    else
        need required has_qt_tool lupdate -- $linguist "$qt lupdate"
        need required has_qt_tool lrelease -- $linguist "$qt lrelease"
        need required has_qt_module Designer -- $tools "$qt Designer (CMake package Qt${major}Designer)"
        need required has_qt_module UiPlugin -- $tools "$qt UiPlugin (CMake package Qt${major}UiPlugin)"
        if [ "$major" = 6 ]; then
            # Qt 6's Designer package needs OpenGL's, which Debian ships apart.
            need required has_qt_module OpenGL -- libqt6opengl6-dev "Qt 6 OpenGL (CMake package Qt6OpenGL)"
        fi
    fi
    if [ "$purpose" = designer ]; then
        need required has_qt_tool designer -- $programs "$qt Designer (designer)"
    fi
    if [ "$purpose" = test ]; then
        need required has_qt_module Test -- $base "$qt Test (CMake package Qt${major}Test)"
        need required has_qt_module UiTools -- $tools "$qt UiTools (CMake package Qt${major}UiTools)"
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
            "skip this check with --no-bootstrap (or TWC_NO_BOOTSTRAP=1). A Qt outside the system folders is found" \
            "through CMAKE_PREFIX_PATH." >&2
    fi
    exit 1
fi
