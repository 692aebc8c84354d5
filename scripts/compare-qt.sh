#!/usr/bin/env bash
# Builds the project with Qt 5.15 (build/) and with Qt 6 (build-qt6/), benchmarks included, runs
# the same benchmarks of both on this machine, one after the other, and prints the comparison as a
# Markdown table: panel start and the gallery's first open in real processes (bench_launch, median
# of RUNS runs, default 7), the gallery's open inside one process (bench_gallery) and the
# translation tool's processor time and memory on a 19 MiB file (bench_twctranslate).
#   scripts/compare-qt.sh [RUNS]
# --no-build skips the builds (both folders must hold a build with benchmarks).
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
runs=7
build=1
for argument in "$@"; do
    case "$argument" in
    --no-build) build=0 ;;
    *) runs="$argument" ;;
    esac
done
if [ "$build" -eq 1 ]; then
    "$top/scripts/build.sh" -DTWC_BUILD_BENCHMARKS=ON
    "$top/scripts/build.sh" --qt6 -DTWC_BUILD_BENCHMARKS=ON
fi
export QT_QPA_PLATFORM=offscreen
results="$(mktemp -d)"
trap 'rm -rf "$results"' EXIT
for major in 5 6; do
    dir="$top/build"
    [ "$major" = 5 ] || dir="$top/build-qt$major"
    env -u QT_QPA_PLATFORM "$dir/benchmarks/bench_launch" "$runs" m_testSquish > "$results/launch$major" 2>&1
    "$dir/benchmarks/bench_gallery" > "$results/gallery$major" 2>&1
    "$dir/benchmarks/bench_twctranslate" > "$results/translate$major" 2>&1
done

# field <file> <line pattern> <sed expression that leaves the figure>
field() {
    grep -m1 -E "$2" "$results/$1" | sed -E "$3" || echo "?"
}
row() {
    printf '| %s | %s | %s |\n' "$1" "$(field "${2}5" "$3" "$4")" "$(field "${2}6" "$3" "$4")"
}
qt5="$(qmake -query QT_VERSION 2> /dev/null || echo 5)"
qt6="$(qmake6 -query QT_VERSION 2> /dev/null || echo 6)"
echo "| Figure (median) | Qt $qt5 | Qt $qt6 |"
echo "|---|---|---|"
row "panel start, process start to window mapped (wall; CPU)" launch '^  panel ' 's/^  panel +([0-9.]+ ms); +([0-9.]+ ms).*/\1; \2/'
row "trivial Qt window, the same (wall; CPU)" launch '^  trivial Qt window  ' 's/^  trivial Qt window +([0-9.]+ ms); +([0-9.]+ ms).*/\1; \2/'
row "gallery first open in a new process, less the panel (wall; CPU)" launch '^  m_testSquish' 's/^  m_testSquish +([0-9.]+ ms); +([0-9.]+ ms).*/\1; \2/'
row "gallery first open from the panel, in process (CPU; wall)" gallery '^first open of the gallery' 's/.*: ([0-9.]+ ms) CPU, ([0-9.]+ ms) wall.*/\1; \2/'
row "gallery open, in process (CPU; wall)" gallery '^open of the gallery: median' 's/.*median ([0-9.]+ ms) CPU, ([0-9.]+ ms) wall.*/\1; \2/'
row "twc-translate mock, 19 MiB .ts (CPU s; max RSS MB)" translate '^twc-translate mock FILE  ' 's/^twc-translate mock FILE +([0-9.]+) +([0-9.]+).*/\1 s; \2 MB/'
row "twc-translate mock --keep-numerus (CPU s; max RSS MB)" translate '^twc-translate mock --keep-numerus FILE  ' 's/^[^0-9]+([0-9.]+) +([0-9.]+).*/\1 s; \2 MB/'
row "twc-translate fix (CPU s; max RSS MB)" translate '^twc-translate fix FILE  ' 's/^twc-translate fix FILE +([0-9.]+) +([0-9.]+).*/\1 s; \2 MB/'
row "lconvert, the same file, for scale (CPU s)" translate '^lconvert' 's/^lconvert -i FILE -o OUT +([0-9.]+).*/\1 s/'
