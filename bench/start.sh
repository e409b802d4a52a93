#!/usr/bin/env bash
# bench/start.sh [folder of the build] [rounds]
# Times the program from its start to the end of its first paint, against a frame with as many widgets and nothing
# behind them, alternating. Fails where the program's median is more than 1.5 times the other's.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# A display of its own that stays as it is from one client to the next, instead of starting anew behind the last.
if [ -z "${HORVANTA_ON_DISPLAY:-}" ]; then
    HORVANTA_ON_DISPLAY=1 exec xvfb-run -a -s '-screen 0 1400x900x24 -noreset' bench/start.sh "$@"
fi

build=${1:-build/bench}
rounds=${2:-21}
atMost=1.5
panelsOfABar=9

# Kept in memory, so that what else the disk is busy with does not count.
settings=$(mktemp -d -p /dev/shm 2>/dev/null || mktemp -d)
trap 'rm -rf "$settings"' EXIT
export XDG_CONFIG_HOME=$settings XDG_RUNTIME_DIR=$settings QT_QPA_PLATFORM=xcb HORVANTA_END_AFTER=paint

# The labels, buttons and check boxes of a Designer form; text fields and the panels of bars count as labels.
widgets() {
    local labels buttons checks bars
    labels=$(grep -cE 'widget class="(QLabel|QLineEdit|horvanta::ElidingLabel)"' "$1" || true)
    bars=$(grep -c 'widget class="horvanta::PanelBar"' "$1" || true)
    buttons=$(grep -cE 'widget class="Q(Tool|Push)Button"' "$1" || true)
    checks=$(grep -c 'widget class="QCheckBox"' "$1" || true)
    echo "$((labels + bars * panelsOfABar)),$buttons,$checks"
}

counts=()
for form in src/qt/forms/*.ui; do counts+=("$(widgets "$form")"); done

# Microseconds that a command takes; no number if it fails.
time_of() {
    local from=$EPOCHREALTIME
    "$@" >/dev/null || return
    local to=$EPOCHREALTIME
    echo $((${to/[.,]/} - ${from/[.,]/}))
}

median() { sort -n | sed -n "$(((rounds + 1) / 2))p"; }

program=() empty=()
for ((round = -1; round < rounds; ++round)); do # the first one only warms the caches
    p=$(time_of "$build/src/qt/horvanta")
    e=$(time_of "$build/bench/horvanta_empty_frame" "${counts[@]}")
    if ((round >= 0)); then program+=("$p") empty+=("$e"); fi
done

p=$(printf '%s\n' "${program[@]}" | median)
e=$(printf '%s\n' "${empty[@]}" | median)
printf '\nStart to first paint, medians of %d rounds: program %d us, empty frame (%s) %d us\n' "$rounds" "$p" \
    "${counts[*]}" "$e"
awk -v p="$p" -v e="$e" -v most=$atMost 'BEGIN {
    missed = (p > most * e)
    printf "ratio %.3f, at most %.1f%s\n", p / e, most, (missed ? "  MISSED" : "")
    exit missed
}'
