#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# What a night has time for and ./test.sh has not: long walks at random, other ones each day, and many kills
# of the program at work. Prints the day's seed; the same seed walks the same way again.
# Usage: nightly.sh [SEED]
set -uo pipefail
cd "$(dirname "$0")/.." || exit
seed=${1:-$(date +%Y%m%d)}
bin=build/release/bin
./install.sh --test && cmake --preset release && cmake --build --preset release --parallel "$(nproc)" || exit
[ "$(id -u)" -ne 0 ] || export QTWEBENGINE_DISABLE_SANDBOX=1

failed=
night() {
  echo "nightly: $* (seed $seed)"
  env VELOR_WALK_SEED="$seed" VELOR_MODEL_SEED="$seed" "$@" || failed+=" ${*: -1}"
}
night VELOR_WALK_SECONDS=900 "$bin/real_walk_test"
night VELOR_WALK_PAGES=500 "$bin/bridge_test" --gtest_filter='*Walk*'
night VELOR_MODEL_STEPS=200000 VELOR_MODEL_REAL_STEPS=5000 "$bin/model_test"
night VELOR_CRASH_RUNS=500 "$bin/crash_test"
[ -z "$failed" ] || { echo "nightly: failed:$failed (seed $seed)"; exit 1; }
