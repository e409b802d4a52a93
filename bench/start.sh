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

# Kept in memory, so that what else the disk is busy with does not count.
settings=$(mktemp -d -p /dev/shm 2>/dev/null || mktemp -d)
trap 'rm -rf "$settings"' EXIT
export XDG_CONFIG_HOME=$settings XDG_RUNTIME_DIR=$settings QT_QPA_PLATFORM=xcb HORVANTA_END_AFTER=paint

# How many labels, buttons and check boxes stand for a widget class of the Designer forms: a part for each part.
weights='
QLabel 1 0 0
QLineEdit 1 0 0
horvanta::ElidingLabel 1 0 0
QGroupBox 1 0 0
horvanta::StatusBarWidget 9 0 0
horvanta::CellGridWidget 49 0 0
horvanta::GridWidget 16 0 0
horvanta::RowTableWidget 3 0 0
horvanta::DayStripWidget 1 0 0
horvanta::MoonPictureWidget 1 0 0
horvanta::UpDownWidget 1 2 0
QToolButton 0 1 0
QPushButton 0 1 0
QComboBox 0 1 0
QCheckBox 0 0 1
QRadioButton 0 0 1
'
widgets() {
    sed -n 's/.*widget class="\([^"]*\)".*/\1/p' "$1" | awk -v weights="$weights" '
        BEGIN {
            rows = split(weights, lines, "\n")
            for (i = 1; i <= rows; ++i) if (split(lines[i], w, " ") == 4) { l[w[1]] = w[2]; b[w[1]] = w[3]; c[w[1]] = w[4] }
        }
        { labels += l[$1]; buttons += b[$1]; checks += c[$1] }
        END { printf "%d,%d,%d", labels, buttons, checks }'
}

# Dialogs have no widgets before they are shown.
counts=()
for form in src/qt/forms/*.ui; do
    case $form in *date_box.ui | *progress.ui | *report_finished.ui) continue ;; esac
    counts+=("$(widgets "$form")")
done

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
