#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is needed, builds, prepares build/run and starts the editor there. Without a display
# the tour runs on a virtual one instead.
# Usage: run.sh [--no-start]    --no-start prepares only
set -euo pipefail
top=$(cd "$(dirname "$0")" && pwd)
cd "$top"

start=yes
case "${1:-}" in
  --no-start) start=no ;;
  '') ;;
  *) echo "usage: run.sh [--no-start]" >&2; exit 2 ;;
esac
display=no
[ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || display=yes

if [ $start = yes ] && [ $display = no ]; then
  ./install.sh --test
else
  ./install.sh
fi
cmake --preset release
cmake --build --preset release --parallel "$(nproc)" --target velor-programs

# The folder in which the program starts is its program folder, so the programs are copied; the
# sample maker leaves pages and a catalogue that are there already as they are.
run=$top/build/run
mkdir -p "$run"
install -m 755 build/release/programs/velor-* "$run/"
"$run/velor-sample-site" "$run"

[ $start = yes ] || exit 0
# The browser engine's sandbox refuses to start for the superuser.
[ "$(id -u)" -ne 0 ] || export QTWEBENGINE_DISABLE_SANDBOX=1
if [ $display = yes ]; then
  exec "$run/velor-web-creator"
fi
echo "There is no display: the tour runs on a virtual one."
tools/tour/run-tour.sh "$run" "$top/build/tour"
echo "Its screenshots and the page it saved lie in $top/build/tour"
