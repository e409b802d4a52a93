#!/usr/bin/env bash
# Checks that a folder of src includes only itself and those that CONTRIBUTING.md lists below it, and that no two files
# include each other. The list runs from the top floor to the ground.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mapfile -t floors < <(sed -n 's/^| `src\/\([a-z]*\)` |.*/\1/p' CONTRIBUTING.md | tac)
[ ${#floors[@]} -gt 5 ] || { echo 'CONTRIBUTING.md lists no floors.' >&2; exit 1; }
for folder in src/*/; do
    [[ " ${floors[*]} " == *" $(basename "$folder") "* ]] || { echo "$folder is no floor." >&2; exit 1; }
done

git ls-files -co --exclude-standard 'src/*.h' 'src/*.cpp' | xargs grep -Ho '^#include "[^"]*"' |
    awk -F '[:"]' -v list="${floors[*]}" '
        BEGIN { n = split(list, names, " "); for (i = 1; i <= n; ++i) height[names[i]] = i }
        {
            from = $1
            sub("^src/", "", from)
            to = $3
            split(from, a, "/")
            split(to, b, "/")
            if (height[b[1]] > height[a[1]]) { print from " includes upwards: " to; faults = 1 }
            if ((to, from) in seen) { print from " and " to " include each other"; faults = 1 }
            seen[from, to] = 1
        }
        END { exit faults }'
