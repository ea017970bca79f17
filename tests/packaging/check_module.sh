#!/bin/sh
# A script that imports the module finds it in IMPORT_DIR and reads a log with it.
#   check_module.sh IMPORT_DIR LOGS_DIR     (no IMPORT_DIR, "": where the system keeps modules)
set -e
here=$(cd "$(dirname "$0")" && pwd)
cd "$2"
said=$(QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software timeout 60 \
    qmlscene ${1:+-I "$1"} --quit "$here/module.qml" 2>&1) || { echo "$said"; exit 1; }
echo "$said"
echo "$said" | grep -q 'read one-block.log: 12 variables, 1 block, enumeration 2$'
