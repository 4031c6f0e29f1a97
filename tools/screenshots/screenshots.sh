#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the screenshots of every window: both palettes, 100 % and 200 %.
# Usage: screenshots.sh [RUN_FOLDER [OUT_FOLDER]]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
top=$(cd "$here/../.." && pwd)
run=${1:-$top/build/run}
out=${2:-$top/build/screenshots}
rm -rf "$out"
for palette in light dark; do
  "$here/../tour/with-desktop.sh" 1280x820 /usr/bin/python3 "$here/screenshots.py" "$run" "$out" "$palette" 100
  "$here/../tour/with-desktop.sh" 2560x1640 /usr/bin/python3 "$here/screenshots.py" "$run" "$out" "$palette" 200
done
echo "screenshots lie in $out"
