#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Prepares a program folder from the programs just built and takes the tour there.
# Usage: tour-test.sh PROGRAMS_FOLDER RUN_FOLDER OUT_FOLDER
set -euo pipefail
top=$(cd "$(dirname "$0")/../../.." && pwd)
rm -rf "$2"
mkdir -p "$2"
cp "$1"/velor-* "$2/"
"$2/velor-sample-site" "$2"
exec "$top/tools/tour/run-tour.sh" "$2" "$3"
