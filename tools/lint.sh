#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Checks what a reader should not have to: form, names and common mistakes of the sources, and the
# subjects of the commits. Checks what changed since the last release; --all checks every file;
# --quick leaves clang-tidy out, which takes minutes, and --tidy the rest; --analyze adds clang-tidy's
# static analyser, which takes as long again.
# Usage: lint.sh [--all] [--quick | --tidy | --analyze] [--since COMMIT]
set -euo pipefail
cd "$(dirname "$0")/.."

# The last release's tag, or the commit that began this version where the tags are not there.
last_release() {
  git describe --tags --match 'v*' --abbrev=0 2>/dev/null ||
    git log -1 --format=%H -G'^project\(.*VERSION' -- CMakeLists.txt
}

scope=changed
depth=whole
since=
while [ $# -gt 0 ]; do
  case "$1" in
    --all) scope=all ;;
    --quick) depth=quick ;;
    --tidy) depth=tidy ;;
    --analyze) depth=analyzer ;;
    --since) since=${2:?"--since needs a commit"}; shift ;;
    *) echo "usage: lint.sh [--all] [--quick | --tidy | --analyze] [--since COMMIT]" >&2; exit 2 ;;
  esac
  shift
done
[ -n "$since" ] || since=$(last_release)
[ -n "$since" ] || since=$(git rev-list --max-parents=0 HEAD | tail -1)

# Files with one of the endings that are in question, also such as are not committed yet.
files() {
  { if [ "$scope" = all ]; then git ls-files; else git diff --name-only --diff-filter=d "$since"; fi
    git ls-files --others --exclude-standard; } | sort -u | grep -E "($1)\$" || true
}

failed=()
check() {
  echo "lint: $1"
  "$@" || failed+=("$1")
}

format() {
  local sources
  mapfile -t sources < <(files '\.cpp|\.h')
  [ ${#sources[@]} -eq 0 ] || clang-format --dry-run --Werror "${sources[@]}"
}

# A changed header is seen through the files that include it.
tidy() {
  local units headers
  mapfile -t units < <(files '\.cpp')
  mapfile -t headers < <(files '\.h')
  if [ "$scope" = changed ] && [ ${#headers[@]} -gt 0 ]; then
    mapfile -t units < <({ printf '%s\n' "${units[@]}"
      printf '#include "%s"\n' "${headers[@]}" | git grep -lFf - -- '*.cpp'; } | sed '/^$/d' | sort -u)
  fi
  [ ${#units[@]} -gt 0 ] || return 0
  [ -f build/release/compile_commands.json ] || cmake --preset release >/dev/null
  local analyze=()
  [ "$depth" != analyzer ] || analyze=(--analyze)
  tools/lint/tidy.py --jobs "$(nproc)" "${analyze[@]}" build/release "${units[@]}"
}

shell() {
  local scripts
  mapfile -t scripts < <(files '\.sh|\.ci/run')
  [ ${#scripts[@]} -eq 0 ] || shellcheck "${scripts[@]}"
}

scripts() {
  tools/lint/scripts.sh
}

# "area: gain" in 72 characters; a merge says behind a colon what it brings.
subjects() {
  local wrong
  wrong=$(git log --format='%h %s' "$since..HEAD" |
    grep -vE '^[0-9a-f]+ ([a-z][a-z0-9/_, -]*|Merge [^:]+|Revert "[^:]+): .{1,}$' || true)
  wrong+=$(git log --format='%h %s' "$since..HEAD" | awk '{ line = $0; sub(/^[^ ]+ /, "", line) } length(line) > 72')
  [ -z "$wrong" ] || { echo "$wrong"; echo "A subject is \"area: gain\", at most 72 characters."; return 1; }
}

translations() {
  tools/lint/translations.py
}

if [ "$depth" != tidy ]; then
  check format
  check shell
  check scripts
  check translations
  check subjects
fi
[ "$depth" = quick ] || check tidy
if [ ${#failed[@]} -gt 0 ]; then
  echo "lint: failed: ${failed[*]}" >&2
  exit 1
fi
echo "lint: nothing found"
