#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Checks the scripts: the types of the bridge's modules with tsc (Debian's node-typescript), form and
# common mistakes of all scripts with eslint. That is a package of npm, which goes into build/lint
# the first time; afterwards no network is needed.
set -euo pipefail
cd "$(dirname "$0")/../.."

install_eslint() {
  local from=tools/lint into=build/lint
  cmp -s "$from/package-lock.json" "$into/package-lock.json" && [ -d "$into/node_modules" ] && return
  mkdir -p "$into"
  cp "$from/package.json" "$from/package-lock.json" "$from/.npmrc" "$into"
  npm --prefix "$into" ci --ignore-scripts --no-audit --no-fund --loglevel=error && return
  rm -rf "$into/node_modules"
  echo "scripts.sh: eslint could not be installed; the scripts are checked for their types only" >&2
}

failed=0
tsc -p engine/bridge || failed=1
install_eslint
if [ -d build/lint/node_modules ]; then
  # The configuration finds its modules beside itself.
  cp tools/lint/eslint.config.mjs build/lint/
  build/lint/node_modules/.bin/eslint --config build/lint/eslint.config.mjs --max-warnings 0 \
    engine tests tools || failed=1
fi
exit "$failed"
