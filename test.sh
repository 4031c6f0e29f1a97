#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what the tests need, builds everything and runs the tests, those without an engine side by
# side. Arguments go to ctest.
set -euo pipefail
cd "$(dirname "$0")"
./install.sh --test
cmake --preset release
cmake --build --preset release --parallel "$(nproc)"
exec ctest --preset release --parallel "$(nproc)" --no-tests=error "$@"
