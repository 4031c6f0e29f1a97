#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a command on a virtual desktop of its own: X server, session bus, accessibility bus and
# window manager. Usage: with-desktop.sh WIDTHxHEIGHT COMMAND...
set -euo pipefail
size=$1
shift
scratch=$(mktemp -d)
trap 'kill "${server:-}" 2>/dev/null || true; rm -rf "$scratch"' EXIT

# The server picks a free display number itself and tells it when it is ready for clients.
exec 3>"$scratch/display.tmp"
Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp >"$scratch/xvfb.log" 2>&1 &
server=$!
for _ in $(seq 1000); do
  [ -s "$scratch/display.tmp" ] && break
  kill -0 "$server" 2>/dev/null || { cat "$scratch/xvfb.log" >&2; exit 1; }
  sleep 0.02
done
DISPLAY=:$(head -n1 "$scratch/display.tmp")
export DISPLAY
export NO_AT_BRIDGE=0 XDG_RUNTIME_DIR="$scratch"
chmod 700 "$scratch"
unset WAYLAND_DISPLAY SESSION_MANAGER

dbus-run-session -- bash -c 'openbox >/dev/null 2>&1 & "$@"' with-desktop "$@"
