#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Checks the scripts: their types with tsc (Debian's node-typescript), form and common mistakes with
# eslint. That is a package of npm, which goes into build/lint the first time; afterwards no network
# is needed. A script that runs in a page says `// @ts-check` in its second line, and belongs to one
# of the tsconfig.json named here.
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

# The scripts whose second line is another one, or that no tsconfig.json has.
unchecked_scripts() {
  local checked
  checked=$(for project in "${projects[@]}"; do tsc -p "$project" --listFilesOnly; done)
  git ls-files --cached --others --exclude-standard '*.js' | while read -r script; do
    [ -f "$script" ] || continue
    [ "$(sed -n 2p "$script")" = '// @ts-check' ] && grep -qF "$PWD/$script" <<<"$checked" && continue
    echo "scripts.sh: $script is not checked for its types" >&2
    echo "$script"
  done
}

failed=0
projects=(engine/bridge tests/engine/bridge tools)
for project in "${projects[@]}"; do tsc -p "$project" || failed=1; done
[ -z "$(unchecked_scripts)" ] || failed=1
install_eslint
if [ -d build/lint/node_modules ]; then
  # The configuration finds its modules beside itself.
  cp tools/lint/eslint.config.mjs build/lint/
  build/lint/node_modules/.bin/eslint --config build/lint/eslint.config.mjs --max-warnings 0 \
    engine tests tools || failed=1
fi
exit "$failed"
