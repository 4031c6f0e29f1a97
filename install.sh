#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what building and running needs on Debian 12, as root or through sudo.
# Usage: install.sh [--test] [--lint] [--package]    --test adds what the tests and the tour need, --lint
# what tools/lint.sh needs, --package what tools/package.sh needs
set -euo pipefail
cd "$(dirname "$0")"

packages=(
  g++ cmake ninja-build pkg-config esbuild
  qt6-base-dev qt6-l10n-tools qt6-pdf-dev qt6-webengine-dev qt6-webchannel-dev qt6-svg-dev
  libqscintilla2-qt6-dev
  libgl-dev libicu-dev libsqlite3-dev libhunspell-dev
  # Every test is built with the program.
  libgtest-dev libgmock-dev
  # What the program looks up when it runs.
  qt6-qpa-plugins qt6-image-formats-plugins qt6-translations-l10n fonts-dejavu-core hunspell-en-us
)
test_packages=(
  xvfb xauth xdotool openbox at-spi2-core python3-gi gir1.2-atspi-2.0 dbus dbus-x11 imagemagick
  mdbtools poppler-utils
)
lint_packages=(clang-format clang-tidy shellcheck python3 git node-typescript)
package_packages=(appstream desktop-file-utils dpkg-dev file lintian mandoc strace)
# Another Node.js than Debian's will do, and brings an npm of its own.
if ! command -v node >/dev/null || ! command -v npm >/dev/null; then
  test_packages+=(nodejs npm)
  lint_packages+=(nodejs npm)
fi

# The second independent reader of Jet files, a package of npm, into build/jet-reader. Where that
# cannot be had, the tests compare with the other readers only.
install_jet_reader() {
  local from=tests/catalogue/jet/reader into=build/jet-reader
  if cmp -s "$from/package-lock.json" "$into/package-lock.json" && [ -d "$into/node_modules" ]; then
    return
  fi
  mkdir -p "$into"
  cp "$from/package.json" "$from/package-lock.json" "$into"
  if ! npm --prefix "$into" ci --ignore-scripts --no-audit --no-fund --loglevel=error; then
    rm -rf "$into/node_modules"
    echo "install.sh: mdb-reader could not be installed; the tests go without it" >&2
  fi
}

tests=no
for argument in "$@"; do
  case "$argument" in
    --test) tests=yes; packages+=("${test_packages[@]}") ;;
    --lint) packages+=("${lint_packages[@]}") ;;
    --package) packages+=("${package_packages[@]}") ;;
    *) echo "usage: install.sh [--test] [--lint] [--package]" >&2; exit 2 ;;
  esac
done

missing=()
for package in "${packages[@]}"; do
  state=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
  [ "$state" = "install ok installed" ] || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
  as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "install.sh: run as root, or install sudo; missing: ${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
  fi
  echo "installing: ${missing[*]}"
  "${as_root[@]}" apt-get update -q
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
fi
[ $tests = no ] || install_jet_reader
