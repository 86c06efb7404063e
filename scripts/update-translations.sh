#!/usr/bin/env bash
# Refreshes every translation source from the code: new strings are added as
# unfinished entries, strings no longer used are dropped. Translate the new
# entries (Qt Linguist or by hand), then rebuild; the build compiles the .qm files.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$here"
dirs=()
for d in app JieMian document gcode device import camera cloud; do
  [ -d "$d" ] && dirs+=("$d")
done
lupdate=$(command -v lupdate || echo /usr/lib/qt5/bin/lupdate)
"$lupdate" -silent -no-obsolete -locations none "${dirs[@]}" -ts resources/language/*.ts
