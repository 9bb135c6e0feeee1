#!/usr/bin/env bash
# Lists the source files over 400 lines and the functions over 60 lines; fails when there are any.
# Functions are found the way the project formats them: a body from a "{" alone at the start of a
# line to the next "}" alone at the start of a line.
set -euo pipefail
src=${1:-$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/src}
status=0
while IFS= read -r file; do
  lines=$(wc -l <"$file")
  if [ "$lines" -gt 400 ]; then
    echo "$file: $lines lines (at most 400)"
    status=1
  fi
  long=$(awk -v file="$file" '
    /^\{/ { start = FNR; head = previous }
    /^\}/ && start { if (FNR - start - 1 > 60) printf "%s:%d: %s: %d lines (at most 60)\n", file, start, head, FNR - start - 1; start = 0 }
    { previous = $0 }' "$file")
  if [ -n "$long" ]; then
    echo "$long"
    status=1
  fi
done < <(find "$src" -name '*.cpp' -o -name '*.h' | sort)
[ "$status" = 0 ] && echo "every file and function is within its size"
exit "$status"
