#!/usr/bin/env bash
# Checks that every C++ source and header (src/, tests/, bench/, tools/,
# fuzz/) is laid out as .clang-format says, with clang-format 14.
#
#   scripts/check-format.sh          list each file that differs and fail
#   scripts/check-format.sh --count  say how many lines formatting would change
#   scripts/check-format.sh --fix    format the files in place
set -euo pipefail
cd "$(dirname "$0")/.."

clang_format=${CLANG_FORMAT:-clang-format}
if ! command -v "$clang_format" >/dev/null 2>&1; then
  echo "check-format.sh: $clang_format is not installed (apt-get install clang-format)" >&2
  exit 1
fi
version=$("$clang_format" --version | sed -n 's/.*version \([0-9]*\).*/\1/p')
if [ "$version" != 14 ]; then
  # Each version lays some constructs out differently; the style was set
  # with 14, the one Debian 12 ships.
  echo "check-format.sh: warning: clang-format $version, the style is set for 14" >&2
fi

mapfile -t files < <(find src tests bench tools fuzz -type f \( -name '*.cpp' -o -name '*.h' \) | sort)

# clang-format 14 reads a statement that begins with a variable named
# `import` as a module import and then indents everything after it wrongly,
# down to the end of the file. Such a variable is renamed before formatting;
# --fix refuses to run until it is.
if imports=$(grep -nE '^\s*import\s*(\.|->|\[|=)' "${files[@]}"); then
  echo "check-format.sh: clang-format takes these variables named 'import' for a module import; rename them:" >&2
  echo "$imports" >&2
  if [ "${1:-}" = --fix ]; then exit 1; fi
fi

case "${1:-}" in
  --fix)
    printf '%s\0' "${files[@]}" | xargs -0 -n 50 -P "$(nproc)" "$clang_format" -i
    ;;
  --count)
    # Formats a copy of the tree, then compares file by file.
    copy=$(mktemp -d)
    trap 'rm -rf "$copy"' EXIT
    cp .clang-format "$copy/"
    printf '%s\0' "${files[@]}" | xargs -0 cp --parents -t "$copy"
    (cd "$copy" && printf '%s\0' "${files[@]}" | xargs -0 -n 200 -P "$(nproc)" "$clang_format" -i)
    total=0
    changed=0
    for f in "${files[@]}"; do
      n=$(diff --changed-group-format='%<' --unchanged-group-format='' "$f" "$copy/$f" | wc -l || true)
      if [ "$n" -gt 0 ]; then
        printf '%6d %s\n' "$n" "$f"
        total=$((total + n))
        changed=$((changed + 1))
      fi
    done
    echo "$total lines in $changed of ${#files[@]} files would change"
    ;;
  "")
    printf '%s\0' "${files[@]}" | xargs -0 -n 50 -P "$(nproc)" "$clang_format" --dry-run --Werror
    ;;
  *)
    echo "usage: scripts/check-format.sh [--fix | --count]" >&2
    exit 2
    ;;
esac
