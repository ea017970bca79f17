#!/bin/sh
# All QML of the tree through qmllint.
set -e
cd "$1"
files=$(git ls-files -- '*.qml' 2>/dev/null || find viewer examples tests docs -name '*.qml')
test -n "$files"
echo "$files" | grep -v MinimalQuick1 | xargs "${QMLLINT:-qmllint}"
