#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the Debian package out of build/release into build/package and checks it with Debian's tools.
# --try also installs it (as root or through sudo), works with it on a virtual display as a person with
# an empty home would, watches what it sends, removes it, and looks for what it left.
# Usage: package.sh [--try]
set -euo pipefail
cd "$(dirname "$0")/.."
try=no
case "${1:-}" in
  --try) try=yes ;;
  '') ;;
  *) echo "usage: package.sh [--try]" >&2; exit 2 ;;
esac

cmake --preset release >/dev/null
cmake --build --preset release --parallel "$(nproc)" --target velor-programs velor-packaging
rm -rf build/package
# Not the target "package", which would build the tests first.
cpack --config build/release/CPackConfig.cmake -G DEB -B build/package >/dev/null
package=$(echo build/package/*.deb)

for part in bin/velor-web-creator share/doc/velor-web-creator/html/index.html; do
  dpkg-deb --contents "$package" | grep " ./usr/$part$" >/dev/null
done

desktop-file-validate packaging/*.desktop
appstreamcli validate --no-net build/release/packaging/*.metainfo.xml
for page in packaging/man/*.1; do mandoc -Tlint -Wwarning "$page"; done
lintian --fail-on error,warning --tag-display-limit 0 --allow-root "$package"
dpkg-deb --info "$package" | sed -n 's/^ *\(Package\|Version\|Depends\|Recommends\|Installed-Size\)/\1/p'

[ $try = yes ] || exit 0
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
before=$(mktemp) after=$(mktemp)
installed_files() { find /etc /opt /srv /usr | sort; }
installed_files >"$before"
trap '"${as_root[@]}" dpkg --purge velor-web-creator >/dev/null 2>&1 || true; rm -f "$before" "$after"' EXIT
"${as_root[@]}" dpkg -i "$package"
tools/tour/with-desktop.sh 1300x900 /usr/bin/python3 tools/tour/installed.py build/package/screenshots
"${as_root[@]}" dpkg --purge velor-web-creator
installed_files >"$after"
diff "$before" "$after" || { echo "package.sh: files were left behind or are missing" >&2; exit 1; }
echo "package.sh: $package installs, works and leaves nothing"
