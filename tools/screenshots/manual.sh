#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the pictures of the manual and of README.md out of screenshots.sh's light ones at 100 %. Needs
# ImageMagick.
# Usage: manual.sh [SCREENSHOTS_FOLDER]
set -euo pipefail
top=$(cd "$(dirname "$0")/../.." && pwd)
shots=${1:-$top/build/screenshots}

# The picture's name below docs, the screenshot's, what is cut out of it, and the width that it gets.
while read -r name shot part width; do
  found=$(compgen -G "$shots/light-100-$shot.png" | head -n 1)
  [ -n "$found" ] || { echo "manual.sh: there is no $shot in $shots" >&2; exit 1; }
  convert "$found" -crop "$part" +repage -resize "$width" -strip +dither -colors 96 \
    -define png:compression-level=9 "$top/docs/$name.png"
done <<'PICTURES'
manual/window       main-*-five-pages         1280x790+0+0      768x
manual/recovery     recovery-*-bar            1280x270+0+0      768x
manual/details      objects-*-details         760x480+0+160     760x
manual/grid         objects-*-box-on-grid     800x340+0+206     760x
manual/table        main-*-table-dialog       362x446+459+193   362x
manual/image        main-*-image-dialog       598x616+341+108   562x
manual/link         main-*-link-dialog        598x616+341+108   562x
manual/view-html    main-*-view-html          760x300+0+112     760x
manual/edit-html    main-*-edit-html-find-bar 1280x820+0+0      768x
manual/projects     main-*-project-manager    860x527+210+153   700x
manual/settings     main-*-settings           816x580+233+126   760x
manual/find-command main-*-find-command       422x404+429+213   422x
screenshot          readme-*-lighthouse       1280x820+0+0      1280x
PICTURES
