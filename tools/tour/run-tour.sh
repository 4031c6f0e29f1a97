#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs the tour on a virtual desktop. Usage: run-tour.sh [RUN_FOLDER [OUT_FOLDER]]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
top=$(cd "$here/../.." && pwd)
run=${1:-$top/build/run}
out=${2:-$top/build/tour}
exec "$here/with-desktop.sh" 1300x900 /usr/bin/python3 "$here/tour.py" "$run" "$out"
