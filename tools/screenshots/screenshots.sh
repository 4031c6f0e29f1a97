#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the screenshots of every window: all palettes, scales and sizes of the screen that matter.
# Usage: screenshots.sh [RUN_FOLDER [OUT_FOLDER]]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
top=$(cd "$here/../.." && pwd)
run=${1:-$top/build/run}
out=${2:-$top/build/screenshots}
rm -rf "$out"
# Palette, scale, and the screen's size; on other screens than the usual one the main sessions are enough.
while read -r palette scale size folder sessions; do
  # shellcheck disable=SC2086
  "$here/../tour/with-desktop.sh" "$size" /usr/bin/python3 "$here/screenshots.py" "$run" "$out/$folder" "$palette" "$scale" $sessions </dev/null
done <<'SCREENS'
light     100  1280x820   .
dark      100  1280x820   .
contrast  100  1280x820   .
light     200  2560x1640  .
dark      200  2560x1640  .
light     150  1920x1230  .          main objects projects
dark      150  1920x1230  .          main objects projects
contrast  200  2560x1640  .          main objects projects
light     100  1280x720   1280x720   recovery start main projects
dark      200  3840x2160  3840x2160  main objects
SCREENS
echo "screenshots lie in $out"
