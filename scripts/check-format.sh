#!/usr/bin/env bash
# Checks, changing nothing, that every tracked C++ file is formatted with the project's
# .clang-format; fails with the list of files that are not. `clang-format -i FILE...` formats them.
# CLANG_FORMAT names another clang-format program.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
clang_format="${CLANG_FORMAT:-clang-format}"
if ! command -v "$clang_format" > /dev/null; then
    echo "check-format: $clang_format not found (Debian package clang-format)" >&2
    exit 2
fi
cd "$top"
mapfile -t files < <(git ls-files '*.h' '*.cpp')
# One run over all files; each violation names its file as "FILE:LINE:COLUMN: error: ...".
report="$("$clang_format" --style=file --dry-run -Werror --ferror-limit=1 "${files[@]}" 2>&1)" || true
mapfile -t unformatted < <(printf '%s\n' "$report" |
    sed -n 's/^\(.*\):[0-9]*:[0-9]*: error: code should be clang-formatted.*/\1/p' | sort -u)
if [ ${#unformatted[@]} -gt 0 ]; then
    echo "check-format: ${#unformatted[@]} of ${#files[@]} C++ files differ from .clang-format:" >&2
    printf '    %s\n' "${unformatted[@]}" >&2
    echo "Format them with: clang-format -i FILE...   ($("$clang_format" --version))" >&2
    exit 1
fi
if printf '%s\n' "$report" | grep -q 'error'; then
    # Anything else clang-format complains about (an unreadable file, a bad .clang-format).
    printf '%s\n' "$report" >&2
    exit 1
fi
echo "check-format: all ${#files[@]} C++ files are formatted"
