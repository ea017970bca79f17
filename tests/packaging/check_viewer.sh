#!/bin/sh
# The viewer at PATH draws plots without a display.
#   check_viewer.sh PATH LOGS_DIR
set -e
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
for kind in png svg pdf; do
    "$1" --left Tair --right CO2 --export "$out/plot.$kind" "$2/climate-chamber.log"
done
head -c 8 "$out/plot.png" | od -An -c | grep -q 'P   N   G'
grep -q '<svg' "$out/plot.svg"
head -c 5 "$out/plot.pdf" | grep -q '%PDF-'
"$1" --version | grep -q '^datalog-viewer [0-9]'
