#!/usr/bin/env bash
# Installs what is missing, builds Horvanta and starts it. Without a display it starts on a virtual one and leaves a
# picture of its main window.
source "$(dirname "$0")/tools/setup.sh"

need "${build_packages[@]}"
build release

program=build/release/src/qt/horvanta
if [ -n "${DISPLAY:-}" ]; then
    exec "$program"
elif [ -n "${WAYLAND_DISPLAY:-}" ]; then
    need qt6-wayland
    exec "$program"
fi

need "${display_packages[@]}"
picture=build/horvanta.png
rm -f "$picture"
echo 'No display found: starting Horvanta on a virtual one.'
on_virtual_display env HORVANTA_SCREENSHOT="$picture" "$program"
[ -f "$picture" ] || { echo 'Horvanta left no picture: does another one run?' >&2; exit 1; }
echo "Picture of the main window: $PWD/$picture"
