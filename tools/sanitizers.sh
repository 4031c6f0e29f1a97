#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the tests of plain parts, those without an engine or a main window, with AddressSanitizer and
# UndefinedBehaviorSanitizer, and runs them. Arguments go to ctest.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset sanitizers
cmake --build --preset sanitizers --parallel "$(nproc)" --target velor-plain-tests
exec ctest --preset sanitizers --parallel "$(nproc)" --no-tests=error --label-regex plain "$@"
