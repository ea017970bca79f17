#!/bin/sh
# The viewer at PATH opens its window with a log, and a dialog, on the display there is.
#   check_window.sh PATH LOG
set -e
home=$(mktemp -d)
LC_ALL=C.UTF-8 XDG_CONFIG_HOME=$home XDG_CACHE_HOME=$home "$1" "$2" 2>"$home/said" &
viewer=$!
trap 'kill $viewer; wait $viewer || true; rm -r "$home"' EXIT

# Xdotool waits for ever.
appear() {
    timeout 60 xdotool search --sync --onlyvisible --name "$1" >/dev/null || {
        echo "no window named $1" >&2
        cat "$home/said" >&2
        exit 1
    }
}
appear "^$(basename "$2")$"
xdotool key ctrl+o
appear "^Open a log$"
if grep -v XDG_RUNTIME_DIR "$home/said"; then
    echo "said by a window that should have nothing to say" >&2
    exit 1
fi
